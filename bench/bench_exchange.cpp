// Files in and out at the size of a life's household book: thirty years of
// 400 entries a month (144,000). A HomeBank file of that size is generated
// here; our own ledger comes from the ledger generator.
#include "LedgerGenerator.h"

#include "exchange/CsvExport.h"
#include "exchange/CsvImporter.h"
#include "exchange/HomeBankImporter.h"
#include "exchange/ImportMapping.h"
#include "exchange/LedgerImport.h"
#include "ledger/KController.h"
#include "settings/Settings.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <random>

namespace {

constexpr int kFirstYear = 1996;
constexpr int kYears = 30;
constexpr int kPerMonth = 400;

// A HomeBank file as the program writes it: payees, a two-level category
// tree with income categories, and operations of every payment mode, one in
// twenty split in two.
QByteArray homeBankFile()
{
    std::mt19937 random(2006);
    QByteArray xml = "<?xml version=\"1.0\"?>\n<homebank v=\"1.4\" d=\"050504\">\n"
                     "<properties title=\"Household\" curr=\"1\"/>\n"
                     "<account key=\"1\" pos=\"1\" type=\"1\" curr=\"1\" name=\"Bank\"/>\n";
    for (int payee = 1; payee <= 200; ++payee)
        xml += "<pay key=\"" + QByteArray::number(payee) + "\" name=\"Payee " + QByteArray::number(payee)
            + "\"/>\n";
    for (int parent = 1; parent <= 10; ++parent) {
        const bool income = parent == 10;
        xml += "<cat key=\"" + QByteArray::number(parent) + "\" flags=\"" + (income ? "2" : "0")
            + "\" name=\"Group " + QByteArray::number(parent) + "\"/>\n";
        for (int child = 1; child <= 4; ++child) {
            xml += "<cat key=\"" + QByteArray::number(parent * 10 + child) + "\" parent=\""
                + QByteArray::number(parent) + "\" flags=\"" + (income ? "3" : "1") + "\" name=\"Part "
                + QByteArray::number(child) + "\"/>\n";
        }
    }
    const qint64 dayZero = QDate(1, 1, 1).toJulianDay() - 1;
    std::uniform_int_distribution<int> payee(1, 200), category(11, 104), mode(0, 11), cents(1, 2000000);
    for (int year = kFirstYear; year < kFirstYear + kYears; ++year) {
        for (int month = 1; month <= 12; ++month) {
            const QDate first(year, month, 1);
            std::uniform_int_distribution<int> day(0, first.daysInMonth() - 1);
            for (int i = 0; i < kPerMonth; ++i) {
                const int cat = category(random) % 10 == 0 ? 101 : category(random) / 10 * 10 + 1;
                const bool income = cat > 100;
                const double amount = (income ? 1 : -1) * cents(random) / 100.0;
                xml += "<ope date=\"" + QByteArray::number(first.toJulianDay() + day(random) - dayZero)
                    + "\" amount=\"" + QByteArray::number(amount, 'g', 12) + "\" account=\"1\" paymode=\""
                    + QByteArray::number(mode(random)) + "\" payee=\"" + QByteArray::number(payee(random))
                    + "\" category=\"" + QByteArray::number(cat) + "\" memo=\"Operation "
                    + QByteArray::number(i) + "\"";
                if (i % 20 == 0) {
                    xml += " scat=\"" + QByteArray::number(cat) + "||12\" samt=\""
                        + QByteArray::number(amount / 2, 'g', 12) + "||" + QByteArray::number(amount / 2, 'g', 12)
                        + "\" smem=\"first||second\"";
                }
                xml += "/>\n";
            }
        }
    }
    return xml + "</homebank>\n";
}

void BM_ParseHomeBankThirtyYears(benchmark::State &state)
{
    static const QByteArray file = homeBankFile();
    qsizetype entries = 0;
    for (auto _ : state) {
        const ImportResult result = HomeBankImporter().parse(file);
        entries = result.entries.size();
        benchmark::DoNotOptimize(result);
    }
    state.counters["entries"] = double(entries);
    state.counters["MB"] = double(file.size()) / 1e6;
}
BENCHMARK(BM_ParseHomeBankThirtyYears)->Unit(benchmark::kMillisecond)->UseRealTime();

// The whole import of a file into an empty data folder, as File > Import
// runs it: read, put onto the lists, checked for duplicates, booked as one
// change, and every month file written.
template <typename Read>
void importIntoEmptyFolder(benchmark::State &state, const Read &read)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto dir = std::make_unique<QTemporaryDir>();
        Settings().setDataPath(dir->path());
        auto ledger = std::make_unique<KController>();
        ledger->readListPreference();
        state.ResumeTiming();
        LedgerImport import(*ledger, read(), ImportMapping(ledger->categoryList(), ledger->paywayList()));
        QString error;
        if (!import.book(&error))
            qFatal("the import was not booked: %s", qPrintable(error));
        state.PauseTiming();
        state.counters["months"] = double(import.report().months.size());
        state.counters["entries"] = double(import.report().booked);
        ledger.reset();
        dir.reset();
        state.ResumeTiming();
    }
}

void BM_ImportHomeBankIntoEmptyFolder(benchmark::State &state)
{
    static const QByteArray file = homeBankFile();
    importIntoEmptyFolder(state, [] { return HomeBankImporter().parse(file); });
}
BENCHMARK(BM_ImportHomeBankIntoEmptyFolder)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

PaymentArray thirtyYears()
{
    LedgerGenerator generator;
    PaymentArray records;
    for (int year = kFirstYear; year < kFirstYear + kYears; ++year) {
        for (int month = 1; month <= 12; ++month)
            records += generator.monthRecords(year, month, kPerMonth);
    }
    return records;
}

void BM_ExportCsvTextThirtyYears(benchmark::State &state)
{
    const PaymentArray records = thirtyYears();
    for (auto _ : state)
        benchmark::DoNotOptimize(CsvExport::text(records, LedgerGenerator::categoryNames(),
                                                 LedgerGenerator::paywayNames()));
    state.counters["entries"] = double(records.size());
}
BENCHMARK(BM_ExportCsvTextThirtyYears)->Unit(benchmark::kMillisecond)->UseRealTime();

// As `penwickctl export all` costs a program that has not yet loaded any
// month: every month file read, then written out as CSV.
void BM_ExportCsvFromDataFolderThirtyYears(benchmark::State &state)
{
    QTemporaryDir dir;
    if (!LedgerGenerator().writeDataFolder(dir.path(), kFirstYear, kYears, kPerMonth))
        qFatal("could not write the benchmark folder");
    Settings().setDataPath(dir.path());
    for (auto _ : state) {
        KController ledger;
        QString error;
        benchmark::DoNotOptimize(CsvExport::ledgerText(ledger, {}, &error));
    }
}
BENCHMARK(BM_ExportCsvFromDataFolderThirtyYears)->Unit(benchmark::kMillisecond)->UseRealTime();

// Our own export of thirty years read back, as the whole import above.
void BM_ReimportCsvThirtyYears(benchmark::State &state)
{
    static const QByteArray text = CsvExport::text(thirtyYears(), LedgerGenerator::categoryNames(),
                                                   LedgerGenerator::paywayNames());
    importIntoEmptyFolder(state, [] { return CsvImporter().parse(text); });
}
BENCHMARK(BM_ReimportCsvThirtyYears)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

} // namespace
