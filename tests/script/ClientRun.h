#pragma once

#include <QProcess>
#include <QSignalSpy>
#include <QString>
#include <QStringList>
#include <QTest>

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

inline ClientRun penwickctl(const QStringList &arguments)
{
    return runClient(QStringLiteral(PENWICKCTL_PATH), arguments);
}

// A session bus of the test's own, for it and the clients it starts, until
// the test ends.
class PrivateBus
{
public:
    ~PrivateBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
    void start()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address=1")});
        QVERIFY(m_daemon.waitForReadyRead(10000));
        const QByteArray address = m_daemon.readLine().trimmed();
        QVERIFY(!address.isEmpty());
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    }

private:
    QProcess m_daemon;
};
