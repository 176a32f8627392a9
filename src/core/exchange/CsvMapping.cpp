#include "CsvMapping.h"

#include "DateReading.h"

#include "settings/Settings.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

using Role = CsvMapping::Role;

QString folded(QStringView text)
{
    return text.trimmed().toString().normalized(QString::NormalizationForm_KC).toCaseFolded();
}

// Header words by role, checked in this order so that "出金金額" is a debit
// before it is an amount and "payment date" a date before a payway.
struct RoleWords
{
    Role role;
    QStringList words;
};

const std::array<RoleWords, 7> &roleWords()
{
    static const std::array<RoleWords, 7> table{{
        {Role::Debit, {u"debit"_s, u"withdrawal"_s, u"money out"_s, u"paid out"_s, u"soll"_s,
                       u"出金"_s, u"お引出"_s, u"引出"_s, u"支払金額"_s, u"支払い金額"_s}},
        {Role::Credit, {u"credit"_s, u"deposit"_s, u"money in"_s, u"paid in"_s, u"haben"_s,
                        u"入金"_s, u"お預入"_s, u"預入"_s}},
        {Role::Date, {u"date"_s, u"datum"_s, u"fecha"_s, u"日付"_s, u"取引日"_s, u"年月日"_s,
                      u"利用日"_s, u"取扱日"_s}},
        {Role::Amount, {u"amount"_s, u"betrag"_s, u"importe"_s, u"montant"_s, u"金額"_s}},
        {Role::Category, {u"category"_s, u"kategorie"_s, u"分類"_s, u"カテゴリ"_s, u"費目"_s}},
        {Role::Payway, {u"payway"_s, u"payment method"_s, u"paymode"_s, u"支払い方法"_s,
                        u"支払方法"_s, u"決済方法"_s}},
        {Role::Details, {u"details"_s, u"description"_s, u"memo"_s, u"payee"_s, u"narrative"_s,
                         u"wording"_s, u"verwendungszweck"_s, u"摘要"_s, u"内容"_s, u"店名"_s,
                         u"備考"_s}},
    }};
    return table;
}

std::optional<Role> roleOfWord(const QString &header)
{
    const QString word = folded(header);
    for (const RoleWords &entry : roleWords()) {
        for (const QString &known : entry.words) {
            if (word.contains(known))
                return entry.role;
        }
    }
    return std::nullopt;
}

const std::array<std::pair<Role, QLatin1StringView>, 8> roleNames{{
    {Role::Ignore, "ignore"_L1},
    {Role::Date, "date"_L1},
    {Role::Amount, "amount"_L1},
    {Role::Debit, "debit"_L1},
    {Role::Credit, "credit"_L1},
    {Role::Details, "details"_L1},
    {Role::Category, "category"_L1},
    {Role::Payway, "payway"_L1},
}};

const std::array<std::pair<DateOrder, QLatin1StringView>, 3> orderNames{{
    {DateOrder::YearMonthDay, "ymd"_L1},
    {DateOrder::DayMonthYear, "dmy"_L1},
    {DateOrder::MonthDayYear, "mdy"_L1},
}};

template<typename Value, std::size_t N>
std::optional<Value> valueNamed(const std::array<std::pair<Value, QLatin1StringView>, N> &names,
                                const QString &name)
{
    for (const auto &[value, known] : names) {
        if (known == name)
            return value;
    }
    return std::nullopt;
}

template<typename Value, std::size_t N>
QString nameOf(const std::array<std::pair<Value, QLatin1StringView>, N> &names, Value value)
{
    for (const auto &[known, name] : names) {
        if (known == value)
            return name;
    }
    return {};
}

} // namespace

bool CsvMapping::isUsable() const
{
    return roles.contains(Role::Date)
        && (roles.contains(Role::Amount) || roles.contains(Role::Debit) || roles.contains(Role::Credit));
}

CsvMapping CsvMapping::guess(const QStringList &header)
{
    CsvMapping mapping;
    for (const QString &name : header) {
        Role role = roleOfWord(name).value_or(Role::Ignore);
        // Only details may come from several columns.
        if (role != Role::Details && mapping.roles.contains(role))
            role = Role::Ignore;
        mapping.roles.append(role);
    }
    return mapping;
}

