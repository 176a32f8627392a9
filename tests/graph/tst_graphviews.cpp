#include "TestDataFolder.h"

#include "graph/BarGraphView.h"
#include "graph/CircleGraphView.h"
#include "graph/LineGraphView.h"
#include "settings/Settings.h"

#include <QApplication>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

const QList<QColor> kColors{Qt::red, Qt::green, Qt::blue};
const QStringList kNames{u"Food"_s, u"Rent"_s, u"Fun"_s};

void setUp(PWKGraphView &view, const QSize &size, const ChartEntries &entries,
           const QList<bool> &checks = {true, true, true})
{
    view.resize(size);
    view.setColorList(kColors);
    view.setCategoryNames(kNames);
    view.setSelectedItems(checks);
    view.setCurrentDataArray(entries);
}

// What the view shows, drawn afresh (which also renews its hit-test paths).
QImage render(PWKGraphView &view)
{
    return view.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

bool near(QColor a, QColor b)
{
    return std::abs(a.red() - b.red()) < 40 && std::abs(a.green() - b.green()) < 40
        && std::abs(a.blue() - b.blue()) < 40;
}

// A point of the pie at `angle` degrees (counter-clockwise from three
// o'clock) and `radius` from the centre, in widget coordinates.
QPoint onPie(const QSize &size, double angle, double radius)
{
    const double rad = angle * M_PI / 180.0;
    return QPoint(int(std::lround(size.width() / 2.0 + radius * std::cos(rad))),
                  int(std::lround(size.height() / 2.0 - radius * std::sin(rad))));
}

// The length of the run of pixels of `color` along row y, from x onward.
int runLength(const QImage &image, int x, int y, QColor color)
{
    int length = 0;
    while (x + length < image.width() && near(image.pixelColor(x + length, y), color))
        ++length;
    return length;
}

int countPixels(const QImage &image, const QRect &area, const std::function<bool(QColor)> &test)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += test(image.pixelColor(x, y)) ? 1 : 0;
    return count;
}

bool dark(QColor c)
{
    return c.lightness() < 100;
}

QString toolTipAt(QWidget *view, const QPoint &point)
{
    QHelpEvent help(QEvent::ToolTip, point, view->mapToGlobal(point));
    QApplication::sendEvent(view, &help);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

} // namespace

class TestGraphViews : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void pieSlicesRunClockwiseFromTwelve();
    void emptyMonthDrawsNothingAndHitsNothing();
    void labelsReadOnTheirSlice();
    void clicksAndToolTipsFindTheCategory();

    void barSegmentsAreInProportion();
    void barClicksDependOnTheRow();
    void numberOfBarsIsKept();

    void lineAxisIsRoundedAndMonthIsRed();
    void lineChartHitsLinesAndMonthLabels();
    void emptyYearShowsAScaleOfOne();
    void largeAmountsStayBesideTheAxis();

private:
    std::unique_ptr<TestDataFolder> m_home;
};

void TestGraphViews::init()
{
    m_home = std::make_unique<TestDataFolder>();
}

