#include "list/ListItemDelegate.h"

#include "list/DataListTableModel.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTimer>

QWidget *ListItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    if (!DataListTableModel::isPopUpColumn(index.column())) {
        QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
        // Typed where the value stands: amounts on the right.
        if (auto *line = qobject_cast<QLineEdit *>(editor))
            line->setAlignment(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>());
        return editor;
    }
    auto *popUp = new QComboBox(parent);
    popUp->setObjectName(QStringLiteral("cellPopUp"));
    popUp->addItems(index.data(DataListTableModel::ChoicesRole).toStringList());
    connect(popUp, &QComboBox::activated, this, &ListItemDelegate::commitAndCloseEditor);
    QTimer::singleShot(0, popUp, &QComboBox::showPopup);
    return popUp;
}

void ListItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *popUp = qobject_cast<QComboBox *>(editor)) {
        popUp->setCurrentIndex(index.data(Qt::EditRole).toInt());
        return;
    }
    QStyledItemDelegate::setEditorData(editor, index);
}

void ListItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                    const QModelIndex &index) const
{
    if (auto *popUp = qobject_cast<QComboBox *>(editor)) {
        if (popUp->currentIndex() >= 0)
            model->setData(index, popUp->currentIndex());
        return;
    }
    QStyledItemDelegate::setModelData(editor, model, index);
}

void ListItemDelegate::commitAndCloseEditor()
{
    // A choice is the whole edit, as in a pop-up cell.
    auto *popUp = qobject_cast<QWidget *>(sender());
    emit commitData(popUp);
    emit closeEditor(popUp);
}
