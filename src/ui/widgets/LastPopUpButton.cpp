#include "widgets/LastPopUpButton.h"

LastPopUpButton::LastPopUpButton(QWidget *parent)
    : KeyPopUpButton(parent)
{
}

void LastPopUpButton::setNextKeyView(QWidget *view)
{
    m_nextKeyView = view;
    if (view)
        setTabOrder(this, view);
}

bool LastPopUpButton::focusNextPrevChild(bool next)
{
    if (next && !m_nextKeyView) {
        emit nextKeyViewNeeded(this);
        return true;
    }
    return KeyPopUpButton::focusNextPrevChild(next);
}
