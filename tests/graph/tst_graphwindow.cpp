#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "graph/BarGraphView.h"
#include "graph/CircleGraphView.h"
#include "graph/GraphCategoryModel.h"
#include "graph/GraphWinController.h"
#include "graph/LineGraphView.h"
#include "ledger/KController.h"
#include "model/CategoryPalette.h"
#include "model/Notifications.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "storage/ColorArchive.h"
#include "storage/ListFile.h"
#include "widgets/RgbaQColor.h"

#include <QComboBox>
#include <QLocale>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

PaymentDataPtr record(int year, int month, int day, int category, float amount)
{
    return entry(year, month, day, u"x"_s, amount, category);
}

} // namespace

class TestGraphWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void opensWithTheChartLastChosen_data();
    void opensWithTheChartLastChosen();
    void tableShowsTheMonthsSums();
    void checksChooseWhatTheChartsInclude();
    void steppingAndTypingChangeTheMonth();
    void selectionHighlightsAndDoubleClickAsksForTheList();
    void chartsFollowChangesOfTheMonths();
    void closingDayMonthsAreShown();
    void exportsAPdfAndKeepsItsFrame();

private:
    std::unique_ptr<GraphWinController> makeWindow();
    int amountShown(int row) const;

    std::unique_ptr<TestDataFolder> m_home;
    std::unique_ptr<KController> m_controller;
    GraphWinController *m_window = nullptr;
};

void TestGraphWindow::init()
{
    m_home = std::make_unique<TestDataFolder>();
    const QString folder = m_home->freshDataFolder();
    Settings().setVersion(1);
    const QVariantList names{u"Food"_s, u"Rent"_s, u"Fun"_s, u"Income"_s};
    QVariantList colors;
    for (const QByteArray &color : ColorArchive::initialColors(4))
        colors.append(color);
    QVERIFY(ListFile::setPreferenceDataListForKey(folder, names, ListFile::CategoryList));
    QVERIFY(ListFile::setPreferenceDataListForKey(folder, colors, ListFile::ColorList));
    writeMonthFile(folder, 2007, 12, {record(2007, 12, 3, 0, 700), record(2007, 12, 28, 2, 90)});
    writeMonthFile(folder, 2008, 1,
               {record(2008, 1, 5, 0, 1000), record(2008, 1, 6, 1, 3000),
                record(2008, 1, 25, 3, 8000), record(2008, 1, 28, 0, 250)});
    m_controller = std::make_unique<KController>();
    m_controller->readListPreference();
}

void TestGraphWindow::cleanup()
{
    m_window = nullptr;
    m_controller.reset();
    m_home.reset();
}

std::unique_ptr<GraphWinController> TestGraphWindow::makeWindow()
{
    auto window = std::make_unique<GraphWinController>(m_controller.get());
    window->setTargetYear(2008, 1);
    m_window = window.get();
    return window;
}

int TestGraphWindow::amountShown(int row) const
{
    auto *table = child<QTableView>(m_window, u"listTable"_s);
    return QLocale().toInt(
        table->model()->index(row, GraphCategoryModel::AmountColumn).data().toString());
}

void TestGraphWindow::opensWithTheChartLastChosen_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("chart");
    QTest::newRow("none") << QVariant() << u"CircleGraphView"_s;
    QTest::newRow("2") << QVariant(2) << u"BarGraphView"_s;
    QTest::newRow("3") << QVariant(3) << u"LineGraphView"_s;
    QTest::newRow("7") << QVariant(7) << u"CircleGraphView"_s;
}

void TestGraphWindow::opensWithTheChartLastChosen()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, chart);
    if (stored.isValid())
        Settings().setChartSelection(stored.toInt());
    const auto window = makeWindow();
    QCOMPARE(QString::fromLatin1(window->currentGraphView()->metaObject()->className()), chart);
    auto *popUp = child<QComboBox>(window.get(), u"graphPpButton"_s);
    const int shown = chart == u"BarGraphView"_s ? 2 : chart == u"LineGraphView"_s ? 3 : 1;
    QCOMPARE(popUp->currentIndex() + 1, shown);

    // The bar count controls belong to the bar chart alone.
    window->show();
    QCOMPARE(child<QToolButton>(window.get(), u"addBarButton"_s)->isVisible(),
             chart == u"BarGraphView"_s);

    // Opening remembers nothing; choosing in the pop-up does.
    QCOMPARE(Settings().chartSelection(), stored.toInt());
    popUp->setCurrentIndex(0);
    QTest::keyClick(popUp, Qt::Key_Down);
    QTest::keyClick(popUp, Qt::Key_Down);
    QCOMPARE(Settings().chartSelection(), 3);
    QVERIFY(qobject_cast<LineGraphView *>(window->currentGraphView()));
    QCOMPARE(window->currentGraphView()->targetYear(), 2008);
}

