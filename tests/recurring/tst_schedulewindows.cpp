#include "TestHelpers.h"

#include "recurring/DueDialog.h"
#include "recurring/ScheduleDialog.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
const QStringList kCategories{u"Food"_s, u"Rent"_s, u"Income"_s};
const QStringList kPayways{u"Cash"_s, u"Card"_s};

Schedule rent()
{
    Schedule s;
    s.id = u"rent"_s;
    s.category = 1;
    s.details = u"Rent"_s;
    s.amount = u"1200"_s;
    s.day = 31;
    s.start = QDate(2024, 1, 1);
    return s;
}
} // namespace

// The schedule dialog refuses what cannot be booked and says why; the due
// dialog books the rows ticked, as they stand, and skips the others.
class TestScheduleWindows : public QObject
{
    Q_OBJECT

private slots:
    void dialogRefusesWithTheReason_data();
    void dialogRefusesWithTheReason();
    void dueDialogBooksTickedRowsAndSkipsTheRest();
};

void TestScheduleWindows::dialogRefusesWithTheReason_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("as it is") << QString() << QVariant() << true;
    QTest::newRow("end before start") << u"end"_s << QVariant(QDate(2023, 12, 1)) << false;
    QTest::newRow("no amount") << u"amount"_s << QVariant(u""_s) << false;
    QTest::newRow("amount of sums") << u"amount"_s << QVariant(u"1,000+250"_s) << true;
    QTest::newRow("amount divided by 0") << u"amount"_s << QVariant(u"5/0"_s) << false;
}

void TestScheduleWindows::dialogRefusesWithTheReason()
{
    QFETCH(QString, field);
    QFETCH(QVariant, value);
    QFETCH(bool, accepted);

    ScheduleDialog dialog(rent(), kCategories, kPayways);
    auto *ends = child<QComboBox>(&dialog, u"ends"_s);
    ends->setCurrentIndex(1); // on a date
    if (field == "end"_L1)
        child<QDateEdit>(&dialog, u"end"_s)->setDate(value.toDate());
    if (field == "amount"_L1)
        child<QLineEdit>(&dialog, u"amount"_s)->setText(value.toString());

    auto *ok = child<QDialogButtonBox>(&dialog)->button(QDialogButtonBox::Ok);
    const QString status = child<QLabel>(&dialog, u"status"_s)->text();
    QCOMPARE(ok->isEnabled(), accepted);
    QCOMPARE(dialog.problem().has_value(), !accepted);
    // The reason, or the next date, in words.
    QCOMPARE(status, accepted ? status : *dialog.problem());
    QVERIFY(!status.isEmpty());
    if (accepted)
        QCOMPARE(dialog.schedule().end, QDate(2025, 1, 1));
}

void TestScheduleWindows::dueDialogBooksTickedRowsAndSkipsTheRest()
{
    const Schedule s = rent();
    const QList<ScheduleBook::Occurrence> due{{s.id, QDate(2024, 1, 31), s.entryOn(QDate(2024, 1, 31))},
                                              {s.id, QDate(2024, 2, 29), s.entryOn(QDate(2024, 2, 29))}};
    DueDialog dialog(due, kCategories, kPayways);
    auto *table = child<QTableWidget>(&dialog);
    table->item(0, DueDialog::Details)->setText(u"Rent and a plumber"_s);
    table->item(0, DueDialog::Amount)->setText(u"1200+80"_s);
    table->item(1, DueDialog::Book)->setCheckState(Qt::Unchecked);
    QSignalSpy answered(&dialog, &DueDialog::answered);
    auto *book = child<QDialogButtonBox>(&dialog)->buttons().constFirst();
    QCOMPARE(book->text(), u"&Book"_s);
    book->click();
    QCOMPARE(answered.size(), 1);
    const auto answers = answered.constFirst().constFirst().value<QList<ScheduleBook::Occurrence>>();
    QCOMPARE(answers.size(), 2);
    QCOMPARE(answers.at(0).entry->details(), u"Rent and a plumber"_s);
    QCOMPARE(answers.at(0).entry->amount(), 1280.f);
    QCOMPARE(answers.at(0).entry->category(), 1);
    QVERIFY(!answers.at(1).entry);
    QCOMPARE(answers.at(1).date, QDate(2024, 2, 29));

    // An amount that cannot be booked holds the dialog with the reason.
    table->item(1, DueDialog::Book)->setCheckState(Qt::Checked);
    table->item(1, DueDialog::Amount)->setText(u"1/0"_s);
    book->click();
    QCOMPARE(answered.size(), 1);
    QVERIFY(!child<QLabel>(&dialog, u"status"_s)->isHidden());
}

QTEST_MAIN(TestScheduleWindows)
#include "tst_schedulewindows.moc"
