#include "ImportMapping.h"

#include <QMap>

namespace {
QHash<QString, int> keysOf(const QStringList &names)
{
    QHash<QString, int> keys;
    // The first of names that only differ in case or width wins.
    for (qsizetype i = names.size() - 1; i >= 0; --i)
        keys.insert(ImportMapping::nameKey(names.at(i)), int(i));
    return keys;
}
} // namespace

ImportMapping::ImportMapping(const QStringList &categories, const QStringList &payways)
    : m_categories(categories)
    , m_categoryKeys(keysOf(categories))
    , m_paywayKeys(keysOf(payways))
{
}

QString ImportMapping::nameKey(QStringView name)
{
    return name.trimmed().toString().normalized(QString::NormalizationForm_KC).toCaseFolded();
}

void ImportMapping::setCategoryFor(const QString &sourceName, int category)
{
    m_chosen.insert(nameKey(sourceName), category);
}

void ImportMapping::setUnmatchedCategory(int category)
{
    m_unmatchedCategory = category;
    m_newCategory.clear();
}

void ImportMapping::setNewCategory(const QString &name)
{
    m_newCategory = name;
}

void ImportMapping::setUnmatchedPayway(int payway)
{
    m_unmatchedPayway = payway;
}

std::optional<int> ImportMapping::categoryByName(const QString &sourceName) const
{
    QStringList tries{sourceName};
    const QStringList parts = sourceName.split(u':');
    if (parts.size() > 1) {
        for (auto part = parts.crbegin(); part != parts.crend(); ++part)
            tries.append(*part);
    }
    for (const auto *names : {&m_chosen, &m_categoryKeys}) {
        for (const QString &name : tries) {
            const auto found = names->constFind(nameKey(name));
            if (found != names->cend())
                return *found;
        }
    }
    return std::nullopt;
}

ImportMapping::Result ImportMapping::map(const ImportResult &imported) const
{
    Result result;
    result.categories = m_categories;
    const int oldIncome = int(m_categories.size()) - 1;
    bool addsCategory = false;
    for (const CandidateEntry &candidate : imported.entries) {
        MappedEntry entry;
        entry.source = candidate;
        entry.amount = float(std::abs(candidate.amount));
        const auto byName = categoryByName(candidate.category);
        entry.matched = byName.has_value();
        if (candidate.incomeCategory || (imported.amountsSigned && candidate.amount > 0))
            entry.category = oldIncome;
        else if (byName)
            entry.category = *byName;
        else if (m_newCategory.isEmpty())
            entry.category = m_unmatchedCategory;
        else
            entry.category = -1; // the new one, placed below
        addsCategory = addsCategory || entry.category == -1;
        entry.payway = m_paywayKeys.value(nameKey(candidate.payway), m_unmatchedPayway);
        result.entries.append(entry);
    }
    if (addsCategory) {
        // The new category takes income's place; income moves up one.
        result.categories.insert(oldIncome, m_newCategory);
        for (MappedEntry &entry : result.entries) {
            if (entry.category == oldIncome)
                entry.category = oldIncome + 1;
            else if (entry.category == -1)
                entry.category = oldIncome;
        }
    }
    return result;
}

void ImportMapping::flagDuplicates(QList<MappedEntry> &entries, const MonthRecords &monthRecords)
{
    using Key = std::tuple<int, float, QString>;
    QMap<int, QMap<Key, int>> months;
    for (MappedEntry &entry : entries) {
        const QDate date = entry.source.date;
        const int id = date.year() * 100 + date.month();
        auto month = months.find(id);
        if (month == months.end()) {
            month = months.insert(id, {});
            for (const PaymentDataPtr &record : monthRecords(date.year(), date.month()))
                ++(*month)[Key{record->date(), record->amount(), record->details()}];
        }
        const auto found = month->find(Key{date.day(), entry.amount, entry.source.details});
        entry.duplicate = found != month->end() && *found > 0;
        if (entry.duplicate)
            --*found;
    }
}
