// Writes a realistic data folder for benchmarks, screenshots and trying the
// program out: by default 30 years of 400 entries a month.
#include "LedgerGenerator.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Writes a data folder of generated household entries."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("The folder to fill."));
    const QCommandLineOption years(QStringLiteral("years"), QStringLiteral("Number of years (30)."),
                                   QStringLiteral("n"), QStringLiteral("30"));
    const QCommandLineOption first(QStringLiteral("first-year"),
                                   QStringLiteral("The first year (1996)."), QStringLiteral("year"),
                                   QStringLiteral("1996"));
    const QCommandLineOption perMonth(QStringLiteral("per-month"),
                                      QStringLiteral("Entries a month (400)."), QStringLiteral("n"),
                                      QStringLiteral("400"));
    parser.addOptions({years, first, perMonth});
    parser.process(app);
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);

    const QString folder = parser.positionalArguments().constFirst();
    LedgerGenerator generator;
    if (!generator.writeDataFolder(folder, parser.value(first).toInt(), parser.value(years).toInt(),
                                   parser.value(perMonth).toInt())) {
        std::fprintf(stderr, "make_ledger: could not write %s\n", qPrintable(folder));
        return 1;
    }
    return 0;
}
