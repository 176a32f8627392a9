#include "budget/BudgetBar.h"
#include "budget/BudgetPane.h"
#include "widgets/Appearance.h"
#include "widgets/ThemeColors.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Look = Settings::Appearance;
Q_DECLARE_METATYPE(Look)

namespace {
enum class Ink { Highlight, Amber, Red };
} // namespace
Q_DECLARE_METATYPE(Ink)

// The pane as a person reads it: the figures of each line, and a bar whose
// colour says how much of the budget is gone, on either look.
class TestBudgetPane : public QObject
{
    Q_OBJECT

private slots:
    void barsAndFigures_data();
    void barsAndFigures();
};

void TestBudgetPane::barsAndFigures_data()
{
    QTest::addColumn<Look>("look");
    QTest::addColumn<double>("spent");
    QTest::addColumn<double>("carried");
    QTest::addColumn<Ink>("ink");
    QTest::addColumn<QString>("left");

    for (const Look look : {Look::Light, Look::Dark}) {
        const char *name = look == Look::Light ? "light" : "dark";
        QTest::addRow("%s: half", name) << look << 500.0 << 0.0 << Ink::Highlight << u"500"_s;
        QTest::addRow("%s: 80 %% exactly", name) << look << 800.0 << 0.0 << Ink::Highlight
                                                 << u"200"_s;
        QTest::addRow("%s: past 80 %%", name) << look << 850.5 << 0.0 << Ink::Amber
                                              << u"149.50"_s;
        QTest::addRow("%s: all of it", name) << look << 1000.0 << 0.0 << Ink::Amber << u"0"_s;
        QTest::addRow("%s: overspent", name) << look << 1200.0 << 0.0 << Ink::Red << u"-200"_s;
        QTest::addRow("%s: within what rolled over", name)
            << look << 1200.0 << 400.0 << Ink::Amber << u"200"_s;
    }
}

void TestBudgetPane::barsAndFigures()
{
    QFETCH(Look, look);
    QFETCH(double, spent);
    QFETCH(double, carried);
    QFETCH(Ink, ink);
    QFETCH(QString, left);

    BudgetPane pane;
    pane.setPalette(Appearance::palette(look));
    pane.resize(520, 200);
    const BudgetCalculation::Line line{2, spent, 1000, carried};
    pane.showReport({{line}, line}, {u"Food"_s, u"Rent"_s, u"Fun"_s, u"Income"_s});
    pane.show();
    QVERIFY(QTest::qWaitForWindowExposed(&pane));

    const auto *shownLeft = pane.findChild<QLabel *>(u"budgetLeft_2"_s);
    QVERIFY(shownLeft);
    QCOMPARE(shownLeft->text(), left);
    auto *bar = pane.findChild<BudgetBar *>(u"budgetBar_2"_s);
    QVERIFY(bar);
    const QColor ground = bar->palette().color(QPalette::Window);
    const QColor expected = ink == Ink::Red     ? ThemeColors::alertRed(ground)
        : ink == Ink::Amber                     ? ThemeColors::warningAmber(ground)
                                                : bar->palette().color(QPalette::Highlight);
    // The first tenth of the bar is filled whenever anything is spent.
    const QImage drawn = bar->grab().toImage();
    QCOMPARE(drawn.pixelColor(drawn.width() / 10, drawn.height() / 2).rgb(), expected.rgb());
    // Amber and red read on the ground they are drawn on.
    if (ink != Ink::Highlight)
        QVERIFY(ThemeColors::contrastRatio(expected, ground) >= 3.0);
}

QTEST_MAIN(TestBudgetPane)
#include "tst_budgetpane.moc"
