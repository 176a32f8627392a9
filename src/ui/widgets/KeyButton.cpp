#include "widgets/KeyButton.h"

KeyButton::KeyButton(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
{
    setFocusPolicy(Qt::StrongFocus);
    // Outside dialogs, only an auto-default button answers Return itself.
    setAutoDefault(true);
}
