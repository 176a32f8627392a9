#pragma once

#include "password/PasswordPanel.h"

class QLineEdit;

// Sets, changes or removes the password: the old one, then the new one
// twice. Shown window-modal on its parent with open(); it deletes itself
// once it has ended.
class SetPassPanelController : public PasswordPanel
{
    Q_OBJECT

public:
    // What OK does with the new password.
    enum class Mode {
        SaveToSettings, // store it at once (an empty one removes the lock)
        HandOver,       // store nothing; emit its hash with passwordChosen()
    };

    explicit SetPassPanelController(QWidget *parent);

    void setMode(Mode mode);

    // OK: ends the dialog only when the old password is right and the new
    // one was typed the same twice.
    void accept() override;

signals:
    // HandOver mode, after the dialog has closed: the hash of the new
    // password, empty for none. Cancel hands over nothing.
    void passwordChosen(const QString &hash);

private:
    QLineEdit *m_oldField;
    QLineEdit *m_newField;
    QLineEdit *m_repeatField;
    Mode m_mode = Mode::SaveToSettings;
};
