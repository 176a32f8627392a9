#include "Importer.h"

#include "CsvImporter.h"
#include "HomeBankImporter.h"
#include "OfxImporter.h"
#include "QifImporter.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

std::unique_ptr<Importer> Importer::forFormat(Format format)
{
    switch (format) {
    case Format::Qif:
        return std::make_unique<QifImporter>();
    case Format::Ofx:
        return std::make_unique<OfxImporter>();
    case Format::HomeBank:
        return std::make_unique<HomeBankImporter>();
    case Format::Csv:
        break;
    }
    return std::make_unique<CsvImporter>();
}

Importer::Format Importer::detect(const QString &fileName, const QByteArray &head)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (const auto named = formatNamed(suffix == u"qfx"_s ? u"ofx"_s : suffix))
        return *named;
    const QByteArray start = head.left(4096).trimmed();
    if (start.startsWith("!Type:") || start.startsWith("!Account") || start.startsWith("!Option"))
        return Format::Qif;
    if (start.contains("<homebank"))
        return Format::HomeBank;
    if (start.contains("OFXHEADER") || start.contains("<OFX>"))
        return Format::Ofx;
    return Format::Csv;
}

std::optional<Importer::Format> Importer::formatNamed(QStringView name)
{
    static const QHash<QString, Format> formats{{u"csv"_s, Format::Csv},
                                                {u"qif"_s, Format::Qif},
                                                {u"ofx"_s, Format::Ofx},
                                                {u"xhb"_s, Format::HomeBank}};
    const auto found = formats.constFind(name.toString().toLower());
    if (found == formats.cend())
        return std::nullopt;
    return *found;
}

QString Importer::joinDetails(const DetailParts &parts)
{
    // Called once per entry: one string, allocated once.
    DetailParts kept;
    qsizetype length = 0;
    for (const QStringView part : parts) {
        const QStringView text = part.trimmed();
        if (!text.isEmpty() && !kept.contains(text)) {
            kept.append(text);
            length += text.size() + 3;
        }
    }
    QString joined;
    joined.reserve(length);
    for (const QStringView text : std::as_const(kept)) {
        if (!joined.isEmpty())
            joined += u" / ";
        joined += text;
    }
    return joined;
}
