#include "graph/CircleGraphView.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace {
constexpr double kMargin = 16.0;
constexpr double kRaise = 10.0;
// Room kept between a label inside and the edges of its slice, and around
// the text in its box.
constexpr double kInset = 4.0;
constexpr double kPadding = 2.0;
// A leader line runs out from the rim, bends, and ends at the column of
// labels beside the pie, clear of a raised slice.
constexpr double kLeaderOut = 6.0;
constexpr double kColumn = kRaise + 8.0;
constexpr double kLeaderGap = 3.0;
// A name cut short keeps at least this many characters, or is left out.
constexpr qsizetype kMinKept = 3;

QPointF onRay(const QPointF &centre, double angle, double distance)
{
    const double rad = qDegreesToRadians(angle);
    return centre + QPointF(std::cos(rad), std::sin(rad)) * distance;
}

// Whether the box, with room around it, lies in the slice that runs
// clockwise by `sweep` degrees from `startAngle`.
bool boxInSlice(const QRectF &box, const QPointF &centre, double radius, double startAngle,
                double sweep)
{
    const QRectF grown = box.adjusted(-kInset, -kInset, kInset, kInset);
    const std::array<QPointF, 8> points{
        grown.topLeft(),    grown.topRight(),    grown.bottomLeft(),
        grown.bottomRight(), QPointF(grown.center().x(), grown.top()),
        QPointF(grown.center().x(), grown.bottom()), QPointF(grown.left(), grown.center().y()),
        QPointF(grown.right(), grown.center().y())};
    return std::all_of(points.cbegin(), points.cend(), [&](const QPointF &point) {
        const QPointF d = point - centre;
        if (std::hypot(d.x(), d.y()) > radius)
            return false;
        if (sweep >= 360.0)
            return true;
        const double angle = qRadiansToDegrees(std::atan2(d.y(), d.x()));
        return std::fmod(std::fmod(startAngle - angle, 360.0) + 360.0, 360.0) <= sweep;
    });
}

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
                 tr("No spending to show for this month"), fadedInk(0.7));
    }

    // Angles in degrees, counter-clockwise in y-up coordinates; slices run
    // clockwise, so each ends below where it starts.
    double start = 90.0;
    QList<QPainterPath> slices;
    QPainterPath raised;
    QList<Label> labels;
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
        addHitPath(slice);
        slices.append(slice);
        if (highlighted)
            raised = slice;
        if (value > 0) {
            Label label = placeLabel(i, centre, radius, start, end);
            if (!label.inside) {
                // From the rim of the slice as drawn, raised or not.
                label.rim = onRay(centre, start - 0.5 * sweep, r);
                label.bend = onRay(centre, start - 0.5 * sweep, r + kLeaderOut);
            }
            if (label.category >= 0)
                labels.append(label);
        }
        start = end;
    }
    // A hairline of the ground between slices keeps neighbours of similar
    // colour apart; a whole disc has no neighbour.
    if (slices.size() > 1) {
        for (const QPainterPath &slice : std::as_const(slices))
            painter.strokePath(slice, QPen(groundColor(), 1.0));
    }
    if (!raised.isEmpty())
        painter.strokePath(raised, QPen(inkColor(), 2.0));

    stackOutsideLabels(labels);
    painter.save();
    painter.setFont(labelFont());
    for (const Label &label : std::as_const(labels))
        drawLabel(painter, label);
    painter.restore();
}