void TestGraphViews::pieSlicesRunClockwiseFromTwelve()
{
    CircleGraphView pie;
    const QSize size(300, 300);
    setUp(pie, size, {{2008, 1, {{0, 500}, {1, 250}, {2, 250}}}});
    QImage image = render(pie);
    // Food takes the right half, then Rent the lower left, Fun the upper left.
    QVERIFY(near(image.pixelColor(onPie(size, 30, 100)), Qt::red));
    QVERIFY(near(image.pixelColor(onPie(size, -60, 100)), Qt::red));
    QVERIFY(near(image.pixelColor(onPie(size, -110, 100)), Qt::green));
    QVERIFY(near(image.pixelColor(onPie(size, 160, 100)), Qt::blue));
    // Radius: half the smaller side less 16 points.
    QVERIFY(near(image.pixelColor(onPie(size, 30, 130)), Qt::red));
    QVERIFY(near(image.pixelColor(onPie(size, 30, 138)), Qt::white));

    // The highlighted slice sticks out, outlined in black.
    pie.setSelectedNumber(1);
    image = render(pie);
    QVERIFY(near(image.pixelColor(onPie(size, -110, 139)), Qt::green));
    QVERIFY(near(image.pixelColor(onPie(size, 30, 139)), Qt::white));
    QVERIFY(dark(image.pixelColor(onPie(size, -110, 144))));

    // An unchecked category cannot be highlighted, and leaves no gap.
    pie.setSelectedItems({true, false, true});
    QVERIFY(near(render(pie).pixelColor(onPie(size, -110, 139)), Qt::white));
    pie.setSelectedNumber(-1);
    pie.setSelectedItems({false, true, true});
    image = render(pie);
    QVERIFY(near(image.pixelColor(onPie(size, 30, 100)), Qt::green));
    QVERIFY(near(image.pixelColor(onPie(size, 160, 100)), Qt::blue));
    QCOMPARE(pie.categoryForMousePoint(onPie(size, 30, 100)), 1);
}

void TestGraphViews::emptyMonthDrawsNothingAndHitsNothing()
{
    CircleGraphView pie;
    const QSize size(300, 200);
    setUp(pie, size, {{2008, 1, {}}});
    const QImage image = render(pie);
    // Only a gray note says that there is nothing to show.
    // (Text may be smoothed with faint colour fringes.)
    const auto gray = [](QColor c) { return c != Qt::white && c.hslSaturation() < 80; };
    QVERIFY(countPixels(image, image.rect(), gray) > 20);
    QCOMPARE(countPixels(image, image.rect(), [&](QColor c) { return c != Qt::white && !gray(c); }),
             0);
    QCOMPARE(pie.categoryForMousePoint(QPoint(150, 100)), -1);
    QCOMPARE(toolTipAt(&pie, QPoint(150, 100)), QString());
}

void TestGraphViews::labelsReadOnTheirSlice()
{
    QCOMPARE(PWKGraphView::labelColorOn(QColor::fromRgbF(0, 0, 0.4f)), QColor(Qt::white));
    QCOMPARE(PWKGraphView::labelColorOn(QColor::fromRgbF(0.5f, 0.5f, 0.5f)), QColor(Qt::black));
    QCOMPARE(PWKGraphView::labelColorOn(Qt::blue), QColor(Qt::white));
    QCOMPARE(PWKGraphView::labelColorOn(QColor::fromRgbF(0.5f, 0, 0.5f)), QColor(Qt::white));
    QCOMPARE(PWKGraphView::labelColorOn(Qt::yellow), QColor(Qt::black));

    // One category: a full disc labelled along its middle, six o'clock, in
    // white on blue.
    CircleGraphView pie;
    const QSize size(300, 300);
    setUp(pie, size, {{2008, 1, {{2, 80}}}});
    const QImage image = render(pie);
    const QRect belowCentre(140, 180, 20, 80);
    QVERIFY(countPixels(image, belowCentre, [](QColor c) { return c.lightness() > 200; }) > 20);
    QVERIFY(near(image.pixelColor(onPie(size, 0, 100)), Qt::blue));

    // A name too long for its slice is cut short inside the pie.
    setUp(pie, size, {{2008, 1, {{0, 80}}}});
    pie.setCategoryNames({u"Groceries, household goods and everything else"_s});
    const QImage longName = render(pie);
    QVERIFY(countPixels(longName, QRect(140, 180, 20, 80), dark) > 20);
    const auto outsideThePie = [&](int x, int y) { return std::hypot(x - 150, y - 150) > 136; };
    int outside = 0;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            outside += outsideThePie(x, y) && longName.pixelColor(x, y) != Qt::white ? 1 : 0;
    QCOMPARE(outside, 0);

    // A slice of exactly 20 degrees carries no label.
    setUp(pie, size, {{2008, 1, {{0, 20}, {2, 340}}}});
    pie.setCategoryNames({u"WWWWWWWW"_s, u"Rent"_s, u"Fun"_s});
    const QImage small = render(pie);
    const QRect redSlice = QRect(onPie(size, 85, 60), onPie(size, 75, 120)).normalized();
    QCOMPARE(countPixels(small, redSlice, [](QColor c) { return dark(c); }), 0);
}

