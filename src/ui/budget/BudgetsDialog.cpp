#include "budget/BudgetsDialog.h"

#include "budget/BudgetAmount.h"
#include "budget/BudgetBook.h"
#include "widgets/ThemeColors.h"

#include <QDate>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

// The budget of a row of the table: a category's, or all spending's.
std::optional<CategoryBudget> budgetOf(const BudgetPlan &plan, int row, bool all)
{
    if (all)
        return plan.allSpending;
    return plan.categories.contains(row) ? std::optional(plan.categories.value(row))
                                         : std::nullopt;
}

void setBudget(BudgetPlan &plan, int row, bool all, const std::optional<CategoryBudget> &budget)
{
    if (all)
        plan.allSpending = budget;
    else if (budget)
        plan.categories.insert(row, *budget);
    else
        plan.categories.remove(row);
}

} // namespace

BudgetsDialog::BudgetsDialog(BudgetBook *book, const QStringList &categories, QWidget *parent)
    : QDialog(parent)
    , m_book(book)
    , m_categories(categories)
    , m_table(new QTableWidget(this))
    , m_message(new QLabel(this))
{
    setObjectName(QStringLiteral("BudgetsDialog"));
    setWindowTitle(tr("Budgets"));

    auto *intro = new QLabel(tr("Leave an amount empty for no budget. What is left of a budget "
                                "that rolls over, or what it overspent, goes into the next "
                                "month's."),
                             this);
    intro->setWordWrap(true);
    m_table->setObjectName(QStringLiteral("budgetTable"));
    m_table->setColumnCount(4);
    m_table->verticalHeader()->hide();
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::AllEditTriggers);
    m_table->setTabKeyNavigation(true);
    m_table->horizontalHeader()->setSectionResizeMode(Name, QHeaderView::Stretch);
    for (const int column : {Amount, ThisMonth, RollOver})
        m_table->horizontalHeader()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    // A header wider than its cells (Japanese "Roll Over") keeps its room.
    m_table->horizontalHeader()->setMinimumSectionSize(
        m_table->fontMetrics().horizontalAdvance(QStringLiteral("0000000000")));
    connect(m_table, &QTableWidget::itemChanged, this, &BudgetsDialog::checkCell);

    m_message->setObjectName(QStringLiteral("budgetMessage"));
    m_message->setWordWrap(true);
    m_message->hide();

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &BudgetsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &BudgetsDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_message);
    layout->addWidget(buttons);

    const QDate today = QDate::currentDate();
    setMonth(today.year(), today.month());
    resize(600, 480);

    if (!m_book->problem().isEmpty()) {
        m_message->setText(tr("The budgets cannot be read, so they cannot be changed: %1")
                               .arg(m_book->problem()));
        m_message->show();
        m_table->setEnabled(false);
        buttons->button(QDialogButtonBox::Ok)->setEnabled(false);
    }
}

void BudgetsDialog::setMonth(int year, int month)
{
    m_month = MonthKey::of(year, month);
    m_table->setHorizontalHeaderLabels(
        {tr("Category"), tr("Every Month"),
         tr("%1 %2").arg(QLocale().standaloneMonthName(month, QLocale::ShortFormat)).arg(year),
         tr("Roll Over")});
    fillTable();
}

