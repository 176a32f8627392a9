#pragma once

#include <QDialog>
#include <QString>

class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QLineEdit;

// What the password dialogs share: a message line on top, masked fields in a
// form, a note under them, OK and Cancel. A typed password is checked against
// the stored one. OK calls accept(), which the dialogs override to check the
// fields first.
class PasswordPanel : public QDialog
{
    Q_OBJECT

protected:
    explicit PasswordPanel(QWidget *parent);

    // Adds a row; tab order follows the order of the calls, then OK, Cancel.
    QLineEdit *addPasswordField(const QString &label, const QString &objectName);
    // A lasting remark under the fields, such as what OK will do.
    void setNote(const QString &text);
    bool matchesPassword(const QLineEdit *field) const;
    void showMessage(const QString &text);
    // Shows why OK was refused and selects the field's text for retyping.
    void refuse(QLineEdit *field, const QString &message);

private:
    QLabel *m_message;
    QLabel *m_note;
    QDialogButtonBox *m_buttons;
    QFormLayout *m_form;
    QLineEdit *m_lastField = nullptr;
};
