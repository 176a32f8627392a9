#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "graph/GraphCategoryModel.h"
#include "graph/GraphWinController.h"
#include "graph/PWKGraphView.h"
#include "ledger/KController.h"
#include "model/Notifications.h"
#include "settings/Settings.h"
#include "storage/ColorArchive.h"
#include "storage/ListFile.h"

#include <QLocale>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

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
    void init()
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

    void cleanup()
    {
        m_window = nullptr;
        m_controller.reset();
        m_home.reset();
    }

    void selectionHighlightsAndDoubleClickAsksForTheList()
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

    void chartsFollowChangesOfTheMonths()
    {
        const auto window = makeWindow();
        QCOMPARE(window->currentGraphView()->chartData().amountOf(0, 2), 0);
        m_controller->addData({record(2008, 1, 9, 2, 480)});
        QTRY_COMPARE(window->currentGraphView()->chartData().amountOf(0, 2), 480);
        QCOMPARE(amountShown(2), 480);
    }

    void exportsAPdf()
    {
        const auto window = makeWindow();
        window->resize(640, 420);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        const QString pdf = m_home->filePath(u"chart.pdf"_s);
        QVERIFY(window->exportPdf(pdf));
        const QByteArray bytes = readBytes(pdf);
        QVERIFY(bytes.startsWith("%PDF"));
        // One page: heading, table and chart.
        QCOMPARE(QString::fromLatin1(bytes).count(QRegularExpression(u"/Type\\s*/Page\\b"_s)), 1);
        QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
        QVERIFY(!window->exportPdf(m_home->filePath(u"no/such/folder/chart.pdf"_s)));
    }

private:
    std::unique_ptr<GraphWinController> makeWindow()
    {
        auto window = std::make_unique<GraphWinController>(m_controller.get());
        window->setTargetYear(2008, 1);
        m_window = window.get();
        return window;
    }

    int amountShown(int row) const
    {
        auto *table = child<QTableView>(m_window, u"listTable"_s);
        return QLocale().toInt(
            table->model()->index(row, GraphCategoryModel::AmountColumn).data().toString());
    }

    std::unique_ptr<TestDataFolder> m_home;
    std::unique_ptr<KController> m_controller;
    GraphWinController *m_window = nullptr;
};

QTEST_MAIN(TestGraphWindow)
#include "tst_graphwindow.moc"
