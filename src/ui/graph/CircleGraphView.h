#pragma once

#include "graph/PWKGraphView.h"

// The pie: each checked category's share of the month's spending, clockwise
// from twelve o'clock in category order. The highlighted slice stands out by
// ten points with a black outline; slices wider than 20 degrees carry their
// name along their middle.
class CircleGraphView : public PWKGraphView
{
    Q_OBJECT

public:
    explicit CircleGraphView(QWidget *parent = nullptr);

protected:
    void drawChart(QPainter &painter) override;

private:
    void drawLabel(QPainter &painter, int category, const QPointF &centre, double radius,
                   double startAngle, double endAngle) const;
};
