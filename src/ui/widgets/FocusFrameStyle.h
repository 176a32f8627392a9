#pragma once

#include <QProxyStyle>

// Fusion with a focus frame that can be seen: Fusion draws the frame around
// a focused check box or table cell in the selection's colour at a tenth of
// its strength, easily lost on a dark ground. Here it is a solid line.
class FocusFrameStyle : public QProxyStyle
{
    Q_OBJECT

public:
    FocusFrameStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
};
