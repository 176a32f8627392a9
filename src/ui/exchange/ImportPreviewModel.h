#pragma once

#include <QAbstractTableModel>
#include <QStringList>

class LedgerImport;

// The rows of an import as they would be booked: a tick to book each, the
// line of the file it comes from, and the date, category, details, amount
// and payway it goes in with. Entries booked already say so and start
// unticked.
class ImportPreviewModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Book, Line, Date, Category, Details, Amount, Payway, Note, ColumnCount };

    explicit ImportPreviewModel(QObject *parent = nullptr);

    // Shows this import (not owned; nothing for none) with the payway names.
    void setImport(LedgerImport *import, const QStringList &payways);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

signals:
    // A row was ticked or unticked.
    void tickChanged();

private:
    LedgerImport *m_import = nullptr;
    QStringList m_payways;
};
