// Renumbers the data folder it is given with the tests' swap conversion and
// kills itself with SIGKILL right after the given step, the way a crash or a
// power cut would stop the program.
#include "SwapConversion.h"

#include "ledger/KController.h"
#include "settings/Settings.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <csignal>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 3)
        return 2;
    QStandardPaths::setTestModeEnabled(true);
    Settings().setDataPath(QString::fromLocal8Bit(argv[1]));
    const int killAt = QByteArray(argv[2]).toInt();
    KController controller;
    QObject::connect(&controller, &KController::conversionProgress, [killAt](int done) {
        if (done == killAt)
            std::raise(SIGKILL);
    });
    return controller.convertStoredData(swapConversion()) ? 0 : 1;
}
