#pragma once

#include <QAbstractTableModel>

class KController;
class ScheduleBook;

// The schedules as a table, one row each, in the book's order; it follows
// the book's changes and the lists' names.
class ScheduleListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NextDate, Details, Category, Amount, Payway, Rule, Mode, ColumnCount };

    ScheduleListModel(ScheduleBook *book, KController *ledger, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    ScheduleBook *m_book;
    KController *m_ledger;
};
