#include "CsvTable.h"

#include <csv.h>

#include <memory>

namespace {

struct Reading
{
    QList<CsvRow> rows;
    QStringList fields;
    // Line breaks inside the quoted fields of the row being read.
    int breaks = 0;
    int line = 0;
    qsizetype limit = -1;
};

void takeField(void *data, size_t size, void *context)
{
    auto *reading = static_cast<Reading *>(context);
    const QString field = QString::fromUtf8(static_cast<const char *>(data), qsizetype(size));
    reading->breaks += int(field.count(u'\n'));
    reading->fields.append(field);
}

void endRow(int, void *context)
{
    auto *reading = static_cast<Reading *>(context);
    if (reading->limit >= 0 && reading->rows.size() >= reading->limit) {
        reading->fields.clear();
        return;
    }
    reading->rows.append({reading->line - reading->breaks, reading->fields});
    reading->fields.clear();
    reading->breaks = 0;
}

QList<CsvRow> parse(const QByteArray &utf8, char delimiter, qsizetype limit)
{
    csv_parser parser;
    if (csv_init(&parser, 0) != 0)
        return {};
    const std::unique_ptr<csv_parser, void (*)(csv_parser *)> owner(&parser, csv_free);
    csv_set_delim(&parser, static_cast<unsigned char>(delimiter));
    // Blanks are content: a detail may begin with one.
    csv_set_space_func(&parser, [](unsigned char) { return 0; });
    Reading reading;
    reading.limit = limit;
    // Fed a line at a time so that each row learns where it ends.
    qsizetype from = 0;
    while (from < utf8.size() && (limit < 0 || reading.rows.size() < limit)) {
        qsizetype end = utf8.indexOf('\n', from);
        end = end < 0 ? utf8.size() : end + 1;
        ++reading.line;
        csv_parse(&parser, utf8.constData() + from, size_t(end - from), takeField, endRow, &reading);
        from = end;
    }
    csv_fini(&parser, takeField, endRow, &reading);
    return reading.rows;
}

} // namespace

QList<CsvRow> CsvTable::rows(const QString &text, char delimiter)
{
    return parse(text.toUtf8(), delimiter, -1);
}

char CsvTable::detectDelimiter(const QString &text)
{
    const QByteArray head = text.left(16384).toUtf8();
    char best = ',';
    qsizetype bestFields = 1;
    for (const char delimiter : {',', ';', '\t'}) {
        const QList<CsvRow> sample = parse(head, delimiter, 10);
        if (sample.isEmpty())
            continue;
        const qsizetype fields = sample.constFirst().fields.size();
        // The last sampled row may be cut off.
        const bool even = std::all_of(sample.cbegin(), sample.cend() - (sample.size() > 2 ? 1 : 0),
                                      [&](const CsvRow &row) { return row.fields.size() == fields; });
        if (even && fields > bestFields) {
            best = delimiter;
            bestFields = fields;
        }
    }
    return best;
}
