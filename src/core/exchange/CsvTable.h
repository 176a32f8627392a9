#pragma once

#include <QList>
#include <QStringList>

// One record of a CSV file and the line it starts on.
struct CsvRow
{
    int line = 0;
    QStringList fields;
};

// RFC 4180 records read by libcsv: quoted fields may hold delimiters, quotes
// and line breaks; blank lines are skipped. Fields keep their blanks.
namespace CsvTable {

QList<CsvRow> rows(const QString &text, char delimiter);
// Comma, semicolon or tab: the one that splits the first lines into the
// same number of fields, more than one; the most fields wins, comma ties.
char detectDelimiter(const QString &text);

} // namespace CsvTable