void TestGraphViews::clicksAndToolTipsFindTheCategory()
{
    CircleGraphView pie;
    const QSize size(300, 300);
    setUp(pie, size, {{2008, 1, {{0, 500}, {1, 250}, {2, 250}}}});
    render(pie);
    QSignalSpy selected(&pie, &PWKGraphView::itemSelected);
    QSignalSpy doubled(&pie, &PWKGraphView::itemDoubleClicked);

    QTest::mouseClick(&pie, Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(selected.count(), 0);
    QTest::mouseClick(&pie, Qt::LeftButton, {}, onPie(size, -110, 100));
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.at(0).at(0).toInt(), 1);
    QTest::mouseDClick(&pie, Qt::LeftButton, {}, onPie(size, 160, 100));
    QCOMPARE(doubled.count(), 1);
    QCOMPARE(doubled.at(0).at(0).toInt(), 2);

    QCOMPARE(toolTipAt(&pie, onPie(size, 30, 100)), u"Food"_s);
    QCOMPARE(toolTipAt(&pie, onPie(size, 160, 100)), u"Fun"_s);
    toolTipAt(&pie, QPoint(5, 5));
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestGraphViews::barSegmentsAreInProportion()
{
    BarGraphView bars;
    const QSize size(400, 300);
    // 3 bars; the fullest month (400) spans from 10 to 390: 0.95 a unit.
    setUp(bars, size,
          {{2007, 11, {{0, 100}, {1, 100}}}, {2007, 12, {{0, 200}}},
           {2008, 1, {{0, 100}, {1, 200}, {2, 100}}}});
    bars.setCategoryNames({u"Food"_s, u"Rent"_s, u"A very long category name"_s});
    const QImage image = render(bars);
    // The newest bar, at the bottom: top 40 + 2 * 75.
    const int newest = 193;
    QCOMPARE(runLength(image, 10, newest, Qt::red), 95);
    QVERIFY(std::abs(runLength(image, 105, newest, Qt::green) - 190) <= 1);
    QVERIFY(std::abs(runLength(image, 296, newest, Qt::blue) - 94) <= 1);
    QCOMPARE(runLength(image, 10, 118, Qt::red), 190);
    QCOMPARE(runLength(image, 10, 43, Qt::red), 95);
    QCOMPARE(runLength(image, 105, 43, Qt::green), 95);

    // Names inside segments that are wide enough only: black on red, none on
    // the blue segment, too narrow for its name.
    QVERIFY(countPixels(image, QRect(13, 205, 80, 18), dark) > 20);
    QCOMPARE(countPixels(image, QRect(297, 192, 92, 32),
                         [](QColor c) { return !near(c, Qt::blue); }),
             0);

    // The highlight raises the newest bar's segment only.
    bars.setSelectedNumber(1);
    const QImage raised = render(bars);
    QVERIFY(near(raised.pixelColor(200, 184), Qt::green));
    QVERIFY(near(raised.pixelColor(102, 184), Qt::white));
    QVERIFY(near(raised.pixelColor(150, 36), Qt::white));
}

void TestGraphViews::barClicksDependOnTheRow()
{
    BarGraphView bars;
    bars.setTargetYear(2008, 1);
    setUp(bars, QSize(400, 300),
          {{2007, 11, {{0, 100}, {1, 100}}}, {2007, 12, {{0, 200}}},
           {2008, 1, {{0, 100}, {1, 200}, {2, 100}}}});
    render(bars);
    QSignalSpy selected(&bars, &PWKGraphView::itemSelected);
    QSignalSpy requested(&bars, &PWKGraphView::categoryListRequested);

    QCOMPARE(bars.categoryForMousePoint(QPoint(200, 200)), 2 * 3 + 1);
    QTest::mouseClick(&bars, Qt::LeftButton, {}, QPoint(200, 200));
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.at(0).at(0).toInt(), 1);

    // An older bar: a single click does nothing, a double click asks for
    // that month's entries of the category.
    QTest::mouseClick(&bars, Qt::LeftButton, {}, QPoint(50, 130));
    QCOMPARE(selected.count(), 1);
    QTest::mouseDClick(&bars, Qt::LeftButton, {}, QPoint(50, 130));
    QCOMPARE(requested.count(), 1);
    QCOMPARE(requested.at(0), (QVariantList{0, 2007, 12}));

    // A month label: all entries of that month.
    QCOMPARE(bars.categoryForMousePoint(QPoint(20, 25)), 3 * 3);
    QTest::mouseDClick(&bars, Qt::LeftButton, {}, QPoint(20, 25));
    QCOMPARE(requested.at(1), (QVariantList{-1, 2007, 11}));

    QCOMPARE(toolTipAt(&bars, QPoint(50, 130)), u"Food"_s);
    QCOMPARE(toolTipAt(&bars, QPoint(200, 200)), u"Rent"_s);
}

