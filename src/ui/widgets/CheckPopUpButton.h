#pragma once

#include <QList>
#include <QToolButton>

class QAction;
class QMenu;

// A button whose menu holds one checkable item per name of a list (tag = the
// name's index, carried as the action's data) after fixed items (tags 100 and
// more) that check or clear them all. Several items can be checked in one
// visit: the menu stays open while they are clicked. The button's text names
// what is checked.
class CheckPopUpButton : public QToolButton
{
    Q_OBJECT

public:
    static constexpr int FirstFixedTag = 100;

    CheckPopUpButton(const QString &title, QWidget *parent = nullptr);

    // Replaces the list items by one per name; their checks are lost.
    void replaceItems(const QStringList &names);

    // Sets every list item; the fixed items are never touched.
    void setStateToAllItem(bool checked);
    // The tags of the checked items, in item order.
    QList<int> checkedItemTagArray() const;
    // Clears all, then checks the items carrying the tags.
    void setStateWithTagArray(const QList<int> &tags);
    bool menuIsChecked() const;
    // The names of the checked items, in item order.
    QStringList checkedItemTitles() const;

    // The item of a tag, for tests and for callers that check one item.
    QAction *itemWithTag(int tag) const;

    // Room for the menu's arrow too, which the style draws in the button's
    // corner but does not count.
    QSize sizeHint() const override;
    // Never narrower: a squeezed button would run its label into the arrow.
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    // The user changed the checks: one item, all of them, or none.
    void checksChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QList<QAction *> listItems() const;
    void updateText();

    QString m_title;
    QMenu *m_menu;
};
