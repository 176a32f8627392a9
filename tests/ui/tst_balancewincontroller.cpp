#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "balance/BalanceWinController.h"
#include "ledger/KController.h"
#include "storage/ListFile.h"
#include "widgets/ThemeColors.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QStyle>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using YearMonth = BalanceWinController::YearMonth;
Q_DECLARE_METATYPE(YearMonth)

namespace {

constexpr int kIncome = 2; // Food, Rent, Income

void writeMonth(const QString &folder, int year, int month,
                const QList<std::pair<int, float>> &entries)
{
    PaymentArray records;
    for (const auto &[category, amount] : entries)
        records.append(entry(year, month, 1, u"x"_s, amount, category));
    writeMonthFile(folder, year, month, records);
}

// Spending, income and balance as the box of the offset shows them.
QStringList figures(BalanceWinController &window, int offset)
{
    auto *box = window.findChild<QGroupBox *>(u"box%1"_s.arg(offset));
    if (!box)
        return {};
    return {box->title(), box->findChild<QLabel *>(u"expense"_s)->text(),
            box->findChild<QLabel *>(u"income"_s)->text(),
            box->findChild<QLabel *>(u"balance"_s)->text()};
}

QString amount(double value, int decimals = 0)
{
    return QLocale().toString(value, 'f', decimals);
}

} // namespace

class TestBalanceWinController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_folder = m_home.freshDataFolder();
        QVERIFY(ListFile::setPreferenceDataLists(
            m_folder, {{ListFile::CategoryList, QVariantList{u"Food"_s, u"Rent"_s, u"Income"_s}},
                       {ListFile::PaywayList, QVariantList{u"Cash"_s}}}));
        writeMonth(m_folder, 2007, 12, {{0, 1200}, {1, 50.25f}, {kIncome, 3000}});
        writeMonth(m_folder, 2007, 11, {{0, 4000}, {kIncome, 1000}});
        writeMonth(m_folder, 2007, 1, {{kIncome, 10}});
    }

    void monthsBefore_data()
    {
        QTest::addColumn<int>("year");
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("offset");
        QTest::addColumn<YearMonth>("shown");
        QTest::newRow("January, one back") << 2008 << 1 << 1 << YearMonth{2007, 12};
        QTest::newRow("January, twelve back") << 2008 << 1 << 12 << YearMonth{2007, 1};
        QTest::newRow("within the year") << 2008 << 6 << 3 << YearMonth{2008, 3};
        QTest::newRow("month 13, one back") << 2008 << 13 << 1 << YearMonth{2008, 12};
        QTest::newRow("month 13, twelve back") << 2008 << 13 << 12 << YearMonth{2008, 1};
        QTest::newRow("wrapped once only") << 2008 << 1 << 14 << YearMonth{2007, -1};
    }

    void monthsBefore()
    {
        QFETCH(int, year);
        QFETCH(int, month);
        QFETCH(int, offset);
        QFETCH(YearMonth, shown);
        QCOMPARE(BalanceWinController::monthBefore(year, month, offset), shown);
    }

    void figuresOfAKnownFolder()
    {
        KController controller;
        controller.readListPreference();
        BalanceWinController window(&controller);
        window.showDataOfYear(2008, 1);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QCOMPARE(figures(window, 1),
                 (QStringList{u"2007. 12"_s, amount(1250.25, 2), amount(3000), amount(1749.75, 2)}));
        QCOMPARE(figures(window, 2),
                 (QStringList{u"2007. 11"_s, amount(4000), amount(1000), amount(-3000)}));
        QCOMPARE(figures(window, 3), (QStringList{u"2007. 10"_s, u"0"_s, u"0"_s, u"0"_s}));
        QCOMPARE(figures(window, 12), (QStringList{u"2007. 1"_s, u"0"_s, amount(10), amount(10)}));
        // A deficit stands out in red, and reads on a light ground as on a dark
        // one; a surplus keeps the theme's text colour.
        auto *deficit = window.findChild<QGroupBox *>(u"box2"_s)->findChild<QLabel *>(u"balance"_s);
        auto *surplus = window.findChild<QGroupBox *>(u"box1"_s)->findChild<QLabel *>(u"balance"_s);
        QPalette dark(QColor(0x35, 0x35, 0x35));
        dark.setColor(QPalette::WindowText, QColor(0xee, 0xee, 0xee));
        for (const QPalette &theme : {QApplication::style()->standardPalette(), dark}) {
            window.setPalette(theme);
            const QColor ground = theme.color(QPalette::Window);
            const QColor red = deficit->palette().color(QPalette::WindowText);
            QVERIFY((red.hslHue() < 15 || red.hslHue() > 345) && red.hslSaturation() > 150);
            QVERIFY(ThemeColors::contrastRatio(red, ground) >= 4.5);
            QCOMPARE(surplus->palette().color(QPalette::WindowText),
                     theme.color(QPalette::WindowText));
        }

        // Next month in December: the column ends with the current month.
        window.showDataOfYear(2007, 13);
        QCOMPARE(figures(window, 1).constFirst(), u"2007. 12"_s);
        QCOMPARE(figures(window, 12).constFirst(), u"2007. 1"_s);
    }

    void followsChangesOfTheMonthsShown()
    {
        KController controller;
        controller.readListPreference();
        BalanceWinController window(&controller);
        window.showDataOfYear(2008, 1);
        QVERIFY(controller.addData(
            {std::make_shared<PaymentData>(2007, 12, 24, kIncome, u"Bonus"_s, 500.f, 0)}));
        QCOMPARE(figures(window, 1).mid(1),
                 (QStringList{amount(1250.25, 2), amount(3500), amount(2249.75, 2)}));
    }

private:
    TestDataFolder m_home;
    QString m_folder;
};

QTEST_MAIN(TestBalanceWinController)
#include "tst_balancewincontroller.moc"