void TestGraphViews::numberOfBarsIsKept()
{
    Settings().setBarChartNumberOfChart(0);
    BarGraphView bars;
    QCOMPARE(bars.numberOfGraph(), 3);
    QCOMPARE(bars.dataArrayForDrawing().size(), 3);
    bars.addBar();
    QCOMPARE(bars.numberOfGraph(), 4);
    QCOMPARE(Settings().barChartNumberOfChart(), 4);
    QCOMPARE(bars.preferredChartSize().height(), std::max(bars.height(), 4 * 75 + 40));
    for (int i = 0; i < 5; ++i)
        bars.deleteBar();
    QCOMPARE(bars.numberOfGraph(), 1);
    QCOMPARE(Settings().barChartNumberOfChart(), 1);

    Settings().setBarChartNumberOfChart(6);
    QCOMPARE(BarGraphView().numberOfGraph(), 6);
}

void TestGraphViews::lineAxisIsRoundedAndMonthIsRed()
{
    LineGraphView lines;
    lines.setTargetYear(2008, 5);
    ChartEntries year = ChartData::monthsOfYear(2008);
    year[2].data = {{0, 12345}, {1, 3000}};
    year[4].data = {{1, 6000}};
    const QSize size(500, 400);
    setUp(lines, size, year);
    const QImage image = render(lines);

    QCOMPARE(lines.axisMaximum(), 13000);
    QCOMPARE(lines.axisLabels(),
             (QList<qint64>{1700, 3200, 4900, 6600, 8100, 9800, 11000, 13000}));
    // Every label is written beside its own height on the axis.
    const double graphHeight = size.height() - 70.0;
    for (const qint64 value : lines.axisLabels()) {
        const int y = size.height() - int(graphHeight / 13000.0 * double(value) + 60.0);
        QVERIFY2(countPixels(image, QRect(0, y - 6, 45, 12), dark) > 5,
                 qPrintable(QString::number(value)));
    }

    const double monthWidth = (size.width() - 60.0) / 12.0;
    const auto monthLabel = [&](int month) {
        const int x = int((month - 0.5) * monthWidth + 40.0);
        return QRect(x - 8, size.height() - 55, 16, 20);
    };
    const auto red = [](QColor c) { return c.red() > 150 && c.green() < 90 && c.blue() < 90; };
    QVERIFY(countPixels(image, monthLabel(5), red) > 5);
    QCOMPARE(countPixels(image, monthLabel(4), red), 0);
    QVERIFY(countPixels(image, monthLabel(4), dark) > 5);

    // Food's March peak reaches the top of the scale, at 12345 of 13000.
    const QPointF peak = lines.pointOfCategory(0, 3, monthWidth, 13000, graphHeight);
    QCOMPARE(peak.x(), 2.5 * monthWidth + 40.0);
    QVERIFY(std::abs(peak.y() - (12345.0 * graphHeight / 13000.0 + 60.0)) < 0.01);
    QVERIFY(near(image.pixelColor(int(peak.x()), size.height() - int(peak.y()) + 1), Qt::red));
}

