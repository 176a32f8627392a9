#pragma once

#include "CsvImporter.h"

#include <QCoreApplication>

// A file to be imported: read whole once, in the format its name and first
// bytes show unless one is chosen. The preview reads it again as another
// format, or with a CSV file's columns chosen, without going back to the
// disk.
class FileToImport
{
    Q_DECLARE_TR_FUNCTIONS(FileToImport)

public:
    explicit FileToImport(const QString &path, std::optional<Importer::Format> format = std::nullopt);

    Importer::Format format() const { return m_format; }

    // The file parsed as its format; the error says why when the file
    // cannot be read, is empty or is not of the format.
    ImportResult read() const { return readAs(m_format).result; }
    // As the given format; a CSV file with these columns (else as
    // remembered or guessed), and all the preview shows of it.
    CsvImporter::Reading readAs(Importer::Format format,
                                const std::optional<CsvMapping> &columns = std::nullopt) const;

private:
    QByteArray m_bytes;
    Importer::Format m_format;
    QString m_error;
};
