#pragma once

#include <QDate>
#include <QList>
#include <QString>

// One row of a file as read, before it meets our lists: the source's own
// names for category and payment mode, and its signed amount.
struct CandidateEntry
{
    QDate date;
    // Negative for money out where the source has signs.
    double amount = 0;
    QString details;
    // "Parent:Child" where the source nests its categories.
    QString category;
    QString payway;
    // The source marks the category as one of income.
    bool incomeCategory = false;
    // 1-based line of the file where the row starts (for formats without
    // lines, its position in the file).
    int line = 0;

    bool operator==(const CandidateEntry &) const = default;
};
// Lists of a hundred thousand grow by moving memory, not by copying each.
Q_DECLARE_TYPEINFO(CandidateEntry, Q_RELOCATABLE_TYPE);

// A row that could not be read, and why, in words for the person importing.
struct RowProblem
{
    int line = 0;
    QString reason;

    bool operator==(const RowProblem &) const = default;
};

// How the numbers of a date are ordered; the year may have two digits.
enum class DateOrder { YearMonthDay, DayMonthYear, MonthDayYear };

// What an importer made of a file.
struct ImportResult
{
    QList<CandidateEntry> entries;
    QList<RowProblem> problems;
    // Set when the file as a whole is not of the format: nothing was read.
    QString error;
    // Whether amounts carry the direction of the money (a plain list of
    // positive amounts, as our own export writes, does not).
    bool amountsSigned = true;
    // Every order the file's dates can be read in; more than one means the
    // file does not say, and `dateOrder` is only the likelier guess.
    QList<DateOrder> dateOrders;
    DateOrder dateOrder = DateOrder::YearMonthDay;

    bool failed() const { return !error.isEmpty(); }
};