void BudgetsDialog::fillTable()
{
    m_shown = m_book->plan();
    // The spending categories, then all spending; the income category has
    // no budget.
    const int spending = std::max(0, int(m_categories.size()) - 1);
    const QSignalBlocker quiet(m_table);
    m_table->setRowCount(spending + 1);
    for (int row = 0; row <= spending; ++row) {
        const bool all = row == spending;
        const std::optional<CategoryBudget> budget = budgetOf(m_shown, row, all);
        auto *name = new QTableWidgetItem(all ? tr("All spending") : m_categories.at(row));
        name->setFlags(Qt::ItemIsEnabled);
        if (all) {
            QFont bold = name->font();
            bold.setBold(true);
            name->setFont(bold);
        }
        m_table->setItem(row, Name, name);
        const auto amountItem = [](const std::optional<double> &amount) {
            auto *item =
                new QTableWidgetItem(amount ? BudgetAmount::editingText(*amount) : QString());
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            return item;
        };
        m_table->setItem(row, Amount, amountItem(budget ? std::optional(budget->amount)
                                                        : std::nullopt));
        m_table->setItem(row, ThisMonth,
                         amountItem(budget && budget->months.contains(m_month)
                                        ? std::optional(budget->months.value(m_month))
                                        : std::nullopt));
        auto *rollOver = new QTableWidgetItem;
        rollOver->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemIsSelectable);
        rollOver->setCheckState(budget && budget->rollOver ? Qt::Checked : Qt::Unchecked);
        if (budget && budget->rollOver)
            rollOver->setToolTip(tr("Rolling over since %1/%2")
                                     .arg(budget->rollOverSince % 100)
                                     .arg(budget->rollOverSince / 100));
        m_table->setItem(row, RollOver, rollOver);
    }
    m_table->setCurrentCell(0, Amount);
}

bool BudgetsDialog::checkCell(QTableWidgetItem *item)
{
    if (item->column() != Amount && item->column() != ThisMonth)
        return true;
    QString problem;
    BudgetAmount::read(item->text(), &problem);
    const QSignalBlocker quiet(m_table);
    item->setToolTip(problem);
    item->setForeground(problem.isEmpty()
                            ? QBrush()
                            : QBrush(ThemeColors::alertRed(palette().color(QPalette::Base))));
    m_message->setText(problem);
    m_message->setVisible(!problem.isEmpty());
    return problem.isEmpty();
}

std::optional<CategoryBudget> BudgetsDialog::rowBudget(int row, const CategoryBudget &held,
                                                       QTableWidgetItem **bad)
{
    QString problem;
    QTableWidgetItem *amountItem = m_table->item(row, Amount);
    QTableWidgetItem *monthItem = m_table->item(row, ThisMonth);
    const auto amount = BudgetAmount::read(amountItem->text(), &problem);
    if (!problem.isEmpty())
        *bad = amountItem;
    const auto thisMonth = BudgetAmount::read(monthItem->text(), &problem);
    if (!problem.isEmpty() && !*bad)
        *bad = monthItem;
    if (!amount && !thisMonth)
        return std::nullopt;
    CategoryBudget budget = held;
    budget.amount = amount.value_or(0);
    if (thisMonth)
        budget.months.insert(m_month, *thisMonth);
    else
        budget.months.remove(m_month);
    const bool rollOver = m_table->item(row, RollOver)->checkState() == Qt::Checked;
    // Rolling over starts with the month in which it was asked for.
    if (rollOver && !budget.rollOver)
        budget.rollOverSince = m_month;
    budget.rollOver = rollOver;
    if (!rollOver)
        budget.rollOverSince = 0;
    return budget;
}

void BudgetsDialog::accept()
{
    // Only the rows changed here are written: another computer may have
    // changed other budgets since the table was filled.
    BudgetPlan typed;
    QList<int> changed;
    const int spending = m_table->rowCount() - 1;
    QTableWidgetItem *bad = nullptr;
    for (int row = 0; row <= spending && !bad; ++row) {
        const bool all = row == spending;
        const std::optional<CategoryBudget> shown = budgetOf(m_shown, row, all);
        const auto budget = rowBudget(row, shown.value_or(CategoryBudget()), &bad);
        setBudget(typed, row, all, budget);
        if (budget != shown)
            changed.append(row);
    }
    if (bad) {
        checkCell(bad);
        m_table->setCurrentItem(bad);
        m_table->setFocus();
        return;
    }
    QString error;
    const auto edit = [&typed, &changed, spending](BudgetPlan &plan) {
        for (const int row : std::as_const(changed))
            setBudget(plan, row, row == spending, budgetOf(typed, row, row == spending));
    };
    if (!m_book->changePlan(edit, &error)) {
        m_message->setText(tr("The budgets could not be saved: %1").arg(error));
        m_message->show();
        return;
    }
    QDialog::accept();
}
