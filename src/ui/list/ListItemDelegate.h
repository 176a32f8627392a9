#pragma once

#include <QStyledItemDelegate>

// Edits the category and payway cells with a pop-up of the list's names that
// opens at once and commits on choice; every other cell edits as text.
class ListItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

private:
    void commitAndCloseEditor();
};
