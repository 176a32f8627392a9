#include "TestDataFolder.h"

#include "graph/BarGraphView.h"
#include "graph/CircleGraphView.h"
#include "graph/LineGraphView.h"
#include "settings/Settings.h"

#include "model/CategoryPalette.h"
#include "widgets/RgbaQColor.h"
#include "widgets/ThemeColors.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QStyle>
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

// A dark theme as desktops set one.
QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Base, QColor(0x24, 0x24, 0x24));
    palette.setColor(QPalette::Text, QColor(0xee, 0xee, 0xee));
    palette.setColor(QPalette::WindowText, QColor(0xee, 0xee, 0xee));
    return palette;
}

// CIE L*a*b* of an sRGB colour, D65 white.
std::array<double, 3> toLab(const QColor &color)
{
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    const double r = linear(color.redF());
    const double g = linear(color.greenF());
    const double b = linear(color.blueF());
    const auto f = [](double t) {
        return t > 216.0 / 24389.0 ? std::cbrt(t) : t * 841.0 / 108.0 + 4.0 / 29.0;
    };
    const double fx = f((0.4124564 * r + 0.3575761 * g + 0.1804375 * b) / 0.95047);
    const double fy = f(0.2126729 * r + 0.7151522 * g + 0.0721750 * b);
    const double fz = f((0.0193339 * r + 0.1191920 * g + 0.9503041 * b) / 1.08883);
    return {116.0 * fy - 16.0, 500.0 * (fx - fy), 200.0 * (fy - fz)};
}

// The CIEDE2000 colour difference of two L*a*b* colours.
double deltaE2000(const std::array<double, 3> &lab1, const std::array<double, 3> &lab2)
{
    const auto [l1, a1, b1] = lab1;
    const auto [l2, a2, b2] = lab2;
    const auto pow7 = [](double x) { return std::pow(x, 7.0); };
    const auto deg = [](double rad) { return rad * 180.0 / M_PI; };
    const auto rad = [](double deg) { return deg * M_PI / 180.0; };
    const double meanC = (std::hypot(a1, b1) + std::hypot(a2, b2)) / 2.0;
    const double g = 0.5 * (1.0 - std::sqrt(pow7(meanC) / (pow7(meanC) + pow7(25.0))));
    const double ap1 = (1.0 + g) * a1;
    const double ap2 = (1.0 + g) * a2;
    const double c1 = std::hypot(ap1, b1);
    const double c2 = std::hypot(ap2, b2);
    const auto hue = [&](double b, double ap) {
        return b == 0 && ap == 0 ? 0.0 : std::fmod(deg(std::atan2(b, ap)) + 360.0, 360.0);
    };
    const double h1 = hue(b1, ap1);
    const double h2 = hue(b2, ap2);
    double dh = h2 - h1;
    if (c1 * c2 == 0)
        dh = 0;
    else if (dh > 180)
        dh -= 360;
    else if (dh < -180)
        dh += 360;
    const double dL = l2 - l1;
    const double dC = c2 - c1;
    const double dH = 2.0 * std::sqrt(c1 * c2) * std::sin(rad(dh / 2.0));
    const double meanL = (l1 + l2) / 2.0;
    const double meanCp = (c1 + c2) / 2.0;
    double meanH = h1 + h2;
    if (c1 * c2 != 0) {
        if (std::abs(h1 - h2) <= 180)
            meanH /= 2.0;
        else
            meanH = meanH < 360 ? (meanH + 360) / 2.0 : (meanH - 360) / 2.0;
    }
    const double t = 1 - 0.17 * std::cos(rad(meanH - 30)) + 0.24 * std::cos(rad(2 * meanH))
        + 0.32 * std::cos(rad(3 * meanH + 6)) - 0.20 * std::cos(rad(4 * meanH - 63));
    const double rotation = 30.0 * std::exp(-std::pow((meanH - 275.0) / 25.0, 2.0));
    const double rc = 2.0 * std::sqrt(pow7(meanCp) / (pow7(meanCp) + pow7(25.0)));
    const double sl = 1 + 0.015 * std::pow(meanL - 50, 2) / std::sqrt(20 + std::pow(meanL - 50, 2));
    const double sc = 1 + 0.045 * meanCp;
    const double sh = 1 + 0.015 * meanCp * t;
    const double rt = -std::sin(rad(2 * rotation)) * rc;
    return std::sqrt(std::pow(dL / sl, 2) + std::pow(dC / sc, 2) + std::pow(dH / sh, 2)
                     + rt * (dC / sc) * (dH / sh));
}

