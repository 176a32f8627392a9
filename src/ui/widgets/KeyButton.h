#pragma once

#include <QPushButton>

// A push button that always takes part in the Tab order, and that Return
// presses while it has the focus, as Space does.
class KeyButton : public QPushButton
{
    Q_OBJECT

public:
    explicit KeyButton(const QString &text, QWidget *parent = nullptr);
};
