#pragma once

#include "model/PaymentData.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>

#include <optional>

class KController;

// Entries as a CSV file any spreadsheet reads and our CSV import reads back
// unchanged: UTF-8, RFC 4180 quoting, CRLF line ends, one header line, then
// per entry its ISO date, category name, details, amount (the fewest digits
// that give back the stored value, point decimals) and payway name.
class CsvExport
{
    Q_DECLARE_TR_FUNCTIONS(CsvExport)

public:
    static QByteArray text(const PaymentArray &records, const QStringList &categories,
                           const QStringList &payways);

    // What to export from the ledger: a month, a year (month 0) or all
    // (year 0).
    struct Scope
    {
        int year = 0;
        int month = 0;
    };
    // "200605", "2006" or "all"; nothing for any other text.
    static std::optional<Scope> scopeNamed(QStringView text);
    // The scope's entries as the program holds them, edits not yet written
    // included: by month, each month by day in its list order. Nothing, with
    // the reason, when a month of the scope cannot be read, rather than an
    // export with a hole in it.
    static std::optional<PaymentArray> records(KController &ledger, Scope scope, QString *error);
    // Those records as text, with the ledger's names.
    static std::optional<QByteArray> ledgerText(KController &ledger, Scope scope, QString *error);
};
