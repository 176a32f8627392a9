#pragma once

#include <QProcess>
#include <QSignalSpy>
#include <QString>
#include <QStringList>

// What a client program said and how it ended.
struct ClientRun
{
    int exitCode = -1;
    QString out;
    QString err;
};

// Runs a client on the private bus while this process keeps serving it:
// waiting through the event loop, not blocking it.
inline ClientRun runClient(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QSignalSpy finished(&process, &QProcess::finished);
    process.start(program, arguments);
    if (!finished.wait(20000))
        qFatal("%s did not finish", qPrintable(program));
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}
