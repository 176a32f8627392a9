#pragma once

#include "password/PasswordPanel.h"

class QLineEdit;

// Sets, changes or removes the password: the old one, then the new one
// twice. OK stores it at once, whatever becomes of the window the dialog was
// opened from, so a password the user confirmed is never dropped unseen.
// Shown window-modal on its parent with open(); it deletes itself once it
// has ended.
class SetPassPanelController : public PasswordPanel
{
    Q_OBJECT

public:
    explicit SetPassPanelController(QWidget *parent);

    // OK: stores the new password (an empty one removes the lock) and ends
    // the dialog, only when the old password is right and the new one was
    // typed the same twice.
    void accept() override;

private:
    QLineEdit *m_oldField;
    QLineEdit *m_newField;
    QLineEdit *m_repeatField;
};
