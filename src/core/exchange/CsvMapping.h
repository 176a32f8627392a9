#pragma once

#include "AmountReading.h"
#include "ImportResult.h"

#include <QList>
#include <QStringList>
#include <QVariantMap>

#include <optional>

// What each column of a CSV file holds and how to read it. A person sets it
// in the import preview; it is remembered by the file's header line, so the
// next statement of the same bank reads the same way.
struct CsvMapping
{
    enum class Role { Ignore, Date, Amount, Debit, Credit, Details, Category, Payway };

    // One per column; columns beyond the list are ignored.
    QList<Role> roles;
    bool hasHeader = true;
    // ',', ';' or '\t'; 0 to detect.
    char delimiter = 0;
    // A name QStringDecoder knows; empty to detect.
    QString encoding;
    std::optional<DateOrder> dateOrder;
    std::optional<DecimalMark> decimalMark;
    // False for files whose amounts are all positive (our own export): then
    // the sign says nothing about income.
    bool signedAmounts = true;
    // Details as written, blanks and all, rather than trimmed.
    bool exactDetails = false;

    bool operator==(const CsvMapping &) const = default;

    // A date and an amount, or a debit or credit column.
    bool isUsable() const;
    qsizetype column(Role role) const { return roles.indexOf(role); }

    // Roles from the words of a header line, in English, Japanese and a few
    // other languages banks use; unknown columns are ignored.
    static CsvMapping guess(const QStringList &header);
    // Roles from the content of rows without a header: the column of dates,
    // the last column of amounts, the longest text.
    static CsvMapping guessFromContent(const QList<QStringList> &rows);
    // The header line our own export writes, and the mapping that reads it.
    static QStringList exportHeader();
    static CsvMapping ownExport();

    // Remembered per header line in the user's settings.
    static std::optional<CsvMapping> remembered(const QStringList &header);
    void remember(const QStringList &header) const;

    QVariantMap toVariantMap() const;
    static CsvMapping fromVariantMap(const QVariantMap &map);
};
