#include "password/PasswordPanel.h"

#include "security/PasswordLock.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

PasswordPanel::PasswordPanel(QWidget *parent)
    : QDialog(parent)
    , m_message(new QLabel(this))
    , m_note(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    m_message->setObjectName(QStringLiteral("passMessageTF"));
    m_message->setTextFormat(Qt::PlainText);
    m_note->setObjectName(QStringLiteral("passNoteTF"));
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_note->hide();

    // Return in any field presses OK.
    m_buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &PasswordPanel::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &PasswordPanel::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_message);
    m_form = new QFormLayout;
    layout->addLayout(m_form);
    layout->addWidget(m_note);
    layout->addWidget(m_buttons);
}

QLineEdit *PasswordPanel::addPasswordField(const QString &label, const QString &objectName)
{
    auto *field = new QLineEdit(this);
    field->setObjectName(objectName);
    field->setEchoMode(QLineEdit::Password);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 28);
    m_form->addRow(label, field);

    // The buttons were made before any field; put each field in front of them.
    if (m_lastField)
        setTabOrder(m_lastField, field);
    QPushButton *ok = m_buttons->button(QDialogButtonBox::Ok);
    setTabOrder(field, ok);
    setTabOrder(ok, m_buttons->button(QDialogButtonBox::Cancel));
    if (!m_lastField)
        field->setFocus();
    m_lastField = field;
    return field;
}

bool PasswordPanel::matchesPassword(const QLineEdit *field) const
{
    // The stored password is upgraded to the current hash when it matches.
    return PasswordLock::unlock(field->text());
}

void PasswordPanel::showMessage(const QString &text)
{
    m_message->setText(text);
}

void PasswordPanel::setNote(const QString &text)
{
    m_note->setText(text);
    m_note->show();
}

void PasswordPanel::refuse(QLineEdit *field, const QString &message)
{
    showMessage(message);
    field->setFocus();
    field->selectAll();
}
