#pragma once

#include <QDialog>
#include <QString>

#include <optional>

class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QLineEdit;

// What the password dialogs share: a message line on top, masked fields in a
// form, OK and Cancel, and the hash a typed password is checked against.
// OK calls accept(), which the dialogs override to check the fields first.
class PasswordPanel : public QDialog
{
    Q_OBJECT

public:
    // The hash the typed password must match; without it, the stored one.
    void setPassword(const QString &hash);

protected:
    explicit PasswordPanel(QWidget *parent);

    // Adds a row; tab order follows the order of the calls, then OK, Cancel.
    QLineEdit *addPasswordField(const QString &label, const QString &objectName);
    bool matchesPassword(const QLineEdit *field) const;
    void showMessage(const QString &text);
    // Shows why OK was refused and selects the field's text for retyping.
    void refuse(QLineEdit *field, const QString &message);

private:
    QLabel *m_message;
    QDialogButtonBox *m_buttons;
    QFormLayout *m_form;
    QLineEdit *m_lastField = nullptr;
    std::optional<QString> m_password;
};
