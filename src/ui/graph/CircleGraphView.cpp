#include "graph/CircleGraphView.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {
constexpr double kMargin = 16.0;
constexpr double kRaise = 10.0;
constexpr double kMinLabelSweep = 20.0;
// Labels grow with the pie, but a short name on a big pie would otherwise
// tower over its neighbours.
constexpr float kMinLabelScale = 0.8f;
constexpr float kMaxLabelScale = 1.25f;
// Room kept between a label's end and the rim.
constexpr double kLabelInset = 6.0;
} // namespace

CircleGraphView::CircleGraphView(QWidget *parent)
    : PWKGraphView(parent)
{
}

void CircleGraphView::drawChart(QPainter &painter)
{
    const ChartData &chart = chartData();
    const QMap<int, int> data =
        chart.entries().isEmpty() ? QMap<int, int>() : chart.entries().constFirst().data;
    const double total = double(chart.calculateTotalOfData(data));
    const QPointF centre(0.5 * width(), 0.5 * height());
    const double radius = 0.5 * std::min(width(), height()) - kMargin;
    if (total == 0) {
        // A blank page would look like a fault.
        drawText(painter, QRectF(0, 0, width(), height()), Qt::AlignCenter | Qt::TextWordWrap,
                 tr("No spending to show for this month"), QColor(Qt::gray));
    }

    // Angles in degrees, counter-clockwise in y-up coordinates; slices run
    // clockwise, so each ends below where it starts.
    double start = 90.0;
    for (int i = 0; i < categoryCount(); ++i) {
        QPainterPath slice;
        // With nothing to share out there is no pie to draw.
        if (!chart.isSelected(i) || !data.contains(i) || total == 0) {
            addHitPath(slice);
            continue;
        }
        const double value = data.value(i);
        const double sweep = double(float(value / total)) * 360.0;
        const double end = start - sweep;
        const bool highlighted = i == selectedNumber();
        const double r = highlighted ? radius + kRaise : radius;
        slice.moveTo(centre);
        // arcTo counts its angles the other way round in y-up coordinates.
        slice.arcTo(QRectF(centre.x() - r, centre.y() - r, 2 * r, 2 * r), -start, sweep);
        slice.closeSubpath();
        painter.fillPath(slice, colorOf(i));
        if (highlighted)
            painter.strokePath(slice, QPen(Qt::black, 2.0));
        addHitPath(slice);
        if (value / total * 360.0 > kMinLabelSweep)
            drawLabel(painter, i, centre, radius, start, end);
        start = end;
    }
}

void CircleGraphView::drawLabel(QPainter &painter, int category, const QPointF &centre,
                                double radius, double startAngle, double endAngle) const
{
    const double middle = endAngle + (endAngle - startAngle) * -0.5;
    const double distance = radius > 120.0 ? 30.0 + (radius - 120.0) * 0.5 : 30.0;
    const QPointF baseline(0.0, -7.0);
    QPainterPath text = labelBezierPathForCategory(category, baseline);
    double textWidth = text.boundingRect().width();
    if (textWidth <= 0)
        return;
    const float scale = std::clamp(float((radius + distance * -1.5) * 0.6 / textWidth),
                                   kMinLabelScale, kMaxLabelScale);
    // A long name is cut short rather than run out of its slice; the tool
    // tip still gives it whole.
    const double room = (radius - distance - kLabelInset) / scale;
    if (textWidth > room) {
        const QString name = QFontMetricsF(labelFont())
                                 .elidedText(categoryName(category), Qt::ElideRight, room);
        text = labelPath(name, baseline);
        textWidth = text.boundingRect().width();
    }
    // Labels on the left half are turned round so that they never read
    // upside down; they keep the same stretch of the ray.
    const bool turned = middle > 90.0 || middle < -90.0;
    const double along = turned ? -(scale * textWidth) - distance : distance;

    QTransform place = QTransform::fromScale(scale, scale) * QTransform::fromTranslate(along, 0);
    if (turned)
        place *= QTransform().rotate(180.0);
    place *= QTransform().rotate(middle) * QTransform::fromTranslate(centre.x(), centre.y());
    painter.fillPath(place.map(text), labelColorOn(colorOf(category)));
}
