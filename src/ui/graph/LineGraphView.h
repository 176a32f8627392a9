#pragma once

#include "graph/PWKGraphView.h"

#include <QMap>

// One line per checked category across January to December of the target
// year, with a dot at each month, over a month axis (the target month's label
// in red) and an amount axis whose maximum and labels are rounded to a few
// digits, with light rules across at the labels. The line under the pointer,
// else the highlighted one, is drawn on top and the others fade.
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
    // The line's category, the month under the pointer, amount and share.
    QString tooltipForItem(int index, const QPointF &point) const override;

    // The amount axis of the last draw: the top of the scale and the values
    // of the labels shown, from the bottom up.
    qint64 axisMaximum() const { return m_axisMaximum; }
    const QList<qint64> &axisLabels() const { return m_axisLabels; }

    // Budgets drawn as dashed lines in their categories' colours: category
    // to twelve amounts, January to December. Empty draws none.
    void setBudgetLines(const QMap<int, QList<double>> &lines);
    const QMap<int, QList<double>> &budgetLines() const { return m_budgetLines; }

    // Where the amount of a category in a month (1..12) lies, in y-up chart
    // coordinates.
    QPointF pointOfCategory(int category, int month, double monthWidth, qint64 max,
                            double graphHeight) const;

protected:
    void drawChart(QPainter &painter) override;
    void handleClick(int index, bool doubleClick) override;
    QRectF tooltipArea(int index, const QPointF &point) const override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    // The month (1 to 12) whose column holds chart x coordinate `x`.
    int monthAt(double x) const;
    void setPointedCategory(int category);

    // Where an amount lies on the amount axis, in y-up chart coordinates.
    static double heightOf(double amount, qint64 max, double graphHeight);

    QMap<int, QList<double>> m_budgetLines;
    int m_pointedCategory = -1;
    qint64 m_axisMaximum = 0;
    QList<qint64> m_axisLabels;
};
