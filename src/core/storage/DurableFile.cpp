#include "storage/DurableFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace DurableFile {

namespace {

std::optional<Fault> g_fault;

QString tr(const char *text)
{
    return QCoreApplication::translate("DurableFile", text);
}

// True when a test asked this step to fail for the path; errno then says how.
bool injected(Step step, const QString &path)
{
    if (!g_fault || g_fault->step != step
        || (!g_fault->under.isEmpty() && !path.startsWith(g_fault->under + u'/')))
        return false;
    errno = g_fault->error;
    return true;
}

QString systemError(int number)
{
    return QString::fromLocal8Bit(std::strerror(number));
}

bool fail(QString *error, const QString &path, const QString &reason)
{
    if (error)
        *error = tr("%1 could not be written: %2").arg(path, reason);
    return false;
}

bool syncDescriptor(int fd, const QString &path)
{
    return !injected(Step::SyncFile, path) && ::fsync(fd) == 0;
}

// Every byte of content into the open file, or false.
bool writeAll(QFileDevice &file, const QString &path, const QByteArray &content)
{
    if (injected(Step::Write, path))
        return false;
    return file.write(content) == content.size() && file.flush();
}

QString reasonOf(const QFileDevice &file)
{
    // An injected fault leaves the device without an error of its own.
    return file.error() == QFileDevice::NoError ? systemError(errno) : file.errorString();
}

} // namespace

bool write(const QString &path, const QByteArray &content, QString *error)
{
    QSaveFile file(path);
    if (injected(Step::Open, path) || !file.open(QIODevice::WriteOnly))
        return fail(error, path, reasonOf(file));
    if (!writeAll(file, path, content)) {
        const QString reason = reasonOf(file);
        file.cancelWriting();
        return fail(error, path, reason);
    }
    if (!syncDescriptor(file.handle(), path)) {
        const QString reason = systemError(errno);
        file.cancelWriting();
        return fail(error, path, reason);
    }
    if (injected(Step::Rename, path)) {
        const QString reason = systemError(errno);
        file.cancelWriting();
        return fail(error, path, reason);
    }
    if (!file.commit())
        return fail(error, path, file.errorString());
    return syncFolder(QFileInfo(path).absolutePath(), error);
}

bool writeUnsynced(const QString &path, const QByteArray &content, QString *error)
{
    QFile file(path);
    if (injected(Step::Open, path) || !file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return fail(error, path, reasonOf(file));
    if (!writeAll(file, path, content))
        return fail(error, path, reasonOf(file));
    return true;
}

bool syncToDisk(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(error, path, file.errorString());
    if (!syncDescriptor(file.handle(), path))
        return fail(error, path, systemError(errno));
    return true;
}

bool rename(const QString &from, const QString &to, QString *error)
{
    if (injected(Step::Rename, to)
        || std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData())
            != 0) {
        if (error)
            *error = tr("%1 could not be replaced: %2").arg(to, systemError(errno));
        return false;
    }
    return true;
}

bool syncFolder(const QString &folder, QString *error)
{
    const int fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
    const bool synced = fd >= 0 && !injected(Step::SyncFolder, folder + QStringLiteral("/.")) && ::fsync(fd) == 0;
    const int cause = errno;
    if (fd >= 0)
        ::close(fd);
    if (!synced && error)
        *error = tr("The folder %1 could not be written to disk: %2").arg(folder, systemError(cause));
    return synced;
}

void setFaultForTesting(std::optional<Fault> fault)
{
    g_fault = fault;
}

} // namespace DurableFile
