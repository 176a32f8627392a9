#pragma once

#include "model/DataList.h"

// The records of one calendar month: the unit that is stored in one file,
// edited, and watched by the windows. Kept sorted by day (then category,
// amount and details), smallest first.
class MonthDataList : public DataList
{
public:
    MonthDataList(int year, int month);

    // Appends the records, moves those of another month to their own list
    // through the controller, then recalculates and notifies.
    virtual void addData(const PaymentArray &records);
    // Removes the records (by identity), then recalculates and notifies.
    virtual void deleteData(const PaymentArray &records);
    // Appends one new record dated today, still initializing, without moving
    // it even when today lies in another month.
    void makeNewData();
    // Hands every record of another year or month to the controller's
    // moveData, last record first, so that the array may be the list's own.
    virtual void checkDateOfDataArray(PaymentArray records);

    void convertCategory(const ConversionMap &map);
    void convertPayway(const ConversionMap &map);

    // The change cycle: mark edited, recompute the sums, re-sort by day and
    // re-apply the search.
    void dataHasChanged();
    // Tells the windows that this list changed.
    virtual void notifyChange();
    void dataHasChangedAndNotify();

    // Replaces the records without recalculating.
    void setDataListArray(const PaymentArray &records);

    // The month's free memo. Setting it does not mark the list edited: the
    // list window does that.
    const QString &summary() const { return m_summary; }
    void setSummary(const QString &summary);

    bool isEdited() const override { return m_isEdited; }
    void setIsEdited(bool edited);

    // A month whose file could not be read: shown empty, never written, so
    // the file is left for the user to mend.
    bool isReadOnly() const { return m_isReadOnly; }
    void setReadOnly(bool readOnly);

private:
    QString m_summary;
    bool m_isEdited = false;
    bool m_isReadOnly = false;
};
