#include "storage/DurableFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QTemporaryFile>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <thread>
#include <unistd.h>

namespace DurableFile {

namespace {

std::optional<Fault> g_fault;

// How many files of a batch are synced at once.
constexpr qsizetype kSyncThreads = 8;

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
    const QString reason = writeEach({{path, content}}).constFirst();
    if (error && !reason.isEmpty())
        *error = reason;
    return reason.isEmpty();
}

QStringList writeEach(const QList<File> &files)
{
    QStringList reasons(files.size());
    const auto failed = [&reasons, &files](qsizetype i, const QString &reason) {
        fail(&reasons[i], files.at(i).path, reason);
    };
    std::vector<std::unique_ptr<QTemporaryFile>> temporaries(files.size());
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QFileInfo target(files.at(i).path);
        // Hidden, and removed again unless renamed: a write cut short leaves
        // nothing that looks like a file of ours.
        auto temporary = std::make_unique<QTemporaryFile>(
            target.dir().filePath(QStringLiteral(".%1.XXXXXX").arg(target.fileName())));
        if (injected(Step::Open, target.filePath()) || !temporary->open()) {
            failed(i, reasonOf(*temporary));
            continue;
        }
        // A file keeps who may read it; a new one is its owner's.
        if (target.exists())
            temporary->setPermissions(target.permissions());
        if (!writeAll(*temporary, target.filePath(), files.at(i).content)) {
            failed(i, reasonOf(*temporary));
            continue;
        }
        temporaries[i] = std::move(temporary);
    }

    // A flush of the disk waits for the device; many waited for side by side
    // take little longer than one.
    std::vector<int> syncErrors(files.size(), 0);
    std::atomic<qsizetype> next = 0;
    const auto syncNext = [&] {
        for (qsizetype i = next++; i < files.size(); i = next++) {
            if (temporaries[i] && !syncDescriptor(temporaries[i]->handle(), files.at(i).path))
                syncErrors[i] = errno;
        }
    };
    std::vector<std::thread> syncers;
    for (qsizetype n = std::min<qsizetype>(files.size(), kSyncThreads) - 1; n > 0; --n)
        syncers.emplace_back(syncNext);
    syncNext();
    for (std::thread &syncer : syncers)
        syncer.join();
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (syncErrors[i] != 0)
            failed(i, systemError(syncErrors[i]));
    }

    QMap<QString, QList<qsizetype>> renamedIn;
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (!temporaries[i] || !reasons.at(i).isEmpty())
            continue;
        const QString &path = files.at(i).path;
        if (injected(Step::Rename, path)
            || std::rename(QFile::encodeName(temporaries[i]->fileName()).constData(),
                           QFile::encodeName(path).constData())
                != 0) {
            failed(i, systemError(errno));
            continue;
        }
        temporaries[i]->setAutoRemove(false);
        renamedIn[QFileInfo(path).absolutePath()].append(i);
    }
    for (auto folder = renamedIn.cbegin(); folder != renamedIn.cend(); ++folder) {
        QString reason;
        if (syncFolder(folder.key(), &reason))
            continue;
        for (const qsizetype i : folder.value())
            reasons[i] = reason;
    }
    return reasons;
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
