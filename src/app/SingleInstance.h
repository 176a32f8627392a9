#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QStringList>

#include <memory>

// One running instance per data folder on this computer. The first launch
// holds a lock file named after the folder in the user's runtime folder and
// listens on a local socket of that name; a later launch
// finds the lock taken, hands its request (the files it was asked to open,
// or nothing, meaning "come to the front") to the running one and exits.
// A lock left behind by a crashed instance is recognised by its process ID
// and taken over.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    enum class Role {
        Primary,   // this process holds the folder and serves later launches
        Forwarded, // another instance holds it and has taken the request
        Failed     // neither: errorString() says why
    };

    explicit SingleInstance(const QString &dataFolder, QObject *parent = nullptr);
    ~SingleInstance() override;

    // Takes the folder, or hands the request to the instance that holds it.
    Role claimOrForward(const QStringList &request);
    QString errorString() const { return m_errorString; }
    // The program now works on another folder: the lock and the socket move
    // there. False when another instance already holds that folder.
    bool moveTo(const QString &dataFolder);

    // The socket name for a folder: the same folder gives the same name,
    // for this user only.
    static QString serverName(const QString &dataFolder);

signals:
    // A later launch asked for something; an empty request means "activate".
    void requestReceived(const QStringList &request);

private:
    static std::unique_ptr<QLockFile> lockFor(const QString &dataFolder);
    bool listen();
    bool forward(const QStringList &request);
    void readRequest(class QLocalSocket *socket);

    QString m_folder;
    std::unique_ptr<QLockFile> m_lock;
    QLocalServer m_server;
    QString m_errorString;
};
