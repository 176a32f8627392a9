#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// The one way the program puts a file on disk. A file is either wholly the
// new content, synced to the disk, or exactly what it was before: the
// content goes into a temporary file beside it, every byte is checked, the
// temporary file is synced, renamed over the old one and the folder synced.
// Any failure removes the temporary file and says why in the system's words
// ("No space left on device").
namespace DurableFile {

bool write(const QString &path, const QByteArray &content, QString *error = nullptr);

// Several files, each as write() puts it, with the disk flushed for all of
// them at once: every new content into a temporary file beside its file,
// all of those synced together, each renamed over its file, and each folder
// synced once. For each file the reason it was not written, empty where it
// was.
struct File
{
    QString path;
    QByteArray content;
};
QStringList writeEach(const QList<File> &files);

// For a batch of files that only count once all of them are on disk (the
// renumbering's side files): written in place, every byte checked, and not
// synced until syncToDisk() — one flush of the disk for the lot.
bool writeUnsynced(const QString &path, const QByteArray &content, QString *error = nullptr);
bool syncToDisk(const QString &path, QString *error = nullptr);
// Renames within one folder; the caller syncs the folder.
bool rename(const QString &from, const QString &to, QString *error = nullptr);
// Makes the folder's entries (new names, renames, removals) durable.
bool syncFolder(const QString &folder, QString *error = nullptr);

// For tests: makes the given step of the next writes fail with the error
// number, as a full disk (ENOSPC) or a read-only file system (EROFS) would;
// only for paths within the folder `under` when one is given.
enum class Step { Open, Write, SyncFile, Rename, SyncFolder };
struct Fault
{
    Step step;
    int error;
    QString under = {};
};
void setFaultForTesting(std::optional<Fault> fault);

} // namespace DurableFile
