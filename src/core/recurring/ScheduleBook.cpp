#include "recurring/ScheduleBook.h"

#include "entry/EntryCheck.h"
#include "ledger/KController.h"
#include "model/Notifications.h"
#include "recurring/ScheduleFile.h"

#include <QDateTime>
#include <QDir>

#include <algorithm>
#include <limits>

namespace {
void setError(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

// A moment into the day, so that the clock has surely turned.
constexpr qint64 kPastMidnightMs = 1000;
} // namespace

ScheduleBook::ScheduleBook(KController *ledger)
    : QObject(ledger)
    , m_ledger(ledger)
{
    m_ledger->registerFolderFile(ScheduleFile::FileName, &ScheduleFile::renumber);
    connect(m_ledger, &KController::folderFileRewritten, this, [this](const QString &name) {
        if (name == ScheduleFile::FileName)
            load();
    });
    // Also sent when the data folder changed.
    connect(Notifications::instance(), &Notifications::listPreferenceHasUpDated, this,
            &ScheduleBook::load);
    m_midnight.setSingleShot(true);
    connect(&m_midnight, &QTimer::timeout, this, &ScheduleBook::postDaily);
}

void ScheduleBook::load()
{
    QString reason;
    const auto bytes = m_ledger->readFolderFile(ScheduleFile::FileName, &reason);
    // No file, no schedules.
    const std::optional<QList<Schedule>> schedules =
        bytes ? ScheduleFile::decode(*bytes, &reason)
              : (reason.isEmpty() ? std::optional(QList<Schedule>()) : std::nullopt);
    if (!schedules)
        reason = tr("The schedules file cannot be read: %1 It is left as it is, and no entry "
                    "is booked from it until it is mended.")
                     .arg(reason);
    m_schedules = schedules.value_or(QList<Schedule>());
    if (std::exchange(m_problem, schedules ? QString() : reason) != m_problem && !m_problem.isEmpty())
        emit unreadable(ScheduleFile::path(m_ledger->dataFolderPath()), m_problem);
    emit changed();
}

std::optional<Schedule> ScheduleBook::schedule(const QString &id) const
{
    const auto found = std::find_if(m_schedules.cbegin(), m_schedules.cend(),
                                    [&id](const Schedule &s) { return s.id == id; });
    return found == m_schedules.cend() ? std::nullopt : std::optional<Schedule>(*found);
}

bool ScheduleBook::refusedWhileUnreadable(QString *error) const
{
    if (m_problem.isEmpty())
        return false;
    setError(error, m_problem);
    return true;
}

void ScheduleBook::catchUp()
{
    m_ledger->takeOutsideChangeOf(ScheduleFile::FileName);
}

bool ScheduleBook::add(Schedule schedule, QString *error)
{
    catchUp();
    if (schedule.id.isEmpty())
        schedule.id = Schedule::newId();
    if (this->schedule(schedule.id)) {
        setError(error, tr("There is a schedule of that name already."));
        return false;
    }
    QList<Schedule> schedules = m_schedules;
    schedules.append(schedule);
    return store(schedule, schedules, error);
}

bool ScheduleBook::replace(const Schedule &schedule, QString *error)
{
    catchUp();
    QList<Schedule> schedules = m_schedules;
    const auto found = std::find_if(schedules.begin(), schedules.end(),
                                    [&schedule](const Schedule &s) { return s.id == schedule.id; });
    if (found == schedules.end()) {
        setError(error, tr("The schedule is gone."));
        return false;
    }
    // How far it is booked stays the book's: a posting, here or on another
    // computer, may have gone on while the rule was being edited.
    const QDate last = found->last;
    const int done = found->done;
    *found = schedule;
    found->last = last;
    found->done = done;
    return store(*found, schedules, error);
}

bool ScheduleBook::store(const Schedule &schedule, const QList<Schedule> &schedules,
                         QString *error)
{
    if (refusedWhileUnreadable(error))
        return false;
    if (const auto problem = schedule.problem()) {
        setError(error, *problem);
        return false;
    }
    if (const auto problem = EntryCheck::amountProblem(schedule.amountValue())) {
        setError(error, *problem);
        return false;
    }
    return commit(schedules, {}, error);
}

bool ScheduleBook::remove(const QString &id, QString *error)
{
    catchUp();
    if (refusedWhileUnreadable(error))
        return false;
    QList<Schedule> schedules = m_schedules;
    schedules.removeIf([&id](const Schedule &s) { return s.id == id; });
    return commit(schedules, {}, error);
}

bool ScheduleBook::commit(const QList<Schedule> &schedules, const PaymentArray &records,
                          QString *error)
{
    const QByteArray bytes = ScheduleFile::encode(schedules);
    const bool done = records.isEmpty()
        ? m_ledger->writeFolderFile(ScheduleFile::FileName, bytes, error)
        : m_ledger->bookWithFolderFiles(
              records, {{ScheduleFile::FileName, bytes}},
              tr("Booking of %n Scheduled Entries", nullptr, int(records.size())), error);
    if (!done)
        return false;
    m_schedules = schedules;
    emit changed();
    return true;
}

bool ScheduleBook::postDue(const QDate &day, QList<Occurrence> *offered, QString *error)
{
    offered->clear();
    // What another computer booked already is not booked again.
    catchUp();
    // Reported when it was read; without it there is nothing to book.
    if (!m_problem.isEmpty())
        return true;
    QList<Schedule> schedules = m_schedules;
    PaymentArray records;
    for (Schedule &s : schedules) {
        const QList<QDate> dates = s.dueUpTo(day);
        for (const QDate &date : dates) {
            if (s.mode == Schedule::Mode::AskFirst) {
                offered->append({s.id, date, s.entryOn(date)});
            } else {
                records.append(s.entryOn(date));
                s.passed(date);
            }
        }
    }
    return records.isEmpty() || commit(schedules, records, error);
}

bool ScheduleBook::settle(const QList<Occurrence> &answers, QString *error)
{
    catchUp();
    if (refusedWhileUnreadable(error))
        return false;
    QList<Occurrence> ordered = answers;
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const Occurrence &a, const Occurrence &b) { return a.date < b.date; });
    QList<Schedule> schedules = m_schedules;
    PaymentArray records;
    bool anyPassed = false;
    for (const Occurrence &answer : std::as_const(ordered)) {
        const auto s = std::find_if(schedules.begin(), schedules.end(),
                                    [&answer](const Schedule &s) { return s.id == answer.scheduleId; });
        // Gone, or answered already (the same offer twice).
        if (s == schedules.end() || (s->last.isValid() && answer.date <= s->last))
            continue;
        s->passed(answer.date);
        anyPassed = true;
        if (answer.entry)
            records.append(answer.entry);
    }
    return !anyPassed || commit(schedules, records, error);
}

void ScheduleBook::postDaily()
{
    QList<Occurrence> due;
    QString reason;
    if (!postDue(QDate::currentDate(), &due, &reason))
        emit postingFailed(reason);
    if (!due.isEmpty())
        emit offered(due);
    armTimer();
}

void ScheduleBook::armTimer()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QDateTime midnight(now.date().addDays(1), QTime(0, 0));
    m_midnight.start(int(std::clamp<qint64>(now.msecsTo(midnight) + kPastMidnightMs, 0,
                                            std::numeric_limits<int>::max())));
}
