#include "password/ConfirmPassPanelController.h"

#include <QCoreApplication>
#include <QLineEdit>

ConfirmPassPanelController::ConfirmPassPanelController(QWidget *parent)
    : PasswordPanel(parent)
{
    setWindowTitle(tr("Password"));
    m_passwordField = addPasswordField(tr("&Password:"), QStringLiteral("passwordTF"));
    showMessage(QCoreApplication::translate("PasswordPanels", "Enter your password"));
}

void ConfirmPassPanelController::runAsWindow()
{
    setAttribute(Qt::WA_QuitOnClose, false);
    show();
    raise();
    activateWindow();
}

void ConfirmPassPanelController::accept()
{
    if (!matchesPassword(m_passwordField)) {
        refuse(m_passwordField, QCoreApplication::translate("PasswordPanels", "Password is wrong"));
        return;
    }
    QDialog::accept();
}

void ConfirmPassPanelController::done(int result)
{
    // Queued before closing, so that it is delivered ahead of a deletion the
    // close may schedule.
    QMetaObject::invokeMethod(this,
                              result == Accepted ? &ConfirmPassPanelController::confirmed
                                                 : &ConfirmPassPanelController::canceled,
                              Qt::QueuedConnection);
    QDialog::done(result);
}
