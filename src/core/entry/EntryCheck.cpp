#include "entry/EntryCheck.h"

#include "model/EntryLimits.h"
#include "model/NumberValue.h"

#include <QCoreApplication>
#include <QDate>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace EntryCheck {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("EntryCheck", text);
}

std::optional<double> numberOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString: {
        bool ok = false;
        // The C locale: scripts write "12.5" wherever they run.
        const double number = value.toString().trimmed().toDouble(&ok);
        return ok ? std::optional<double>(number) : std::nullopt;
    }
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::UChar:
    case QMetaType::Double:
    case QMetaType::Float:
        return value.toDouble();
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<int> wholeNumber(const QVariant &value)
{
    const auto number = numberOf(value);
    if (!number || !std::isfinite(*number) || std::trunc(*number) != *number
        || std::fabs(*number) > 2147483647.0)
        return std::nullopt;
    return int(*number);
}

std::optional<double> finiteNumber(const QVariant &value)
{
    const auto number = numberOf(value);
    if (!number || !std::isfinite(*number))
        return std::nullopt;
    return number;
}

std::optional<QString> newEntryProblem(const QVariantMap &fields, int categoryCount,
                                       int paywayCount)
{
    for (const QString &key : {u"year"_s, u"month"_s, u"date"_s, u"category"_s, u"payway"_s}) {
        if (fields.contains(key) && !wholeNumber(fields.value(key)))
            return tr("The %1 \"%2\" is not a whole number.").arg(key, fields.value(key).toString());
    }
    if (fields.contains(u"year"_s)) {
        const int year = *wholeNumber(fields.value(u"year"_s));
        if (!EntryLimits::isYearInRange(year))
            return tr("The year %1 is not within %2 to %3.")
                .arg(year)
                .arg(EntryLimits::FirstYear)
                .arg(EntryLimits::LastYear);
    }
    for (const auto &[key, count, what] : {std::tuple{u"category"_s, categoryCount, tr("category")},
                                           std::tuple{u"payway"_s, paywayCount, tr("payway")}}) {
        if (!fields.contains(key) || count < 0)
            continue;
        const int index = *wholeNumber(fields.value(key));
        if (index < 0 || index >= count)
            return tr("There is no %1 %2; there are %3, counted from 0.").arg(what).arg(index).arg(count);
    }
    if (fields.contains(u"amount"_s)) {
        const auto amount = numberOf(fields.value(u"amount"_s));
        if (!amount)
            return tr("The amount \"%1\" is not a number.").arg(fields.value(u"amount"_s).toString());
        if (auto problem = amountProblem(*amount))
            return problem;
    }
    if (const QVariant details = fields.value(u"details"_s);
        details.isValid() && !details.canConvert<QString>())
        return tr("The details are not a text.");
    return std::nullopt;
}

std::optional<QString> dateProblem(int year, int month, int day)
{
    if (!EntryLimits::isYearInRange(year))
        return tr("The year %1 is not within %2 to %3.")
            .arg(year)
            .arg(EntryLimits::FirstYear)
            .arg(EntryLimits::LastYear);
    if (month < 1 || month > 12)
        return tr("The month %1 is not within 1 to 12.").arg(month);
    const int days = QDate(year, month, 1).daysInMonth();
    if (day < 1 || day > days)
        return tr("The day %1 is not within 1 to %2 of %3/%4.").arg(day).arg(days).arg(month).arg(year);
    return std::nullopt;
}

std::optional<QString> amountProblem(double amount)
{
    if (std::isnan(amount))
        return tr("The amount is not a number.");
    if (std::isinf(amount))
        return tr("The amount is infinite, as after a division by zero.");
    if (!EntryLimits::isAmountStorable(amount))
        return tr("The amount %1 is larger than an entry can hold.").arg(QString::number(amount));
    return std::nullopt;
}

std::optional<float> changedWhenStored(double typed)
{
    const float stored = float(typed);
    if (shortestDouble(stored) == typed)
        return std::nullopt;
    return stored;
}

} // namespace EntryCheck
