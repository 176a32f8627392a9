#include "recurring/Schedule.h"

#include "entry/NumberUtility.h"

#include <QLocale>
#include <QUuid>

#include <algorithm>
#include <cmath>

namespace {
// A day of a month that may not have it falls on the month's last day.
QDate clampedDate(int year, int month, int day)
{
    const QDate first(year, month, 1);
    return first.isValid() ? QDate(year, month, std::min(day, first.daysInMonth())) : QDate();
}
} // namespace

QDate Schedule::rawDate(int k) const
{
    const qint64 step = qint64(k) * interval;
    switch (every) {
    case Every::Months: {
        const QDate month = QDate(start.year(), start.month(), 1).addMonths(int(step));
        return clampedDate(month.year(), month.month(), day);
    }
    case Every::Weeks: {
        const QDate first = start.addDays((day - start.dayOfWeek() + 7) % 7);
        return first.addDays(7 * step);
    }
    case Every::Years:
        // Past the calendar's years: no date, which ends the rule.
        return step > 9999 ? QDate() : clampedDate(start.year() + int(step), month, day);
    }
    return {};
}

template<typename Visit>
void Schedule::forEachAhead(Visit visit) const
{
    if (problem())
        return;
    int ahead = 0;
    for (int k = 0;; ++k) {
        const QDate date = rawDate(k);
        if (!date.isValid() || (end.isValid() && date > end))
            return;
        if (date < start || (last.isValid() && date <= last))
            continue;
        if (count && done + ahead >= *count)
            return;
        ++ahead;
        if (!visit(date))
            return;
    }
}

std::optional<QString> Schedule::problem() const
{
    if (!start.isValid())
        return tr("The schedule needs a start date.");
    if (interval < 1)
        return tr("It must repeat at least every 1 month, week or year.");
    switch (every) {
    case Every::Months:
        if (day < 1 || day > 31)
            return tr("The day of the month must be from 1 to 31.");
        break;
    case Every::Weeks:
        if (day < 1 || day > 7)
            return tr("The weekday must be from Monday to Sunday.");
        break;
    case Every::Years:
        if (month < 1 || month > 12)
            return tr("The month must be from 1 to 12.");
        // A leap year's month, so that the 29th of February is allowed.
        if (day < 1 || day > QDate(2000, month, 1).daysInMonth())
            return tr("That month has no day %1.").arg(day);
        break;
    }
    if (end.isValid() && end < start)
        return tr("The end comes before the start.");
    if (count && *count < 1)
        return tr("It must happen at least once.");
    if (end.isValid()) {
        // The first date of the rule, the progress aside.
        QDate first = rawDate(0);
        if (first < start)
            first = rawDate(1);
        if (first > end)
            return tr("No date of the rule falls between the start and the end.");
    }
    return std::nullopt;
}

QList<QDate> Schedule::dueUpTo(const QDate &day) const
{
    QList<QDate> dates;
    forEachAhead([&](const QDate &date) {
        if (date > day)
            return false;
        dates.append(date);
        return true;
    });
    return dates;
}

QDate Schedule::nextDate() const
{
    QDate next;
    forEachAhead([&next](const QDate &date) {
        next = date;
        return false;
    });
    return next;
}

double Schedule::amountValue() const
{
    return NumberUtility::numberWithCalcurationStatement(amount);
}

PaymentDataPtr Schedule::entryOn(const QDate &date) const
{
    return std::make_shared<PaymentData>(date.year(), date.month(), date.day(), category, details,
                                         float(amountValue()), payway);
}

void Schedule::passed(const QDate &occurrence)
{
    last = occurrence;
    ++done;
}

QString Schedule::newId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QString Schedule::ruleText() const
{
    const QLocale locale;
    switch (every) {
    case Every::Months:
        return interval == 1 ? tr("Every month on day %1").arg(day)
                             : tr("Every %1 months on day %2").arg(interval).arg(day);
    case Every::Weeks:
        return interval == 1 ? tr("Every week on %1").arg(locale.dayName(day))
                             : tr("Every %1 weeks on %2").arg(interval).arg(locale.dayName(day));
    case Every::Years: {
        // A leap year, so that the 29th of February can be named.
        const QString date = locale.toString(QDate(2000, month, day), tr("d MMMM"));
        return interval == 1 ? tr("Every year on %1").arg(date)
                             : tr("Every %1 years on %2").arg(interval).arg(date);
    }
    }
    return {};
}

Schedule Schedule::fromEntry(const PaymentData &entry)
{
    Schedule s;
    s.id = newId();
    s.category = entry.category();
    s.details = entry.details();
    s.amount = QString::number(double(entry.amount()), 'f', entry.amount() == std::floor(entry.amount()) ? 0 : 2);
    s.payway = entry.payway();
    s.day = entry.date();
    s.start = QDate(entry.year(), entry.month(), entry.date());
    s.last = s.start;
    s.done = 1;
    return s;
}
