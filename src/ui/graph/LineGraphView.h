#pragma once

#include "graph/PWKGraphView.h"

// One line per checked category across January to December of the target
// year, over a month axis (the target month's label in red) and an amount
// axis whose maximum and labels are rounded to a few digits.
//
// Hit-test paths: 0..C-1 the lines (C the category count), C..C+11 the month
// labels January to December.
class LineGraphView : public PWKGraphView
{
    Q_OBJECT

public:
    explicit LineGraphView(QWidget *parent = nullptr);

    ChartEntries dataArrayForDrawing() const override;
    // The visible area, but never narrower than twelve months need.
    QSize preferredChartSize() const override;
    QString tooltipForItem(int index) const override;

    // The amount axis of the last draw: the top of the scale and the values
    // of the labels shown, from the bottom up.
    qint64 axisMaximum() const { return m_axisMaximum; }
    const QList<qint64> &axisLabels() const { return m_axisLabels; }

    // Where the amount of a category in a month (1..12) lies, in y-up chart
    // coordinates.
    QPointF pointOfCategory(int category, int month, double monthWidth, qint64 max,
                            double graphHeight) const;

protected:
    void drawChart(QPainter &painter) override;
    void handleClick(int index, bool doubleClick) override;

private:
    qint64 m_axisMaximum = 0;
    QList<qint64> m_axisLabels;
};
