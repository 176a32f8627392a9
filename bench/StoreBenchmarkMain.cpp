// The main of the benchmarks that work on a data folder through the store:
// its save timer needs an application object, and the settings must be the
// test ones, never the user's.

#include <QCoreApplication>
#include <QStandardPaths>

#include <benchmark/benchmark.h>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
