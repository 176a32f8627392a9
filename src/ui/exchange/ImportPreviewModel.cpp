#include "ImportPreviewModel.h"

#include "exchange/LedgerImport.h"
#include "model/NumberValue.h"

#include <QLocale>

ImportPreviewModel::ImportPreviewModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void ImportPreviewModel::setImport(LedgerImport *import, const QStringList &payways)
{
    beginResetModel();
    m_import = import;
    m_payways = payways;
    endResetModel();
}

int ImportPreviewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_import ? 0 : int(m_import->mapped().entries.size());
}

int ImportPreviewModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ImportPreviewModel::data(const QModelIndex &index, int role) const
{
    if (!m_import || !index.isValid())
        return {};
    const MappedEntry &entry = m_import->mapped().entries.at(index.row());
    const QStringList &categories = m_import->mapped().categories;
    if (role == Qt::CheckStateRole && index.column() == Book)
        return m_import->isTicked(index.row()) ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::TextAlignmentRole && (index.column() == Amount || index.column() == Line))
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole && index.column() == Category && !entry.source.category.isEmpty())
        return tr("In the file: %1").arg(entry.source.category);
    if (role == Qt::ToolTipRole && index.column() == Payway && !entry.source.payway.isEmpty())
        return tr("In the file: %1").arg(entry.source.payway);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Line:
        return entry.source.line;
    case Date:
        return QLocale().toString(entry.source.date, QLocale::ShortFormat);
    case Category:
        return categories.value(entry.category);
    case Details:
        return entry.source.details;
    case Amount:
        return shortestText(entry.amount);
    case Payway:
        return m_payways.value(entry.payway);
    case Note:
        if (entry.duplicate)
            return tr("Booked already");
        if (!entry.matched && !entry.source.category.isEmpty()
            && entry.category != categories.size() - 1)
            return tr("No category \"%1\"").arg(entry.source.category);
        return {};
    default:
        return {};
    }
}

QVariant ImportPreviewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Book:
        return tr("Book");
    case Line:
        return tr("Line");
    case Date:
        return tr("Date");
    case Category:
        return tr("Category");
    case Details:
        return tr("Details");
    case Amount:
        return tr("Amount");
    case Payway:
        return tr("Payway");
    case Note:
        return tr("Note");
    default:
        return {};
    }
}

Qt::ItemFlags ImportPreviewModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.column() == Book)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

bool ImportPreviewModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!m_import || role != Qt::CheckStateRole || index.column() != Book)
        return false;
    m_import->setTicked(index.row(), value.toInt() == Qt::Checked);
    emit dataChanged(index, index, {role});
    emit tickChanged();
    return true;
}
