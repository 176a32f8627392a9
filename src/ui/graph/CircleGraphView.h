#pragma once

#include "graph/PWKGraphView.h"

#include <QRectF>

// The pie: each checked category's share of the month's spending, clockwise
// from twelve o'clock in category order. The highlighted slice stands out by
// ten points with an outline in the text colour. Names are written level:
// inside their slice where they fit, else beside the pie at the end of a
// leader line, else cut short inside; where none of that works, the tool tip
// still names the slice.
class CircleGraphView : public PWKGraphView
{
    Q_OBJECT

public:
    explicit CircleGraphView(QWidget *parent = nullptr);

protected:
    void drawChart(QPainter &painter) override;

private:
    // A slice's name and where it goes, in chart coordinates.
    struct Label {
        int category = -1;
        QString text;
        QRectF box;
        bool inside = true;
        // Outside labels: the rim point under the slice's middle, the bend
        // of the leader line, and the height the label would like.
        QPointF rim;
        QPointF bend;
        double wantedY = 0;
    };

    // A level label for the slice between `startAngle` and `endAngle`
    // (degrees), inside it if it fits; `inside` false when it must go out.
    Label placeLabel(int category, const QPointF &centre, double radius, double startAngle,
                     double endAngle) const;
    // Moves the labels beside the pie apart so that none covers another,
    // dropping those that find no room.
    void stackOutsideLabels(QList<Label> &labels) const;
    void drawLabel(QPainter &painter, const Label &label) const;
};
