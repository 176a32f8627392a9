#include "FileToImport.h"

#include <QFile>
#include <QFileInfo>

FileToImport::FileToImport(const QString &path, std::optional<Importer::Format> format)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        m_bytes = file.readAll();
    const QString name = QFileInfo(path).fileName();
    if (file.error() != QFileDevice::NoError)
        m_error = tr("%1 cannot be read: %2").arg(name, file.errorString());
    else if (m_bytes.isEmpty())
        m_error = tr("%1 is empty.").arg(name);
    m_format = format.value_or(Importer::detect(path, m_bytes));
}

CsvImporter::Reading FileToImport::readAs(Importer::Format format, const std::optional<CsvMapping> &columns) const
{
    CsvImporter::Reading reading;
    if (!m_error.isEmpty())
        reading.result.error = m_error;
    else if (format == Importer::Format::Csv)
        reading = CsvImporter(columns).readCsv(m_bytes);
    else
        reading.result = Importer::forFormat(format)->parse(m_bytes);
    return reading;
}
