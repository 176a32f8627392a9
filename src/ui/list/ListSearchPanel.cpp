#include "list/ListSearchPanel.h"

#include "model/NumberValue.h"
#include "search/StringUtility.h"
#include "widgets/CheckPopUpButton.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

QLineEdit *searchField(const QString &objectName, const QString &placeholder, int characters,
                       QWidget *parent)
{
    auto *field = new QLineEdit(parent);
    field->setObjectName(objectName);
    field->setPlaceholderText(placeholder);
    field->setClearButtonEnabled(true);
    // Counted in digits, what the fields mostly hold: a font with Japanese
    // glyphs has an average character twice as wide, which would push the
    // row past the window.
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance(u'0') * characters);
    return field;
}

// "1,000" is a thousand in the amount fields too; 0 is no bound.
int amountBound(const QLineEdit *field)
{
    return integerValueOf(QStringView(QString(field->text()).remove(u',')));
}

} // namespace

ListSearchPanel::ListSearchPanel(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    m_dateField = searchField(QStringLiteral("dateSearchTF"), tr("e.g. 1,5,10-12"), 12, this);
    m_categoryButton = new CheckPopUpButton(tr("Category"), this);
    m_categoryButton->setObjectName(QStringLiteral("categorySearchPp"));
    m_detailsField = searchField(QStringLiteral("detailsSearchTF"), tr("Any of these words"), 16, this);
    m_amountMinField = searchField(QStringLiteral("amountMinSearchTF"), tr("From"), 10, this);
    m_amountMaxField = searchField(QStringLiteral("amountMaxSearchTF"), tr("To"), 10, this);
    for (QLineEdit *field : {m_dateField, m_amountMinField, m_amountMaxField})
        field->setFixedWidth(field->minimumWidth());
    m_paywayButton = new CheckPopUpButton(tr("Payment method"), this);
    m_paywayButton->setObjectName(QStringLiteral("paywaySearchPp"));

    const auto labelFor = [this](const QString &text, QWidget *buddy) {
        auto *label = new QLabel(text, this);
        label->setBuddy(buddy);
        return label;
    };
    layout->addWidget(labelFor(tr("&Days:"), m_dateField));
    layout->addWidget(m_dateField);
    layout->addWidget(labelFor(tr("&Words:"), m_detailsField));
    layout->addWidget(m_detailsField, 1);
    layout->addWidget(labelFor(tr("&Amount:"), m_amountMinField));
    layout->addWidget(m_amountMinField);
    layout->addWidget(new QLabel(QStringLiteral("–"), this));
    layout->addWidget(m_amountMaxField);
    layout->addWidget(m_categoryButton);
    layout->addWidget(m_paywayButton);

    // The search follows the typing.
    for (QLineEdit *field : {m_dateField, m_detailsField, m_amountMinField, m_amountMaxField})
        connect(field, &QLineEdit::textChanged, this, &ListSearchPanel::keysChanged);
    for (CheckPopUpButton *button : {m_categoryButton, m_paywayButton})
        connect(button, &CheckPopUpButton::checksChanged, this, &ListSearchPanel::keysChanged);
}

void ListSearchPanel::setNames(const QStringList &categories, const QStringList &payways)
{
    m_categoryButton->replaceItems(categories);
    m_paywayButton->replaceItems(payways);
    m_categoryCount = categories.size();
    m_paywayCount = payways.size();
}

void ListSearchPanel::clear()
{
    for (QLineEdit *field : {m_dateField, m_detailsField, m_amountMaxField, m_amountMinField}) {
        const QSignalBlocker blocker(field);
        field->clear();
    }
    m_categoryButton->setStateToAllItem(false);
    m_paywayButton->setStateToAllItem(false);
}

void ListSearchPanel::checkOnly(Kind kind, int index)
{
    clear();
    CheckPopUpButton *button = kind == Kind::Category ? m_categoryButton : m_paywayButton;
    const qsizetype count = kind == Kind::Category ? m_categoryCount : m_paywayCount;
    if (index >= 0 && index < count)
        button->setStateWithTagArray({index});
}

bool ListSearchPanel::hasKeys() const
{
    return !m_dateField->text().isEmpty() || !m_detailsField->text().isEmpty()
        || amountBound(m_amountMaxField) != 0 || amountBound(m_amountMinField) != 0
        || m_categoryButton->menuIsChecked() || m_paywayButton->menuIsChecked();
}

ExtractKeyDict ListSearchPanel::keys(int incomeNumber) const
{
    ExtractKeyDict keys;
    keys.incomeNumber = incomeNumber;
    if (!m_dateField->text().isEmpty())
        keys.date = separateDateKeyToArray(m_dateField->text());
    if (const QList<int> tags = m_categoryButton->checkedItemTagArray(); !tags.isEmpty())
        keys.category = tags;
    if (!m_detailsField->text().isEmpty())
        keys.details = separateStringKeyToArray(m_detailsField->text());
    if (const int bound = amountBound(m_amountMaxField); bound != 0)
        keys.amountMax = float(bound);
    if (const int bound = amountBound(m_amountMinField); bound != 0)
        keys.amountMin = float(bound);
    if (const QList<int> tags = m_paywayButton->checkedItemTagArray(); !tags.isEmpty())
        keys.payway = tags;
    return keys;
}

QString ListSearchPanel::description() const
{
    QStringList parts;
    if (!m_dateField->text().isEmpty())
        parts.append(tr("days %1").arg(m_dateField->text()));
    if (!m_detailsField->text().isEmpty())
        parts.append(tr("words %1").arg(m_detailsField->text()));
    if (amountBound(m_amountMinField) != 0)
        parts.append(tr("from %1").arg(m_amountMinField->text()));
    if (amountBound(m_amountMaxField) != 0)
        parts.append(tr("up to %1").arg(m_amountMaxField->text()));
    for (const CheckPopUpButton *button : {m_categoryButton, m_paywayButton}) {
        if (button->menuIsChecked())
            parts.append(button->checkedItemTitles().join(QStringLiteral(", ")));
    }
    return parts.join(QStringLiteral("; "));
}
