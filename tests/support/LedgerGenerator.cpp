#include "LedgerGenerator.h"

#include "ledger/DataFolder.h"
#include "model/MonthDataList.h"
#include "storage/ColorArchive.h"
#include "storage/ListFile.h"
#include "storage/MonthFile.h"

#include <QDate>
#include <QDir>
#include <QSaveFile>

#include <array>

namespace {

struct Spending
{
    int category;
    const char *details;
    int low;  // whole units
    int high;
};

// Category indices follow categoryNames(); the last category is income.
constexpr std::array<Spending, 16> kSpending{{
    {0, "Supermarket", 300, 6000},   {0, "Bakery", 150, 900},
    {0, "Greengrocer", 100, 2500},   {1, "Lunch at work", 500, 1200},
    {1, "Dinner out", 2000, 9000},   {2, "Train pass", 1000, 12000},
    {2, "Taxi", 700, 4000},          {3, "Electricity", 3000, 12000},
    {3, "Gas", 2000, 8000},          {4, "Mobile phone", 3000, 9000},
    {5, "Pharmacy", 300, 3000},      {6, "Books", 500, 4000},
    {6, "Cinema", 1800, 3600},       {7, "Clothes", 1500, 20000},
    {8, "Gift", 1000, 15000},        {9, "Daily goods", 100, 2000},
}};

} // namespace

LedgerGenerator::LedgerGenerator(unsigned seed)
    : m_random(seed)
{
}

QStringList LedgerGenerator::categoryNames()
{
    return {QStringLiteral("Groceries"), QStringLiteral("Eating out"),
            QStringLiteral("Transport"), QStringLiteral("Utilities"),
            QStringLiteral("Phone"),     QStringLiteral("Health"),
            QStringLiteral("Leisure"),   QStringLiteral("Clothing"),
            QStringLiteral("Gifts"),     QStringLiteral("Household"),
            QStringLiteral("Rent"),      QStringLiteral("Income")};
}

QStringList LedgerGenerator::paywayNames()
{
    return {QStringLiteral("Cash"), QStringLiteral("Credit card"), QStringLiteral("Debit card"),
            QStringLiteral("Bank transfer")};
}

PaymentArray LedgerGenerator::monthRecords(int year, int month, int count)
{
    const int days = QDate(year, month, 1).daysInMonth();
    const int rent = 10;
    const int income = int(categoryNames().size()) - 1;
    std::uniform_int_distribution<int> day(1, days);
    std::uniform_int_distribution<std::size_t> kind(0, kSpending.size() - 1);
    std::uniform_int_distribution<int> payway(0, 3);
    std::uniform_int_distribution<int> cents(0, 99);
    std::bernoulli_distribution withCents(0.1);

    PaymentArray records;
    records.reserve(count);
    const auto add = [&](int d, int category, const QString &details, float amount, int way) {
        records.append(std::make_shared<PaymentData>(year, month, d, category, details, amount, way));
    };
    if (count >= 2) {
        add(25, income, QStringLiteral("Salary"), 320000, 3);
        add(27, rent, QStringLiteral("Rent"), 85000, 3);
    }
    while (records.size() < count) {
        const Spending &s = kSpending[kind(m_random)];
        float amount = float(std::uniform_int_distribution<int>(s.low, s.high)(m_random));
        if (withCents(m_random))
            amount += float(cents(m_random)) / 100.0f;
        add(day(m_random), s.category, QString::fromLatin1(s.details), amount, payway(m_random));
    }
    return records;
}

namespace {
QVariantList variants(const QStringList &names)
{
    QVariantList list;
    for (const QString &name : names)
        list.append(name);
    return list;
}
} // namespace

bool LedgerGenerator::writeDataFolder(const QString &folder, int firstYear, int years, int perMonth)
{
    if (!QDir().mkpath(folder))
        return false;
    const QStringList categories = categoryNames();
    QVariantList colors;
    for (const QByteArray &color : ColorArchive::initialColors(int(categories.size())))
        colors.append(color);
    bool ok = ListFile::setPreferenceDataListForKey(folder, variants(categories), ListFile::CategoryList)
        && ListFile::setPreferenceDataListForKey(folder, colors, ListFile::ColorList)
        && ListFile::setPreferenceDataListForKey(folder, variants(paywayNames()), ListFile::PaywayList);

    std::bernoulli_distribution withMemo(0.25);
    for (int year = firstYear; ok && year < firstYear + years; ++year) {
        for (int month = 1; ok && month <= 12; ++month) {
            MonthDataList list(year, month);
            PaymentArray records = monthRecords(year, month, perMonth);
            DataList::sortList(records, u"Date");
            list.setDataListArray(records);
            if (withMemo(m_random))
                list.setSummary(QStringLiteral("Car inspection due.\nRemember the gas bill."));
            QSaveFile file(DataFolder::filePathForYear(folder, year, month));
            ok = file.open(QIODevice::WriteOnly) && file.write(MonthFile::encode(list)) >= 0
                && file.commit();
        }
    }
    return ok;
}
