#include "ProbeRun.h"
#include "SwapConversion.h"
#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "budget/BudgetBook.h"
#include "budget/BudgetFile.h"
#include "ledger/KController.h"
#include "recurring/ScheduleBook.h"
#include "recurring/ScheduleFile.h"

#include <QSignalSpy>
#include <QTest>

#include <chrono>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace {

Schedule rule(Schedule::Every every, int interval, int day, const QDate &start)
{
    Schedule s;
    s.id = Schedule::newId();
    s.details = u"Rent"_s;
    s.amount = u"1,200+300"_s;
    s.every = every;
    s.interval = interval;
    s.day = day;
    s.start = start;
    return s;
}

QDate date(const char *iso)
{
    return QDate::fromString(QString::fromLatin1(iso), Qt::ISODate);
}

QStringList isoDates(const QList<QDate> &dates)
{
    QStringList texts;
    for (const QDate &d : dates)
        texts.append(d.toString(Qt::ISODate));
    return texts;
}

// Every month's entries of a folder as a fresh start reads them, by details.
QMap<QString, int> bookedOnDisk(int firstYear, int years)
{
    KController ledger;
    QMap<QString, int> booked;
    for (int year = firstYear; year < firstYear + years; ++year) {
        for (int month = 1; month <= 12; ++month) {
            for (const PaymentDataPtr &r : ledger.monthListForYear(year, month)->dataListArray())
                ++booked[u"%1 %2-%3"_s.arg(r->details()).arg(year).arg(month)];
        }
    }
    return booked;
}

} // namespace

Q_DECLARE_METATYPE(Schedule::Every)
Q_DECLARE_METATYPE(Schedule)

// The dates a schedule gives, what it refuses, and how its occurrences are
// booked: once each, whatever happens.
class TestSchedules : public QObject
{
    Q_OBJECT

private slots:
    void calendarCorners_data();
    void calendarCorners();
    void impossibleRulesAreRefused_data();
    void impossibleRulesAreRefused();
    void postingBooksEachOccurrenceOnce();
    void renumberingCarriesSchedulesAndBudgetsAlong();
    void anUnreadableFileIsLeftAlone();
    void anotherComputersChangesAreFollowed();
    void killedPostingNeverBooksTwice();
};

void TestSchedules::calendarCorners_data()
{
    QTest::addColumn<Schedule::Every>("every");
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("day");
    QTest::addColumn<QDate>("start");
    QTest::addColumn<QDate>("end");
    QTest::addColumn<int>("count"); // 0: none
    QTest::addColumn<QDate>("last");
    QTest::addColumn<QDate>("until");
    QTest::addColumn<QStringList>("due");

    using E = Schedule::Every;
    const QDate none;
    QTest::newRow("31st, leap February") << E::Months << 1 << 31 << date("2024-01-01") << none << 0
                                         << none << date("2024-04-30")
                                         << QStringList{u"2024-01-31"_s, u"2024-02-29"_s,
                                                        u"2024-03-31"_s, u"2024-04-30"_s};
    QTest::newRow("31st, common February") << E::Months << 1 << 31 << date("2023-01-31") << none
                                           << 0 << none << date("2023-03-31")
                                           << QStringList{u"2023-01-31"_s, u"2023-02-28"_s,
                                                          u"2023-03-31"_s};
    QTest::newRow("quarterly, start after the day")
        << E::Months << 3 << 15 << date("2023-01-20") << none << 0 << none << date("2023-10-15")
        << QStringList{u"2023-04-15"_s, u"2023-07-15"_s, u"2023-10-15"_s};
    QTest::newRow("after the last booked") << E::Months << 1 << 31 << date("2024-01-01") << none
                                           << 0 << date("2024-02-29") << date("2024-04-30")
                                           << QStringList{u"2024-03-31"_s, u"2024-04-30"_s};
    QTest::newRow("29 February yearly")
        << E::Years << 1 << 29 << date("2023-01-01") << none << 0 << none << date("2028-03-01")
        << QStringList{u"2023-02-28"_s, u"2024-02-29"_s, u"2025-02-28"_s, u"2026-02-28"_s,
                       u"2027-02-28"_s, u"2028-02-29"_s};
    QTest::newRow("Fridays across the new year")
        << E::Weeks << 1 << 5 << date("2023-12-20") << none << 0 << none << date("2024-01-12")
        << QStringList{u"2023-12-22"_s, u"2023-12-29"_s, u"2024-01-05"_s, u"2024-01-12"_s};
    QTest::newRow("every other Monday") << E::Weeks << 2 << 1 << date("2023-12-25") << none << 0
                                        << none << date("2024-01-28")
                                        << QStringList{u"2023-12-25"_s, u"2024-01-08"_s,
                                                       u"2024-01-22"_s};
    QTest::newRow("three times") << E::Months << 1 << 10 << date("2024-01-01") << none << 3
                                 << none << date("2024-12-31")
                                 << QStringList{u"2024-01-10"_s, u"2024-02-10"_s, u"2024-03-10"_s};
    QTest::newRow("three times, two booked") << E::Months << 1 << 10 << date("2024-01-01") << none
                                             << 3 << date("2024-02-10") << date("2024-12-31")
                                             << QStringList{u"2024-03-10"_s};
    QTest::newRow("until the end") << E::Months << 1 << 5 << date("2024-01-01")
                                   << date("2024-03-04") << 0 << none << date("2024-12-31")
                                   << QStringList{u"2024-01-05"_s, u"2024-02-05"_s};
    QTest::newRow("nothing due yet") << E::Months << 1 << 5 << date("2024-01-06") << none << 0
                                     << none << date("2024-02-04") << QStringList();
}

