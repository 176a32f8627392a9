#pragma once

#include "password/PasswordPanel.h"

class QLineEdit;

// Asks for the password before the account book opens. Retries are
// unlimited; the only ways out are the right password or Cancel (Escape and
// the window's close button mean Cancel). Its owner deletes it.
class ConfirmPassPanelController : public PasswordPanel
{
    Q_OBJECT

public:
    explicit ConfirmPassPanelController(QWidget *parent = nullptr);

    // Shows it as a window of its own, for the start, when no other window
    // is open yet. Closing it does not quit the application: whoever
    // listens to canceled() decides that.
    void runAsWindow();

    // OK: ends the dialog only when the password is right.
    void accept() override;
    void done(int result) override;

signals:
    // Each arrives on the event loop's next pass after the dialog closed.
    void confirmed();
    void canceled();

private:
    QLineEdit *m_passwordField;
};
