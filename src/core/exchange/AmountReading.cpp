#include "AmountReading.h"

#include <QRegularExpression>

#include <charconv>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

QString plain(QStringView text)
{
    return text.trimmed().toString().normalized(QString::NormalizationForm_KC);
}

// Which mark one amount shows, if it shows one.
std::optional<DecimalMark> markShownBy(const QString &text)
{
    const qsizetype point = text.lastIndexOf(u'.');
    const qsizetype comma = text.lastIndexOf(u',');
    if (point >= 0 && comma >= 0)
        return point > comma ? DecimalMark::Point : DecimalMark::Comma;
    const qsizetype at = std::max(point, comma);
    if (at < 0)
        return std::nullopt;
    const QChar mark = text.at(at);
    if (text.count(mark) > 1) // only thousands repeat
        return mark == u'.' ? DecimalMark::Comma : DecimalMark::Point;
    qsizetype digits = 0;
    while (at + 1 + digits < text.size() && text.at(at + 1 + digits).isDigit())
        ++digits;
    if (digits == 3)
        return std::nullopt; // "1,234" or "1.234": either way
    return mark == u'.' ? DecimalMark::Point : DecimalMark::Comma;
}

} // namespace

DecimalMark AmountReading::markOf(const QStringList &texts)
{
    int points = 0;
    int commas = 0;
    for (const QString &text : texts) {
        if (const auto shown = markShownBy(plain(text)))
            (*shown == DecimalMark::Point ? points : commas) += 1;
    }
    return commas > points ? DecimalMark::Comma : DecimalMark::Point;
}

std::optional<double> AmountReading::read(QStringView text, DecimalMark mark)
{
    QString value = plain(text);
    bool negative = false;
    if (value.startsWith(u'(') && value.endsWith(u')')) {
        negative = true;
        value = value.mid(1, value.size() - 2);
    }
    // Currency signs, units and blanks around or between the digits.
    static const QRegularExpression decoration(u"[\\s'\\p{Sc}]|円|[A-Za-z]{3}$|^[A-Za-z]{3}"_s);
    value.remove(decoration);
    if (value.startsWith(u'▲') || value.startsWith(u'△')) {
        negative = !negative;
        value.remove(0, 1);
    }
    if (value.startsWith(u'-') || value.startsWith(u'+')) {
        negative = negative != (value.front() == u'-');
        value.remove(0, 1);
    } else if (value.endsWith(u'-')) {
        negative = !negative;
        value.chop(1);
    }
    const QChar decimal = mark == DecimalMark::Point ? u'.' : u',';
    value.remove(mark == DecimalMark::Point ? u',' : u'.');
    value.replace(decimal, u'.');
    static const QRegularExpression number(u"^(\\d+(\\.\\d*)?|\\.\\d+)$"_s);
    if (!number.match(value).hasMatch())
        return std::nullopt;
    const double magnitude = readPlain(value).value_or(0);
    return negative ? -magnitude : magnitude;
}

std::optional<double> AmountReading::readPlain(QStringView text)
{
    // The locale-aware conversion costs thousands of instructions a number;
    // a file of a hundred thousand amounts wants the plain one.
    char latin[64];
    text = text.trimmed();
    if (text.startsWith(u'+'))
        text = text.mid(1);
    if (text.isEmpty() || text.size() > qsizetype(sizeof latin))
        return std::nullopt;
    qsizetype length = 0;
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (!((u >= u'0' && u <= u'9') || u == u'.' || u == u'-' || u == u'e' || u == u'E'))
            return std::nullopt;
        latin[length++] = char(u);
    }
    double value = 0;
    const auto [end, error] = std::from_chars(latin, latin + length, value);
    if (error != std::errc() || end != latin + length || !std::isfinite(value))
        return std::nullopt;
    return value;
}