void TestSchedules::calendarCorners()
{
    QFETCH(Schedule::Every, every);
    QFETCH(int, interval);
    QFETCH(int, day);
    QFETCH(QDate, start);
    QFETCH(QDate, end);
    QFETCH(int, count);
    QFETCH(QDate, last);
    QFETCH(QDate, until);
    QFETCH(QStringList, due);

    Schedule s = rule(every, interval, day, start);
    s.month = 2; // for the yearly rule
    s.end = end;
    if (count)
        s.count = count;
    if (last.isValid()) {
        s.last = last;
        s.done = 2;
    }
    QVERIFY(!s.problem());
    QCOMPARE(isoDates(s.dueUpTo(until)), due);
    if (!due.isEmpty())
        QCOMPARE(s.nextDate().toString(Qt::ISODate), due.constFirst());
}

void TestSchedules::impossibleRulesAreRefused_data()
{
    QTest::addColumn<Schedule>("schedule");
    QTest::addColumn<bool>("refused");

    const Schedule sound = rule(Schedule::Every::Months, 1, 31, date("2024-01-01"));
    QTest::newRow("sound") << sound << false;
    Schedule s = sound;
    s.day = 0;
    QTest::newRow("day 0") << s << true;
    s = sound;
    s.interval = 0;
    QTest::newRow("every 0 months") << s << true;
    s = sound;
    s.end = date("2023-12-31");
    QTest::newRow("end before start") << s << true;
    s = sound;
    s.end = date("2024-01-30");
    QTest::newRow("no date before the end") << s << true;
    s = sound;
    s.count = 0;
    QTest::newRow("count 0") << s << true;
    s = rule(Schedule::Every::Weeks, 1, 8, date("2024-01-01"));
    QTest::newRow("weekday 8") << s << true;
    s = rule(Schedule::Every::Years, 1, 30, date("2024-01-01"));
    s.month = 2;
    QTest::newRow("30 February") << s << true;
    s.day = 29;
    QTest::newRow("29 February") << s << false;
}

void TestSchedules::impossibleRulesAreRefused()
{
    QFETCH(Schedule, schedule);
    QFETCH(bool, refused);
    QCOMPARE(schedule.problem().has_value(), refused);
    // The book refuses what the rule refuses, and writes nothing then.
    TestDataFolder home;
    home.freshDataFolder();
    KController ledger;
    ScheduleBook &book = *ledger.schedules();
    book.load();
    QString error;
    QCOMPARE(book.add(schedule, &error), !refused);
    QCOMPARE(error.isEmpty(), !refused);
    QCOMPARE(QFile::exists(home.filePath(ScheduleFile::FileName)), !refused);
}

