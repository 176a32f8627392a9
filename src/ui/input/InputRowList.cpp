#include "input/InputRowList.h"

#include "input/InputRow.h"
#include "widgets/KeyButton.h"
#include "widgets/LastPopUpButton.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

namespace {

QLabel *columnTitle(const QString &text, QWidget *parent, int width = -1,
                    Qt::Alignment alignment = Qt::AlignLeft)
{
    auto *title = new QLabel(text, parent);
    title->setAlignment(alignment | Qt::AlignVCenter);
    if (width >= 0)
        title->setFixedWidth(width);
    return title;
}

QWidget *controlOf(const InputRow *row, InputRow::Role role)
{
    return row->controlWithTag(InputRow::tagFor(row->row(), role));
}

} // namespace

InputRowList::InputRowList(QAbstractItemModel *descriptions, QWidget *parent)
    : QWidget(parent)
    , m_descriptions(descriptions)
{
    const InputRow::ColumnWidths widths = InputRow::columnWidths(this);

    // Column titles, as wide as the columns of the rows below them.
    m_header = new QWidget(this);
    auto *headerLayout = new QHBoxLayout(m_header);
    headerLayout->setContentsMargins(0, 0, 0, 0);
    headerLayout->setSpacing(InputRow::Spacing);
    headerLayout->addWidget(columnTitle(
        tr("Date"), m_header, widths.month + widths.slash + widths.day + 2 * InputRow::Spacing,
        Qt::AlignHCenter));
    m_categoryTitle = columnTitle(tr("Category"), m_header);
    headerLayout->addWidget(m_categoryTitle);
    headerLayout->addWidget(columnTitle(tr("Details"), m_header), 1);
    headerLayout->addWidget(columnTitle(tr("Amount"), m_header, widths.amount, Qt::AlignRight));
    m_paywayTitle = columnTitle(tr("Payway"), m_header);
    headerLayout->addWidget(m_paywayTitle);

    m_inputView = new QWidget;
    m_rowsLayout = new QVBoxLayout(m_inputView);
    m_rowsLayout->setContentsMargins(0, 0, 0, 0);
    m_rowsLayout->addStretch(1);
    m_scrollArea = new QScrollArea(this);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setWidget(m_inputView);
    // The titles and the total must stay over and under their columns when
    // the scroll bar comes and goes.
    m_scrollArea->verticalScrollBar()->installEventFilter(this);

    // The total sits under the amounts, like the titles over them.
    m_addRowButton = new KeyButton(tr("&Add Row"), this);
    m_addRowButton->setObjectName(QStringLiteral("addRowButton"));
    auto *sumLabel = new QLabel(tr("Spending total:"), this);
    m_sumTF = new QLabel(this);
    m_sumTF->setObjectName(QStringLiteral("sumTF"));
    m_sumTF->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_sumTF->setFixedWidth(widths.amount);
    m_sumTF->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_sumTF->setAccessibleName(tr("Spending total"));
    QFont sumFont = m_sumTF->font();
    sumFont.setBold(true);
    m_sumTF->setFont(sumFont);
    m_sumRow = new QWidget(this);
    m_sumTrailer = new QWidget(m_sumRow);
    auto *sumRow = new QHBoxLayout(m_sumRow);
    sumRow->setContentsMargins(0, 0, 0, 0);
    sumRow->setSpacing(InputRow::Spacing);
    sumRow->addWidget(m_addRowButton);
    sumRow->addStretch(1);
    sumRow->addWidget(sumLabel);
    sumRow->addWidget(m_sumTF);
    sumRow->addWidget(m_sumTrailer);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_header);
    layout->addWidget(m_scrollArea, 1);
    layout->addWidget(m_sumRow);
}

InputRow *InputRowList::rowOfTag(int tag) const
{
    return m_rows.value(tag / 10 - 1);
}

InputRow *InputRowList::addRow()
{
    const int number = int(m_rows.size()) + 1;
    QWidget *previous = m_rows.isEmpty() ? m_tabStart : controlOf(m_rows.constLast(), InputRow::Payway);
    auto *row = new InputRow(number, m_descriptions, m_inputView);
    m_rows.append(row);
    m_rowsLayout->insertWidget(number - 1, row);
    // Now rather than on the layout's next pass, so that Tab can reach it at
    // once.
    row->show();
    row->setPopUpWidths(m_categoryWidth, m_paywayWidth);

    // Behind the previous row in the Tab order, and in front of the button.
    QWidget *month = controlOf(row, InputRow::Month);
    if (auto *previousPayway = qobject_cast<LastPopUpButton *>(previous))
        previousPayway->setNextKeyView(month);
    else if (previous)
        setTabOrder(previous, month);
    QWidget *last = month;
    for (InputRow::Role role : {InputRow::Day, InputRow::Category, InputRow::Description,
                                InputRow::Amount, InputRow::Payway}) {
        setTabOrder(last, controlOf(row, role));
        last = controlOf(row, role);
    }
    setTabOrder(last, m_addRowButton);
    return row;
}

void InputRowList::removeRowsAfter(int keep)
{
    while (m_rows.size() > keep) {
        InputRow *row = m_rows.takeLast();
        row->hide();
        m_rowsLayout->removeWidget(row);
        // Later: the key press that booked may still be on its way through
        // one of its controls.
        row->deleteLater();
    }
    if (m_rows.isEmpty())
        return;
    auto *last = qobject_cast<LastPopUpButton *>(controlOf(m_rows.constLast(), InputRow::Payway));
    last->setNextKeyView(nullptr);
    setTabOrder(last, m_addRowButton);
}

void InputRowList::ensureVisible(QWidget *control)
{
    // The row has its place only once the layout has run.
    QTimer::singleShot(0, control, [this, control] { m_scrollArea->ensureWidgetVisible(control); });
}

void InputRowList::scrollToTop()
{
    m_scrollArea->verticalScrollBar()->setValue(0);
}

void InputRowList::setPopUpWidths(int category, int payway)
{
    m_categoryWidth = category;
    m_paywayWidth = payway;
    m_categoryTitle->setFixedWidth(category);
    m_paywayTitle->setFixedWidth(payway);
    m_sumTrailer->setFixedWidth(payway);
    for (InputRow *row : std::as_const(m_rows))
        row->setPopUpWidths(category, payway);
    // Never narrower than a row, so nothing needs scrolling sideways.
    m_scrollArea->setMinimumWidth(m_inputView->minimumSizeHint().width());
}

void InputRowList::setTotalText(const QString &text)
{
    m_sumTF->setText(text);
}

int InputRowList::rowHeight() const
{
    return m_rows.isEmpty() ? 0 : m_rows.constFirst()->sizeHint().height() + m_rowsLayout->spacing();
}

bool InputRowList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_scrollArea->verticalScrollBar()
        && (event->type() == QEvent::Show || event->type() == QEvent::Hide)) {
        const int right = event->type() == QEvent::Show
            ? m_scrollArea->verticalScrollBar()->sizeHint().width()
            : 0;
        m_header->layout()->setContentsMargins(0, 0, right, 0);
        m_sumRow->layout()->setContentsMargins(0, 0, right, 0);
    }
    return QWidget::eventFilter(watched, event);
}
