#pragma once

#include "model/PaymentData.h"

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

class ScriptHost;

// The desktop's search on a D-Bus connection, under a name of its own: the
// GNOME search provider and the KDE runner, both answering with the same
// entries from the core's search. A locked program finds nothing and shows
// nothing.
class SearchService : public QObject
{
    Q_OBJECT

public:
    SearchService(ScriptHost *host, const QDBusConnection &connection, QObject *parent = nullptr);
    ~SearchService() override;

    // Registers both objects and takes the name; false, with the reason in
    // errorString(), when the bus refused.
    bool start();
    QString errorString() const { return m_errorString; }

    // What the two objects forward to.
    QStringList resultIDs(const QStringList &words);
    // The entry of a result; null when it is gone or the program is locked.
    PaymentDataPtr entry(const QString &id) const;
    void showEntry(const QString &id);
    void showList();

signals:
    // A search was answered: the desktop is still asking.
    void searched();

private:
    ScriptHost *m_host;
    QDBusConnection m_connection;
    QString m_errorString;
};
