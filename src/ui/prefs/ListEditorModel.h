#pragma once

#include "prefs/ListEditor.h"

#include <QAbstractTableModel>
#include <QColor>

// A list being edited in the preferences, for a table view: the names, and
// for categories a colour swatch beside each. Names are edited in place; rows
// are reordered by dragging them between other rows within the same table.
class ListEditorModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, ColorColumn };
    enum class Kind { Categories, Payways };

    ListEditorModel(Kind kind, QObject *parent = nullptr);

    // Starts editing afresh from the given list.
    void setEditor(const ListEditor &editor);
    const ListEditor &editor() const { return m_editor; }

    // Appends an item and answers its row.
    int addItem(const QString &name, const QColor &color = {});
    bool mergeItem(int row, int target);
    void setColor(int row, const QColor &color);
    QColor color(int row) const;
    bool moveItem(int from, int dropRow);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    // Dragging: only between rows of this model, never onto a row.
    Qt::DropActions supportedDragActions() const override;
    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;
    bool moveRows(const QModelIndex &sourceParent, int sourceRow, int count,
                  const QModelIndex &destinationParent, int destinationChild) override;

signals:
    // A new name was refused: empty, or already in the list, the item's own
    // name included (an edit ended without a change).
    void nameRefused(int row, const QString &name);

private:
    int draggedRow(const QMimeData *data) const;

    Kind m_kind;
    ListEditor m_editor;
};
