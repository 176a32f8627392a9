#include "recurring/DueDialog.h"

#include "entry/EntryCheck.h"
#include "entry/NumberUtility.h"

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>

#include <cmath>

namespace {
QComboBox *listBox(const QStringList &items, int current, QWidget *parent)
{
    auto *box = new QComboBox(parent);
    box->addItems(items);
    box->setCurrentIndex(current);
    return box;
}

// A cell holding only a check box: the keyboard's focus is drawn round the
// box, not round the empty room beside it.
class CheckCellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        const bool focused = cell.state & QStyle::State_HasFocus;
        cell.state &= ~QStyle::State_HasFocus;
        QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        if (!focused)
            return;
        QStyleOptionFocusRect frame;
        frame.QStyleOption::operator=(cell);
        frame.rect = style->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &cell, cell.widget)
                         .adjusted(-2, -2, 2, 2);
        frame.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
        frame.backgroundColor = cell.palette.color(QPalette::Base);
        style->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, painter, cell.widget);
    }
};
} // namespace

DueDialog::DueDialog(const QList<ScheduleBook::Occurrence> &occurrences,
                     const QStringList &categories, const QStringList &payways, QWidget *parent)
    : QDialog(parent)
    , m_occurrences(occurrences)
{
    setWindowTitle(tr("Scheduled Entries Due"));
    auto *intro = new QLabel(
        tr("These scheduled entries are due. Change what differs this time, and untick those "
           "that are not to be booked: they are skipped."),
        this);
    intro->setWordWrap(true);

    m_table = new QTableWidget(int(occurrences.size()), ColumnCount, this);
    m_table->setHorizontalHeaderLabels(
        {tr("Book"), tr("Date"), tr("Details"), tr("Category"), tr("Amount"), tr("Payway")});
    m_table->verticalHeader()->hide();
    m_table->setItemDelegateForColumn(Book, new CheckCellDelegate(m_table));
    m_table->setTabKeyNavigation(false);
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
    // Typing into a cell would swallow the buttons' Alt keys: F2 or a double click edits.
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const PaymentData &entry = *occurrences.at(row).entry;
        auto *book = new QTableWidgetItem;
        book->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        book->setCheckState(Qt::Checked);
        m_table->setItem(row, Book, book);
        auto *date = new QDateEdit(occurrences.at(row).date, m_table);
        date->setCalendarPopup(true);
        date->setDisplayFormat(QLocale().dateFormat(QLocale::ShortFormat));
        m_table->setCellWidget(row, Date, date);
        m_table->setItem(row, Details, new QTableWidgetItem(entry.details()));
        m_table->setCellWidget(row, Category, listBox(categories, entry.category(), m_table));
        auto *amount = new QTableWidgetItem(QString::number(double(entry.amount()), 'f',
                                                            std::floor(entry.amount()) == entry.amount() ? 0 : 2));
        amount->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_table->setItem(row, Amount, amount);
        m_table->setCellWidget(row, Payway, listBox(payways, entry.payway(), m_table));
    }
    m_table->resizeColumnsToContents();
    // Room to type a longer sum than the amount shown.
    m_table->setColumnWidth(Amount, std::max(m_table->columnWidth(Amount),
                                             m_table->fontMetrics().horizontalAdvance(u'0') * 10));
    m_table->horizontalHeader()->setSectionResizeMode(Details, QHeaderView::Stretch);

    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("status"));
    m_status->setWordWrap(true);
    m_status->hide();

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *bookButton = buttons->addButton(tr("&Book"), QDialogButtonBox::AcceptRole);
    bookButton->setDefault(true);
    buttons->addButton(tr("&Later"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &DueDialog::book);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_status);
    layout->addWidget(buttons);
    resize(std::max(sizeHint().width(), m_table->horizontalHeader()->length() + 60), sizeHint().height());
}

QList<ScheduleBook::Occurrence> DueDialog::answers() const
{
    QList<ScheduleBook::Occurrence> answers = m_occurrences;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        ScheduleBook::Occurrence &answer = answers[row];
        if (m_table->item(row, Book)->checkState() != Qt::Checked) {
            answer.entry.reset();
            continue;
        }
        const QDate date = static_cast<QDateEdit *>(m_table->cellWidget(row, Date))->date();
        answer.entry = std::make_shared<PaymentData>(
            date.year(), date.month(), date.day(),
            static_cast<QComboBox *>(m_table->cellWidget(row, Category))->currentIndex(),
            m_table->item(row, Details)->text(),
            float(NumberUtility::numberWithCalcurationStatement(m_table->item(row, Amount)->text())),
            static_cast<QComboBox *>(m_table->cellWidget(row, Payway))->currentIndex());
    }
    return answers;
}

void DueDialog::book()
{
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (m_table->item(row, Book)->checkState() != Qt::Checked)
            continue;
        const double amount =
            NumberUtility::numberWithCalcurationStatement(m_table->item(row, Amount)->text());
        if (const auto problem = EntryCheck::amountProblem(amount)) {
            refuse(tr("%1: %2").arg(m_table->item(row, Details)->text(), *problem));
            m_table->setCurrentCell(row, Amount);
            m_table->setFocus();
            return;
        }
    }
    emit answered(answers());
}

void DueDialog::refuse(const QString &reason)
{
    m_status->setText(reason);
    m_status->show();
}
