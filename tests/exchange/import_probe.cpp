// A stand-in for the running application in the import crash test: it opens
// the data folder given through the application controller, says "ready",
// waits for a line on stdin, imports the file the way the preview does, says
// "booked" once that has returned, and runs its event loop until it is killed.
//
//   import_probe FOLDER FILE

#include "exchange/FileToImport.h"
#include "exchange/LedgerImport.h"
#include "settings/Settings.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: import_probe FOLDER FILE\n");
        return 2;
    }
    QStandardPaths::setTestModeEnabled(true);
    Settings().setDataPath(QString::fromLocal8Bit(argv[1]));
    const QString file = QString::fromLocal8Bit(argv[2]);

    KController controller;
    QString problem;
    if (!controller.replayChangeJournal(&problem))
        std::fprintf(stderr, "import_probe: %s\n", qPrintable(problem));
    controller.readListPreference();
    LedgerImport import(controller, FileToImport(file, Importer::Format::Csv).read(),
                        ImportMapping(controller.categoryList(), controller.paywayList()));
    std::printf("ready\n");
    std::fflush(stdout);
    char line[8];
    if (!std::fgets(line, sizeof line, stdin))
        return 1;
    if (!import.book(&problem)) {
        std::fprintf(stderr, "import_probe: %s\n", qPrintable(problem));
        return 1;
    }
    std::printf("booked\n");
    std::fflush(stdout);
    return app.exec();
}
