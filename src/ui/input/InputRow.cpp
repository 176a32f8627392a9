#include "input/InputRow.h"

#include "widgets/KeyPopUpButton.h"
#include "widgets/LastPopUpButton.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>

#include <algorithm>

namespace {

const char TagProperty[] = "tag";

QString amountHint()
{
    return InputRow::tr("An amount, or a sum such as 1,200+350 or 3*450.");
}

// The width a framed line edit needs to show the text.
int lineEditWidth(const QWidget *reference, const QString &text)
{
    QStyleOptionFrame option;
    option.initFrom(reference);
    option.lineWidth = reference->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option,
                                                       reference);
    const QFontMetrics metrics = reference->fontMetrics();
    // 2 px of text margin each side, as QLineEdit keeps.
    const QSize contents(metrics.horizontalAdvance(text) + 4, metrics.height());
    return reference->style()
        ->sizeFromContents(QStyle::CT_LineEdit, &option, contents, reference)
        .width();
}

void tag(QWidget *control, int row, InputRow::Role role)
{
    control->setProperty(TagProperty, InputRow::tagFor(row, role));
}

QLineEdit *numberField(QWidget *parent, int width)
{
    auto *field = new QLineEdit(parent);
    field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    field->setFixedWidth(width);
    return field;
}

} // namespace

InputRow::ColumnWidths InputRow::columnWidths(const QWidget *reference)
{
    return {lineEditWidth(reference, QStringLiteral("000")),
            reference->fontMetrics().horizontalAdvance(u'/'),
            lineEditWidth(reference, QStringLiteral("000")),
            lineEditWidth(reference, QStringLiteral("0,000,000.00"))};
}

int InputRow::popUpWidth(const QWidget *reference, const QStringList &items)
{
    const QFontMetrics metrics = reference->fontMetrics();
    int widest = 0;
    for (const QString &item : items)
        widest = std::max(widest, metrics.horizontalAdvance(item));
    // Very long names are cut in the button; the open list shows them whole.
    const int characters = metrics.averageCharWidth();
    widest = std::clamp(widest, 8 * characters, 24 * characters);

    QStyleOptionComboBox option;
    option.initFrom(reference);
    return reference->style()
        ->sizeFromContents(QStyle::CT_ComboBox, &option, QSize(widest, metrics.height()), reference)
        .width();
}

InputRow::InputRow(int row, QAbstractItemModel *descriptions, QWidget *parent)
    : QWidget(parent)
    , m_row(row)
{
    const ColumnWidths widths = columnWidths(this);

    // Created in Tab order; the window links the rows to each other.
    QLineEdit *month = numberField(this, widths.month);
    month->setValidator(new QIntValidator(1, 12, month));
    month->setAccessibleName(tr("Month, row %1").arg(row));
    tag(month, row, Month);

    auto *slash = new QLabel(QStringLiteral("/"), this);
    slash->setFixedWidth(widths.slash);
    slash->setAlignment(Qt::AlignCenter);
    tag(slash, row, Slash);

    QLineEdit *day = numberField(this, widths.day);
    day->setValidator(new QIntValidator(1, 31, day));
    day->setAccessibleName(tr("Day, row %1").arg(row));
    tag(day, row, Day);

    auto *category = new KeyPopUpButton(this);
    category->setAccessibleName(tr("Category, row %1").arg(row));
    tag(category, row, Category);

    auto *description = new QComboBox(this);
    description->setEditable(true);
    description->setModel(descriptions);
    // What is typed is booked, not added to the list of remembered ones.
    description->setInsertPolicy(QComboBox::NoInsert);
    // No completion: what is typed is what is booked, so "Bus" cannot turn
    // into "Bus pass" by leaving the field. The list is one key away.
    description->setCompleter(nullptr);
    description->setMaxVisibleItems(13);
    description->setMinimumContentsLength(12);
    description->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    description->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    description->setAccessibleName(tr("Details, row %1").arg(row));
    description->setCurrentIndex(-1);
    tag(description, row, Description);

    QLineEdit *amount = numberField(this, widths.amount);
    amount->setAccessibleName(tr("Amount, row %1").arg(row));
    amount->setToolTip(amountHint());
    tag(amount, row, Amount);

    auto *payway = new LastPopUpButton(this);
    payway->setAccessibleName(tr("Payway, row %1").arg(row));
    tag(payway, row, Payway);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing);
    layout->addWidget(month);
    layout->addWidget(slash);
    layout->addWidget(day);
    layout->addWidget(category);
    layout->addWidget(description, 1);
    layout->addWidget(amount);
    layout->addWidget(payway);
}

void InputRow::setPopUpWidths(int category, int payway)
{
    controlWithTag(tagFor(m_row, Category))->setFixedWidth(category);
    controlWithTag(tagFor(m_row, Payway))->setFixedWidth(payway);
}

void InputRow::setAmountProblem(const std::optional<QString> &problem)
{
    if (problem == m_amountProblem)
        return;
    m_amountProblem = problem;
    auto *amount = controlWithTag(tagFor(m_row, Amount));
    // A red frame the eye finds among the rows; the reason is in the tool
    // tip and, for a screen reader, in the field's description.
    amount->setStyleSheet(problem ? QStringLiteral("QLineEdit { border: 2px solid #d0312d; "
                                                   "border-radius: 3px; padding: 0 1px; }")
                                  : QString());
    amount->setToolTip(problem ? *problem : amountHint());
    amount->setAccessibleDescription(problem ? *problem : QString());
}

int InputRow::tagOf(const QObject *control)
{
    return control ? control->property(TagProperty).toInt() : 0;
}

QWidget *InputRow::controlWithTag(int tag) const
{
    const auto children = findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (tagOf(child) == tag)
            return child;
    }
    return nullptr;
}
