#pragma once

#include "ImportResult.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QVarLengthArray>

#include <memory>
#include <optional>

// Turns the bytes of a file into candidate entries, with a reason for every
// row it could not read; a file that is not of its format gives one error
// and no entries. Readers never trust their input: any bytes end in a
// result, never a crash.
class Importer
{
    Q_DECLARE_TR_FUNCTIONS(Importer)

public:
    enum class Format { Csv, Qif, Ofx, HomeBank };

    virtual ~Importer() = default;
    virtual ImportResult parse(const QByteArray &bytes) const = 0;

    // The reader of a format, with its defaults (a CSV file's columns from
    // its header or content).
    static std::unique_ptr<Importer> forFormat(Format format);
    // The format by the file's name, else by its first bytes; CSV when
    // nothing else fits.
    static Format detect(const QString &fileName, const QByteArray &head);
    // "csv", "qif", "ofx", "xhb" (as on the command line).
    static std::optional<Format> formatNamed(QStringView name);

    // The non-empty parts, trimmed, joined as one line of details, each
    // once.
    using DetailParts = QVarLengthArray<QStringView, 4>;
    static QString joinDetails(const DetailParts &parts);
};
