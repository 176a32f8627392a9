#pragma once

#include "recurring/Schedule.h"

#include <QDate>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>

class KController;

// The schedules of the data folder, as the ledger's partner: it reads them
// from the folder's schedules file (again whenever another computer changed
// it), writes every change at once, and books what falls due.
//
// Booking is done so that nothing is booked twice, whenever the program
// stops: the entries and the schedules' new progress go into one record of
// the ledger's journal, the moment of booking, and only then into their
// files. A schedules file that cannot be read is reported, never written,
// and the program goes on as if there were no schedules.
class ScheduleBook : public QObject
{
    Q_OBJECT

public:
    // An occurrence due, with the entry it books.
    struct Occurrence
    {
        QString scheduleId;
        QDate date;
        PaymentDataPtr entry;
    };

    // Made by the ledger, its parent. Registers the schedules file with it,
    // so that renumbering the lists renumbers the schedules too; reads
    // nothing yet.
    explicit ScheduleBook(KController *ledger);

    // Reads the schedules of the ledger's data folder (again).
    void load();
    const QList<Schedule> &schedules() const { return m_schedules; }
    std::optional<Schedule> schedule(const QString &id) const;
    // Why the schedules file cannot be read; empty when it can.
    QString problem() const { return m_problem; }

    // Each written at once; refused, with the reason, for a rule that gives
    // no date, an amount that cannot be booked, or while the file cannot be
    // read or written. A schedule added without an id is given one.
    bool add(Schedule schedule, QString *error = nullptr);
    bool replace(const Schedule &schedule, QString *error = nullptr);
    bool remove(const QString &id, QString *error = nullptr);

    // Books every occurrence of the automatic schedules due up to the day,
    // as one change, and answers the occurrences of the ask-first ones that
    // are due, to be offered to the user. False, with the reason, when
    // nothing could be booked; the occurrences stay due. Without a readable
    // schedules file there is nothing due.
    bool postDue(const QDate &day, QList<Occurrence> *offered, QString *error = nullptr);
    // The user's answer to offered occurrences: each one with an entry is
    // booked with it (edited or not), each one without is skipped. One
    // change; an occurrence passed already is left out.
    bool settle(const QList<Occurrence> &answers, QString *error = nullptr);

    // Posts now and again every time a day begins, telling of each posting
    // through offered() and postingFailed().
    void postDaily();

signals:
    // The schedules changed: read, edited, booked or renumbered.
    void changed();
    // The schedules file cannot be read (told once per reason).
    void unreadable(const QString &path, const QString &reason);
    // A daily posting found occurrences to ask about.
    void offered(const QList<ScheduleBook::Occurrence> &occurrences);
    void postingFailed(const QString &reason);

private:
    // Writes the schedules given with the entries as one change, and takes
    // them on when that succeeded.
    bool commit(const QList<Schedule> &schedules, const PaymentArray &records, QString *error);
    // Checks the schedule and writes the schedules it is one of.
    bool store(const Schedule &schedule, const QList<Schedule> &schedules, QString *error);
    bool refusedWhileUnreadable(QString *error) const;
    // Takes in another computer's change of the file before an edit, so that
    // the edit is made to what the file holds.
    void catchUp();
    void armTimer();

    KController *m_ledger;
    QList<Schedule> m_schedules;
    QString m_problem;
    QTimer m_midnight;
};
