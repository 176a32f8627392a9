#include "graph/LineGraphView.h"

#include "graph/ScaleRounding.h"
#include "widgets/ThemeColors.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPathStroker>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr int kMinimumWidth = 450;
constexpr double kLeft = 50.0;   // the amount axis
constexpr double kBottom = 60.0; // the month axis
constexpr double kEdge = 10.0;
constexpr double kLabelSpacing = 50.0;
constexpr double kAxisLabelWidth = 45.0;
constexpr double kMinLabelDistance = 14.0;
constexpr double kLineWidth = 2.0;
constexpr double kHighlightedLineWidth = 3.0;
constexpr double kMarkerRadius = 3.0;
constexpr double kHighlightedMarkerRadius = 4.0;
// How far the lines in the background fade towards the ground.
constexpr double kDimming = 0.65;
// A line is hit within a few points of its stroke.
constexpr double kHitWidth = 9.0;
} // namespace

LineGraphView::LineGraphView(QWidget *parent)
    : PWKGraphView(parent)
{
    // The line under the pointer comes to the front.
    setMouseTracking(true);
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

QString LineGraphView::tooltipForItem(int index, const QPointF &point) const
{
    const ChartEntries &entries = chartData().entries();
    const int month = monthAt(point.x());
    if (index >= categoryCount() || month > entries.size())
        return {};
    return amountTip(index, entries.at(month - 1), true);
}

QRectF LineGraphView::tooltipArea(int index, const QPointF &point) const
{
    // Another month of the same line has another tip.
    const double monthWidth = (width() - kLeft - kEdge) / 12.0;
    const double left = monthWidth * (monthAt(point.x()) - 1) + kLeft - kEdge;
    return PWKGraphView::tooltipArea(index, point)
        .intersected(QRectF(left, 0, monthWidth, height()));
}

int LineGraphView::monthAt(double x) const
{
    const double monthWidth = (width() - kLeft - kEdge) / 12.0;
    return std::clamp(int(std::floor((x - kLeft + kEdge) / monthWidth)) + 1, 1, 12);
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

void LineGraphView::setBudgetLines(const QMap<int, QList<double>> &lines)
{
    if (lines == m_budgetLines)
        return;
    m_budgetLines = lines;
    update();
}

double LineGraphView::heightOf(double amount, qint64 max, double graphHeight)
{
    return amount * graphHeight / double(max) + kBottom;
}

void LineGraphView::drawChart(QPainter &painter)
{
    const double w = width();
    const double h = height();
    const double monthWidth = (w - kLeft - kEdge) / 12.0;
    const double graphHeight = h - kBottom - kEdge;
    // A one-pixel line lies on whole pixels when it runs through the middle
    // of one: the chart's y axis counts from the widget's bottom edge.
    const auto crisp = [h](double y) { return h - std::floor(h - y) - 0.5; };

    const QString monthFormat =
        localizedFormat(QT_TRANSLATE_NOOP("Localizable", "LineGraph MonthLabel Format"),
                        QStringLiteral("%1"));
    QList<QPainterPath> monthLabels;
    for (int m = 1; m <= 12; ++m) {
        const double middle = (m - 0.5) * monthWidth + kLeft - kEdge;
        const QRectF rect(middle - 8.0, 0, 16.0, 55.0);
        // Written across the month's whole width, so that a label such as
        // "12月" stays on one line; clicked in the narrow box.
        const QRectF textRect(middle - 0.5 * std::max(monthWidth, 16.0), 0,
                              std::max(monthWidth, 16.0), 55.0);
        drawText(painter, textRect, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                 monthFormat.arg(m),
                 m == targetMonth() ? ThemeColors::alertRed(groundColor()) : inkColor());
        QPainterPath hit;
        hit.addRect(rect);
        monthLabels.append(hit);
    }

    // The scale takes in the budgets drawn, so that none runs off the top.
    qint64 highest = chartData().maxAmountOfCategories(categoryCount());
    for (auto it = m_budgetLines.cbegin(); it != m_budgetLines.cend(); ++it) {
        if (it.key() < categoryCount() && chartData().isSelected(it.key())) {
            for (const double amount : it.value())
                highest = std::max(highest, qint64(std::ceil(std::max(amount, 0.0))));
        }
    }
    const qint64 max = roundUpMax(highest);
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
    // Light rules across the chart at the labelled amounts, under the lines.
    painter.setPen(QPen(fadedInk(0.14), 1.0));
    for (const qint64 value : std::as_const(m_axisLabels)) {
        const double y = graphHeight / double(max) * double(value) + kBottom;
        if (y > kBottom + 1.0)
            painter.drawLine(QPointF(kLeft, crisp(y)), QPointF(w - kEdge, crisp(y)));
    }
    painter.setPen(QPen(fadedInk(0.45), 1.0));
    painter.drawLine(QPointF(0, crisp(kBottom)), QPointF(w - kEdge, crisp(kBottom)));
    painter.drawLine(QPointF(kLeft - 0.5, crisp(kBottom)), QPointF(kLeft - 0.5, h - kEdge));

    // Large amounts take a smaller font rather than run off the left edge.
    const QLocale locale;
    // Glyphs do not shrink quite in proportion, so measure again.
    QFont axisFont = font();
    const auto widest = [&] {
        double width = 0;
        for (const qint64 value : std::as_const(m_axisLabels))
            width = std::max(width,
                             QFontMetricsF(axisFont).horizontalAdvance(locale.toString(value)));
        return width;
    };
    for (double width = widest(); width > kAxisLabelWidth - 1.0 && axisFont.pointSizeF() > 4.0;
         width = widest())
        axisFont.setPointSizeF(axisFont.pointSizeF() * 0.97 * (kAxisLabelWidth - 1.0) / width);
    painter.save();
    painter.setFont(axisFont);
    for (const qint64 value : std::as_const(m_axisLabels)) {
        const double y = graphHeight / double(max) * double(value) + kBottom - 8.0;
        drawText(painter, QRectF(0, y, kAxisLabelWidth, 16.0), Qt::AlignRight | Qt::AlignVCenter,
                 locale.toString(value), inkColor());
    }
    painter.restore();

    // The line under the pointer, else the one chosen, is drawn last and
    // in full; the others step back.
    const int front = m_pointedCategory >= 0 ? m_pointedCategory : selectedNumber();
    const bool dimming = front >= 0 && front < categoryCount() && chartData().isSelected(front);
    QList<int> order;
    for (int i = 0; i < categoryCount(); ++i) {
        if (i != front)
            order.append(i);
    }
    if (dimming)
        order.append(front);

    // The budgets, dashed, under the lines of what was spent.
    for (auto it = m_budgetLines.cbegin(); it != m_budgetLines.cend(); ++it) {
        const int i = it.key();
        if (i >= categoryCount() || !chartData().isSelected(i) || it.value().size() != 12)
            continue;
        QPainterPath budget;
        for (int m = 1; m <= 12; ++m) {
            const QPointF point(monthWidth * (m - 0.5) + kLeft - kEdge,
                                heightOf(std::max(it.value().at(m - 1), 0.0), max, graphHeight));
            if (m == 1)
                budget.moveTo(point);
            else
                budget.lineTo(point);
        }
        const QColor color = dimming && i != front
            ? ThemeColors::mix(colorOf(i), groundColor(), kDimming)
            : colorOf(i);
        painter.strokePath(budget, QPen(color, kLineWidth, Qt::DashLine, Qt::FlatCap));
    }

    QPainterPathStroker hitArea;
    hitArea.setWidth(kHitWidth);
    QList<QPainterPath> hits(categoryCount());
    for (const int i : std::as_const(order)) {
        if (!chartData().isSelected(i))
            continue;
        QList<QPointF> points;
        for (int m = 1; m <= 12; ++m)
            points.append(pointOfCategory(i, m, monthWidth, max, graphHeight));
        QPainterPath line;
        line.moveTo(points.constFirst());
        for (qsizetype m = 1; m < points.size(); ++m)
            line.lineTo(points.at(m));
        const bool inFront = dimming && i == front;
        const QColor color = dimming && !inFront
            ? ThemeColors::mix(colorOf(i), groundColor(), kDimming)
            : colorOf(i);
        painter.strokePath(line, QPen(color, inFront ? kHighlightedLineWidth : kLineWidth,
                                      Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        // Dots at the months, ringed with the ground where lines cross.
        painter.setPen(QPen(groundColor(), 1.0));
        painter.setBrush(color);
        const double radius = inFront ? kHighlightedMarkerRadius : kMarkerRadius;
        for (const QPointF &point : std::as_const(points))
            painter.drawEllipse(point, radius, radius);
        painter.setBrush(Qt::NoBrush);
        hits[i] = hitArea.createStroke(line);
    }
    for (const QPainterPath &hit : std::as_const(hits))
        addHitPath(hit);
    for (const QPainterPath &label : monthLabels)
        addHitPath(label);
}

void LineGraphView::mouseMoveEvent(QMouseEvent *event)
{
    const int index = categoryForMousePoint(event->position());
    setPointedCategory(index < categoryCount() ? index : -1);
    PWKGraphView::mouseMoveEvent(event);
}

void LineGraphView::leaveEvent(QEvent *event)
{
    setPointedCategory(-1);
    PWKGraphView::leaveEvent(event);
}

void LineGraphView::setPointedCategory(int category)
{
    if (category == m_pointedCategory)
        return;
    m_pointedCategory = category;
    update();
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
