#pragma once

#include "widgets/KeyPopUpButton.h"

#include <QPointer>

// The pop-up button that closes a row of input: Tab moves on to its next key
// view, and while it has none (it ends the last row), Tab asks for a new row
// through nextKeyViewNeeded() instead of leaving the rows. Whoever answers
// links the new row behind it with setNextKeyView() and moves the focus.
class LastPopUpButton : public KeyPopUpButton
{
    Q_OBJECT

public:
    explicit LastPopUpButton(QWidget *parent = nullptr);

    QWidget *nextKeyView() const { return m_nextKeyView; }
    // Also puts the view right behind this button in the window's Tab chain.
    // A view that is deleted unlinks itself, making this button last again.
    void setNextKeyView(QWidget *view);

signals:
    void nextKeyViewNeeded(LastPopUpButton *sender);

protected:
    bool focusNextPrevChild(bool next) override;

private:
    QPointer<QWidget> m_nextKeyView;
};
