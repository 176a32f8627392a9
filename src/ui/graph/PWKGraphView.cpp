#include "graph/PWKGraphView.h"

#include "graph/ChartDataSource.h"
#include "widgets/ThemeColors.h"

#include <QCoreApplication>
#include <QDate>
#include <QFontDatabase>
#include <QHelpEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

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

QString PWKGraphView::tooltipForItem(int index, const QPointF &) const
{
    if (index >= categoryCount() || m_chartData.entries().isEmpty())
        return {};
    return amountTip(index, m_chartData.entries().constFirst(), false);
}

QRectF PWKGraphView::tooltipArea(int index, const QPointF &) const
{
    return m_graphBeziers.at(index).boundingRect();
}

QString PWKGraphView::amountTip(int category, const ChartEntry &entry, bool namingMonth) const
{
    const qint64 amount = entry.data.value(category);
    const qint64 total = m_chartData.calculateTotalOfData(entry.data);
    const QLocale locale;
    // With nothing spent there is no share to give.
    const QString share = total == 0
        ? QStringLiteral("–")
        : tr("%1 %").arg(locale.toString(double(amount) / double(total) * 100.0, 'f', 1));
    const QString amountText = locale.toString(amount);
    if (namingMonth)
        return tr("%1, %2: %3 (%4)", "category, month: amount (share of the month)")
            .arg(categoryName(category), monthLabel(entry.year, entry.month), amountText, share);
    return tr("%1: %2 (%3)", "category: amount (share)")
        .arg(categoryName(category), amountText, share);
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

QString PWKGraphView::monthLabel(int year, int month)
{
    // The year, then the month.
    return localizedFormat(QT_TRANSLATE_NOOP("Localizable", "BarGraph Label Format"),
                           QStringLiteral("%1/%2"))
        .arg(year)
        .arg(month);
}

QColor PWKGraphView::labelColorOn(const QColor &background)
{
    // Whichever of black and white has the higher contrast ratio against the
    // colour, from its relative luminance.
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return ThemeColors::contrastRatio(black, background)
            >= ThemeColors::contrastRatio(white, background)
        ? black
        : white;
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

QColor PWKGraphView::groundColor() const
{
    return palette().color(QPalette::Base);
}

QColor PWKGraphView::inkColor() const
{
    return palette().color(QPalette::Text);
}

QColor PWKGraphView::fadedInk(double weight) const
{
    return ThemeColors::mix(groundColor(), inkColor(), weight);
}

void PWKGraphView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // The ground of a text field, so that a chart follows a dark theme as
    // the tables beside it do.
    painter.fillRect(rect(), groundColor());
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
        const QPointF local = chartTransform().inverted().map(QPointF(help->pos()));
        const QString tip = index < 0 ? QString() : tooltipForItem(index, local);
        if (tip.isEmpty()) {
            QToolTip::hideText();
            event->ignore();
        } else {
            // The tip stays while the pointer is over the same item.
            const QRect area = chartTransform().mapRect(tooltipArea(index, local)).toAlignedRect();
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
