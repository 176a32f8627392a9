#include "SingleInstance.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <QtDebug>

namespace {
// How long a later launch keeps trying: the running instance may hold the
// lock but still be starting, not yet listening.
constexpr int kForwardPatienceMs = 5000;
constexpr int kAnswerWaitMs = 2000;
constexpr char kReceived = 'y';
} // namespace

SingleInstance::SingleInstance(const QString &dataFolder, QObject *parent)
    : QObject(parent)
    , m_folder(dataFolder)
    , m_lock(lockFor(dataFolder))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *socket = m_server.nextPendingConnection()) {
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] { readRequest(socket); });
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
}

SingleInstance::~SingleInstance() = default;

std::unique_ptr<QLockFile> SingleInstance::lockFor(const QString &dataFolder)
{
    // Beside the socket, not in the folder: a folder a sync service shares
    // with another computer would carry the lock there too, and that
    // computer could not start while this one runs.
    auto lock = std::make_unique<QLockFile>(serverName(dataFolder) + QStringLiteral(".lock"));
    // Held for as long as the program runs; only a dead owner makes it stale.
    lock->setStaleLockTime(0);
    return lock;
}

bool SingleInstance::moveTo(const QString &dataFolder)
{
    auto lock = lockFor(dataFolder);
    if (!lock->tryLock(0) && lock->error() == QLockFile::LockFailedError) {
        m_errorString = tr("Another Penwick already works on the data folder \"%1\".")
                            .arg(QDir::toNativeSeparators(dataFolder));
        return false;
    }
    m_server.close();
    m_lock = std::move(lock);
    m_folder = dataFolder;
    return listen();
}

QString SingleInstance::serverName(const QString &dataFolder)
{
    const QFileInfo info(dataFolder);
    const QString folder = info.canonicalFilePath().isEmpty() ? info.absoluteFilePath()
                                                              : info.canonicalFilePath();
    const QByteArray digest =
        QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha1).toHex().left(20);
    QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (runtime.isEmpty())
        runtime = QDir::tempPath();
    return QDir(runtime).filePath(QStringLiteral("penwick-") + QString::fromLatin1(digest));
}

SingleInstance::Role SingleInstance::claimOrForward(const QStringList &request)
{
    const QDeadlineTimer patience(kForwardPatienceMs);
    for (;;) {
        if (m_lock->tryLock(0))
            return listen() ? Role::Primary : Role::Failed;
        if (m_lock->error() != QLockFile::LockFailedError) {
            // A folder we may not write to (a read-only copy, say) can still
            // be looked at; saving will report its own failures.
            qWarning("No lock file in %s; a second instance would not be noticed.",
                     qPrintable(QDir::toNativeSeparators(m_folder)));
            return listen() ? Role::Primary : Role::Failed;
        }
        if (forward(request))
            return Role::Forwarded;
        if (patience.hasExpired()) {
            m_errorString = tr("Penwick is already running on the data folder \"%1\" but does "
                               "not answer.")
                                .arg(QDir::toNativeSeparators(m_folder));
            return Role::Failed;
        }
        QThread::msleep(100);
    }
}

bool SingleInstance::listen()
{
    const QString name = serverName(m_folder);
    // Holding the lock, any socket of that name was left by a crashed run.
    QLocalServer::removeServer(name);
    if (m_server.listen(name))
        return true;
    m_errorString = tr("Penwick could not wait for later launches: %1").arg(m_server.errorString());
    return false;
}

bool SingleInstance::forward(const QStringList &request)
{
    QLocalSocket socket;
    socket.connectToServer(serverName(m_folder));
    if (!socket.waitForConnected(kAnswerWaitMs))
        return false;
    QByteArray message;
    QDataStream out(&message, QIODevice::WriteOnly);
    out << request;
    socket.write(message);
    if (!socket.waitForBytesWritten(kAnswerWaitMs))
        return false;
    while (socket.bytesAvailable() < 1) {
        if (!socket.waitForReadyRead(kAnswerWaitMs))
            return false;
    }
    char answer = 0;
    return socket.getChar(&answer) && answer == kReceived;
}

void SingleInstance::readRequest(QLocalSocket *socket)
{
    QDataStream stream(socket);
    stream.startTransaction();
    QStringList request;
    stream >> request;
    if (!stream.commitTransaction())
        return; // the rest is still on its way
    socket->putChar(kReceived);
    socket->flush();
    emit requestReceived(request);
}
