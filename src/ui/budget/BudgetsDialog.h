#pragma once

#include "budget/BudgetPlan.h"

#include <QDialog>

class BudgetBook;
class QLabel;
class QTableWidget;
class QTableWidgetItem;

// Where the budgets are set: one row per spending category and one for all
// spending, each with its amount for every month, its own amount for the
// month in view and whether what is left rolls over. An amount that cannot
// be read is marked in its cell and keeps the dialog from closing. OK writes
// the rows changed, as one step of the undo history.
class BudgetsDialog : public QDialog
{
    Q_OBJECT

public:
    BudgetsDialog(BudgetBook *book, const QStringList &categories, QWidget *parent = nullptr);

    // The month whose own amounts the third column shows and sets.
    void setMonth(int year, int month);

    enum Column { Name, Amount, ThisMonth, RollOver };

    void accept() override;

private:
    void fillTable();
    // The row's budget as typed; nothing for a row without one. A cell that
    // cannot be read is marked and answered in `bad`.
    std::optional<CategoryBudget> rowBudget(int row, const CategoryBudget &held,
                                            QTableWidgetItem **bad);
    bool checkCell(QTableWidgetItem *item);

    BudgetBook *m_book;
    // The budgets the table was filled with.
    BudgetPlan m_shown;
    QStringList m_categories;
    int m_month = 0;
    QTableWidget *m_table;
    QLabel *m_message;
};
