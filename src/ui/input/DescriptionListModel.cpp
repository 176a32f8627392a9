#include "input/DescriptionListModel.h"

#include "entry/DescriptionMemory.h"

DescriptionListModel::DescriptionListModel(const DescriptionMemory *memory, QObject *parent)
    : QAbstractListModel(parent)
    , m_memory(memory)
{
}

int DescriptionListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_memory->numberOfItems();
}

QVariant DescriptionListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return m_memory->itemAt(index.row()).details;
}

void DescriptionListModel::reload()
{
    beginResetModel();
    endResetModel();
}
