#include "list/DataListTableModel.h"

#include "ledger/KController.h"
#include "model/EntryLimits.h"
#include "model/MonthDataList.h"
#include "model/Notifications.h"
#include "model/NumberValue.h"

#include <QApplication>
#include <QLocale>

#include <cmath>

DataListTableModel::DataListTableModel(KController *controller, QObject *parent)
    : QAbstractTableModel(parent)
    , m_controller(controller)
{
    connect(Notifications::instance(), &Notifications::dataListHasChanged, this,
            &DataListTableModel::listHasChanged);
}

QString DataListTableModel::keyOfColumn(int column)
{
    switch (column) {
    case YearColumn:
        return QStringLiteral("Year");
    case MonthColumn:
        return QStringLiteral("Month");
    case DateColumn:
        return QStringLiteral("Date");
    case CategoryColumn:
        return QStringLiteral("Category");
    case DetailsColumn:
        return QStringLiteral("Details");
    case AmountColumn:
        return QStringLiteral("Amount");
    case PaywayColumn:
        return QStringLiteral("Payway");
    default:
        return {};
    }
}

bool DataListTableModel::isPopUpColumn(int column)
{
    return column == CategoryColumn || column == PaywayColumn;
}

void DataListTableModel::setDataList(std::shared_ptr<DataList> list)
{
    beginResetModel();
    m_list = std::move(list);
    endResetModel();
}

void DataListTableModel::setNames(const QStringList &categories, const QStringList &payways)
{
    m_categories = categories;
    m_payways = payways;
    if (rowCount() > 0)
        emit dataChanged(index(0, CategoryColumn), index(rowCount() - 1, PaywayColumn));
}

void DataListTableModel::setEditable(bool editable)
{
    m_editable = editable;
}

PaymentDataPtr DataListTableModel::dataAtIndex(int row) const
{
    if (!m_list || row < 0 || row >= m_list->extractedArray().size())
        return nullptr;
    return m_list->extractedArray().at(row);
}

void DataListTableModel::reload()
{
    beginResetModel();
    endResetModel();
}

Qt::SortOrder DataListTableModel::sortByColumn(int column)
{
    if (!m_list || m_list->extractedArray().isEmpty())
        return Qt::AscendingOrder;
    const auto key = PaymentData::keyFromName(keyOfColumn(column));
    beginResetModel();
    m_list->sortwithKey(keyOfColumn(column));
    endResetModel();
    const PaymentArray &rows = m_list->extractedArray();
    const bool descending =
        DataList::compareRecords(*rows.constFirst(), *rows.constLast(), key, false) > 0;
    return descending ? Qt::DescendingOrder : Qt::AscendingOrder;
}

void DataListTableModel::listHasChanged(DataList *list)
{
    if (list && list == m_list.get())
        reload();
}

int DataListTableModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid() || !m_list)
        return 0;
    return int(m_list->extractedArray().size());
}

int DataListTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString DataListTableModel::nameAt(const QStringList &names, int index) const
{
    return index >= 0 && index < names.size() ? names.at(index) : QString();
}

QVariant DataListTableModel::data(const QModelIndex &index, int role) const
{
    const PaymentDataPtr record = dataAtIndex(index.row());
    if (!record)
        return {};
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        switch (column) {
        case CategoryColumn:
            return nameAt(m_categories, record->category());
        case PaywayColumn:
            return nameAt(m_payways, record->payway());
        case AmountColumn:
            return amountText(record->amount());
        case DetailsColumn:
            return record->details();
        case DateColumn:
            // A closing-day month begins in the calendar month before: say so.
            if (record->month() != m_list->month())
                return tr("%1/%2", "month/day").arg(record->month()).arg(record->date());
            return record->date();
        default:
            return record->dataForKey(keyOfColumn(column));
        }
    case Qt::EditRole:
        // Pop-up cells edit the index; text cells edit plain text, so that
        // the amount has no group separators in the way.
        if (isPopUpColumn(column))
            return record->dataForKey(keyOfColumn(column));
        if (column == AmountColumn)
            return editingText(record->amount());
        return record->dataForKey(keyOfColumn(column)).toString();
    case Qt::ToolTipRole:
        return column == DetailsColumn && !record->details().isEmpty() ? record->details()
                                                                        : QVariant();
    case Qt::TextAlignmentRole:
        return columnAlignment(column);
    case ChoicesRole:
        if (column == CategoryColumn)
            return m_categories;
        if (column == PaywayColumn)
            return m_payways;
        return {};
    default:
        return {};
    }
}

QVariant DataListTableModel::columnAlignment(int column)
{
    if (column == AmountColumn)
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    if (column == YearColumn || column == MonthColumn || column == DateColumn)
        return QVariant::fromValue(Qt::AlignHCenter | Qt::AlignVCenter);
    return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
}

QVariant DataListTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return QAbstractTableModel::headerData(section, orientation, role);
    // Titles line up with their cells.
    if (role == Qt::TextAlignmentRole)
        return section == DetailsColumn || isPopUpColumn(section)
            ? QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter)
            : columnAlignment(section);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case YearColumn:
        return tr("Year");
    case MonthColumn:
        return tr("Month");
    case DateColumn:
        return tr("Day");
    case CategoryColumn:
        return tr("Category");
    case DetailsColumn:
        return tr("Details");
    case AmountColumn:
        return tr("Amount");
    case PaywayColumn:
        return tr("Payment method");
    default:
        return {};
    }
}

Qt::ItemFlags DataListTableModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (m_editable && index.isValid())
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool DataListTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const PaymentDataPtr record = dataAtIndex(index.row());
    if (!record || role != Qt::EditRole || !m_editable)
        return false;
    const KController::ChangeScope change(
        m_controller, tr("Change of %1").arg(headerData(index.column(), Qt::Horizontal).toString()));
    // The record reports its change, its month recalculates and notifies,
    // and the rows are shown afresh from there.
    switch (index.column()) {
    case CategoryColumn:
        record->setCategory(integerValueOf(value));
        return true;
    case PaywayColumn:
        record->setPayway(integerValueOf(value));
        return true;
    case DetailsColumn:
    case DateColumn:
        record->setData(value.toString(), keyOfColumn(index.column()));
        return true;
    case AmountColumn: {
        // "1,234.5" is read as 1234.5; an expression is not evaluated here.
        const QString text = value.toString().remove(u',');
        const double amount = doubleValueOf(QStringView(text));
        if (!EntryLimits::isAmountStorable(amount)) {
            QApplication::beep();
            return false;
        }
        record->setData(double(float(amount)), u"Amount");
        return true;
    }
    case YearColumn:
    case MonthColumn:
        moveToEditedMonth(record, value.toString(), keyOfColumn(index.column()));
        return true;
    default:
        return false;
    }
}

void DataListTableModel::moveToEditedMonth(const PaymentDataPtr &record, const QString &text,
                                           QStringView key)
{
    // The calendar month the record leaves, taken before it changes.
    const auto fromList = m_controller->monthListForYear(record->year(), record->month());
    if (!fromList)
        return;
    const QVariant before = record->dataForKey(key);
    record->setData(text, key);
    m_controller->moveData(record, fromList.get());
    // A month that cannot take it (its file is unreadable) leaves the record
    // where it was; its date must say so too.
    if (fromList->dataListArray().contains(record) && record->dataForKey(key) != before)
        record->setData(before, key);
}
