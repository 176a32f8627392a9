#pragma once

#include "model/PaymentData.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <memory>

class DataList;
class KController;

// The rows of a list's current search result, one entry per row, one field per
// column. It follows the change notifications of its list and resets itself;
// edits go through the entries' own setters, which report to the controller.
class DataListTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    // In the order the fields are keyed.
    enum Column { YearColumn, MonthColumn, DateColumn, CategoryColumn, DetailsColumn,
                  AmountColumn, PaywayColumn, ColumnCount };
    // The names a pop-up cell offers, for the delegate.
    static constexpr int ChoicesRole = Qt::UserRole + 1;

    explicit DataListTableModel(KController *controller, QObject *parent = nullptr);

    // "Year", "Month", "Date", "Category", "Details", "Amount", "Payway".
    static QString keyOfColumn(int column);
    static bool isPopUpColumn(int column);

    DataList *dataList() const { return m_list.get(); }
    void setDataList(std::shared_ptr<DataList> list);
    void setNames(const QStringList &categories, const QStringList &payways);
    const QStringList &categoryNames() const { return m_categories; }
    const QStringList &paywayNames() const { return m_payways; }

    bool isEditable() const { return m_editable; }
    void setEditable(bool editable);

    // The entry of a row; null out of range.
    PaymentDataPtr dataAtIndex(int row) const;
    // Shows the list's search result afresh.
    void reload();
    // Reverses the rows' order by the column's field; answers the direction
    // the rows now run in.
    Qt::SortOrder sortByColumn(int column);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;


private:
    static QVariant columnAlignment(int column);
    void listHasChanged(DataList *list);
    QString nameAt(const QStringList &names, int index) const;
    void moveToEditedMonth(const PaymentDataPtr &record, const QString &text, QStringView key);

    KController *m_controller;
    std::shared_ptr<DataList> m_list;
    QStringList m_categories;
    QStringList m_payways;
    bool m_editable = false;
};