CircleGraphView::Label CircleGraphView::placeLabel(int category, const QPointF &centre,
                                                   double radius, double startAngle,
                                                   double endAngle) const
{
    Label label;
    label.category = category;
    const QString name = categoryName(category);
    const double sweep = startAngle - endAngle;
    const double middle = startAngle - 0.5 * sweep;
    const QFontMetricsF metrics(labelFont());
    const auto boxOf = [&](const QString &text, const QPointF &middlePoint) {
        const QSizeF size(metrics.horizontalAdvance(text) + 2 * kPadding, metrics.height());
        return QRectF(middlePoint - QPointF(0.5 * size.width(), 0.5 * size.height()), size);
    };
    // Where along the middle of the slice a label is tried, in parts of the
    // radius: a little beyond halfway suits most slices; a whole disc has
    // its name in the middle.
    const QList<double> depths =
        sweep >= 360.0 ? QList<double>{0.0} : QList<double>{0.62, 0.75, 0.5};
    const auto fitsInside = [&](const QString &text) {
        for (const double depth : depths) {
            const QRectF box = boxOf(text, onRay(centre, middle, radius * depth));
            if (boxInSlice(box, centre, radius, startAngle, sweep)) {
                label.text = text;
                label.box = box;
                return true;
            }
        }
        return false;
    };
    if (name.isEmpty() || fitsInside(name))
        return label;

    // Beside the pie, on the side of the slice's middle, shortened to the
    // room there.
    const bool right = std::cos(qDegreesToRadians(middle)) >= 0;
    const double column = centre.x() + (right ? 1.0 : -1.0) * (radius + kColumn);
    const double room = (right ? width() - column : column) - kLeaderGap - 2 * kPadding;
    const QString beside = metrics.elidedText(name, Qt::ElideRight, room);
    if (beside == name || beside.size() > kMinKept) {
        label.inside = false;
        label.text = beside;
        const QPointF bend = onRay(centre, middle, radius + kLeaderOut);
        label.wantedY = bend.y();
        const QRectF box = boxOf(beside, QPointF(column, bend.y()));
        label.box = box.translated((right ? 0.5 : -0.5) * box.width()
                                       + (right ? kLeaderGap : -kLeaderGap),
                                   0);
        return label;
    }

    // No room beside it either: as much of the name as fits inside.
    for (qsizetype kept = name.size() - 1; kept >= kMinKept; --kept) {
        if (name.at(kept - 1).isHighSurrogate())
            continue;
        if (fitsInside(name.left(kept).trimmed() + QChar(0x2026)))
            return label;
    }
    label.category = -1;
    return label;
}

void CircleGraphView::stackOutsideLabels(QList<Label> &labels) const
{
    const double lineHeight = QFontMetricsF(labelFont()).height();
    const double centreX = 0.5 * width();
    for (const bool right : {false, true}) {
        QList<Label *> column;
        for (Label &label : labels) {
            if (!label.inside && (label.box.center().x() > centreX) == right)
                column.append(&label);
        }
        // From the top down (y grows upwards): each label as near its slice
        // as the one above it allows, then pushed up from the bottom edge.
        std::sort(column.begin(), column.end(),
                  [](const Label *a, const Label *b) { return a->wantedY > b->wantedY; });
        double limit = height() - 0.5 * lineHeight;
        for (Label *label : std::as_const(column)) {
            const double y = std::min(label->wantedY, limit);
            label->box.moveCenter(QPointF(label->box.center().x(), y));
            limit = y - lineHeight;
        }
        double floor = 0.5 * lineHeight;
        for (auto it = column.rbegin(); it != column.rend(); ++it) {
            Label *label = *it;
            const double y = std::max(label->box.center().y(), floor);
            label->box.moveCenter(QPointF(label->box.center().x(), y));
            floor = y + lineHeight;
            // Too many labels for the height: those pushed off the top go.
            if (y > height() - 0.5 * lineHeight + 0.5)
                label->category = -1;
        }
    }
    labels.removeIf([](const Label &label) { return label.category < 0; });
}

void CircleGraphView::drawLabel(QPainter &painter, const Label &label) const
{
    if (label.inside) {
        drawText(painter, label.box, Qt::AlignCenter, label.text,
                 labelColorOn(colorOf(label.category)));
        return;
    }
    const bool right = label.box.center().x() > label.rim.x();
    const QPointF end(right ? label.box.left() - kLeaderGap : label.box.right() + kLeaderGap,
                      label.box.center().y());
    painter.setPen(QPen(fadedInk(0.5), 1.0));
    painter.drawPolyline(QList<QPointF>{label.rim, label.bend, end});
    drawText(painter, label.box, Qt::AlignCenter, label.text, inkColor());
}
