#include "DateReading.h"

#include <QLocale>

#include <array>

namespace {

struct Parts
{
    std::array<int, 3> numbers{};
    std::array<int, 3> digits{};
    // An apostrophe stands before the third number.
    bool apostropheYear = false;
};

// The three numbers of a date, or nothing when the text is not three runs
// of digits (or one run of eight) before any time of day.
std::optional<Parts> partsOf(QStringView text)
{
    const QString plain = text.trimmed().toString().normalized(QString::NormalizationForm_KC);
    Parts parts;
    int count = 0;
    int digits = 0;
    int value = 0;
    const auto close = [&] {
        if (digits == 0)
            return true;
        if (count == 3 || digits > 4)
            return false;
        parts.numbers[count] = value;
        parts.digits[count] = digits;
        ++count;
        digits = value = 0;
        return true;
    };
    for (const QChar c : plain) {
        if (c.isDigit() && c.unicode() < 128) {
            value = value * 10 + c.digitValue();
            if (++digits > 8)
                return std::nullopt;
            continue;
        }
        if (digits == 8 && count == 0) {
            // 20240115
            parts.numbers = {value / 10000, value / 100 % 100, value % 100};
            parts.digits = {4, 2, 2};
            count = 3;
            digits = value = 0;
        }
        if (!close())
            return std::nullopt;
        if (count == 3)
            break; // a time of day may follow
        if (c == u'\'' && count == 2)
            parts.apostropheYear = true;
        else if (c.isLetterOrNumber() && c != u'T' && !(c.unicode() >= 0x4E00))
            return std::nullopt;
    }
    if (digits == 8 && count == 0) {
        parts.numbers = {value / 10000, value / 100 % 100, value % 100};
        parts.digits = {4, 2, 2};
        count = 3;
    } else if (!close()) {
        return std::nullopt;
    }
    if (count != 3)
        return std::nullopt;
    return parts;
}

int fullYear(int year, int digits, bool apostrophe)
{
    if (digits > 2)
        return year;
    if (apostrophe)
        return 2000 + year;
    return year < 70 ? 2000 + year : 1900 + year;
}

} // namespace

std::optional<QDate> DateReading::read(QStringView text, DateOrder order)
{
    const auto parts = partsOf(text);
    if (!parts)
        return std::nullopt;
    const auto &n = parts->numbers;
    const auto &d = parts->digits;
    int year = 0, month = 0, day = 0;
    switch (order) {
    case DateOrder::YearMonthDay:
        if (d[0] == 1 || d[0] == 3 || d[1] > 2 || d[2] > 2)
            return std::nullopt;
        year = fullYear(n[0], d[0], false);
        month = n[1];
        day = n[2];
        break;
    case DateOrder::DayMonthYear:
    case DateOrder::MonthDayYear:
        // "1/2' 5" pads the year of the 2000s with a blank.
        if (d[0] > 2 || d[1] > 2 || (d[2] == 1 && !parts->apostropheYear) || d[2] == 3)
            return std::nullopt;
        year = fullYear(n[2], d[2], parts->apostropheYear);
        day = order == DateOrder::DayMonthYear ? n[0] : n[1];
        month = order == DateOrder::DayMonthYear ? n[1] : n[0];
        break;
    }
    const QDate date(year, month, day);
    if (!date.isValid())
        return std::nullopt;
    return date;
}

QList<DateOrder> DateReading::ordersFitting(const QStringList &texts, const QList<DateOrder> &preference)
{
    QList<qsizetype> fitting;
    for (const DateOrder order : preference) {
        qsizetype count = 0;
        for (const QString &text : texts)
            count += text.trimmed().isEmpty() || read(text, order).has_value();
        fitting.append(count);
    }
    const qsizetype best = fitting.isEmpty() ? 0 : *std::max_element(fitting.cbegin(), fitting.cend());
    QList<DateOrder> orders;
    for (qsizetype i = 0; i < preference.size(); ++i) {
        if (fitting.at(i) == best && best > 0)
            orders.append(preference.at(i));
    }
    return orders;
}

QList<DateOrder> DateReading::localPreference()
{
    const QString format = QLocale().dateFormat(QLocale::ShortFormat);
    const bool monthFirst = format.indexOf(u'M') < format.indexOf(u'd');
    if (format.indexOf(u'y') < format.indexOf(u'M'))
        return {DateOrder::YearMonthDay, DateOrder::DayMonthYear, DateOrder::MonthDayYear};
    return monthFirst
        ? QList<DateOrder>{DateOrder::MonthDayYear, DateOrder::DayMonthYear, DateOrder::YearMonthDay}
        : QList<DateOrder>{DateOrder::DayMonthYear, DateOrder::MonthDayYear, DateOrder::YearMonthDay};
}