void TestSchedules::postingBooksEachOccurrenceOnce()
{
    TestDataFolder home;
    const QString folder = home.freshDataFolder();
    KController ledger;
    ledger.readListPreference();
    ScheduleBook &book = *ledger.schedules();
    book.load();
    QVERIFY(book.add(rule(Schedule::Every::Months, 1, 31, date("2024-01-01"))));
    Schedule asked = rule(Schedule::Every::Weeks, 1, 1, date("2024-02-01"));
    asked.details = u"Lesson"_s;
    asked.mode = Schedule::Mode::AskFirst;
    QVERIFY(book.add(asked));

    QList<ScheduleBook::Occurrence> offered;
    QVERIFY(book.postDue(date("2024-02-29"), &offered));
    QVERIFY(ledger.saveAllEditedData());
    // The rent of January and February booked at 1,500; the Mondays of
    // February asked about.
    QCOMPARE(detailsOnDisk(folder, 2024, 3), QStringList());
    QCOMPARE(detailsOnDisk(folder, 2024, 1), QStringList{u"Rent"_s});
    QCOMPARE(detailsOnDisk(folder, 2024, 2), QStringList{u"Rent"_s});
    QCOMPARE(ledger.monthListForYear(2024, 2)->dataListArray().constFirst()->date(), 29);
    QCOMPARE(ledger.monthListForYear(2024, 2)->dataListArray().constFirst()->amount(), 1500.f);
    QCOMPARE(offered.size(), 4);
    // The first Monday booked as edited, the second skipped, the others left.
    offered[0].entry->setDetails(u"Lesson, longer"_s);
    offered[1].entry.reset();
    QVERIFY(book.settle(offered.mid(0, 2)));
    QVERIFY(ledger.saveAllEditedData());
    QCOMPARE(detailsOnDisk(folder, 2024, 2), (QStringList{u"Lesson, longer"_s, u"Rent"_s}));

    // Again the same day, and the same answers again: nothing new.
    QVERIFY(book.postDue(date("2024-02-29"), &offered));
    QCOMPARE(offered.size(), 2);
    QCOMPARE(offered.constFirst().date, date("2024-02-19"));
    QVERIFY(book.settle({{asked.id, date("2024-02-05"), asked.entryOn(date("2024-02-05"))}}));
    QCOMPARE(ledger.monthListForYear(2024, 2)->dataListArray().size(), 2);

    // What a fresh start reads is what was booked.
    ScheduleBook reread(&ledger);
    reread.load();
    QCOMPARE(reread.schedules(), book.schedules());
    QCOMPARE(reread.schedules().constFirst().done, 2);
    QCOMPARE(reread.schedules().constFirst().nextDate(), date("2024-03-31"));
}

