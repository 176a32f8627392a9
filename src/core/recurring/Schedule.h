#pragma once

#include "model/PaymentData.h"

#include <QCoreApplication>
#include <QDate>
#include <QList>
#include <QString>

#include <optional>

// An entry that comes back: rent on the 27th, a salary every month, an
// insurance once a year. A template of the entry, the rule of its dates, and
// how far it has been booked.
//
// The dates run from the start: every N months on a day of the month (a day
// the month does not have, as the 31st in April, falls on its last day),
// every N weeks on a weekday, or every N years on a date (the 29th of
// February falls on the 28th in other years). The first date on or after the
// start is the first occurrence; the dates end with the end date or after the
// given number of occurrences, whichever comes first.
struct Schedule
{
    Q_DECLARE_TR_FUNCTIONS(Schedule)

public:
    enum class Every { Months, Weeks, Years };
    enum class Mode { Automatic, AskFirst };

    // Names the schedule for as long as it exists; never shown.
    QString id;

    // The entry to book. The amount is kept as typed ("1,200+350") and
    // worked out at each booking.
    int category = 0;
    QString details;
    QString amount;
    int payway = 0;

    Every every = Every::Months;
    int interval = 1;
    // The day of the month (1–31) for months and years, the weekday (1 for
    // Monday to 7 for Sunday) for weeks.
    int day = 1;
    // The month of the date, for years only.
    int month = 1;
    QDate start;
    // Invalid: no end.
    QDate end;
    // Nothing: no limit.
    std::optional<int> count;
    Mode mode = Mode::Automatic;

    // How far it has been booked: the last occurrence booked or skipped
    // (invalid when none yet) and how many occurrences that makes.
    QDate last;
    int done = 0;

    friend bool operator==(const Schedule &, const Schedule &) = default;

    // Why the rule can give no date; nothing when it is sound.
    std::optional<QString> problem() const;
    // The occurrences not booked or skipped yet, up to and including the
    // day, oldest first.
    QList<QDate> dueUpTo(const QDate &day) const;
    // The first occurrence not booked or skipped yet; invalid when there is
    // none left.
    QDate nextDate() const;
    // The amount worked out.
    double amountValue() const;
    // The entry of one occurrence.
    PaymentDataPtr entryOn(const QDate &day) const;
    // Marked as booked or skipped up to and including the occurrence.
    void passed(const QDate &occurrence);

    // The rule in words ("Every 2 months on day 31").
    QString ruleText() const;

    // Every schedule its own id.
    static QString newId();
    // The schedule of an entry booked already: every month on its day from
    // its date on, that date counting as the first occurrence.
    static Schedule fromEntry(const PaymentData &entry);

private:
    // The k-th date of the rule from the start's month, week or year (k from
    // 0), before the start is taken into account.
    QDate rawDate(int k) const;
    // Calls visit(date) for each occurrence after `last` in order, while it
    // answers true.
    template<typename Visit>
    void forEachAhead(Visit visit) const;
};
