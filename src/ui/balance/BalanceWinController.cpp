#include "balance/BalanceWinController.h"

#include "budget/BudgetBook.h"
#include "ledger/KController.h"
#include "model/DataList.h"
#include "model/NumberValue.h"
#include "model/Notifications.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "widgets/ThemeColors.h"

#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr int kMonthsShown = 12;

QLabel *addValueRow(QFormLayout *form, const QString &label, const QString &name)
{
    auto *value = new QLabel(form->parentWidget());
    value->setObjectName(name);
    // Room for any household's sums, so the column never cuts a figure.
    value->setMinimumWidth(value->fontMetrics().horizontalAdvance(amountText(-99999999.99)));
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    form->addRow(label, value);
    return value;
}

} // namespace

BalanceWinController::BalanceWinController(KController *controller, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_controller(controller)
    , m_scrollView(new QScrollArea(this))
{
    setObjectName(QStringLiteral("BalanceWindow"));
    setWindowTitle(tr("Balance"));

    auto *listView = new QWidget;
    listView->setObjectName(QStringLiteral("listView"));
    auto *column = new QVBoxLayout(listView);
    for (int offset = 1; offset <= kMonthsShown; ++offset) {
        auto *box = new QGroupBox(listView);
        box->setObjectName(QStringLiteral("box%1").arg(offset));
        auto *form = new QFormLayout(box);
        form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        Box entry{offset, box, nullptr, nullptr, nullptr, form, nullptr, nullptr, nullptr};
        entry.expense = addValueRow(form, tr("Spending"), QStringLiteral("expense"));
        entry.income = addValueRow(form, tr("Income"), QStringLiteral("income"));
        entry.balance = addValueRow(form, tr("Balance"), QStringLiteral("balance"));
        entry.budget = addValueRow(form, tr("Budget"), QStringLiteral("budget"));
        entry.left = addValueRow(form, tr("Left"), QStringLiteral("left"));
        column->addWidget(box);
        m_boxes.append(entry);
    }
    column->addStretch();

    m_scrollView->setObjectName(QStringLiteral("scrollView"));
    m_scrollView->setWidget(listView);
    m_scrollView->setWidgetResizable(true);
    m_scrollView->setAlignment(Qt::AlignTop);
    m_scrollView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollView->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_scrollView->setFrameShape(QFrame::NoFrame);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_scrollView);

    // A narrow column: as wide as a box needs, and half a year high.
    const int width =
        listView->sizeHint().width() + m_scrollView->verticalScrollBar()->sizeHint().width();
    setMinimumWidth(width);
    setMaximumWidth(width * 2);
    resize(width, m_boxes.constFirst().box->sizeHint().height() * 6);
    restoreGeometry(Settings().savedLayout(SettingsKeys::BalanceWindow));

    connect(Notifications::instance(), &Notifications::dataListHasChanged, this,
            &BalanceWinController::dataListHasChanged);
    connect(m_controller->budgets(), &BudgetBook::budgetsChanged, this, [this] {
        for (Box &box : m_boxes)
            setDataToBox(box);
    });
    // New lists may name another income category, and a new data folder
    // drops every loaded month: fetch the months again.
    connect(Notifications::instance(), &Notifications::listPreferenceHasUpDated, this, [this] {
        if (m_month != 0)
            showDataOfYear(m_year, m_month);
    });
}

BalanceWinController::~BalanceWinController() = default;

BalanceWinController::YearMonth BalanceWinController::monthBefore(int year, int month, int offset)
{
    int m = month - offset;
    int y = year;
    if (m < 1) {
        m += 12;
        --y;
    }
    return {y, m};
}

void BalanceWinController::showDataOfYear(int year, int month)
{
    m_year = year;
    m_month = month;
    for (Box &box : m_boxes) {
        const YearMonth shown = monthBefore(year, month, box.offset);
        // As the calendar has it, without the closing day.
        box.list = m_controller->listForYear(shown.year, shown.month, false);
        box.box->setTitle(QStringLiteral("%1. %2").arg(shown.year).arg(shown.month));
        setDataToBox(box);
    }
}

void BalanceWinController::setDataToBox(Box &box)
{
    const double expense = box.list ? box.list->expendTotal() : 0;
    const double income = box.list ? box.list->incomeTotal() : 0;
    const double balance = income - expense;
    box.expense->setText(amountText(expense));
    box.income->setText(amountText(income));
    box.balance->setText(amountText(balance));
    // A deficit in a red that reads on the window's ground; anything else in
    // the window's own colours.
    const QColor red = ThemeColors::alertRed(this->palette().color(QPalette::Window));
    QPalette palette;
    if (balance < 0)
        palette.setColor(QPalette::WindowText, red);
    box.balance->setPalette(palette);
    showBudget(box, red);
}

void BalanceWinController::showBudget(Box &box, const QColor &red)
{
    std::optional<BudgetCalculation::Line> total;
    if (box.list) {
        const int income = int(m_controller->categoryList().size()) - 1;
        // Earlier months as the calendar has them, like the boxes.
        total = m_controller->budgets()
                    ->report(*box.list, income,
                             [this](int year, int month) {
                                 return m_controller->listForYear(year, month, false);
                             })
                    .total;
    }
    box.form->setRowVisible(box.budget, total.has_value());
    box.form->setRowVisible(box.left, total.has_value());
    if (!total)
        return;
    box.budget->setText(amountText(total->available()));
    box.left->setText(amountText(total->left()));
    QPalette palette;
    if (total->left() < 0)
        palette.setColor(QPalette::WindowText, red);
    box.left->setPalette(palette);
}

void BalanceWinController::dataListHasChanged(DataList *list)
{
    for (Box &box : m_boxes) {
        if (box.list.get() == list)
            setDataToBox(box);
    }
}

void BalanceWinController::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange) {
        for (Box &box : m_boxes)
            setDataToBox(box);
    }
    QWidget::changeEvent(event);
}

void BalanceWinController::hideEvent(QHideEvent *event)
{
    Settings().setSavedLayout(SettingsKeys::BalanceWindow, saveGeometry());
    QWidget::hideEvent(event);
}
