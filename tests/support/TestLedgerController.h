#pragma once

#include "model/LedgerController.h"

#include <QHash>
#include <QList>

class MonthDataList;

// A controller for tests: month lists kept in memory, records routed by their
// own year and month, and every call recorded so tests can see what reached
// it. Installs itself for its lifetime.
class TestLedgerController : public LedgerController
{
public:
    explicit TestLedgerController(
        QStringList categories = {QStringLiteral("Food"), QStringLiteral("Rent"),
                                  QStringLiteral("Income")},
        QStringList payways = {QStringLiteral("Cash"), QStringLiteral("Card")});
    ~TestLedgerController() override;

    void editData(const PaymentArray &records) override;
    std::shared_ptr<DataList> listForYear(int year, int month) override;
    void moveData(const PaymentDataPtr &record, MonthDataList *fromList) override;
    QStringList categoryList() const override { return m_categories; }
    QStringList paywayList() const override { return m_payways; }

    std::shared_ptr<MonthDataList> monthList(int year, int month);
    void setCategoryList(const QStringList &categories) { m_categories = categories; }

    // Every record reported through editData, in order.
    PaymentArray editReports;
    int moveCount = 0;

private:
    QHash<int, std::shared_ptr<MonthDataList>> m_months;
    QStringList m_categories;
    QStringList m_payways;
};
