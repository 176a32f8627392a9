#pragma once

#include <QWidget>

// How much of a budget is spent, as a bar: in the highlight colour, amber
// past 80 %, red past 100 %, each chosen to read on the window's ground.
class BudgetBar : public QWidget
{
    Q_OBJECT

public:
    explicit BudgetBar(QWidget *parent = nullptr);

    // Spent as a share of the budget: 1 is all of it.
    void setShare(double share);
    double share() const { return m_share; }
    QColor fillColor() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double m_share = 0;
};
