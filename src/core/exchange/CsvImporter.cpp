#include "CsvImporter.h"

#include "DateReading.h"
#include "TextDecoding.h"

using namespace Qt::Literals::StringLiterals;

namespace {
using Role = CsvMapping::Role;

QStringList columnOf(const QList<CsvRow> &rows, qsizetype from, qsizetype column)
{
    QStringList texts;
    if (column < 0)
        return texts;
    for (qsizetype i = from; i < rows.size(); ++i)
        texts.append(rows.at(i).fields.value(column));
    return texts;
}
} // namespace

CsvImporter::CsvImporter(std::optional<CsvMapping> mapping)
    : m_mapping(std::move(mapping))
{
}

ImportResult CsvImporter::parse(const QByteArray &bytes) const
{
    return readCsv(bytes).result;
}

CsvImporter::Reading CsvImporter::readCsv(const QByteArray &bytes) const
{
    Reading reading;
    ImportResult &result = reading.result;
    CsvMapping given = m_mapping.value_or(CsvMapping());
    const QString encoding = given.encoding.isEmpty()
        ? TextDecoding::detect(bytes, u"CP932"_s) : given.encoding;
    bool known = false;
    const QString text = TextDecoding::decode(bytes, encoding, &known);
    if (!known) {
        result.error = Importer::tr("The encoding %1 is not known.").arg(encoding);
        return reading;
    }
    const char delimiter = given.delimiter ? given.delimiter : CsvTable::detectDelimiter(text);
    reading.rows = CsvTable::rows(text, delimiter);
    if (reading.rows.isEmpty()) {
        result.error = Importer::tr("The file holds no rows.");
        return reading;
    }
    reading.header = reading.rows.constFirst().fields;

    CsvMapping mapping;
    if (m_mapping) {
        mapping = *m_mapping;
    } else if (const auto remembered = CsvMapping::remembered(reading.header)) {
        mapping = *remembered;
    } else if (reading.header == CsvMapping::exportHeader()) {
        mapping = CsvMapping::ownExport();
    } else {
        mapping = CsvMapping::guess(reading.header);
        if (!mapping.isUsable()) {
            QList<QStringList> sample;
            for (qsizetype i = 0; i < std::min<qsizetype>(reading.rows.size(), 50); ++i)
                sample.append(reading.rows.at(i).fields);
            mapping = CsvMapping::guessFromContent(sample);
        }
    }
    mapping.encoding = encoding;
    mapping.delimiter = delimiter;
    const qsizetype first = mapping.hasHeader ? 1 : 0;

    const QStringList dates = columnOf(reading.rows, first, mapping.column(Role::Date));
    result.dateOrders = DateReading::ordersFitting(dates, DateReading::localPreference());
    result.dateOrder = mapping.dateOrder.value_or(result.dateOrders.value(0, DateOrder::YearMonthDay));
    mapping.dateOrder = result.dateOrder;
    if (!mapping.decimalMark) {
        QStringList amounts;
        for (const Role role : {Role::Amount, Role::Debit, Role::Credit})
            amounts += columnOf(reading.rows, first, mapping.column(role));
        mapping.decimalMark = AmountReading::markOf(amounts);
    }
    result.amountsSigned = mapping.signedAmounts;
    reading.mapping = mapping;
    if (!mapping.isUsable()) {
        result.error = Importer::tr("No column of dates and amounts was found; choose the columns.");
        return reading;
    }

    const auto problem = [&](const CsvRow &row, const QString &reason) {
        result.problems.append({row.line, reason});
    };
    for (qsizetype i = first; i < reading.rows.size(); ++i) {
        const CsvRow &row = reading.rows.at(i);
        if (std::all_of(row.fields.cbegin(), row.fields.cend(),
                        [](const QString &f) { return f.trimmed().isEmpty(); }))
            continue;
        const auto field = [&](Role role) { return row.fields.value(mapping.column(role)).trimmed(); };
        CandidateEntry entry;
        entry.line = row.line;
        const QString dateText = field(Role::Date);
        if (dateText.isEmpty()) {
            problem(row, Importer::tr("The date is missing."));
            continue;
        }
        const auto date = DateReading::read(dateText, *mapping.dateOrder);
        if (!date) {
            problem(row, Importer::tr("'%1' is not a date.").arg(dateText));
            continue;
        }
        entry.date = *date;

        bool haveAmount = false;
        bool badAmount = false;
        for (const Role role : {Role::Amount, Role::Credit, Role::Debit}) {
            const QString amountText = field(role);
            if (mapping.column(role) < 0 || amountText.isEmpty())
                continue;
            const auto value = AmountReading::read(amountText, *mapping.decimalMark);
            if (!value) {
                problem(row, Importer::tr("'%1' is not an amount.").arg(amountText));
                badAmount = true;
                break;
            }
            entry.amount += role == Role::Debit ? -std::abs(*value)
                : role == Role::Credit         ? std::abs(*value)
                                               : *value;
            haveAmount = true;
        }
        if (badAmount)
            continue;
        if (!haveAmount) {
            problem(row, Importer::tr("The amount is missing."));
            continue;
        }

        QStringList details;
        for (qsizetype c = 0; c < mapping.roles.size(); ++c) {
            if (mapping.roles.at(c) == Role::Details)
                details.append(row.fields.value(c));
        }
        entry.details = mapping.exactDetails ? details.join(u' ')
                                              : joinDetails(DetailParts(details.cbegin(), details.cend()));
        entry.category = field(Role::Category);
        entry.payway = field(Role::Payway);
        result.entries.append(entry);
    }
    return reading;
}
