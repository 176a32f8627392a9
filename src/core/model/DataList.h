#pragma once

#include "model/ExtractKeyDict.h"
#include "model/PaymentData.h"

#include <QMap>

// A set of records with its totals: the grand total, a whole-number sum per
// category and per payway, and the subset the current search selects with its
// own totals. Income is the last category of the controller's list.
class DataList
{
public:
    DataList();
    virtual ~DataList();
    DataList(const DataList &) = delete;
    DataList &operator=(const DataList &) = delete;

    int year() const { return m_year; }
    // 1..12; 0 for a year list.
    int month() const { return m_month; }

    const PaymentArray &dataListArray() const { return m_dataListArray; }

    // Recomputes the grand total and both sum tables.
    void calcSumOfData();
    // The sum of every amount, income included.
    double grandTotal() const { return m_grandTotal; }
    // The sum of the income category, 0 when it has no record.
    double incomeTotal() const;
    // The grand total less the income.
    double expendTotal() const;
    // One sum per item of the controller's category list, in index order.
    QList<int> categoryList() const;
    // Index to whole-number sum; truncated toward zero after every addition,
    // so two amounts of 0.6 sum to 0 while the grand total is 1.2.
    const QMap<int, int> &categorySum() const { return m_categorySum; }
    const QMap<int, int> &paywaySum() const { return m_paywaySum; }

    virtual bool isEdited() const { return false; }

    // The search: the keys stay with the list until replaced; extractList
    // applies them, extractAll selects everything and leaves them in place.
    const ExtractKeyDict &extractKeyDict() const { return m_extractKeyDict; }
    void setextractKeyDict(const ExtractKeyDict &keys);
    const PaymentArray &extractedArray() const { return m_extractedArray; }
    // After extractList: the selected spending; after extractAll: the grand
    // total, income included.
    double extractedTotal() const { return m_extractedTotal; }
    double extractedIncomeTotal() const { return m_extractedIncomeTotal; }
    void extractList();
    void extractAll();

    // The one record order of the program. Note the inverted flag: ascending
    // true puts the largest value first. Ties are broken by category, amount
    // and details, in the same direction. Answers -1, 0 or 1.
    static int compareRecords(const PaymentData &a, const PaymentData &b, PaymentData::Key key,
                              bool ascending);
    static void sortList(PaymentArray &records, QStringView key, bool ascending = false);
    // Reverses the order of the selected records by key: largest first when
    // they run smallest first now, else smallest first.
    void sortwithKey(QStringView key);
    // Sorts the selected records by key, with the inverted flag of sortList.
    void sortExtractedArray(QStringView key, bool ascending);

protected:
    int m_year = 0;
    int m_month = 0;
    PaymentArray m_dataListArray;

private:
    double m_grandTotal = 0;
    QMap<int, int> m_categorySum;
    QMap<int, int> m_paywaySum;
    ExtractKeyDict m_extractKeyDict;
    PaymentArray m_extractedArray;
    double m_extractedTotal = 0;
    double m_extractedIncomeTotal = 0;
};
