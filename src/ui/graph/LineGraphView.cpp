#include "graph/LineGraphView.h"

#include "graph/ScaleRounding.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPathStroker>

#include <algorithm>
#include <limits>

namespace {
constexpr int kMinimumWidth = 450;
constexpr double kLeft = 50.0;   // the amount axis
constexpr double kBottom = 60.0; // the month axis
constexpr double kEdge = 10.0;
constexpr double kLabelSpacing = 50.0;
constexpr double kAxisLabelWidth = 45.0;
constexpr double kMinLabelDistance = 14.0;
constexpr double kLineWidth = 3.0;
constexpr double kHighlightedLineWidth = 5.0;
// A line is hit within a few points of its stroke.
constexpr double kHitWidth = 9.0;
} // namespace

LineGraphView::LineGraphView(QWidget *parent)
    : PWKGraphView(parent)
{
}

ChartEntries LineGraphView::dataArrayForDrawing() const
{
    return ChartData::monthsOfYear(targetYear());
}

QSize LineGraphView::preferredChartSize() const
{
    const QSize visible = PWKGraphView::preferredChartSize();
    return {std::max(visible.width(), kMinimumWidth), visible.height()};
}

QString LineGraphView::tooltipForItem(int index) const
{
    return index < categoryCount() ? PWKGraphView::tooltipForItem(index) : QString();
}

QPointF LineGraphView::pointOfCategory(int category, int month, double monthWidth, qint64 max,
                                       double graphHeight) const
{
    const double x = monthWidth * (month - 0.5) + kLeft - kEdge;
    const qint64 amount = chartData().amountOf(month - 1, category);
    const double y =
        amount == 0 ? kBottom : double(float(amount) * float(graphHeight) / float(max)) + kBottom;
    return {x, y};
}

void LineGraphView::drawChart(QPainter &painter)
{
    const double w = width();
    const double h = height();
    const double monthWidth = (w - kLeft - kEdge) / 12.0;
    const double graphHeight = h - kBottom - kEdge;

    painter.setPen(QPen(Qt::black, 1.0));
    painter.drawLine(QPointF(0, kBottom), QPointF(w - kEdge, kBottom));
    painter.drawLine(QPointF(kLeft, 0), QPointF(kLeft, h - kEdge));

    const QString monthFormat =
        localizedFormat(QT_TRANSLATE_NOOP("Localizable", "LineGraph MonthLabel Format"),
                        QStringLiteral("%1"));
    QList<QPainterPath> monthLabels;
    for (int m = 1; m <= 12; ++m) {
        const QRectF rect((m - 0.5) * monthWidth + kLeft - kEdge - 8.0, 0, 16.0, 55.0);
        drawText(painter, rect, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                 monthFormat.arg(m), m == targetMonth() ? QColor(Qt::red) : QColor(Qt::black));
        QPainterPath hit;
        hit.addRect(rect);
        monthLabels.append(hit);
    }

    const qint64 max = roundUpMax(chartData().maxAmountOfCategories(categoryCount()));
    m_axisMaximum = max;
    // Rounding can bring labels close together, or make several of them 0
    // in a quiet year: from the top down, a label too near the one above it
    // is left out.
    m_axisLabels.clear();
    double above = std::numeric_limits<double>::max();
    const QList<qint64> values = amountAxisValues(max, int(h / kLabelSpacing));
    for (auto it = values.crbegin(); it != values.crend(); ++it) {
        const double y = graphHeight / double(max) * double(*it) + kBottom;
        if (above - y < kMinLabelDistance)
            continue;
        m_axisLabels.prepend(*it);
        above = y;
    }
    // Large amounts take a smaller font rather than run off the left edge.
    QFont axisFont = font();
    double widest = 0;
    for (const qint64 value : std::as_const(m_axisLabels))
        widest = std::max(widest,
                          QFontMetricsF(axisFont).horizontalAdvance(QString::number(value)));
    if (widest > kAxisLabelWidth - 1.0)
        axisFont.setPointSizeF(axisFont.pointSizeF() * (kAxisLabelWidth - 1.0) / widest);
    painter.save();
    painter.setFont(axisFont);
    for (const qint64 value : std::as_const(m_axisLabels)) {
        const double y = graphHeight / double(max) * double(value) + kBottom - 8.0;
        drawText(painter, QRectF(0, y, kAxisLabelWidth, 16.0), Qt::AlignRight | Qt::AlignVCenter,
                 QString::number(value));
    }
    painter.restore();

    QPainterPathStroker hitArea;
    hitArea.setWidth(kHitWidth);
    for (int i = 0; i < categoryCount(); ++i) {
        QPainterPath line;
        if (!chartData().isSelected(i)) {
            addHitPath(line);
            continue;
        }
        line.moveTo(pointOfCategory(i, 1, monthWidth, max, graphHeight));
        for (int m = 2; m <= 12; ++m)
            line.lineTo(pointOfCategory(i, m, monthWidth, max, graphHeight));
        const double lineWidth = i == selectedNumber() ? kHighlightedLineWidth : kLineWidth;
        painter.strokePath(line, QPen(colorOf(i), lineWidth, Qt::SolidLine, Qt::RoundCap,
                                      Qt::RoundJoin));
        addHitPath(hitArea.createStroke(line));
    }
    for (const QPainterPath &label : monthLabels)
        addHitPath(label);
}

void LineGraphView::handleClick(int index, bool doubleClick)
{
    const int count = categoryCount();
    if (index < count) {
        PWKGraphView::handleClick(index, doubleClick);
        return;
    }
    if (doubleClick && index < count + 12)
        emit categoryListRequested(-1, targetYear(), index - count + 1);
}
