#pragma once

#include "budget/BudgetCalculation.h"

#include <QGroupBox>

class QGridLayout;
class QScrollArea;

// The month's budgets under the list: per budgeted category, and for all
// spending, a bar of what is spent, and the figures spent, budget and left.
class BudgetPane : public QGroupBox
{
    Q_OBJECT

public:
    explicit BudgetPane(QWidget *parent = nullptr);

    // `categories` names the indices; `problem` is why the budgets could not
    // be read, shown instead of them.
    void showReport(const BudgetCalculation::Report &report, const QStringList &categories,
                    const QString &problem = {});

signals:
    void editRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void addRow(QGridLayout *grid, int row, const QString &name,
                const BudgetCalculation::Line &line);

    QScrollArea *m_scroll;
    BudgetCalculation::Report m_report;
    QStringList m_categories;
    QString m_problem;
};
