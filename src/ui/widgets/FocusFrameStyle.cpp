#include "widgets/FocusFrameStyle.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

FocusFrameStyle::FocusFrameStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

void FocusFrameStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                    QPainter *painter, const QWidget *widget) const
{
    // As Fusion does, only once the keyboard has moved the focus.
    if (element != PE_FrameFocusRect || !(option->state & State_KeyboardFocusChange)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(option->palette.color(QPalette::Highlight), 1.5));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(option->rect).adjusted(0.75, 0.75, -0.75, -0.75), 2, 2);
    painter->restore();
}
