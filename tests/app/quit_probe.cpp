// A stand-in for the running program on a disk that takes nothing more: it
// opens the data folder given on the command line through the application
// controller, changes one entry the way a window does, cannot save it, says
// so on stdout and runs until a signal stops it, as the program does.

#include "UnixSignalQuit.h"

#include "app/KAppController.h"
#include "ledger/KController.h"
#include "model/DataList.h"
#include "settings/Settings.h"
#include "storage/DurableFile.h"

#include <QApplication>
#include <QStandardPaths>

#include <cerrno>
#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: quit_probe FOLDER YEAR MONTH\n");
        return 2;
    }
    // The program's own identity: the rescue folder lives under its name.
    QCoreApplication::setOrganizationName(QStringLiteral("Penwick"));
    QCoreApplication::setApplicationName(QStringLiteral("Penwick"));
    QStandardPaths::setTestModeEnabled(true);
    const QString folder = QString::fromLocal8Bit(argv[1]);
    Settings settings;
    settings.setDataPath(folder);
    settings.setVersion(1);

    KAppController controller;
    controller.confirmPassword();
    const auto list = controller.ledger()->listForYear(std::atoi(argv[2]), std::atoi(argv[3]));
    if (!list || list->dataListArray().isEmpty()) {
        std::fprintf(stderr, "quit_probe: no entries in that month\n");
        return 1;
    }
    DurableFile::setFaultForTesting(DurableFile::Fault{DurableFile::Step::Write, ENOSPC, folder});
    list->dataListArray().constFirst()->setDetails(QStringLiteral("rescued"));
    if (controller.ledger()->saveAllEditedData()) {
        std::fprintf(stderr, "quit_probe: the month was saved after all\n");
        return 1;
    }
    UnixSignalQuit signalQuit;
    QObject::connect(&signalQuit, &UnixSignalQuit::quitRequested, &controller,
                     &KAppController::terminate);
    QObject::connect(&app, &QCoreApplication::aboutToQuit, &controller,
                     &KAppController::applicationWillTerminate);
    std::printf("unsaved\n");
    std::fflush(stdout);
    return app.exec();
}
