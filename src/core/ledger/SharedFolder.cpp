#include "ledger/SharedFolder.h"

#include "ledger/DataFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
// Long enough for a sync tool to put down a handful of files, short enough to
// feel immediate.
constexpr int kSettleMs = 400;

std::optional<QByteArray> contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}
} // namespace

SharedFolder::SharedFolder(QObject *parent)
    : QObject(parent)
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(kSettleMs);
    connect(&m_settle, &QTimer::timeout, this, &SharedFolder::look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &SharedFolder::noticed);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &SharedFolder::noticed);
}

void SharedFolder::watch(const QString &folder)
{
    if (const QStringList paths = m_watcher.files() + m_watcher.directories(); !paths.isEmpty())
        m_watcher.removePaths(paths);
    m_known.clear();
    m_folder = folder;
    m_settle.stop();
    if (m_folder.isEmpty())
        return;
    m_watcher.addPath(m_folder);
    m_settle.start();
}

void SharedFolder::know(const QString &path, const std::optional<QByteArray> &bytes)
{
    if (!isWatching())
        return;
    m_known.insert(path, {bytes, stampOf(path)});
    if (bytes && !m_watcher.files().contains(path))
        m_watcher.addPath(path);
}

std::optional<QByteArray> SharedFolder::known(const QString &path) const
{
    return m_known.value(path).bytes;
}

std::optional<SharedFolder::FileChange> SharedFolder::changeOf(const QString &path)
{
    const auto found = m_known.find(path);
    if (found == m_known.end())
        return std::nullopt;
    const Stamp stamp = stampOf(path);
    if (stamp == found->stamp)
        return std::nullopt;
    const std::optional<QByteArray> bytes = stamp.exists ? contentOf(path) : std::nullopt;
    if (bytes == found->bytes) {
        // Touched, or written again with the same content: nothing to take.
        found->stamp = stamp;
        return std::nullopt;
    }
    return FileChange{path, bytes};
}

void SharedFolder::lookAgainLater()
{
    if (isWatching())
        m_settle.start();
}

bool SharedFolder::isConflictCopy(const QString &fileName)
{
    if (fileName.contains(u"conflict", Qt::CaseInsensitive))
        return true;
    // A month file under a name the program never writes: a copy ("Data_2024_3
    // (1).Penwick"), never read as the month.
    return fileName.endsWith(u".Penwick") && !DataFolder::yearMonthFromPath(fileName);
}

SharedFolder::Stamp SharedFolder::stampOf(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {};
    // The change of metadata is the system's own clock, set by every write
    // and rename, which no sync tool can set back.
    return {true, info.size(), info.lastModified(), info.metadataChangeTime()};
}

void SharedFolder::noticed()
{
    if (!m_settle.isActive())
        m_settle.start();
}

void SharedFolder::renewWatches()
{
    const QStringList watched = m_watcher.files();
    QStringList missing;
    for (auto it = m_known.cbegin(); it != m_known.cend(); ++it) {
        if (!watched.contains(it.key()) && QFileInfo::exists(it.key()))
            missing.append(it.key());
    }
    if (!missing.isEmpty())
        m_watcher.addPaths(missing);
    if (m_watcher.directories().isEmpty() && QFileInfo(m_folder).isDir())
        m_watcher.addPath(m_folder);
}

void SharedFolder::look()
{
    if (!isWatching())
        return;
    renewWatches();
    QList<FileChange> files;
    const QStringList paths = m_known.keys();
    for (const QString &path : paths) {
        if (auto change = changeOf(path))
            files.append(*change);
    }
    QStringList copies;
    const QDir folder(m_folder);
    for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden, QDir::Name)) {
        const QString path = folder.filePath(name);
        if (isConflictCopy(name) && !m_reportedCopies.contains(path)) {
            m_reportedCopies.insert(path);
            copies.append(name);
        }
    }
    if (!files.isEmpty() || !copies.isEmpty())
        emit changed(files, copies);
}
