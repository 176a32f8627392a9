#pragma once

#include <QList>
#include <QStringList>

#include <optional>

// The keys of a search ("extraction") over a list. Every key is optional: an
// absent key places no constraint. A dictionary with no key at all selects
// everything without filtering; one holding only incomeNumber still filters
// (everything passes) and sums income and spending apart.
struct ExtractKeyDict
{
    std::optional<int> incomeNumber;        // "IncomeNumber": index of the income category
    std::optional<QList<int>> date;         // "Date": days of the month to keep
    std::optional<QList<int>> month;        // "Month": compared with the day, by design
    std::optional<QList<int>> year;         // "Year": compared with the day, by design
    std::optional<QList<int>> category;     // "Category": category indices
    std::optional<QStringList> details;     // "Details": keywords, any of which must occur
    std::optional<float> amountMax;         // "AmountMax": inclusive upper bound
    std::optional<float> amountMin;         // "AmountMin": inclusive lower bound
    std::optional<QList<int>> payway;       // "Payway": payway indices

    bool isEmpty() const
    {
        return !incomeNumber && !date && !month && !year && !category && !details
            && !amountMax && !amountMin && !payway;
    }
};
