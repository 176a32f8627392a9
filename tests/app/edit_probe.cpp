// A stand-in for the running application in the crash test: it opens the
// data folder given on the command line through the application controller,
// changes one entry's amount the way a window does (through its setter), says
// so on stdout and then just runs its event loop until it is killed.

#include "ledger/KController.h"
#include "model/DataList.h"
#include "model/PaymentData.h"
#include "settings/Settings.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (argc != 5) {
        std::fprintf(stderr, "usage: edit_probe FOLDER YEAR MONTH AMOUNT\n");
        return 2;
    }
    QStandardPaths::setTestModeEnabled(true);
    Settings().setDataPath(QString::fromLocal8Bit(argv[1]));

    KController controller;
    const auto list = controller.listForYear(std::atoi(argv[2]), std::atoi(argv[3]));
    if (!list || list->dataListArray().isEmpty()) {
        std::fprintf(stderr, "edit_probe: no entries in that month\n");
        return 1;
    }
    list->dataListArray().constFirst()->setAmount(float(std::atof(argv[4])));
    std::printf("edited\n");
    std::fflush(stdout);
    return app.exec();
}
