#pragma once

#include "model/MonthDataList.h"

#include <QDate>
#include <QMetaObject>

#include <memory>

// A "month" that ends on a closing day D instead of the calendar's last day:
// month M holds the records after day D of the month before, then those up to
// and including day D of M. A read-only view over the two calendar months'
// records, rebuilt whenever either of them changes; never stored.
class ModifMonthList : public MonthDataList
{
public:
    ModifMonthList(int year, int month, int date);
    ~ModifMonthList() override;

    int lastDate() const { return m_lastDate; }

    // The first day of the closing-day month a day belongs to: a day after
    // the closing day already counts to the next month.
    static QDate closingMonthOf(const QDate &day, int lastDate);

    // Rebuilds the records and totals from the two calendar months.
    void initData();
    // Rebuilds, then tells the windows that this list changed.
    void notifyChange() override;

    // Structural changes belong to the calendar months: these only log.
    void addData(const PaymentArray &records) override;
    void deleteData(const PaymentArray &records) override;
    void checkDateOfDataArray(PaymentArray records) override;
    void MakeNewData();

private:
    bool isUnderlying(const DataList *list) const;

    int m_lastDate;
    // Only to recognise the two months' change notifications.
    std::weak_ptr<DataList> m_previous;
    std::weak_ptr<DataList> m_current;
    QMetaObject::Connection m_observer;
};