// The highest contrast any pixel of the area has with the ground: that of
// the text's full strokes, past the smoothing at their edges.
double inkContrast(const QImage &image, const QRect &area, const QColor &ground)
{
    double best = 1.0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            best = std::max(best, ThemeColors::contrastRatio(image.pixelColor(x, y), ground));
    return best;
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
    void pointedOrChosenLineComesToTheFront_data();
    void pointedOrChosenLineComesToTheFront();

    void defaultColoursStayApart();
    void textReadsOnItsGround_data();
    void textReadsOnItsGround();

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

    // One category: a full disc labelled level in its middle, in white on
    // blue.
    CircleGraphView pie;
    const QSize size(300, 300);
    setUp(pie, size, {{2008, 1, {{2, 80}}}});
    const QImage image = render(pie);
    QVERIFY(countPixels(image, QRect(130, 140, 40, 20), [](QColor c) { return c.lightness() > 200; })
            > 20);
    QVERIFY(near(image.pixelColor(onPie(size, 0, 100)), Qt::blue));

    // A name too long for its slice is cut short inside the pie.
    setUp(pie, size, {{2008, 1, {{0, 80}}}});
    pie.setCategoryNames({u"Groceries, household goods and everything else"_s});
    const QImage longName = render(pie);
    QVERIFY(countPixels(longName, QRect(130, 140, 40, 20), dark) > 20);
    const auto outsideThePie = [&](int x, int y) { return std::hypot(x - 150, y - 150) > 136; };
    int outside = 0;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            outside += outsideThePie(x, y) && longName.pixelColor(x, y) != Qt::white ? 1 : 0;
    QCOMPARE(outside, 0);

    // A slice of 20 degrees is too narrow for its name, and a square view
    // has no room beside the pie: no label.
    setUp(pie, size, {{2008, 1, {{0, 20}, {2, 340}}}});
    pie.setCategoryNames({u"WWWWWWWW"_s, u"Rent"_s, u"Fun"_s});
    const QImage small = render(pie);
    const QRect redSlice = QRect(onPie(size, 85, 60), onPie(size, 75, 120)).normalized();
    QCOMPARE(countPixels(small, redSlice, [](QColor c) { return dark(c); }), 0);
    QCOMPARE(countPixels(small, QRect(0, 0, 300, 14), dark), 0);

    // A wide view has: the name stands level right of the pie, at the end
    // of a leader line that leaves the slice's rim at 80 degrees.
    const QSize wide(600, 300);
    pie.resize(wide);
    const QImage beside = render(pie);
    QVERIFY(countPixels(beside, QRect(450, 0, 150, 24), dark) > 40);
    const QPoint rim = onPie(wide, 80, 140);
    QVERIFY(countPixels(beside, QRect(rim.x() + 10, rim.y() - 3, 100, 6),
                        [](QColor c) { return c != Qt::white && c.hslSaturation() < 30; })
            > 50);
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

    // Tips give the amount and its share of the pie.
    QCOMPARE(toolTipAt(&pie, onPie(size, 30, 100)), u"Food: 500 (50.0 %)"_s);
    QCOMPARE(toolTipAt(&pie, onPie(size, 160, 100)), u"Fun: 250 (25.0 %)"_s);
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
    // Each segment after the first starts with a pixel of the ground.
    QCOMPARE(runLength(image, 10, newest, Qt::red), 95);
    QVERIFY(near(image.pixelColor(105, newest), Qt::white));
    QVERIFY(std::abs(runLength(image, 106, newest, Qt::green) - 189) <= 1);
    QVERIFY(std::abs(runLength(image, 296, newest, Qt::blue) - 93) <= 1);
    QCOMPARE(runLength(image, 10, 118, Qt::red), 190);
    QCOMPARE(runLength(image, 10, 43, Qt::red), 95);
    QCOMPARE(runLength(image, 106, 43, Qt::green), 94);

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

    // Tips name the month of the bar, and the share is of that month.
    QCOMPARE(toolTipAt(&bars, QPoint(50, 130)), u"Food, 2007/12: 200 (100.0 %)"_s);
    QCOMPARE(toolTipAt(&bars, QPoint(200, 200)), u"Rent, 2008/1: 200 (50.0 %)"_s);
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
    // Every label is written beside its own height on the axis, with a rule
    // across the chart there (right of December's dots) and none between.
    const double graphHeight = size.height() - 70.0;
    const auto ruled = [&](int y) {
        return countPixels(image, QRect(485, y - 1, 1, 3), [](QColor c) { return c != Qt::white; })
            > 0;
    };
    int below = size.height() - 60;
    for (const qint64 value : lines.axisLabels()) {
        const int y = size.height() - int(graphHeight / 13000.0 * double(value) + 60.0);
        QVERIFY2(countPixels(image, QRect(0, y - 6, 45, 12), dark) > 5,
                 qPrintable(QString::number(value)));
        QVERIFY2(ruled(y), qPrintable(QString::number(value)));
        QVERIFY2(!ruled((y + below) / 2), qPrintable(QString::number(value)));
        below = y;
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
    // The tip is of the month under the pointer: February, with nothing spent.
    QCOMPARE(toolTipAt(&lines, onRise), u"Food, 2008/2: 0 (–)"_s);
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

void TestGraphViews::pointedOrChosenLineComesToTheFront_data()
{
    QTest::addColumn<int>("chosen");
    QTest::addColumn<bool>("pointing");
    QTest::addColumn<QColor>("onTop");
    QTest::addColumn<bool>("othersFade");

    // Food and Rent share one line; the later category is drawn over the
    // earlier one unless one of them is chosen or under the pointer.
    QTest::newRow("neither") << -1 << false << QColor(Qt::green) << false;
    QTest::newRow("chosen") << 0 << false << QColor(Qt::red) << true;
    QTest::newRow("pointed over chosen") << 1 << true << QColor(Qt::red) << true;
}

void TestGraphViews::pointedOrChosenLineComesToTheFront()
{
    QFETCH(int, chosen);
    QFETCH(bool, pointing);
    QFETCH(QColor, onTop);
    QFETCH(bool, othersFade);

    LineGraphView lines;
    ChartEntries year = ChartData::monthsOfYear(2008);
    for (ChartEntry &month : year)
        month.data = {{0, 1000}, {1, 1000}, {2, 500}};
    const QSize size(500, 400);
    setUp(lines, size, year);
    lines.setSelectedNumber(chosen);
    render(lines);
    // Between the dots of June and July: on the shared line, and on Fun's.
    const int x = int(6.0 * (size.width() - 60.0) / 12.0 + 40.0);
    const auto at = [&](double amount) {
        return QPoint(x, int(size.height() - (amount * 330.0 / 1010.0 + 60.0)));
    };
    const QPoint shared = at(1000);
    const QPoint fun = at(500);
    if (pointing) {
        QMouseEvent move(QEvent::MouseMove, QPointF(shared), lines.mapToGlobal(QPointF(shared)),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&lines, &move);
    }
    const QImage image = render(lines);
    QVERIFY(near(image.pixelColor(shared), onTop));
    QCOMPARE(!near(image.pixelColor(fun), Qt::blue), othersFade);
    // However drawn, clicks still find the lower index where lines lie on
    // each other.
    QCOMPARE(lines.categoryForMousePoint(shared), 0);
}

void TestGraphViews::defaultColoursStayApart()
{
    // The formula against a published pair of its test data.
    QVERIFY(std::abs(deltaE2000({50.0, 2.5, 0.0}, {73.0, 25.0, -18.0}) - 27.1492) < 1e-3);

    QCOMPARE_GE(CategoryPalette::size(), 14);
    for (int i = 0; i < 14; ++i) {
        for (int j = i + 1; j < 14; ++j) {
            const double distance = deltaE2000(toLab(toQColor(CategoryPalette::colorAt(i))),
                                               toLab(toQColor(CategoryPalette::colorAt(j))));
            QVERIFY2(distance >= 20.0, qPrintable(u"%1 and %2: %3"_s.arg(i).arg(j).arg(distance)));
        }
    }
}

void TestGraphViews::textReadsOnItsGround_data()
{
    QTest::addColumn<bool>("darkTheme");
    QTest::addColumn<QString>("text");

    for (const bool darkTheme : {false, true}) {
        const char *theme = darkTheme ? "dark" : "light";
        for (const char *text : {"amounts", "month on show", "bar months", "empty pie", "beside pie"})
            QTest::addRow("%s, %s", theme, text) << darkTheme << QString::fromLatin1(text);
    }
}

void TestGraphViews::textReadsOnItsGround()
{
    QFETCH(bool, darkTheme);
    QFETCH(QString, text);

    const QPalette theme = darkTheme ? darkPalette() : QApplication::style()->standardPalette();
    ChartEntries year = ChartData::monthsOfYear(2008);
    year[2].data = {{0, 12345}};
    std::unique_ptr<PWKGraphView> view;
    QRect area;
    if (text == u"amounts"_s || text == u"month on show"_s) {
        view = std::make_unique<LineGraphView>();
        view->setTargetYear(2008, 5);
        setUp(*view, QSize(500, 400), year);
        const int x = int(4.5 * 440.0 / 12.0 + 40.0);
        area = text == u"amounts"_s ? QRect(0, 0, 46, 330) : QRect(x - 8, 345, 16, 20);
    } else if (text == u"bar months"_s) {
        view = std::make_unique<BarGraphView>();
        setUp(*view, QSize(400, 300), {{2008, 1, {{0, 100}}}});
        area = QRect(7, 17, 90, 23);
    } else if (text == u"empty pie"_s) {
        view = std::make_unique<CircleGraphView>();
        setUp(*view, QSize(300, 200), {{2008, 1, {}}});
        area = QRect(0, 0, 300, 200);
    } else {
        view = std::make_unique<CircleGraphView>();
        setUp(*view, QSize(600, 300), {{2008, 1, {{0, 20}, {2, 340}}}});
        area = QRect(450, 0, 150, 24);
    }
    view->setPalette(theme);
    const QImage image = render(*view);

    // The chart's ground is the theme's, and its text reads on it.
    const QColor ground = theme.color(QPalette::Base);
    QCOMPARE(image.pixelColor(image.width() - 1, 0), ground);
    const double contrast = inkContrast(image, area, ground);
    QVERIFY2(contrast >= 4.5, qPrintable(QString::number(contrast)));
}

QTEST_MAIN(TestGraphViews)
#include "tst_graphviews.moc"
