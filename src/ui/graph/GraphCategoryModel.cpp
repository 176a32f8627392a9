#include "graph/GraphCategoryModel.h"

#include "model/DataList.h"

#include <QGuiApplication>
#include <QLocale>

#include <cmath>

GraphCategoryModel::GraphCategoryModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

GraphCategoryModel::~GraphCategoryModel() = default;

void GraphCategoryModel::setCategories(const QStringList &names, const QList<QColor> &colors)
{
    beginResetModel();
    m_names = names;
    m_colors = colors;
    // Income is left out until the user asks for it.
    m_checks = QList<bool>(names.size(), true);
    if (!m_checks.isEmpty())
        m_checks.last() = false;
    endResetModel();
    emit checksChanged(m_checks);
}

void GraphCategoryModel::setDataList(std::shared_ptr<DataList> list)
{
    m_list = std::move(list);
    refresh();
}

void GraphCategoryModel::refresh()
{
    if (rowCount() > 0)
        emit dataChanged(index(0, AmountColumn), index(rowCount() - 1, RatioColumn));
}

void GraphCategoryModel::toggleCheck(int row, bool all)
{
    if (row < 0 || row >= m_checks.size())
        return;
    const bool checked = !m_checks.at(row);
    if (all)
        m_checks.fill(checked);
    else
        m_checks[row] = checked;
    const int first = all ? 0 : row;
    const int last = all ? rowCount() - 1 : row;
    emit dataChanged(index(first, CategoryColumn), index(last, CategoryColumn),
                     {Qt::CheckStateRole});
    emit checksChanged(m_checks);
}

int GraphCategoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_names.size());
}

int GraphCategoryModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

int GraphCategoryModel::amountOf(int row) const
{
    return m_list ? m_list->categorySum().value(row, 0) : 0;
}

QVariant GraphCategoryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const int row = index.row();
    switch (index.column()) {
    case CategoryColumn:
        if (role == Qt::DisplayRole)
            return m_names.at(row);
        if (role == Qt::DecorationRole)
            return m_colors.value(row, QColor(Qt::gray));
        if (role == Qt::CheckStateRole)
            return m_checks.at(row) ? Qt::Checked : Qt::Unchecked;
        break;
    case AmountColumn:
        if (role == Qt::DisplayRole)
            return QLocale().toString(amountOf(row));
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignRight | Qt::AlignVCenter);
        break;
    case RatioColumn:
        if (role == Qt::DisplayRole) {
            // The share of the month's spending, whole units as the sums are.
            const float spending = m_list ? float(int(m_list->expendTotal())) : 0.0f;
            const float ratio = float(amountOf(row)) / spending * 100.0f;
            if (!std::isfinite(ratio))
                return QStringLiteral("–");
            return tr("%1 %").arg(QLocale().toString(ratio, 'f', 1));
        }
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignRight | Qt::AlignVCenter);
        break;
    default:
        break;
    }
    return {};
}

bool GraphCategoryModel::setData(const QModelIndex &index, const QVariant &, int role)
{
    if (!index.isValid() || index.column() != CategoryColumn || role != Qt::CheckStateRole)
        return false;
    // Holding Control turns every box the way this one turns.
    toggleCheck(index.row(),
                QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier));
    return true;
}

Qt::ItemFlags GraphCategoryModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && index.column() == CategoryColumn)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

QVariant GraphCategoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case CategoryColumn:
        return tr("Category");
    case AmountColumn:
        return tr("Amount");
    case RatioColumn:
        return tr("Share");
    default:
        return {};
    }
}