void TestSchedules::renumberingCarriesSchedulesAndBudgetsAlong()
{
    TestDataFolder home;
    const QString folder = home.freshDataFolder();
    QVERIFY(LedgerGenerator().writeDataFolder(folder, 2024, 1, 5));
    KController ledger;
    ledger.readListPreference();
    QList<KController::Change> recorded;
    connect(&ledger, &KController::changeRecorded, this,
            [&recorded](const KController::Change &change) { recorded.append(change); });
    ScheduleBook &book = *ledger.schedules();
    book.load();
    Schedule s = rule(Schedule::Every::Months, 1, 1, date("2030-01-01"));
    s.category = 0;
    s.payway = 1;
    QVERIFY(book.add(s));
    const QByteArray before = readBytes(home.filePath(ScheduleFile::FileName));
    BudgetPlan plan;
    CategoryBudget budget;
    budget.amount = 15000;
    plan.categories.insert(0, budget);
    QVERIFY(ledger.budgets()->changePlan([&plan](BudgetPlan &held) { held = plan; }));
    const auto budgeted = [&ledger] { return ledger.budgets()->plan().categories.keys(); };

    // Category 0 and 1 change places, payways 0 and 2: the schedule follows.
    QString error;
    QVERIFY2(ledger.convertStoredData(swapConversion(), &error), qPrintable(error));
    QCOMPARE(book.schedules().constFirst().category, 1);
    QCOMPARE(book.schedules().constFirst().payway, 1);
    QCOMPARE(ScheduleFile::decode(readBytes(home.filePath(ScheduleFile::FileName)))->constFirst().category, 1);
    QCOMPARE(budgeted(), QList<int>{1});
    // The change of the budgets, then the renumbering.
    QCOMPARE(recorded.size(), 2);
    QCOMPARE(recorded.constLast().files.size(), 2);

    const QByteArray after = readBytes(home.filePath(ScheduleFile::FileName));
    QVERIFY2(ledger.restoreChange(recorded.constLast(), true, &error), qPrintable(error));
    QCOMPARE(readBytes(home.filePath(ScheduleFile::FileName)), before);
    QCOMPARE(book.schedules().constFirst().category, 0);
    QCOMPARE(budgeted(), QList<int>{0});
    // The budgets' step, behind it, is undone and redone in the old numbers.
    QVERIFY2(ledger.restoreChange(recorded.constFirst(), true, &error), qPrintable(error));
    QCOMPARE(budgeted(), QList<int>{});
    QVERIFY2(ledger.restoreChange(recorded.constFirst(), false, &error), qPrintable(error));
    QVERIFY2(ledger.restoreChange(recorded.constLast(), false, &error), qPrintable(error));
    QCOMPARE(budgeted(), QList<int>{1});
    QCOMPARE(readBytes(home.filePath(ScheduleFile::FileName)), after);
    QCOMPARE(book.schedules().constFirst().category, 1);
    QVERIFY(!QFile::exists(home.filePath(ScheduleFile::FileName + u".converting"_s)));
}

void TestSchedules::anUnreadableFileIsLeftAlone()
{
    TestDataFolder home;
    const QString folder = home.freshDataFolder();
    QVERIFY(LedgerGenerator().writeDataFolder(folder, 2024, 1, 5));
    const QByteArray garbage = "<plist>half a schedule";
    writeBytes(home.filePath(ScheduleFile::FileName), garbage);
    KController ledger;
    ledger.readListPreference();
    ScheduleBook &book = *ledger.schedules();
    QSignalSpy told(&book, &ScheduleBook::unreadable);
    book.load();
    book.load();
    QCOMPARE(told.size(), 1);
    QVERIFY(!book.problem().isEmpty());
    QVERIFY(book.schedules().isEmpty());

    QString error;
    QVERIFY(!book.add(rule(Schedule::Every::Months, 1, 1, date("2024-01-01")), &error));
    QList<ScheduleBook::Occurrence> offered;
    QVERIFY(book.postDue(date("2024-12-31"), &offered));
    QVERIFY(offered.isEmpty());
    // A renumbering would leave it behind in the old numbers: refused.
    QVERIFY(!ledger.convertStoredData(swapConversion(), &error));
    QVERIFY(error.contains(ScheduleFile::FileName));
    QCOMPARE(readBytes(home.filePath(ScheduleFile::FileName)), garbage);
    // The months work as ever.
    QVERIFY(ledger.addData({entry(2024, 3, 1, u"Bread"_s)}));
}

