#include "prefs/ListEditorModel.h"

#include "widgets/RgbaQColor.h"

#include <QDataStream>
#include <QIODevice>
#include <QMimeData>

namespace {
// The dragged row, and which model it came from: a row of one list means
// nothing in another.
const QString kRowMimeType = QStringLiteral("application/x-penwick-list-row");
} // namespace

ListEditorModel::ListEditorModel(Kind kind, QObject *parent)
    : QAbstractTableModel(parent)
    , m_kind(kind)
{
}

void ListEditorModel::setEditor(const ListEditor &editor)
{
    beginResetModel();
    m_editor = editor;
    endResetModel();
}

int ListEditorModel::addItem(const QString &name, const QColor &color)
{
    const int row = m_editor.count();
    beginInsertRows({}, row, row);
    m_editor.addItem(name, m_kind == Kind::Categories ? toRgba(color) : RgbaColor());
    endInsertRows();
    return row;
}

bool ListEditorModel::mergeItem(int row, int target)
{
    if (row < 0 || row >= m_editor.count() || target < 0 || target >= m_editor.count()
        || row == target)
        return false;
    beginRemoveRows({}, row, row);
    m_editor.mergeItem(row, target);
    endRemoveRows();
    return true;
}

void ListEditorModel::setColor(int row, const QColor &color)
{
    if (m_kind != Kind::Categories || row < 0 || row >= m_editor.count())
        return;
    m_editor.setColor(row, toRgba(color));
    emit dataChanged(index(row, ColorColumn), index(row, ColorColumn));
}

QColor ListEditorModel::color(int row) const
{
    return toQColor(m_editor.color(row));
}

bool ListEditorModel::moveItem(int from, int dropRow)
{
    if (from < 0 || from >= m_editor.count() || dropRow < 0 || dropRow > m_editor.count()
        || ListEditor::moveDestination(from, dropRow) == from)
        return false;
    beginMoveRows({}, from, from, {}, dropRow);
    m_editor.moveItem(from, dropRow);
    endMoveRows();
    return true;
}

int ListEditorModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_editor.count();
}

int ListEditorModel::columnCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_kind == Kind::Categories ? 2 : 1;
}

QVariant ListEditorModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int row = index.row();
    if (index.column() == NameColumn) {
        if (role == Qt::DisplayRole || role == Qt::EditRole)
            return m_editor.name(row);
        return {};
    }
    switch (role) {
    case Qt::DecorationRole:
        return color(row);
    case Qt::ToolTipRole:
        return tr("Double-click to choose another colour.");
    case Qt::AccessibleTextRole:
        return color(row).name();
    default:
        return {};
    }
}

QVariant ListEditorModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    if (section == ColorColumn)
        return tr("Colour");
    return m_kind == Kind::Categories ? tr("Category") : tr("Payway");
}

Qt::ItemFlags ListEditorModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled; // drops go between rows only
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
    if (index.column() == NameColumn)
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool ListEditorModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != NameColumn || role != Qt::EditRole
        || !value.isValid())
        return false;
    const QString name = value.toString();
    // The item's own name is refused like any other name the list holds.
    if (!m_editor.renameItem(index.row(), name)) {
        emit nameRefused(index.row(), name);
        return false;
    }
    emit dataChanged(index, index);
    return true;
}

Qt::DropActions ListEditorModel::supportedDragActions() const
{
    return Qt::MoveAction;
}

Qt::DropActions ListEditorModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

QStringList ListEditorModel::mimeTypes() const
{
    return {kRowMimeType};
}

QMimeData *ListEditorModel::mimeData(const QModelIndexList &indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    QByteArray encoded;
    QDataStream stream(&encoded, QIODevice::WriteOnly);
    stream << quintptr(this) << indexes.constFirst().row();
    auto *data = new QMimeData; // the drag owns it
    data->setData(kRowMimeType, encoded);
    return data;
}

int ListEditorModel::draggedRow(const QMimeData *data) const
{
    if (!data || !data->hasFormat(kRowMimeType))
        return -1;
    QDataStream stream(data->data(kRowMimeType));
    quintptr source = 0;
    int row = -1;
    stream >> source >> row;
    if (stream.status() != QDataStream::Ok || source != quintptr(this) || row < 0
        || row >= m_editor.count())
        return -1;
    return row;
}

bool ListEditorModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                      int column, const QModelIndex &parent) const
{
    Q_UNUSED(column)
    // A drop onto a row comes with that row as parent and no row of its own.
    return action == Qt::MoveAction && !parent.isValid() && row <= m_editor.count()
        && draggedRow(data) >= 0;
}

bool ListEditorModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                   int column, const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    // Below the last row the view gives no row at all.
    moveItem(draggedRow(data), row < 0 ? m_editor.count() : row);
    // The move is done here; the view must not remove the dragged row
    // afterwards (there is no removeRows to do it).
    return true;
}

bool ListEditorModel::moveRows(const QModelIndex &sourceParent, int sourceRow, int count,
                               const QModelIndex &destinationParent, int destinationChild)
{
    if (sourceParent.isValid() || destinationParent.isValid() || count != 1)
        return false;
    return moveItem(sourceRow, destinationChild);
}
