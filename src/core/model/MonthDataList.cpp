#include "model/MonthDataList.h"

#include "model/LedgerController.h"
#include "model/Notifications.h"

#include <QSet>

MonthDataList::MonthDataList(int year, int month)
{
    m_year = year;
    m_month = month;
}

void MonthDataList::addData(const PaymentArray &records)
{
    m_dataListArray.append(records);
    checkDateOfDataArray(records);
    dataHasChangedAndNotify();
}

void MonthDataList::deleteData(const PaymentArray &records)
{
    QSet<const PaymentData *> doomed;
    doomed.reserve(records.size());
    for (const PaymentDataPtr &record : records)
        doomed.insert(record.get());
    m_dataListArray.removeIf(
        [&doomed](const PaymentDataPtr &record) { return doomed.contains(record.get()); });
    dataHasChangedAndNotify();
}

void MonthDataList::makeNewData()
{
    m_dataListArray.append(std::make_shared<PaymentData>());
    dataHasChangedAndNotify();
}

void MonthDataList::checkDateOfDataArray(PaymentArray records)
{
    LedgerController *controller = LedgerController::installed();
    if (!controller)
        return;
    // Taken by value: moving a record out of this list changes the list's own
    // array, which may be the one being walked.
    for (qsizetype i = records.size() - 1; i >= 0; --i) {
        const PaymentDataPtr &record = records.at(i);
        if (record->year() != m_year || record->month() != m_month)
            controller->moveData(record, this);
    }
}

void MonthDataList::convertCategory(const ConversionMap &map)
{
    const PaymentArray records = m_dataListArray;
    for (const PaymentDataPtr &record : records)
        record->convertCategory(map);
    dataHasChanged();
}

void MonthDataList::convertPayway(const ConversionMap &map)
{
    const PaymentArray records = m_dataListArray;
    for (const PaymentDataPtr &record : records)
        record->convertPayway(map);
    dataHasChanged();
}

void MonthDataList::dataHasChanged()
{
    m_isEdited = true;
    calcSumOfData();
    sortList(m_dataListArray, u"Date");
    extractList();
}

void MonthDataList::notifyChange()
{
    emit Notifications::instance()->dataListHasChanged(this);
}

void MonthDataList::dataHasChangedAndNotify()
{
    dataHasChanged();
    notifyChange();
}

void MonthDataList::setDataListArray(const PaymentArray &records)
{
    m_dataListArray = records;
}

void MonthDataList::setSummary(const QString &summary)
{
    m_summary = summary;
}

void MonthDataList::setIsEdited(bool edited)
{
    m_isEdited = edited;
}

void MonthDataList::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
}
