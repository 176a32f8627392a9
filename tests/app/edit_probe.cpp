// A stand-in for the running application in the crash test: it opens the
// data folder given on the command line through the application controller,
// says "ready" and waits for a line on stdin, then makes one change of May 2006 the way a
// window does, says "edited" on stdout once the change has returned, and runs
// its event loop until it is killed.
//
//   edit_probe FOLDER amount|memo|delete|move VALUE

#include "ledger/KController.h"
#include "model/MonthDataList.h"
#include "model/PaymentData.h"
#include "settings/Settings.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <cstdio>
#include <cstring>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: edit_probe FOLDER amount|memo|delete|move VALUE\n");
        return 2;
    }
    QStandardPaths::setTestModeEnabled(true);
    Settings().setDataPath(QString::fromLocal8Bit(argv[1]));
    const QByteArray kind = argv[2];
    const QString value = QString::fromLocal8Bit(argv[3]);

    KController controller;
    QString problem;
    if (!controller.replayChangeJournal(&problem))
        std::fprintf(stderr, "edit_probe: %s\n", qPrintable(problem));
    const auto may = controller.monthListForYear(2006, 5);
    if (!may || may->dataListArray().isEmpty()) {
        std::fprintf(stderr, "edit_probe: no entries in May 2006\n");
        return 1;
    }
    std::printf("ready\n");
    std::fflush(stdout);
    char line[8];
    if (!std::fgets(line, sizeof line, stdin))
        return 1;

    const PaymentDataPtr first = may->dataListArray().constFirst();
    if (kind == "amount") {
        first->setAmount(value.toFloat());
    } else if (kind == "memo") {
        may->setSummary(value);
        may->setIsEdited(true);
        controller.keepChange(may.get());
    } else if (kind == "delete") {
        controller.deleteData({first});
    } else if (kind == "move") {
        first->setMonth(6);
        controller.moveData(first, may.get());
    } else {
        std::fprintf(stderr, "edit_probe: no such change\n");
        return 2;
    }
    std::printf("edited\n");
    std::fflush(stdout);
    return app.exec();
}