void TestGraphWindow::tableShowsTheMonthsSums()
{
    const auto window = makeWindow();
    auto *model = child<QTableView>(window.get(), u"listTable"_s)->model();
    QCOMPARE(model->rowCount(), 4);
    QCOMPARE(model->index(0, 0).data().toString(), u"Food"_s);
    QCOMPARE(model->index(0, 0).data(Qt::DecorationRole).value<QColor>(),
             toQColor(CategoryPalette::colorAt(0)));
    QCOMPARE(amountShown(0), 1250);
    QCOMPARE(amountShown(2), 0);
    // Shares of the month's spending, 4250.
    QCOMPARE(model->index(1, GraphCategoryModel::RatioColumn).data().toString(),
             QLocale().toString(70.6, 'f', 1) + u" %"_s);
    QCOMPARE(model->index(2, GraphCategoryModel::RatioColumn).data().toString(),
             QLocale().toString(0.0, 'f', 1) + u" %"_s);

    window->setTargetYear(2009, 4);
    QCOMPARE(amountShown(0), 0);
    QCOMPARE(model->index(0, GraphCategoryModel::RatioColumn).data().toString(), u"–"_s);
}

void TestGraphWindow::checksChooseWhatTheChartsInclude()
{
    const auto window = makeWindow();
    auto *model = qobject_cast<GraphCategoryModel *>(
        child<QTableView>(window.get(), u"listTable"_s)->model());
    QVERIFY(model);
    // Income stays out until asked for.
    QCOMPARE(model->checks(), (QList<bool>{true, true, true, false}));
    QCOMPARE(window->currentGraphView()->chartData().selectedItems(), model->checks());
    QCOMPARE(window->currentGraphView()->chartData().calculateMaxTotal(), 4250);

    // Clicking a check box turns it over; with Control held, every box
    // turns the way the clicked one turns.
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    auto *table = child<QTableView>(window.get(), u"listTable"_s);
    const auto checkBoxOf = [&](int row) {
        const QRect cell = table->visualRect(model->index(row, GraphCategoryModel::CategoryColumn));
        return QPoint(cell.left() + 10, cell.center().y());
    };
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, checkBoxOf(1));
    QCOMPARE(model->checks(), (QList<bool>{true, false, true, false}));
    QCOMPARE(window->currentGraphView()->chartData().calculateMaxTotal(), 1250);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::ControlModifier, checkBoxOf(3));
    QCOMPARE(model->checks(), (QList<bool>{true, true, true, true}));
    QCOMPARE(model->index(2, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    model->toggleCheck(0, true);
    QCOMPARE(model->checks(), (QList<bool>{false, false, false, false}));

    // New lists from the preferences: all but the last are checked again.
    emit Notifications::instance()->listPreferenceHasUpDated();
    QCOMPARE(model->checks(), (QList<bool>{true, true, true, false}));
    QCOMPARE(window->currentGraphView()->chartData().selectedItems(), model->checks());
}

void TestGraphWindow::steppingAndTypingChangeTheMonth()
{
    const auto window = makeWindow();
    window->changeGraph(GraphWinController::BarChart);
    auto *year = child<QSpinBox>(window.get(), u"yearTF"_s);
    auto *month = child<QSpinBox>(window.get(), u"monthTF"_s);

    QTest::mouseClick(child<QToolButton>(window.get(), u"previousMonthButton"_s), Qt::LeftButton);
    QCOMPARE(year->value(), 2007);
    QCOMPARE(month->value(), 12);
    QCOMPARE(amountShown(0), 700);
    const ChartEntries shown = window->currentGraphView()->chartData().entries();
    QCOMPARE(shown.last().year, 2007);
    QCOMPARE(shown.last().month, 12);
    QCOMPARE(shown.first().month, 10);

    QTest::mouseClick(child<QToolButton>(window.get(), u"nextMonthButton"_s), Qt::LeftButton);
    QCOMPARE(window->year(), 2008);
    QCOMPARE(window->month(), 1);

    // Typing the month on show changes nothing; another month is fetched
    // when Return is pressed, not at every digit.
    QSignalSpy refreshed(child<QTableView>(window.get(), u"listTable"_s)->model(),
                         &QAbstractItemModel::dataChanged);
    month->selectAll();
    QTest::keyClicks(month, u"1"_s);
    QTest::keyClick(month, Qt::Key_Return);
    QCOMPARE(refreshed.count(), 0);
    month->selectAll();
    QTest::keyClicks(month, u"12"_s);
    QCOMPARE(window->month(), 1);
    QTest::keyClick(month, Qt::Key_Return);
    QCOMPARE(window->year(), 2008);
    QCOMPARE(window->month(), 12);
    QCOMPARE(amountShown(0), 0);
    QTest::keyClick(year, Qt::Key_Down);
    QCOMPARE(window->year(), 2007);
    QCOMPARE(amountShown(0), 700);
}

void TestGraphWindow::selectionHighlightsAndDoubleClickAsksForTheList()
{
    const auto window = makeWindow();
    window->resize(700, 400);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QSignalSpy requested(window.get(), &GraphWinController::categoryListRequested);
    auto *table = child<QTableView>(window.get(), u"listTable"_s);

    window->selectItem(1);
    QCOMPARE(table->selectionModel()->selectedRows().constFirst().row(), 1);
    QCOMPARE(window->currentGraphView()->selectedNumber(), 1);
    window->selectItem(9);
    QCOMPARE(window->currentGraphView()->selectedNumber(), 1);

    // A click on the pie selects the slice's row; a double click asks for
    // its entries of the month on show.
    PWKGraphView *pie = window->currentGraphView();
    pie->grab();
    const QPoint centre(pie->width() / 2, pie->height() / 2);
    const QPoint inFood = centre + QPoint(20, -40); // Food: twelve to about four o'clock
    QCOMPARE(pie->categoryForMousePoint(inFood), 0);
    QTest::mouseClick(pie, Qt::LeftButton, {}, inFood);
    QCOMPARE(table->selectionModel()->selectedRows().constFirst().row(), 0);
    QCOMPARE(pie->selectedNumber(), 0);
    QTest::mouseDClick(pie, Qt::LeftButton, {}, inFood);
    QCOMPARE(requested.count(), 1);
    QCOMPARE(requested.at(0), (QVariantList{0, 2008, 1}));

    // The switch to another chart keeps the highlight.
    window->changeGraph(GraphWinController::LineChart);
    QCOMPARE(window->currentGraphView()->selectedNumber(), 0);

    const QModelIndex rent = table->model()->index(1, GraphCategoryModel::AmountColumn);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(rent).center());
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(rent).center());
    QCOMPARE(requested.count(), 2);
    QCOMPARE(requested.at(1), (QVariantList{1, 2008, 1}));

    // New lists leave no row selected, and so no category highlighted.
    emit Notifications::instance()->listPreferenceHasUpDated();
    QVERIFY(table->selectionModel()->selectedRows().isEmpty());
    QCOMPARE(window->currentGraphView()->selectedNumber(), -1);
}

