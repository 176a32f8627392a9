#include "widgets/SavableSplitView.h"

#include "settings/Settings.h"

#include <QCoreApplication>

SavableSplitView::SavableSplitView(Qt::Orientation orientation, QWidget *parent)
    : QSplitter(orientation, parent)
{
    connect(qApp, &QCoreApplication::aboutToQuit, this, &SavableSplitView::saveStatus);
}

SavableSplitView::~SavableSplitView()
{
    saveStatus();
}

void SavableSplitView::setAutosaveName(const QString &name)
{
    m_autosaveName = name;
    if (name.isEmpty())
        return;
    readStatusFromDefaults();
    setSplitViewPosition(isVertical() ? m_verticalPosition : m_horizontalPosition);
}

void SavableSplitView::setVertical(bool vertical)
{
    saveCurrentPosition();
    setOrientation(vertical ? Qt::Horizontal : Qt::Vertical);
}

QString SavableSplitView::layoutOf(const QList<int> &sizes)
{
    QStringList parts;
    parts.reserve(sizes.size());
    for (const int size : sizes)
        parts.append(QString::number(size));
    return parts.join(u' ');
}

QString SavableSplitView::splitViewPosition() const
{
    // Until it is shown, the splitter's own sizes mean nothing yet.
    if (!m_wasShown || !m_pendingLayout.isEmpty())
        return m_pendingLayout;
    return layoutOf(sizes());
}

void SavableSplitView::setSplitViewPosition(const QString &layout)
{
    if (layout.isEmpty())
        return;
    if (!isVisible()) {
        m_pendingLayout = layout;
        return;
    }
    m_pendingLayout.clear();
    applyLayout(layout);
}

void SavableSplitView::showEvent(QShowEvent *event)
{
    QSplitter::showEvent(event);
    m_wasShown = true;
    if (!m_pendingLayout.isEmpty())
        applyLayout(std::exchange(m_pendingLayout, QString()));
}

void SavableSplitView::applyLayout(const QString &layout)
{
    const QStringList parts = layout.split(u' ');
    if (parts.size() != count())
        return;
    const int total = isVertical() ? width() : height();
    QList<int> newSizes;
    newSizes.reserve(parts.size());
    int position = 0;
    for (qsizetype i = 0; i + 1 < parts.size(); ++i) {
        const int size = parts.at(i).toInt();
        if (size > total)
            return;
        newSizes.append(size);
        position += size + handleWidth();
    }
    // The last pane takes what is left; its saved size is not used.
    newSizes.append(qMax(0, total - position));
    setSizes(newSizes);
}

void SavableSplitView::saveCurrentPosition()
{
    (isVertical() ? m_verticalPosition : m_horizontalPosition) = splitViewPosition();
}

void SavableSplitView::readStatusFromDefaults()
{
    const Settings settings;
    if (const auto vertical = settings.splitViewIsVertical(m_autosaveName))
        setVertical(*vertical);
    if (const auto layout = settings.splitViewVerticalPosition(m_autosaveName))
        m_verticalPosition = *layout;
    if (const auto layout = settings.splitViewHorizontalPosition(m_autosaveName))
        m_horizontalPosition = *layout;
}

void SavableSplitView::saveStatus()
{
    if (m_autosaveName.isEmpty())
        return;
    saveCurrentPosition();
    Settings settings;
    if (!m_verticalPosition.isEmpty())
        settings.setSplitViewVerticalPosition(m_autosaveName, m_verticalPosition);
    if (!m_horizontalPosition.isEmpty())
        settings.setSplitViewHorizontalPosition(m_autosaveName, m_horizontalPosition);
    settings.setSplitViewIsVertical(m_autosaveName, isVertical());
    settings.sync();
}
