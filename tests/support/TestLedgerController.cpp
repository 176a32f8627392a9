#include "TestLedgerController.h"

#include "model/MonthDataList.h"
#include "model/YearDataList.h"

TestLedgerController::TestLedgerController(QStringList categories, QStringList payways)
    : m_categories(std::move(categories))
    , m_payways(std::move(payways))
{
    LedgerController::install(this);
}

TestLedgerController::~TestLedgerController()
{
    if (LedgerController::installed() == this)
        LedgerController::install(nullptr);
}

void TestLedgerController::editData(const PaymentArray &records)
{
    editReports.append(records);
    for (const PaymentDataPtr &record : records) {
        if (auto list = monthList(record->year(), record->month()))
            list->dataHasChangedAndNotify();
    }
}

std::shared_ptr<MonthDataList> TestLedgerController::monthList(int year, int month)
{
    if (month < 1 || month > 12)
        return nullptr;
    std::shared_ptr<MonthDataList> &list = m_months[year * 100 + month];
    if (!list)
        list = std::make_shared<MonthDataList>(year, month);
    return list;
}

std::shared_ptr<DataList> TestLedgerController::listForYear(int year, int month)
{
    if (month != 0)
        return monthList(year, month);
    QList<const DataList *> months;
    for (int m = 1; m <= 12; ++m)
        months.append(monthList(year, m).get()); // the lists stay in m_months
    return std::make_shared<YearDataList>(year, months);
}

void TestLedgerController::moveData(const PaymentDataPtr &record, MonthDataList *fromList)
{
    const auto target = monthList(record->year(), record->month());
    if (!target || target.get() == fromList)
        return;
    ++moveCount;
    target->addData({record});
    fromList->deleteData({record});
}
