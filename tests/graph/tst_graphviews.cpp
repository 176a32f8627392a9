#include "TestDataFolder.h"

#include "graph/BarGraphView.h"
#include "graph/CircleGraphView.h"
#include "graph/LineGraphView.h"

#include "model/CategoryPalette.h"
#include "widgets/RgbaQColor.h"
#include "widgets/ThemeColors.h"

#include <QApplication>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QStyle>
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

// A point of the pie at `angle` degrees (counter-clockwise from three
// o'clock) and `radius` from the centre, in widget coordinates.
QPoint onPie(const QSize &size, double angle, double radius)
{
    const double rad = angle * M_PI / 180.0;
    return QPoint(int(std::lround(size.width() / 2.0 + radius * std::cos(rad))),
                  int(std::lround(size.height() / 2.0 - radius * std::sin(rad))));
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

// The charts the tables below point at, laid out afresh.
std::unique_ptr<PWKGraphView> makeChart(const QString &chart, int hidden)
{
    std::unique_ptr<PWKGraphView> view;
    QList<bool> checks{true, true, true};
    if (hidden >= 0)
        checks[hidden] = false;
    if (chart == u"pie"_s || chart == u"empty pie"_s) {
        view = std::make_unique<CircleGraphView>();
        setUp(*view, QSize(300, 300),
              {{2008, 1, chart == u"pie"_s ? QMap<int, int>{{0, 500}, {1, 250}, {2, 250}}
                                            : QMap<int, int>{}}},
              checks);
    } else if (chart == u"narrow slice"_s) {
        // Too narrow for its name, so that stands beside the pie.
        view = std::make_unique<CircleGraphView>();
        setUp(*view, QSize(600, 300), {{2008, 1, {{0, 20}, {2, 340}}}}, checks);
    } else if (chart == u"bars"_s) {
        view = std::make_unique<BarGraphView>();
        view->setTargetYear(2008, 1);
        setUp(*view, QSize(400, 300),
              {{2007, 11, {{0, 100}, {1, 100}}}, {2007, 12, {{0, 200}}},
               {2008, 1, {{0, 100}, {1, 200}, {2, 100}}}},
              checks);
    } else {
        view = std::make_unique<LineGraphView>();
        view->setTargetYear(2008, 5);
        ChartEntries year = ChartData::monthsOfYear(2008);
        if (chart == u"lines"_s)
            year[2].data = {{0, 12345}};
        else // Food and Rent on one line, Fun below
            for (ChartEntry &month : year)
                month.data = {{0, 1000}, {1, 1000}, {2, 500}};
        setUp(*view, QSize(500, 400), year, checks);
    }
    render(*view);
    return view;
}

} // namespace