CsvMapping CsvMapping::guessFromContent(const QList<QStringList> &rows)
{
    CsvMapping mapping;
    mapping.hasHeader = false;
    qsizetype columns = 0;
    for (const QStringList &row : rows)
        columns = std::max(columns, row.size());
    mapping.roles.fill(Role::Ignore, columns);
    const QList<DateOrder> orders = DateReading::localPreference();
    qsizetype longest = -1;
    double longestLength = 0;
    for (qsizetype c = 0; c < columns; ++c) {
        QStringList texts;
        for (const QStringList &row : rows)
            texts.append(row.value(c));
        const auto isDate = [&](const QString &t) {
            return std::any_of(orders.cbegin(), orders.cend(),
                               [&](DateOrder o) { return DateReading::read(t, o).has_value(); });
        };
        const auto isAmount = [](const QString &t) {
            return AmountReading::read(t, AmountReading::markOf({t})).has_value();
        };
        const auto all = [&](auto test) {
            return std::all_of(texts.cbegin(), texts.cend(),
                               [&](const QString &t) { return t.trimmed().isEmpty() || test(t); });
        };
        if (!mapping.roles.contains(Role::Date) && all(isDate)) {
            mapping.roles[c] = Role::Date;
        } else if (!mapping.roles.contains(Role::Amount) && all(isAmount)) {
            mapping.roles[c] = Role::Amount;
        } else if (!all(isAmount)) {
            double length = 0;
            for (const QString &text : texts)
                length += double(text.size()) / double(texts.size());
            if (length > longestLength) {
                longest = c;
                longestLength = length;
            }
        }
    }
    if (longest >= 0)
        mapping.roles[longest] = Role::Details;
    return mapping;
}

QStringList CsvMapping::exportHeader()
{
    // A file format, not a window's text: the same in every language, so
    // that any Penwick reads any Penwick's export.
    return {u"Date"_s, u"Category"_s, u"Details"_s, u"Amount"_s, u"Payway"_s};
}

CsvMapping CsvMapping::ownExport()
{
    CsvMapping mapping;
    mapping.roles = {Role::Date, Role::Category, Role::Details, Role::Amount, Role::Payway};
    mapping.delimiter = ',';
    mapping.encoding = u"UTF-8"_s;
    mapping.dateOrder = DateOrder::YearMonthDay;
    mapping.decimalMark = DecimalMark::Point;
    mapping.signedAmounts = false;
    mapping.exactDetails = true;
    return mapping;
}

std::optional<CsvMapping> CsvMapping::remembered(const QStringList &header)
{
    const QVariantMap map = Settings().csvImportMapping(header);
    if (map.isEmpty())
        return std::nullopt;
    return fromVariantMap(map);
}

void CsvMapping::remember(const QStringList &header) const
{
    Settings().setCsvImportMapping(header, toVariantMap());
}

QVariantMap CsvMapping::toVariantMap() const
{
    QStringList names;
    for (const Role role : roles)
        names.append(nameOf(roleNames, role));
    QVariantMap map{{u"roles"_s, names},
                    {u"hasHeader"_s, hasHeader},
                    {u"delimiter"_s, QString(QLatin1Char(delimiter))},
                    {u"encoding"_s, encoding},
                    {u"signedAmounts"_s, signedAmounts},
                    {u"exactDetails"_s, exactDetails}};
    if (dateOrder)
        map.insert(u"dateOrder"_s, nameOf(orderNames, *dateOrder));
    if (decimalMark)
        map.insert(u"decimalMark"_s, *decimalMark == DecimalMark::Comma ? u"comma"_s : u"point"_s);
    return map;
}

CsvMapping CsvMapping::fromVariantMap(const QVariantMap &map)
{
    CsvMapping mapping;
    for (const QString &name : map.value(u"roles"_s).toStringList())
        mapping.roles.append(valueNamed(roleNames, name).value_or(Role::Ignore));
    mapping.hasHeader = map.value(u"hasHeader"_s, true).toBool();
    const QString delimiter = map.value(u"delimiter"_s).toString();
    if (delimiter.size() == 1 && QStringView(u",;\t").contains(delimiter.front()))
        mapping.delimiter = delimiter.front().toLatin1();
    mapping.encoding = map.value(u"encoding"_s).toString();
    mapping.dateOrder = valueNamed(orderNames, map.value(u"dateOrder"_s).toString());
    const QString mark = map.value(u"decimalMark"_s).toString();
    if (mark == u"comma"_s || mark == u"point"_s)
        mapping.decimalMark = mark == u"comma"_s ? DecimalMark::Comma : DecimalMark::Point;
    mapping.signedAmounts = map.value(u"signedAmounts"_s, true).toBool();
    mapping.exactDetails = map.value(u"exactDetails"_s, false).toBool();
    return mapping;
}
