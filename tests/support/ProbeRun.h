#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>
#include <thread>

// Runs a crash probe: starts it, waits until it says "ready", tells it to go
// and kills it the given time later, in the midst of its work. Answers what
// it printed to its standard output, or nothing when it never got ready or
// would not die. The waits are long: right after a build the disk is busy
// writing it back, and a probe's syncs, which a kill cannot cut short, may
// then take seconds.
constexpr int kProbeWaitMs = 30000;

inline std::optional<QByteArray> killProbeAfter(const QString &program,
                                                const QStringList &arguments,
                                                std::chrono::microseconds delay)
{
    QProcess probe;
    probe.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    probe.start(program, arguments);
    if (!probe.waitForReadyRead(kProbeWaitMs) || probe.readLine().trimmed() != "ready")
        return std::nullopt;
    probe.write("go\n");
    if (!probe.waitForBytesWritten(1000))
        return std::nullopt;
    std::this_thread::sleep_for(delay);
    probe.kill();
    if (!probe.waitForFinished(kProbeWaitMs))
        return std::nullopt;
    return probe.readAllStandardOutput();
}
