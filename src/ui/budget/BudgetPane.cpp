#include "budget/BudgetPane.h"

#include "budget/BudgetBar.h"
#include "model/NumberValue.h"
#include "widgets/ThemeColors.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

QLabel *figure(const QString &text, const QString &objectName, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(objectName);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

} // namespace

BudgetPane::BudgetPane(QWidget *parent)
    : QGroupBox(tr("Budget"), parent)
    , m_scroll(new QScrollArea(this))
{
    setObjectName(QStringLiteral("budgetPane"));
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->addWidget(m_scroll, 1);
    showReport({}, {});
}

void BudgetPane::showReport(const BudgetCalculation::Report &report, const QStringList &categories,
                            const QString &problem)
{
    m_report = report;
    m_categories = categories;
    m_problem = problem;

    // Everything scrolls together, the way to the dialog included, so that a
    // low pane keeps as many figures in view as it can.
    auto *rows = new QWidget;
    auto *grid = new QGridLayout(rows);
    // A little room between the last figure and the scroll bar.
    grid->setContentsMargins(0, 0, 4, 0);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    auto *edit = new QToolButton(rows);
    edit->setObjectName(QStringLiteral("editBudgetsButton"));
    edit->setText(tr("Edit Budgets…"));
    connect(edit, &QToolButton::clicked, this, &BudgetPane::editRequested);
    if (report.total) {
        grid->addWidget(edit, 0, 0, 1, 2, Qt::AlignLeft);
        grid->addWidget(figure(tr("Spent"), {}, rows), 0, 2);
        grid->addWidget(figure(tr("Budget"), {}, rows), 0, 3);
        grid->addWidget(figure(tr("Left"), {}, rows), 0, 4);
        addRow(grid, 1, tr("All spending"), *report.total);
        int row = 2;
        for (const BudgetCalculation::Line &line : report.categories)
            addRow(grid, row++, categories.value(line.category, QString::number(line.category)),
                   line);
    } else {
        auto *note = new QLabel(problem.isEmpty()
                                    ? tr("No budgets set.")
                                    : tr("The budgets cannot be read: %1").arg(problem),
                                rows);
        note->setObjectName(QStringLiteral("budgetNote"));
        note->setWordWrap(true);
        grid->addWidget(note, 0, 0, 1, 5);
        grid->addWidget(edit, 1, 0, 1, 5, Qt::AlignLeft);
    }
    grid->setRowStretch(grid->rowCount(), 1);
    m_scroll->setWidget(rows);
    // As wide as the figures need: the memo beside gives way, not they.
    m_scroll->setMinimumWidth(rows->sizeHint().width()
                              + m_scroll->verticalScrollBar()->sizeHint().width());
}

void BudgetPane::addRow(QGridLayout *grid, int row, const QString &name,
                        const BudgetCalculation::Line &line)
{
    QWidget *rows = grid->parentWidget();
    const QString key = line.category < 0 ? QStringLiteral("all") : QString::number(line.category);
    auto *label = new QLabel(name, rows);
    if (line.category < 0) {
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
    }
    auto *bar = new BudgetBar(rows);
    bar->setObjectName(QStringLiteral("budgetBar_") + key);
    bar->setShare(line.share());
    auto *left = figure(amountText(line.left()), QStringLiteral("budgetLeft_") + key, rows);
    if (line.left() < 0) {
        QPalette palette = left->palette();
        palette.setColor(QPalette::WindowText,
                         ThemeColors::alertRed(this->palette().color(QPalette::Window)));
        left->setPalette(palette);
    }

    QString tip = std::isfinite(line.share())
        ? tr("%1 spent of %2 (%3 %)")
              .arg(amountText(line.spent), amountText(line.available()),
                   QLocale().toString(line.share() * 100, 'f', 0))
        : tr("%1 spent of nothing").arg(amountText(line.spent));
    if (line.carried != 0)
        tip += u'\n'
            + tr("This month: %1; carried over: %2")
                  .arg(amountText(line.budget), amountText(line.carried));
    for (QWidget *widget : std::initializer_list<QWidget *>{label, bar})
        widget->setToolTip(tip);

    grid->addWidget(label, row, 0);
    grid->addWidget(bar, row, 1);
    grid->addWidget(figure(amountText(line.spent), QStringLiteral("budgetSpent_") + key, rows), row,
                    2);
    grid->addWidget(figure(amountText(line.available()), QStringLiteral("budgetAmount_") + key,
                           rows),
                    row, 3);
    grid->addWidget(left, row, 4);
}

void BudgetPane::changeEvent(QEvent *event)
{
    // A new theme gives overspending a red that reads on it.
    if (event->type() == QEvent::PaletteChange)
        showReport(m_report, m_categories, m_problem);
    QGroupBox::changeEvent(event);
}