class TestGraphViews : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home = std::make_unique<TestDataFolder>();
    }

    void hitsAndToolTips_data()
    {
        QTest::addColumn<QString>("chart");
        QTest::addColumn<int>("hidden");
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<int>("category");
        QTest::addColumn<QString>("toolTip");

        const auto row = [](const char *name, const QString &chart, int hidden, QPoint point,
                            int category, const QString &toolTip = {}) {
            QTest::newRow(name) << chart << hidden << point << category << toolTip;
        };
        // Pie slices run clockwise from twelve: Food the right half, then Rent
        // the lower left, Fun the upper left. Tips give the share of the pie.
        const QSize pie(300, 300);
        row("pie, food", u"pie"_s, -1, onPie(pie, 30, 100), 0, u"Food: 500 (50.0 %)"_s);
        row("pie, rent", u"pie"_s, -1, onPie(pie, -110, 100), 1, u"Rent: 250 (25.0 %)"_s);
        row("pie, corner", u"pie"_s, -1, QPoint(5, 5), -1);
        // An unchecked category leaves no gap: Rent takes Food's place.
        row("pie, food unchecked", u"pie"_s, 0, onPie(pie, 30, 100), 1, u"Rent: 250 (50.0 %)"_s);
        row("empty pie", u"empty pie"_s, -1, QPoint(150, 150), -1);

        // Bars: three categories a row, the oldest month on top; month labels
        // come after all bars. Tips name the month, the share is of that month.
        row("bars, newest", u"bars"_s, -1, QPoint(200, 200), 2 * 3 + 1, u"Rent, 2008/1: 200 (50.0 %)"_s);
        row("bars, older", u"bars"_s, -1, QPoint(50, 130), 1 * 3 + 0, u"Food, 2007/12: 200 (100.0 %)"_s);
        row("bars, month label", u"bars"_s, -1, QPoint(20, 25), 3 * 3);

        // Lines: halfway up Food's rise from February to March; the tip is of
        // the month under the pointer.
        row("lines, rise", u"lines"_s, -1, QPoint(113, 183), 0, u"Food, 2008/2: 0 (–)"_s);
        // Rent has no entries: its line lies on the month axis under Food's.
        row("lines, axis", u"lines"_s, -1, QPoint(388, 340), 0, u"Food, 2008/10: 0 (–)"_s);
        row("lines, axis, food unchecked", u"lines"_s, 0, QPoint(388, 340), 1, u"Rent, 2008/10: 0 (–)"_s);
        row("lines, march label", u"lines"_s, -1, QPoint(131, 355), 3 + 2);
        // Where lines lie on each other the lower index wins.
        row("lines, shared", u"flat lines"_s, -1, QPoint(260, 13), 0, u"Food, 2008/7: 1,000 (40.0 %)"_s);
    }

    void hitsAndToolTips()
    {
        QFETCH(QString, chart);
        QFETCH(int, hidden);
        QFETCH(QPoint, point);
        QFETCH(int, category);
        QFETCH(QString, toolTip);

        const std::unique_ptr<PWKGraphView> view = makeChart(chart, hidden);
        QCOMPARE(view->categoryForMousePoint(point), category);
        QCOMPARE(toolTipAt(view.get(), point), toolTip);
        if (toolTip.isEmpty())
            QTRY_VERIFY(!QToolTip::isVisible());
    }

    void clicksReachTheirSignal_data()
    {
        QTest::addColumn<QString>("chart");
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<bool>("twice");
        QTest::addColumn<QString>("signal");
        QTest::addColumn<QVariantList>("arguments");

        const auto row = [](const char *name, const QString &chart, QPoint point, bool twice,
                            const QString &signal = {}, const QVariantList &arguments = {}) {
            QTest::newRow(name) << chart << point << twice << signal << arguments;
        };
        row("bars, newest", u"bars"_s, QPoint(200, 200), false, u"selected"_s, {1});
        // Older bars and month labels answer a double click only, with that
        // month's entries of the category (-1: all).
        row("bars, older", u"bars"_s, QPoint(50, 130), false);
        row("bars, older twice", u"bars"_s, QPoint(50, 130), true, u"requested"_s, {0, 2007, 12});
        row("bars, month label", u"bars"_s, QPoint(20, 25), true, u"requested"_s, {-1, 2007, 11});
        row("lines, month label", u"lines"_s, QPoint(131, 355), false);
        row("lines, month label twice", u"lines"_s, QPoint(131, 355), true, u"requested"_s, {-1, 2008, 3});
    }

    void clicksReachTheirSignal()
    {
        QFETCH(QString, chart);
        QFETCH(QPoint, point);
        QFETCH(bool, twice);
        QFETCH(QString, signal);
        QFETCH(QVariantList, arguments);

        const std::unique_ptr<PWKGraphView> view = makeChart(chart, -1);
        QSignalSpy selected(view.get(), &PWKGraphView::itemSelected);
        QSignalSpy requested(view.get(), &PWKGraphView::categoryListRequested);
        if (twice)
            QTest::mouseDClick(view.get(), Qt::LeftButton, {}, point);
        else
            QTest::mouseClick(view.get(), Qt::LeftButton, {}, point);

        QCOMPARE(requested.count(), signal == u"requested"_s ? 1 : 0);
        if (signal == u"requested"_s)
            QCOMPARE(requested.at(0), arguments);
        // A double click's first press may select too; a single one only selects.
        if (signal == u"selected"_s)
            QCOMPARE(selected.value(0), arguments);
        else if (!twice)
            QCOMPARE(selected.count(), 0);
    }

    void lineAxisIsRoundedAndRuled_data()
    {
        QTest::addColumn<ChartEntries>("year");
        QTest::addColumn<qint64>("maximum");
        QTest::addColumn<QList<qint64>>("labels");

        ChartEntries spent = ChartData::monthsOfYear(2008);
        spent[2].data = {{0, 12345}, {1, 3000}};
        spent[4].data = {{1, 6000}};
        QTest::newRow("rounded up") << spent << qint64(13000)
                                    << QList<qint64>{1700, 3200, 4900, 6600, 8100, 9800, 11000, 13000};
        // Of the labels 0, 0, 0 and 1, those on top of each other are left out.
        QTest::newRow("empty year") << ChartData::monthsOfYear(2009) << qint64(1)
                                    << QList<qint64>{0, 1};
    }

    void lineAxisIsRoundedAndRuled()
    {
        QFETCH(ChartEntries, year);
        QFETCH(qint64, maximum);
        QFETCH(QList<qint64>, labels);

        LineGraphView lines;
        const QSize size(500, 400);
        setUp(lines, size, year);
        const QImage image = render(lines);
        QCOMPARE(lines.axisMaximum(), maximum);
        QCOMPARE(lines.axisLabels(), labels);

        // Every label is written beside its own height on the axis, with a rule
        // across the chart there (right of December's dots) and none between.
        const double graphHeight = size.height() - 70.0;
        const auto ruled = [&](int y) {
            return countPixels(image, QRect(485, y - 1, 1, 3), [](QColor c) { return c != Qt::white; })
                > 0;
        };
        int below = size.height() - 60;
        for (const qint64 value : labels) {
            const int y = size.height() - int(graphHeight / double(maximum) * double(value) + 60.0);
            QVERIFY2(countPixels(image, QRect(0, y - 6, 45, 12), dark) > 5,
                     qPrintable(QString::number(value)));
            QVERIFY2(ruled(y), qPrintable(QString::number(value)));
            if (y != below)
                QVERIFY2(!ruled((y + below) / 2), qPrintable(QString::number(value)));
            below = y;
        }
    }

    // Colours told apart at a glance: at least 20 apart in L*a*b*.
    void defaultColoursStayApart()
    {
        QCOMPARE_GE(CategoryPalette::size(), 14);
        for (int i = 0; i < 14; ++i) {
            for (int j = i + 1; j < 14; ++j) {
                const auto [l1, a1, b1] = toLab(toQColor(CategoryPalette::colorAt(i)));
                const auto [l2, a2, b2] = toLab(toQColor(CategoryPalette::colorAt(j)));
                const double distance = std::hypot(l1 - l2, a1 - a2, b1 - b2);
                QVERIFY2(distance >= 20.0, qPrintable(u"%1 and %2: %3"_s.arg(i).arg(j).arg(distance)));
            }
        }
    }

    void textReadsOnItsGround_data()
    {
        QTest::addColumn<bool>("darkTheme");
        QTest::addColumn<QString>("chart");
        QTest::addColumn<QRect>("text");

        for (const bool darkTheme : {false, true}) {
            const char *theme = darkTheme ? "dark" : "light";
            QTest::addRow("%s, amounts", theme) << darkTheme << u"lines"_s << QRect(0, 0, 46, 330);
            QTest::addRow("%s, month on show", theme) << darkTheme << u"lines"_s
                                                      << QRect(197, 345, 16, 20);
            QTest::addRow("%s, bar months", theme) << darkTheme << u"bars"_s << QRect(7, 17, 90, 23);
            QTest::addRow("%s, empty pie", theme) << darkTheme << u"empty pie"_s
                                                  << QRect(0, 0, 300, 300);
            QTest::addRow("%s, beside pie", theme) << darkTheme << u"narrow slice"_s
                                                   << QRect(450, 0, 150, 24);
        }
    }

    void textReadsOnItsGround()
    {
        QFETCH(bool, darkTheme);
        QFETCH(QString, chart);
        QFETCH(QRect, text);

        const QPalette theme = darkTheme ? darkPalette() : QApplication::style()->standardPalette();
        const std::unique_ptr<PWKGraphView> view = makeChart(chart, -1);
        view->setPalette(theme);
        const QImage image = render(*view);

        // The chart's ground is the theme's, and its text reads on it.
        const QColor ground = theme.color(QPalette::Base);
        QCOMPARE(image.pixelColor(image.width() - 1, 0), ground);
        const double contrast = inkContrast(image, text, ground);
        QVERIFY2(contrast >= 4.5, qPrintable(QString::number(contrast)));
    }

private:
    std::unique_ptr<TestDataFolder> m_home;
};

QTEST_MAIN(TestGraphViews)
#include "tst_graphviews.moc"
