#include "graph/PWKGraphView.h"

#include "graph/ChartDataSource.h"

#include <QCoreApplication>
#include <QDate>
#include <QFontDatabase>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <cmath>

PWKGraphView::PWKGraphView(QWidget *parent)
    : QWidget(parent)
{
    const QDate today = QDate::currentDate();
    m_targetYear = today.year();
    m_targetMonth = today.month();
    // Every draw covers the whole widget.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

PWKGraphView::~PWKGraphView() = default;

void PWKGraphView::setTargetYear(int year, int month)
{
    m_targetYear = year;
    m_targetMonth = month;
    updateDataList();
}

void PWKGraphView::setDataSource(ChartDataSource *source)
{
    m_source = source;
}

void PWKGraphView::updateDataList()
{
    if (m_source)
        m_chartData.setEntries(m_source->chartEntries(dataArrayForDrawing()));
    fitToPreferredSize();
    update();
}

ChartEntries PWKGraphView::dataArrayForDrawing() const
{
    return {{m_targetYear, m_targetMonth, {}}};
}

void PWKGraphView::setCurrentDataArray(const ChartEntries &entries)
{
    m_chartData.setEntries(entries);
    update();
}

void PWKGraphView::setColorList(const QList<QColor> &colors)
{
    m_colorList = colors;
    update();
}

void PWKGraphView::setCategoryNames(const QStringList &names)
{
    m_categoryNames = names;
    update();
}

void PWKGraphView::setSelectedItems(const QList<bool> &selected)
{
    m_chartData.setSelectedItems(selected);
    update();
}

void PWKGraphView::setSelectedNumber(int category)
{
    m_selectedNumber = category;
    update();
}

QSize PWKGraphView::preferredChartSize() const
{
    return parentWidget() ? parentWidget()->size() : size();
}

void PWKGraphView::fitToPreferredSize()
{
    resize(preferredChartSize());
}

QTransform PWKGraphView::chartTransform() const
{
    if (isFlipped())
        return {};
    return QTransform(1, 0, 0, -1, 0, height());
}

int PWKGraphView::categoryForMousePoint(const QPointF &point) const
{
    const QPointF local = chartTransform().inverted().map(point);
    for (int i = 0; i < m_graphBeziers.size(); ++i) {
        if (m_graphBeziers.at(i).contains(local))
            return i;
    }
    return -1;
}

QString PWKGraphView::tooltipForItem(int index) const
{
    return categoryName(index);
}

QFont PWKGraphView::labelFont()
{
    // The labels' own face where it is installed, else the system's sans
    // face; either way 14 pixels, which the label geometry is built on.
    const QString preferred = QStringLiteral("Osaka");
    QFont font = QFontDatabase::hasFamily(preferred)
        ? QFont(preferred)
        : QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(14);
    return font;
}

QString PWKGraphView::localizedFormat(const char *key, const QString &english)
{
    const QString text = QCoreApplication::translate("Localizable", key);
    return text == QLatin1StringView(key) ? english : text;
}

QPainterPath PWKGraphView::labelBezierPathForCategory(int category, const QPointF &point) const
{
    return labelPath(categoryName(category), point);
}

QPainterPath PWKGraphView::labelPath(const QString &text, const QPointF &point)
{
    QPainterPath glyphs;
    glyphs.addText(QPointF(0, 0), labelFont(), text);
    // Glyph outlines come with y pointing down; the charts place labels in
    // y-up coordinates.
    return QTransform(1, 0, 0, -1, point.x(), point.y()).map(glyphs);
}

QColor PWKGraphView::labelColorOn(const QColor &background)
{
    // Whichever of black and white has the higher contrast ratio against the
    // colour, from its relative luminance.
    const auto linear = [](float c) {
        return c <= 0.04045f ? c / 12.92f : std::pow((c + 0.055f) / 1.055f, 2.4f);
    };
    const QColor rgb = background.toRgb();
    const float luminance = 0.2126f * linear(rgb.redF()) + 0.7152f * linear(rgb.greenF())
        + 0.0722f * linear(rgb.blueF());
    const float onBlack = (luminance + 0.05f) / 0.05f;
    const float onWhite = 1.05f / (luminance + 0.05f);
    return onBlack >= onWhite ? QColor(Qt::black) : QColor(Qt::white);
}

void PWKGraphView::addHitPath(const QPainterPath &path)
{
    m_graphBeziers.append(path);
}

QColor PWKGraphView::colorOf(int category) const
{
    return m_colorList.value(category, QColor(Qt::gray));
}

QString PWKGraphView::categoryName(int category) const
{
    return m_categoryNames.value(category);
}

void PWKGraphView::drawText(QPainter &painter, const QRectF &rect, int flags, const QString &text,
                            const QColor &color) const
{
    const QTransform toChart = painter.transform();
    const QRectF onWidget = chartTransform().mapRect(rect);
    // Back to the widget's own coordinates, where text reads upright.
    painter.setTransform(chartTransform().inverted() * toChart);
    painter.setPen(color);
    painter.drawText(onWidget, flags, text);
    painter.setTransform(toChart);
}

void PWKGraphView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // Charts read like paper whatever the theme: white ground, dark ink.
    painter.fillRect(rect(), Qt::white);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setTransform(chartTransform(), true);
    m_graphBeziers.clear();
    drawChart(painter);
}

bool PWKGraphView::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const int index = categoryForMousePoint(help->pos());
        const QString tip = index < 0 ? QString() : tooltipForItem(index);
        if (tip.isEmpty()) {
            QToolTip::hideText();
            event->ignore();
        } else {
            // The tip stays while the pointer is over the same item.
            const QRect area =
                chartTransform().mapRect(m_graphBeziers.at(index).boundingRect()).toAlignedRect();
            QToolTip::showText(help->globalPos(), tip, this, area);
        }
        return true;
    }
    return QWidget::event(event);
}

void PWKGraphView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    clickAt(event->position(), false);
}

void PWKGraphView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mouseDoubleClickEvent(event);
        return;
    }
    clickAt(event->position(), true);
}

void PWKGraphView::clickAt(const QPointF &point, bool doubleClick)
{
    const int index = categoryForMousePoint(point);
    if (index >= 0)
        handleClick(index, doubleClick);
}

void PWKGraphView::handleClick(int index, bool doubleClick)
{
    if (index >= categoryCount())
        return;
    if (doubleClick)
        emit itemDoubleClicked(index);
    else
        emit itemSelected(index);
}