// Another computer changes the schedules and the budgets of the shared
// folder: the books follow, and edits made here keep what it wrote, even
// one made before the folder was looked at again.
void TestSchedules::anotherComputersChangesAreFollowed()
{
    TestDataFolder home;
    home.freshDataFolder();
    KController ledger;
    ledger.readListPreference();
    ledger.watchSharedFolder();
    ScheduleBook &book = *ledger.schedules();
    book.load();
    BudgetBook &budgets = *ledger.budgets();
    const auto budgetFor = [](int category) {
        return [category](BudgetPlan &plan) {
            plan.categories.insert(category, {100.0 * (category + 1), {}, false, 0});
        };
    };
    const Schedule rent = rule(Schedule::Every::Months, 1, 1, date("2024-01-01"));
    QVERIFY(book.add(rent));
    QVERIFY(budgets.changePlan(budgetFor(0)));

    // Theirs: the rent booked through March, a schedule and a budget more.
    Schedule rentThere = rent;
    rentThere.last = date("2024-03-01");
    rentThere.done = 3;
    Schedule lesson = rule(Schedule::Every::Weeks, 1, 1, date("2024-01-01"));
    lesson.details = u"Lesson"_s;
    writeBytes(home.filePath(ScheduleFile::FileName), ScheduleFile::encode({rentThere, lesson}));
    BudgetPlan plan = budgets.plan();
    budgetFor(1)(plan);
    writeBytes(home.filePath(BudgetFile::FileName), BudgetFile::encode(plan));
    QTRY_COMPARE(book.schedules(), (QList<Schedule>{rentThere, lesson}));
    QTRY_COMPARE(budgets.plan(), plan);

    // The rent edited in a dialog opened before: how far it is booked stays.
    Schedule edited = rent;
    edited.details = u"Rent, new flat"_s;
    QVERIFY(book.replace(edited));
    // Theirs again, and at once an edit here.
    budgetFor(2)(plan);
    writeBytes(home.filePath(BudgetFile::FileName), BudgetFile::encode(plan));
    QVERIFY(budgets.changePlan(budgetFor(3)));

    const auto schedules = ScheduleFile::decode(readBytes(home.filePath(ScheduleFile::FileName)));
    QVERIFY(schedules && schedules->size() == 2);
    QCOMPARE(schedules->constFirst().details, edited.details);
    QCOMPARE(schedules->constFirst().nextDate(), date("2024-04-01"));
    QCOMPARE(BudgetFile::decode(readBytes(home.filePath(BudgetFile::FileName)))->categories.keys(),
             (QList<int>{0, 1, 2, 3}));

    // Spoilt there: reported, and nothing is booked from it.
    QSignalSpy told(&book, &ScheduleBook::unreadable);
    writeBytes(home.filePath(ScheduleFile::FileName), "<plist>half");
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(book.schedules().isEmpty());
}

// A probe posts twenty monthly schedules over three years (720 entries in
// 36 months) and is killed at some moment of it; a restart then posts again.
// Whatever the moment, every schedule ends with one entry a month.
void TestSchedules::killedPostingNeverBooksTwice()
{
    constexpr int kSchedules = 20;
    constexpr int kYears = 3;
    TestDataFolder home;
    std::mt19937 random(20240131);
    std::uniform_int_distribution<int> delayUs(0, 10000);
    int whole = 0;
    int none = 0;
    for (int round = 0; round < 8; ++round) {
        const QString folder = home.freshDataFolder();
        QList<Schedule> schedules;
        for (int i = 0; i < kSchedules; ++i) {
            Schedule s = rule(Schedule::Every::Months, 1, 1 + i * 3 / 2, date("2000-01-01"));
            s.details = u"S%1"_s.arg(i);
            schedules.append(s);
        }
        writeBytes(home.filePath(ScheduleFile::FileName), ScheduleFile::encode(schedules));

        QVERIFY2(killProbeAfter(QStringLiteral(SCHEDULE_PROBE_PATH), {folder, u"2002-12-31"_s},
                                std::chrono::microseconds(delayUs(random))),
                 "the probe did not run");

        // The restart: whatever the journal holds is brought back, then
        // what is still due is posted.
        {
            // Killed while the record was being written, it reports the
            // change as lost, which it is: the posting had not happened.
            KController ledger;
            ledger.replayChangeJournal();
            ledger.readListPreference();
            ScheduleBook &book = *ledger.schedules();
            book.load();
            const int done = book.schedules().constFirst().done;
            QVERIFY2(done == 0 || done == 12 * kYears, qPrintable(QString::number(done)));
            ++(done ? whole : none);
            QList<ScheduleBook::Occurrence> offered;
            QVERIFY(book.postDue(date("2002-12-31"), &offered));
            QVERIFY(ledger.saveAllEditedData());
        }
        const QMap<QString, int> booked = bookedOnDisk(2000, kYears);
        QCOMPARE(booked.size(), kSchedules * 12 * kYears);
        for (auto it = booked.cbegin(); it != booked.cend(); ++it)
            QVERIFY2(it.value() == 1, qPrintable(u"round %1: %2 booked %3 times"_s.arg(round)
                                                     .arg(it.key()).arg(it.value())));
    }
    qInfo("%d postings were whole when killed, %d had not begun", whole, none);
}

QTEST_GUILESS_MAIN(TestSchedules)
#include "tst_schedules.moc"
