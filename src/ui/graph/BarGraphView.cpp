#include "graph/BarGraphView.h"

#include "settings/Settings.h"

#include <QDate>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr int kDefaultBars = 3;
constexpr double kRowHeight = 75.0;
constexpr double kFirstRowTop = 40.0;
constexpr double kBarHeight = 35.0;
constexpr double kRaise = 8.0;
constexpr double kSideMargin = 10.0;
constexpr double kLabelPadding = 3.0;
} // namespace

BarGraphView::BarGraphView(QWidget *parent)
    : PWKGraphView(parent)
{
    const int stored = Settings().barChartNumberOfChart();
    m_numberOfGraph = stored > 0 ? stored : kDefaultBars;
}

void BarGraphView::addBar()
{
    setNumberOfGraph(m_numberOfGraph + 1);
}

void BarGraphView::deleteBar()
{
    if (m_numberOfGraph < 2)
        return;
    setNumberOfGraph(m_numberOfGraph - 1);
}

void BarGraphView::setNumberOfGraph(int count)
{
    m_numberOfGraph = count;
    updateDataList();
    Settings().setBarChartNumberOfChart(count);
}

ChartEntries BarGraphView::dataArrayForDrawing() const
{
    return ChartData::monthsEndingAt(targetYear(), targetMonth(), m_numberOfGraph);
}

QSize BarGraphView::preferredChartSize() const
{
    // At least as high as the visible area, so that the paper reaches down.
    const QSize visible = PWKGraphView::preferredChartSize();
    return {visible.width(),
            std::max(visible.height(), int(m_numberOfGraph * kRowHeight + kFirstRowTop))};
}

QDate BarGraphView::monthOfRow(int row) const
{
    return QDate(targetYear(), targetMonth(), 1).addMonths(row - m_numberOfGraph + 1);
}

QString BarGraphView::tooltipForItem(int index, const QPointF &) const
{
    const int count = categoryCount();
    const ChartEntries &entries = chartData().entries();
    if (count == 0 || index >= m_numberOfGraph * count || index / count >= entries.size())
        return {};
    return amountTip(index % count, entries.at(index / count), true);
}

void BarGraphView::drawChart(QPainter &painter)
{
    const ChartData &chart = chartData();
    const int count = categoryCount();
    const double unit = (width() - 2 * kSideMargin) / double(chart.calculateMaxTotal());
    const QList<ChartEntry> &entries = chart.entries();
    const QFontMetricsF labelMetrics(labelFont());

    QList<QPainterPath> labelRects;
    double top = kFirstRowTop;
    for (int row = 0; row < entries.size(); ++row) {
        const ChartEntry &entry = entries.at(row);
        const QRectF labelRect(7.0, top - 23.0, 90.0, 23.0);
        drawText(painter, labelRect, Qt::AlignLeft | Qt::AlignVCenter,
                 monthLabel(entry.year, entry.month), inkColor());
        QPainterPath labelPath;
        labelPath.addRect(labelRect);
        labelRects.append(labelPath);

        const bool newest = row == entries.size() - 1;
        double x = kSideMargin;
        for (int i = 0; i < count; ++i) {
            QPainterPath segment;
            const double width = unit * double(entry.data.value(i));
            // With every month at 0 there is no scale: only the labels show.
            if (!chart.isSelected(i) || !entry.data.contains(i) || !std::isfinite(width)) {
                addHitPath(segment);
                continue;
            }
            const bool raised = newest && i == selectedNumber();
            const double segmentTop = raised ? top - kRaise : top;
            const double height = raised ? kBarHeight + 2 * kRaise : kBarHeight;
            segment.addRect(QRectF(x, segmentTop, width, height));
            const QColor color = colorOf(i);
            painter.fillPath(segment, color);
            addHitPath(segment);
            // A pixel of the ground, on whole pixels, parts a segment from
            // the one before it.
            if (x > kSideMargin && width > 0) {
                painter.fillRect(QRectF(std::round(x), segmentTop, 1.0, height),
                                 groundColor());
            }

            const QString name = categoryName(i);
            if (labelMetrics.horizontalAdvance(name) < width - 2 * kLabelPadding) {
                painter.setFont(labelFont());
                drawText(painter,
                         QRectF(x + kLabelPadding, segmentTop, width - kLabelPadding, height),
                         Qt::AlignLeft | Qt::AlignVCenter, name, labelColorOn(color));
                painter.setFont(font());
            }
            x += width;
        }
        top += kRowHeight;
    }
    for (const QPainterPath &rect : labelRects)
        addHitPath(rect);
}

void BarGraphView::handleClick(int index, bool doubleClick)
{
    const int count = categoryCount();
    const int bars = m_numberOfGraph;
    if (count == 0 || index >= hitPathCount())
        return;
    if (index >= (bars - 1) * count && index < bars * count) {
        // The month on show: its row in the table can be selected.
        PWKGraphView::handleClick(index % count, doubleClick);
        return;
    }
    if (!doubleClick)
        return;
    const bool segment = index < bars * count;
    const int row = segment ? index / count : index - bars * count;
    const QDate month = monthOfRow(row);
    emit categoryListRequested(segment ? index % count : -1, month.year(), month.month());
}
