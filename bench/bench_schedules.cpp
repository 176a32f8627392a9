// Posting what twenty monthly schedules have due over thirty years into an
// empty data folder (7,200 entries in 360 months): the schedules' progress
// and every month in one journal record, then the 360 month files and the
// schedules file written, as a first start after a long time away does it.
#include "ledger/KController.h"
#include "recurring/ScheduleBook.h"
#include "recurring/ScheduleFile.h"
#include "settings/Settings.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int kFirstYear = 1996;
constexpr int kYears = 30;
constexpr int kSchedules = 20;

QByteArray twentyMonthlySchedules()
{
    QList<Schedule> schedules;
    for (int i = 0; i < kSchedules; ++i) {
        Schedule s;
        s.id = Schedule::newId();
        s.category = i % 10;
        s.details = QStringLiteral("Standing order %1").arg(i + 1);
        s.amount = QStringLiteral("1,200+%1").arg(i * 10);
        s.day = 1 + i * 3 / 2;
        s.start = QDate(kFirstYear, 1, 1);
        schedules.append(s);
    }
    return ScheduleFile::encode(schedules);
}

void BM_PostThirtyYearsOfTwentyMonthlySchedules(benchmark::State &state)
{
    const QByteArray file = twentyMonthlySchedules();
    const QDate today(kFirstYear + kYears - 1, 12, 31);
    qsizetype booked = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto dir = std::make_unique<QTemporaryDir>();
        Settings().setDataPath(dir->path());
        QFile schedules(ScheduleFile::path(dir->path()));
        if (!schedules.open(QIODevice::WriteOnly) || schedules.write(file) != file.size())
            qFatal("could not write the schedules");
        schedules.close();
        auto ledger = std::make_unique<KController>();
        ledger->readListPreference();
        ScheduleBook &book = *ledger->schedules();
        book.load();
        state.ResumeTiming();

        QList<ScheduleBook::Occurrence> offered;
        QString error;
        if (!book.postDue(today, &offered, &error))
            state.SkipWithError(qPrintable(error));

        state.PauseTiming();
        booked = 0;
        for (const Schedule &s : book.schedules())
            booked += s.done;
        ledger.reset();
        dir.reset();
        state.ResumeTiming();
    }
    state.counters["entries"] = double(booked);
    state.counters["months"] = kYears * 12;
}
BENCHMARK(BM_PostThirtyYearsOfTwentyMonthlySchedules)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
