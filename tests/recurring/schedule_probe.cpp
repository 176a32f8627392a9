// A stand-in for the running application in the posting crash test: it opens
// the data folder given the way the application starts, says "ready", waits
// for a line on stdin, books what the schedules have due up to the day, says
// "posted" once that has returned, and runs its event loop until it is killed.
//
//   schedule_probe FOLDER YYYY-MM-DD

#include "ledger/KController.h"
#include "recurring/ScheduleBook.h"
#include "settings/Settings.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: schedule_probe FOLDER YYYY-MM-DD\n");
        return 2;
    }
    QStandardPaths::setTestModeEnabled(true);
    Settings().setDataPath(QString::fromLocal8Bit(argv[1]));
    const QDate day = QDate::fromString(QString::fromLocal8Bit(argv[2]), Qt::ISODate);

    KController ledger;
    QString problem;
    if (!ledger.finishInterruptedConversion(&problem) || !ledger.replayChangeJournal(&problem))
        std::fprintf(stderr, "schedule_probe: %s\n", qPrintable(problem));
    ledger.readListPreference();
    ScheduleBook &book = *ledger.schedules();
    book.load();
    std::printf("ready\n");
    std::fflush(stdout);
    char line[8];
    if (!std::fgets(line, sizeof line, stdin))
        return 1;
    QList<ScheduleBook::Occurrence> offered;
    if (!book.postDue(day, &offered, &problem)) {
        std::fprintf(stderr, "schedule_probe: %s\n", qPrintable(problem));
        return 1;
    }
    std::printf("posted\n");
    std::fflush(stdout);
    return app.exec();
}