void TestGraphWindow::chartsFollowChangesOfTheMonths()
{
    const auto window = makeWindow();
    QCOMPARE(window->currentGraphView()->chartData().amountOf(0, 2), 0);
    m_controller->addData({record(2008, 1, 9, 2, 480)});
    QTRY_COMPARE(window->currentGraphView()->chartData().amountOf(0, 2), 480);
    QCOMPARE(amountShown(2), 480);
}

void TestGraphWindow::closingDayMonthsAreShown()
{
    const auto window = makeWindow();
    QCOMPARE(amountShown(2), 0);
    Settings settings;
    settings.setChangeMonthLastDate(true);
    settings.setMonthLastDate(25);
    emit Notifications::instance()->lastDateHasChanged();
    // January now runs from 26 December: Fun's 90 of 28 December, without
    // Food's 250 of 28 January.
    QCOMPARE(amountShown(2), 90);
    QCOMPARE(amountShown(0), 1000);
    QCOMPARE(window->currentGraphView()->chartData().amountOf(0, 2), 90);
}

void TestGraphWindow::exportsAPdfAndKeepsItsFrame()
{
    {
        const auto window = makeWindow();
        window->resize(640, 420);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        const QString pdf = m_home->filePath(u"chart.pdf"_s);
        QVERIFY(window->exportPdf(pdf));
        const QByteArray bytes = readBytes(pdf);
        QVERIFY(bytes.startsWith("%PDF"));
        QVERIFY(bytes.size() > 2000);
        QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
        QVERIFY(!window->exportPdf(m_home->filePath(u"no/such/folder/chart.pdf"_s)));
        window->close();
    }
    QVERIFY(!Settings().savedLayout(SettingsKeys::GraphWindow).isEmpty());
    const auto again = makeWindow();
    QCOMPARE(again->size(), QSize(640, 420));
}

QTEST_MAIN(TestGraphWindow)
#include "tst_graphwindow.moc"
