#pragma once

#include "list/ListPrintout.h"

#include <QWidget>

#include <optional>

class DataList;
class QGroupBox;
class QLabel;

// The totals under the list: the month's spending, income and balance (with
// last month's balance in its tool tip), and those of the entries shown with
// their share of the month's spending.
class MonthTotalsPane : public QWidget
{
    Q_OBJECT

public:
    explicit MonthTotalsPane(QWidget *parent = nullptr);

    // Nothing for last month's balance when that month cannot be read.
    void showTotals(const DataList &list, std::optional<double> lastMonthsBalance);
    // The totals as shown, labelled for a printout; those of the entries
    // shown only when a search picked them.
    ListPrintout::Totals printedTotals(bool searched) const;

private:
    QGroupBox *m_monthBox;
    QLabel *m_expendTotal;
    QLabel *m_incomeTotal;
    QLabel *m_balance;
    QLabel *m_extractedTotal;
    QLabel *m_extractedRate;
    QLabel *m_extractedBalance;
};
