#pragma once

#include <QComboBox>

// A pop-up button that always takes part in the Tab order. The mouse wheel
// changes it only while it has the focus, so that scrolling a list of rows
// over it scrolls the list instead of changing the choice.
class KeyPopUpButton : public QComboBox
{
    Q_OBJECT

public:
    explicit KeyPopUpButton(QWidget *parent = nullptr);

protected:
    void wheelEvent(QWheelEvent *event) override;
};
