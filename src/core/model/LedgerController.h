#pragma once

#include "model/PaymentData.h"

#include <QStringList>

#include <memory>

class DataList;
class MonthDataList;

// What records and lists need from the application controller, and nothing
// more: the change report, the month lists, moving a record between months and
// the current category and payway names. The application installs its
// controller once at start-up; tests install their own. Records and lists built
// while none is installed still work: their reports simply go nowhere, and the
// income category is then unknown (-1).
class LedgerController
{
public:
    virtual ~LedgerController() = default;

    // Records report each field change here, one record per call.
    virtual void editData(const PaymentArray &records) = 0;
    // The list of a year and month; month 0 answers the year list, an
    // impossible month nothing.
    virtual std::shared_ptr<DataList> listForYear(int year, int month) = 0;
    // Moves a record from the list it sits in to the list of its own month.
    virtual void moveData(const PaymentDataPtr &record, MonthDataList *fromList) = 0;
    virtual QStringList categoryList() const = 0;
    virtual QStringList paywayList() const = 0;

    static LedgerController *installed();
    // Passing nullptr uninstalls. Not an owner: the caller keeps the object
    // alive while it is installed.
    static void install(LedgerController *controller);

    // The last category is the income category; -1 when there is no list.
    static int incomeCategoryIndex();
};
