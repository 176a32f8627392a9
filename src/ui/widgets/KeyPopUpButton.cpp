#include "widgets/KeyPopUpButton.h"

#include <QWheelEvent>

KeyPopUpButton::KeyPopUpButton(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void KeyPopUpButton::wheelEvent(QWheelEvent *event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    QComboBox::wheelEvent(event);
}
