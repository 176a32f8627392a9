#include "password/SetPassPanelController.h"

#include "security/PasswordLock.h"

#include <QCoreApplication>
#include <QLineEdit>

SetPassPanelController::SetPassPanelController(QWidget *parent)
    : PasswordPanel(parent)
{
    setWindowTitle(tr("Change Password"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_oldField = addPasswordField(tr("&Old password:"), QStringLiteral("oldPassTF"));
    m_newField = addPasswordField(tr("&New password:"), QStringLiteral("newPassTF"));
    m_repeatField = addPasswordField(tr("&Repeat new password:"), QStringLiteral("newPassTF2"));
    setNote(tr("The password is saved as soon as you press OK here, even if you then cancel "
               "the preferences. Leave the new password empty to remove it."));
}

void SetPassPanelController::accept()
{
    if (!matchesPassword(m_oldField)) {
        refuse(m_oldField, QCoreApplication::translate("PasswordPanels", "Old password is wrong"));
        return;
    }
    const QString newPassword = m_newField->text();
    if (newPassword != m_repeatField->text()) {
        refuse(m_newField, QCoreApplication::translate("PasswordPanels", "New password is wrong"));
        return;
    }
    if (!PasswordLock::savePasswordToDefault(newPassword)) {
        refuse(m_newField, tr("Passwords cannot be encrypted on this system."));
        return;
    }
    // Stored first: whoever hears accepted() finds the new password in place.
    QDialog::accept();
}
