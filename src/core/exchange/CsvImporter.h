#pragma once

#include "CsvMapping.h"
#include "CsvTable.h"
#include "Importer.h"

// CSV files of banks and spreadsheets, and our own export. Without a
// mapping given, a header line remembered from an earlier import decides,
// else our export's header, else the words of the header, else the content.
class CsvImporter : public Importer
{
public:
    explicit CsvImporter(std::optional<CsvMapping> mapping = std::nullopt);

    // Everything a preview shows and lets a person change.
    struct Reading
    {
        ImportResult result;
        // As applied: encoding, delimiter, date order and decimal mark filled in.
        CsvMapping mapping;
        // The first row, whether or not it is a header; the key a mapping is
        // remembered by.
        QStringList header;
        QList<CsvRow> rows;
    };
    Reading readCsv(const QByteArray &bytes) const;
    ImportResult parse(const QByteArray &bytes) const override;

private:
    std::optional<CsvMapping> m_mapping;
};
