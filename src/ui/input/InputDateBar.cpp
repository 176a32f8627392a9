#include "input/InputDateBar.h"

#include "input/InputRow.h"
#include "model/EntryLimits.h"
#include "model/NumberValue.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace {

QLineEdit *dateField(QWidget *parent, const QString &objectName, int width,
                     const QString &accessibleName)
{
    auto *field = new QLineEdit(parent);
    field->setObjectName(objectName);
    field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    field->setFixedWidth(width);
    field->setAccessibleName(accessibleName);
    return field;
}

QToolButton *dayButton(Qt::ArrowType arrow, const QString &name, const QKeySequence &shortcut,
                       QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    // Reached by its shortcut; Tab stays within the fields.
    button->setFocusPolicy(Qt::NoFocus);
    button->setShortcut(shortcut);
    button->setAccessibleName(name);
    button->setToolTip(QStringLiteral("%1 (%2)").arg(name, shortcut.toString(QKeySequence::NativeText)));
    return button;
}

} // namespace

InputDateBar::InputDateBar(int monthWidth, int dayWidth, QWidget *parent)
    : QWidget(parent)
    , m_date(QDate::currentDate())
{
    auto *label = new QLabel(tr("&Date:"), this);
    m_yearField = dateField(this, QStringLiteral("yearTF"),
                            monthWidth + fontMetrics().horizontalAdvance(QStringLiteral("00")),
                            tr("Year"));
    m_monthField = dateField(this, QStringLiteral("monthTF"), monthWidth, tr("Month"));
    m_dayField = dateField(this, QStringLiteral("dateTF"), dayWidth, tr("Day"));
    label->setBuddy(m_yearField);
    auto *previous = dayButton(Qt::LeftArrow, tr("Previous day"), QKeySequence(Qt::ALT | Qt::Key_Left), this);
    auto *next = dayButton(Qt::RightArrow, tr("Next day"), QKeySequence(Qt::ALT | Qt::Key_Right), this);
    for (QLineEdit *field : {m_yearField, m_monthField, m_dayField})
        connect(field, &QLineEdit::editingFinished, this, &InputDateBar::checkDate);
    connect(previous, &QToolButton::clicked, this, [this] { emit stepped(-1); });
    connect(next, &QToolButton::clicked, this, [this] { emit stepped(1); });

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(InputRow::Spacing);
    layout->addWidget(label);
    layout->addWidget(m_yearField);
    layout->addWidget(new QLabel(QStringLiteral("/"), this));
    layout->addWidget(m_monthField);
    layout->addWidget(new QLabel(QStringLiteral("/"), this));
    layout->addWidget(m_dayField);
    layout->addSpacing(InputRow::Spacing);
    layout->addWidget(previous);
    layout->addWidget(next);
    layout->addStretch(1);
    setTabOrder(m_yearField, m_monthField);
    setTabOrder(m_monthField, m_dayField);
    showDate();
}

void InputDateBar::setDate(const QDate &date)
{
    m_date = date;
    showDate();
}

void InputDateBar::checkDate()
{
    // An emptied field keeps its value; others roll over as a calendar does.
    const auto valueOf = [](const QLineEdit *field, int current) {
        return field->text().trimmed().isEmpty() ? current : integerValueOf(QStringView(field->text()));
    };
    const QDate first(valueOf(m_yearField, m_date.year()), 1, 1);
    if (!first.isValid() || !EntryLimits::isYearInRange(first.year())) {
        showDate();
        return;
    }
    const QDate date = first.addMonths(valueOf(m_monthField, m_date.month()) - 1)
                           .addDays(valueOf(m_dayField, m_date.day()) - 1);
    // Leaving a field unchanged must not reset the rows' own dates.
    if (date == m_date) {
        showDate();
        return;
    }
    setDate(date);
    emit dateEdited(date);
}

void InputDateBar::showDate()
{
    m_yearField->setText(QString::number(m_date.year()));
    m_monthField->setText(QString::number(m_date.month()));
    m_dayField->setText(QString::number(m_date.day()));
}
