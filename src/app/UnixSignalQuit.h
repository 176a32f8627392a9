#pragma once

#include <QObject>

class QSocketNotifier;

// Ends the event loop in order when the session logs out or the process is
// told to stop (SIGTERM, SIGINT, SIGHUP), so that the application's last
// moments (writing edited months) still run. The handler only writes a byte
// to a socket; the event loop does the rest.
class UnixSignalQuit : public QObject
{
    Q_OBJECT

public:
    explicit UnixSignalQuit(QObject *parent = nullptr);
    ~UnixSignalQuit() override;

signals:
    void quitRequested();

private:
    QSocketNotifier *m_notifier = nullptr;
};
