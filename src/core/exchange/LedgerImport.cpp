#include "LedgerImport.h"

#include "model/CategoryPalette.h"
#include "model/MonthKey.h"
#include "model/MonthDataList.h"

#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

LedgerImport::LedgerImport(KController &ledger, ImportResult imported, const ImportMapping &mapping)
    : m_ledger(ledger)
    , m_mapping(mapping)
    , m_imported(std::move(imported))
    , m_mapped(mapping.map(m_imported))
{
    ImportMapping::flagDuplicates(m_mapped.entries, [&ledger](int year, int month) {
        const auto list = ledger.monthListForYear(year, month);
        return list ? list->dataListArray() : PaymentArray();
    });
    m_ticked.reserve(m_mapped.entries.size());
    for (const MappedEntry &entry : std::as_const(m_mapped.entries))
        m_ticked.append(!entry.duplicate);
}

QString LedgerImport::newCategory() const
{
    const QStringList ours = m_ledger.categoryList();
    return m_mapped.categories.size() > ours.size() ? m_mapped.categories.value(ours.size() - 1)
                                                   : QString();
}

LedgerImport::Report LedgerImport::report() const
{
    Report report;
    report.problems = m_imported.problems;
    report.newCategory = newCategory();
    const int income = int(m_mapped.categories.size()) - 1;
    for (qsizetype i = 0; i < m_mapped.entries.size(); ++i) {
        const MappedEntry &entry = m_mapped.entries.at(i);
        if (!entry.matched && entry.category != income) {
            if (!entry.source.category.isEmpty() && !report.unmatched.contains(entry.source.category))
                report.unmatched.append(entry.source.category);
            report.unmatchedTo = m_mapped.categories.value(entry.category);
        }
        if (!m_ticked.at(i)) {
            ++(entry.duplicate ? report.duplicates : report.leftOut);
            continue;
        }
        ++report.booked;
        ++report.months[MonthKey::of(entry.source.date.year(), entry.source.date.month())];
    }
    return report;
}

QString LedgerImport::summary(const Report &report)
{
    QStringList lines;
    QStringList months;
    for (auto month = report.months.cbegin(); month != report.months.cend(); ++month)
        months.append(tr("%1/%2: %n", nullptr, month.value()).arg(month.key() % 100).arg(month.key() / 100));
    lines.append(tr("%n entries into %1 months", nullptr, report.booked).arg(report.months.size()));
    // A long import lists its first and last months only.
    if (months.size() > 12)
        months = months.mid(0, 6) + QStringList{u"…"_s} + months.mid(months.size() - 6);
    if (!months.isEmpty())
        lines.append(months.join(u", "_s));
    if (report.duplicates > 0)
        lines.append(tr("Skipped as booked already: %n", nullptr, report.duplicates));
    if (report.leftOut > 0)
        lines.append(tr("Left out: %n", nullptr, report.leftOut));
    if (!report.problems.isEmpty())
        lines.append(tr("Rows that could not be read: %n", nullptr, int(report.problems.size())));
    if (!report.newCategory.isEmpty())
        lines.append(tr("New category: %1").arg(report.newCategory));
    if (!report.unmatched.isEmpty())
        lines.append(tr("Categories without a match (booked as %1): %2")
                         .arg(report.unmatchedTo, report.unmatched.join(u", "_s)));
    return lines.join(u'\n');
}

QJsonObject LedgerImport::toJson(const Report &report, bool withEntries) const
{
    QJsonObject months;
    for (auto month = report.months.cbegin(); month != report.months.cend(); ++month)
        months.insert(QDate(month.key() / 100, month.key() % 100, 1).toString(u"yyyy-MM"), month.value());
    QJsonArray problems;
    for (const RowProblem &problem : report.problems)
        problems.append(QJsonObject{{u"line"_s, problem.line}, {u"reason"_s, problem.reason}});
    QJsonObject json{{u"booked"_s, report.booked},
                     {u"months"_s, months},
                     {u"skipped"_s, QJsonObject{{u"duplicates"_s, report.duplicates},
                                               {u"leftOut"_s, report.leftOut},
                                               {u"unreadable"_s, int(report.problems.size())}}},
                     {u"problems"_s, problems},
                     {u"unmatchedCategories"_s, QJsonArray::fromStringList(report.unmatched)}};
    if (!report.unmatched.isEmpty())
        json.insert(u"unmatchedTo"_s, report.unmatchedTo);
    if (!report.newCategory.isEmpty())
        json.insert(u"newCategory"_s, report.newCategory);
    if (!withEntries)
        return json;
    const QStringList payways = m_ledger.paywayList();
    QJsonArray entries;
    for (qsizetype i = 0; i < m_mapped.entries.size(); ++i) {
        const MappedEntry &entry = m_mapped.entries.at(i);
        entries.append(QJsonObject{{u"line"_s, entry.source.line},
                                   {u"date"_s, entry.source.date.toString(Qt::ISODate)},
                                   {u"category"_s, m_mapped.categories.value(entry.category)},
                                   {u"details"_s, entry.source.details},
                                   {u"amount"_s, double(entry.amount)},
                                   {u"payway"_s, payways.value(entry.payway)},
                                   {u"duplicate"_s, entry.duplicate},
                                   {u"booked"_s, bool(m_ticked.at(i))}});
    }
    json.insert(u"entries"_s, entries);
    return json;
}

bool LedgerImport::book(QString *error, const KController::ImportProgress &progress)
{
    const QStringList ours = m_ledger.categoryList();
    // While the list file cannot be read, the ledger refuses the booking
    // and says why; the lists are not touched.
    const bool listsReadable = m_ledger.listFileProblem().isEmpty();
    if (listsReadable && m_mapped.categories.size() > ours.size()) {
        // The new category goes just before income, which moves up one.
        StoredLists stored = m_ledger.storedLists();
        if (stored.categories != ours) {
            if (error)
                *error = tr("The categories were changed meanwhile; start the import again.");
            return false;
        }
        const int income = int(ours.size()) - 1;
        const QList<RgbaColor> used = stored.colors.mid(0, income);
        stored.colors.insert(std::min<qsizetype>(income, stored.colors.size()),
                             CategoryPalette::nextColor(used));
        stored.categories = m_mapped.categories;
        ListConversion conversion;
        conversion.categoryMap.insert(income, income + 1);
        conversion.setLists(stored, m_ledger.dataFolderPath());
        if (!m_ledger.convertStoredData(conversion, error))
            return false;
    } else if (listsReadable && m_mapped.categories != ours) {
        if (error)
            *error = tr("The categories were changed meanwhile; start the import again.");
        return false;
    }
    PaymentArray records;
    records.reserve(m_mapped.entries.size());
    for (qsizetype i = 0; i < m_mapped.entries.size(); ++i) {
        if (!m_ticked.at(i))
            continue;
        const MappedEntry &entry = m_mapped.entries.at(i);
        const QDate date = entry.source.date;
        records.append(std::make_shared<PaymentData>(date.year(), date.month(), date.day(), entry.category,
                                                     entry.source.details, entry.amount, entry.payway));
    }
    if (records.isEmpty()) {
        if (error)
            *error = tr("No entry is ticked for booking.");
        return false;
    }
    if (!m_ledger.bookImport(records, error, progress))
        return false;
    m_mapping.rememberChoices(m_mapping.unmatched(m_imported));
    return true;
}

ImportMapping LedgerImport::mappingFor(const KController &ledger)
{
    ImportMapping mapping(ledger.categoryList(), ledger.paywayList());
    mapping.recallChoices();
    return mapping;
}
