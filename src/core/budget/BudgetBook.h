#pragma once

#include "budget/BudgetCalculation.h"
#include "budget/BudgetPlan.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class DataList;
class KController;

// The budgets of one data folder, read from its budget file and written
// back through it at every change. A file that cannot be read is reported
// and never written over: the program then works as if there were no
// budgets, and refuses to change them until the file is mended or removed.
class BudgetBook : public QObject
{
    Q_OBJECT

public:
    // Made by the ledger, its parent. Registers the budget file with it, so
    // that the budgets follow their categories through a renumbering and
    // its undo, and another computer's changes are read; reads nothing yet.
    explicit BudgetBook(KController *ledger);

    // Reads the budgets of the ledger's data folder (none when it has no
    // budget file).
    void load();
    const QString &folder() const { return m_folder; }
    bool isLoaded() const { return m_loaded; }

    const BudgetPlan &plan() const { return m_plan; }
    // Why the budget file cannot be read; empty when it can.
    const QString &problem() const { return m_problem; }
    // Changes the budgets as the file holds them now (read again first, when
    // another computer changed it), writes them durably as one step of the
    // undo history, and announces them. False, with the reason, when the
    // file cannot be read or written; the budgets are then as they were.
    bool changePlan(const std::function<void(BudgetPlan &)> &edit, QString *error = nullptr);

    // The month's figures, the lists of the months before it handed out by
    // `listOf` for rolling over; a month it cannot give counts as spending
    // nothing. `incomeCategory` is left out of all spending.
    using MonthLists = std::function<std::shared_ptr<DataList>(int year, int month)>;
    BudgetCalculation::Report report(const DataList &month, int incomeCategory,
                                     const MonthLists &listOf) const;

signals:
    // The budgets changed, were loaded anew, or were dropped.
    void budgetsChanged();
    // The budget file cannot be read; its budgets are left out.
    void budgetFileUnreadable(const QString &path, const QString &reason);

private:
    KController *m_ledger;
    QString m_folder;
    bool m_loaded = false;
    BudgetPlan m_plan;
    QString m_problem;
};