void TestGraphViews::lineChartHitsLinesAndMonthLabels()
{
    LineGraphView lines;
    lines.setTargetYear(2008, 5);
    ChartEntries year = ChartData::monthsOfYear(2008);
    year[2].data = {{0, 12345}};
    const QSize size(500, 400);
    setUp(lines, size, year);
    render(lines);
    const double monthWidth = (size.width() - 60.0) / 12.0;

    // Halfway up Food's rise from February to March.
    const QPointF feb = lines.pointOfCategory(0, 2, monthWidth, 13000, 330);
    const QPointF mar = lines.pointOfCategory(0, 3, monthWidth, 13000, 330);
    const QPoint onRise((feb.x() + mar.x()) / 2, size.height() - (feb.y() + mar.y()) / 2);
    QCOMPARE(lines.categoryForMousePoint(onRise), 0);
    QCOMPARE(toolTipAt(&lines, onRise), u"Food"_s);
    QCOMPARE(lines.categoryForMousePoint(onRise + QPoint(30, 0)), -1);

    // Rent has no entries: its line lies on the month axis, under Food's.
    QCOMPARE(lines.categoryForMousePoint(QPoint(int(9.5 * monthWidth + 40), size.height() - 60)),
             0);
    lines.setSelectedItems({false, true, true});
    render(lines);
    QCOMPARE(lines.categoryForMousePoint(QPoint(int(9.5 * monthWidth + 40), size.height() - 60)),
             1);

    QSignalSpy requested(&lines, &PWKGraphView::categoryListRequested);
    const QPoint march(int(2.5 * monthWidth + 40), size.height() - 45);
    QCOMPARE(lines.categoryForMousePoint(march), 3 + 2);
    QTest::mouseClick(&lines, Qt::LeftButton, {}, march);
    QCOMPARE(requested.count(), 0);
    QTest::mouseDClick(&lines, Qt::LeftButton, {}, march);
    QCOMPARE(requested.count(), 1);
    QCOMPARE(requested.at(0), (QVariantList{-1, 2008, 3}));
    QCOMPARE(toolTipAt(&lines, march), QString());
}

void TestGraphViews::emptyYearShowsAScaleOfOne()
{
    LineGraphView lines;
    setUp(lines, QSize(300, 200), ChartData::monthsOfYear(2009));
    render(lines);
    QCOMPARE(lines.axisMaximum(), 1);
    // Of the labels 0, 0, 0 and 1, those on top of each other are left out.
    QCOMPARE(lines.axisLabels(), (QList<qint64>{0, 1}));
    // Narrower than twelve months need: the chart keeps its minimum width.
    QCOMPARE(lines.preferredChartSize().width(), 450);
}

void TestGraphViews::largeAmountsStayBesideTheAxis()
{
    LineGraphView lines;
    ChartEntries year = ChartData::monthsOfYear(2008);
    year[0].data = {{0, 12345678}};
    setUp(lines, QSize(500, 400), year);
    const QImage image = render(lines);
    QCOMPARE(lines.axisLabels().last(), 13000000);
    // Nothing is cut off at the left edge, and the labels keep clear of the axis.
    QCOMPARE(countPixels(image, QRect(0, 0, 1, 400), dark), 0);
    QCOMPARE(countPixels(image, QRect(46, 0, 3, 330), dark), 0);
}

QTEST_MAIN(TestGraphViews)
#include "tst_graphviews.moc"
