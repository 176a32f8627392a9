#include "widgets/CheckPopUpButton.h"

#include <QAction>
#include <QMenu>
#include <QMouseEvent>
#include <QStyle>

namespace {
constexpr int CheckAllTag = CheckPopUpButton::FirstFixedTag;
constexpr int ClearTag = CheckPopUpButton::FirstFixedTag + 1;
constexpr int SeparatorTag = CheckPopUpButton::FirstFixedTag + 2;
} // namespace

CheckPopUpButton::CheckPopUpButton(const QString &title, QWidget *parent)
    : QToolButton(parent)
    , m_title(title)
    , m_menu(new QMenu(this))
{
    setPopupMode(QToolButton::InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    setMenu(m_menu);
    m_menu->installEventFilter(this);

    QAction *checkAll = m_menu->addAction(tr("Select All"));
    checkAll->setData(CheckAllTag);
    connect(checkAll, &QAction::triggered, this, [this] {
        setStateToAllItem(true);
        emit checksChanged();
    });
    QAction *clear = m_menu->addAction(tr("Clear Selection"));
    clear->setData(ClearTag);
    connect(clear, &QAction::triggered, this, [this] {
        setStateToAllItem(false);
        emit checksChanged();
    });
    m_menu->addSeparator()->setData(SeparatorTag);
    updateText();
}

QList<QAction *> CheckPopUpButton::listItems() const
{
    QList<QAction *> items;
    const QList<QAction *> actions = m_menu->actions();
    for (QAction *action : actions) {
        if (action->data().toInt() < FirstFixedTag)
            items.append(action);
    }
    return items;
}

void CheckPopUpButton::replaceItems(const QStringList &names)
{
    const QList<QAction *> old = listItems();
    for (auto it = old.crbegin(); it != old.crend(); ++it) {
        m_menu->removeAction(*it);
        delete *it;
    }
    for (int tag = 0; tag < names.size(); ++tag) {
        // "&" would mark a shortcut letter.
        QAction *item = m_menu->addAction(QString(names.at(tag)).replace(u'&', QStringLiteral("&&")));
        item->setCheckable(true);
        item->setData(tag);
        connect(item, &QAction::triggered, this, [this] {
            updateText();
            emit checksChanged();
        });
    }
    updateText();
}

void CheckPopUpButton::setStateToAllItem(bool checked)
{
    const QList<QAction *> items = listItems();
    for (QAction *item : items)
        item->setChecked(checked);
    updateText();
}

QList<int> CheckPopUpButton::checkedItemTagArray() const
{
    QList<int> tags;
    const QList<QAction *> items = listItems();
    for (const QAction *item : items) {
        if (item->isChecked())
            tags.append(item->data().toInt());
    }
    return tags;
}

void CheckPopUpButton::setStateWithTagArray(const QList<int> &tags)
{
    setStateToAllItem(false);
    for (const int tag : tags) {
        if (QAction *item = itemWithTag(tag))
            item->setChecked(true);
    }
    updateText();
}

bool CheckPopUpButton::menuIsChecked() const
{
    const QList<QAction *> items = listItems();
    return std::any_of(items.cbegin(), items.cend(),
                       [](const QAction *item) { return item->isChecked(); });
}

QAction *CheckPopUpButton::itemWithTag(int tag) const
{
    const QList<QAction *> actions = m_menu->actions();
    for (QAction *action : actions) {
        if (!action->isSeparator() && action->data().toInt() == tag)
            return action;
    }
    return nullptr;
}

QSize CheckPopUpButton::sizeHint() const
{
    // The label stays centred and the arrow sits in the bottom right corner:
    // room for the arrow on both sides keeps the two apart.
    QSize size = QToolButton::sizeHint();
    size.rwidth() += 2 * style()->pixelMetric(QStyle::PM_MenuButtonIndicator, nullptr, this);
    return size;
}

bool CheckPopUpButton::eventFilter(QObject *watched, QEvent *event)
{
    // A click on a list item flips it without closing the menu, so several
    // can be picked in one go.
    if (watched == m_menu && event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        QAction *action = m_menu->actionAt(mouse->position().toPoint());
        if (action && action->isCheckable() && action->isEnabled()) {
            action->trigger();
            return true;
        }
    }
    return QToolButton::eventFilter(watched, event);
}

QStringList CheckPopUpButton::checkedItemTitles() const
{
    QStringList titles;
    const QList<QAction *> items = listItems();
    for (const QAction *item : items) {
        if (item->isChecked())
            titles.append(QString(item->text()).replace(QStringLiteral("&&"), QStringLiteral("&")));
    }
    return titles;
}

void CheckPopUpButton::updateText()
{
    const QStringList checked = checkedItemTitles();
    if (checked.isEmpty())
        setText(tr("%1: All").arg(m_title));
    else if (checked.size() == 1)
        setText(tr("%1: %2").arg(m_title, QString(checked.constFirst()).replace(u'&', QStringLiteral("&&"))));
    else
        setText(tr("%1: %n selected", nullptr, int(checked.size())).arg(m_title));
    setToolTip(checked.join(u", "));
}
