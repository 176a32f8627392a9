#include "budget/BudgetBar.h"

#include "widgets/ThemeColors.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

BudgetBar::BudgetBar(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void BudgetBar::setShare(double share)
{
    m_share = std::isnan(share) ? 0.0 : share;
    update();
}

QColor BudgetBar::fillColor() const
{
    const QColor ground = palette().color(QPalette::Window);
    if (m_share > 1.0)
        return ThemeColors::alertRed(ground);
    if (m_share > 0.8)
        return ThemeColors::warningAmber(ground);
    return palette().color(QPalette::Highlight);
}

QSize BudgetBar::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 12, fontMetrics().height() * 2 / 3};
}

QSize BudgetBar::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 6, sizeHint().height()};
}

void BudgetBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF track = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const double radius = track.height() / 3;
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(track, radius, radius);
    const double filled = std::clamp(m_share, 0.0, 1.0);
    if (filled <= 0)
        return;
    QRectF bar = track;
    bar.setWidth(track.width() * filled);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fillColor());
    painter.drawRoundedRect(bar, radius, radius);
}
