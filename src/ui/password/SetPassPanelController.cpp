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
}

void SetPassPanelController::setMode(Mode mode)
{
    m_mode = mode;
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
    const std::optional<QString> hash = PasswordLock::ppCrypt(newPassword);
    if (!hash) {
        refuse(m_newField, tr("Passwords cannot be encrypted on this system."));
        return;
    }

    // Close first, so that whoever gets the result may open another dialog
    // on the same window. Deletion waits for the event loop: this is still
    // alive below.
    QDialog::accept();
    if (m_mode == Mode::SaveToSettings)
        PasswordLock::savePasswordToDefault(newPassword); // cannot fail: it hashed above
    else
        emit passwordChosen(*hash);
}
