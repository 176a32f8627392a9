#include "recurring/ScheduleListModel.h"

#include "ledger/KController.h"
#include "model/NumberValue.h"
#include "model/Notifications.h"
#include "recurring/ScheduleBook.h"

#include <QLocale>

ScheduleListModel::ScheduleListModel(ScheduleBook *book, KController *ledger, QObject *parent)
    : QAbstractTableModel(parent)
    , m_book(book)
    , m_ledger(ledger)
{
    connect(m_book, &ScheduleBook::changed, this, [this] {
        beginResetModel();
        endResetModel();
    });
    connect(Notifications::instance(), &Notifications::listPreferenceHasUpDated, this, [this] {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    });
}

int ScheduleListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_book->schedules().size());
}

int ScheduleListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ScheduleListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Schedule &s = m_book->schedules().at(index.row());
    if (role == Qt::TextAlignmentRole && index.column() == Amount)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case NextDate: {
        const QDate next = s.nextDate();
        return next.isValid() ? QLocale().toString(next, QLocale::ShortFormat) : tr("Finished");
    }
    case Details:
        return s.details;
    case Category:
        return m_ledger->categoryList().value(s.category);
    case Amount:
        return amountText(s.amountValue());
    case Payway:
        return m_ledger->paywayList().value(s.payway);
    case Rule:
        return s.ruleText();
    case Mode:
        return s.mode == Schedule::Mode::AskFirst ? tr("Ask first") : tr("Automatic");
    default:
        return {};
    }
}

QVariant ScheduleListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NextDate:
        return tr("Next");
    case Details:
        return tr("Details");
    case Category:
        return tr("Category");
    case Amount:
        return tr("Amount");
    case Payway:
        return tr("Payway");
    case Rule:
        return tr("Repeats");
    case Mode:
        return tr("Booking");
    default:
        return {};
    }
}
