#pragma once

#include "graph/PWKGraphView.h"

// Stacked bars, one per month, oldest at the top and the month on show at the
// bottom; each bar holds a segment per checked category in category order,
// named inside when it is wide enough, parted from the one before by a pixel
// of the ground. The largest month spans the width.
//
// Hit-test paths: row * C + i for the segment of category i in row (C the
// category count), then n * C + row for the month label of each row.
class BarGraphView : public PWKGraphView
{
    Q_OBJECT

public:
    explicit BarGraphView(QWidget *parent = nullptr);

    // How many months are shown; kept in the settings.
    int numberOfGraph() const { return m_numberOfGraph; }
    void addBar();
    // Never fewer than one bar.
    void deleteBar();

    ChartEntries dataArrayForDrawing() const override;
    // The visible width; 75 points of height per bar.
    QSize preferredChartSize() const override;
    // The segment's category, month, amount and share of the month.
    QString tooltipForItem(int index, const QPointF &point) const override;

protected:
    bool isFlipped() const override { return true; }
    void drawChart(QPainter &painter) override;
    void handleClick(int index, bool doubleClick) override;

private:
    void setNumberOfGraph(int count);
    // The year and month of a row, row 0 the oldest.
    QDate monthOfRow(int row) const;

    int m_numberOfGraph;
};
