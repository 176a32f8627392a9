#include "ImportMapping.h"

#include "model/MonthKey.h"
#include "settings/Settings.h"

#include <QMap>
#include <QSet>

namespace {
bool goesToIncome(const CandidateEntry &candidate, bool amountsSigned)
{
    return candidate.incomeCategory || (amountsSigned && candidate.amount > 0);
}

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
    , m_payways(payways)
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
    if (category < 0)
        m_chosen.remove(nameKey(sourceName));
    else
        m_chosen.insert(nameKey(sourceName), category);
}

void ImportMapping::setPaywayFor(const QString &sourceName, int payway)
{
    if (payway < 0)
        m_chosenPayways.remove(nameKey(sourceName));
    else
        m_chosenPayways.insert(nameKey(sourceName), payway);
}

std::optional<int> ImportMapping::categoryChosenFor(const QString &sourceName) const
{
    const auto found = m_chosen.constFind(nameKey(sourceName));
    return found == m_chosen.cend() ? std::nullopt : std::optional<int>(*found);
}

std::optional<int> ImportMapping::paywayChosenFor(const QString &sourceName) const
{
    const auto found = m_chosenPayways.constFind(nameKey(sourceName));
    return found == m_chosenPayways.cend() ? std::nullopt : std::optional<int>(*found);
}

bool ImportMapping::chooseCategories(const QStringList &choices, QString *error)
{
    for (const QString &choice : choices) {
        const qsizetype equals = choice.lastIndexOf(u'=');
        const QString ours = choice.mid(equals + 1).trimmed();
        const int category = m_categoryKeys.value(nameKey(ours), -1);
        if (equals <= 0 || category < 0) {
            if (error)
                *error = equals <= 0 ? tr("'%1' is not of the form SOURCE=CATEGORY.").arg(choice)
                                     : tr("There is no category '%1'.").arg(ours);
            return false;
        }
        setCategoryFor(choice.left(equals), category);
    }
    return true;
}

void ImportMapping::recallChoices()
{
    const ImportChoices remembered = Settings().importChoices();
    for (const auto &[choices, keys, chosen] :
         {std::tuple{&remembered.categories, &m_categoryKeys, &m_chosen},
          std::tuple{&remembered.payways, &m_paywayKeys, &m_chosenPayways}}) {
        for (auto choice = choices->cbegin(); choice != choices->cend(); ++choice) {
            const auto ours = keys->constFind(nameKey(choice.value()));
            if (ours != keys->cend())
                chosen->insert(choice.key(), *ours);
        }
    }
}

void ImportMapping::rememberChoices(const Unmatched &names) const
{
    Settings settings;
    ImportChoices remembered = settings.importChoices();
    for (const auto &[choices, sources, ours, chosen] :
         {std::tuple{&remembered.categories, &names.categories, &m_categories, &m_chosen},
          std::tuple{&remembered.payways, &names.payways, &m_payways, &m_chosenPayways}}) {
        for (const QString &source : *sources) {
            const QString key = nameKey(source);
            const int choice = chosen->value(key, -1);
            if (choice >= 0 && choice < ours->size())
                choices->insert(key, ours->at(choice));
            else
                choices->remove(key);
        }
    }
    settings.setImportChoices(remembered);
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

std::optional<int> ImportMapping::categoryByName(const QString &sourceName, bool withChoices) const
{
    QStringList tries{sourceName};
    const QStringList parts = sourceName.split(u':');
    if (parts.size() > 1) {
        for (auto part = parts.crbegin(); part != parts.crend(); ++part)
            tries.append(*part);
    }
    for (const auto *names : {&m_chosen, &m_categoryKeys}) {
        if (names == &m_chosen && !withChoices)
            continue;
        for (const QString &name : tries) {
            const auto found = names->constFind(nameKey(name));
            if (found != names->cend())
                return *found;
        }
    }
    return std::nullopt;
}

std::optional<int> ImportMapping::paywayByName(const QString &sourceName, bool withChoices) const
{
    const QString key = nameKey(sourceName);
    if (const auto chosen = m_chosenPayways.constFind(key); withChoices && chosen != m_chosenPayways.cend())
        return *chosen;
    if (const auto ours = m_paywayKeys.constFind(key); ours != m_paywayKeys.cend())
        return *ours;
    return std::nullopt;
}

ImportMapping::Unmatched ImportMapping::unmatched(const ImportResult &imported) const
{
    Unmatched names;
    QSet<QString> categoriesSeen;
    QSet<QString> paywaysSeen;
    for (const CandidateEntry &candidate : imported.entries) {
        if (!candidate.category.isEmpty() && !goesToIncome(candidate, imported.amountsSigned)
            && !categoriesSeen.contains(candidate.category)) {
            categoriesSeen.insert(candidate.category);
            if (!categoryByName(candidate.category, false))
                names.categories.append(candidate.category);
        }
        if (!candidate.payway.isEmpty() && !paywaysSeen.contains(candidate.payway)) {
            paywaysSeen.insert(candidate.payway);
            if (!paywayByName(candidate.payway, false))
                names.payways.append(candidate.payway);
        }
    }
    return names;
}

ImportMapping::Result ImportMapping::map(const ImportResult &imported) const
{
    Result result;
    result.categories = m_categories;
    const int oldIncome = int(m_categories.size()) - 1;
    bool addsCategory = false;
    // A file names a few categories and modes many times over: each name
    // is compared once.
    QHash<QString, std::optional<int>> categoriesByName;
    QHash<QString, int> paywaysByName;
    result.entries.reserve(imported.entries.size());
    for (const CandidateEntry &candidate : imported.entries) {
        MappedEntry entry;
        entry.source = candidate;
        entry.amount = float(std::abs(candidate.amount));
        auto byName = categoriesByName.constFind(candidate.category);
        if (byName == categoriesByName.cend())
            byName = categoriesByName.insert(candidate.category, categoryByName(candidate.category, true));
        auto payway = paywaysByName.constFind(candidate.payway);
        if (payway == paywaysByName.cend())
            payway = paywaysByName.insert(candidate.payway, paywayByName(candidate.payway, true).value_or(0));
        entry.matched = byName->has_value();
        if (goesToIncome(candidate, imported.amountsSigned))
            entry.category = oldIncome;
        else if (*byName)
            entry.category = **byName;
        else if (m_newCategory.isEmpty())
            entry.category = m_unmatchedCategory;
        else
            entry.category = -1; // the new one, placed below
        addsCategory = addsCategory || entry.category == -1;
        entry.payway = *payway;
        result.entries.append(std::move(entry));
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
        const int id = MonthKey::of(date.year(), date.month());
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
