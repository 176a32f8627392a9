#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

#include <optional>

// Notices when files of the data folder are changed by someone else: a second
// computer whose sync service shares the folder, most likely.
//
// The program tells it, file by file, the bytes it read from or wrote to a
// file (know()); a file is somebody else's change only when its bytes differ
// from those. Timestamps are no proof either way (sync tools set the other
// computer's), so they only spare reading files that were not touched at all.
// Sync tools replace a file by renaming a new one over it, which ends a watch
// on the file, so the folder is watched too and the files' watches are
// renewed at every look. A burst of events is looked at once, a moment after
// the first.
//
// It also lists the copies sync tools leave when both computers changed a
// file at once: names with "conflict" in them, or month-file names that do not
// read as a month. Each is reported once a run; none is ever touched.
class SharedFolder : public QObject
{
    Q_OBJECT

public:
    struct FileChange
    {
        QString path;
        // The file's bytes now; nothing when it is gone.
        std::optional<QByteArray> bytes;
    };

    explicit SharedFolder(QObject *parent = nullptr);

    // Starts watching the folder, forgetting any earlier one and its files;
    // an empty path stops. The first look, for conflict copies, comes soon.
    void watch(const QString &folder);
    bool isWatching() const { return !m_folder.isEmpty(); }
    // What the file now holds by the program's own doing (nothing: there is
    // no file). From now on the file is watched. Ignored while not watching.
    void know(const QString &path, const std::optional<QByteArray> &bytes);
    bool knows(const QString &path) const { return m_known.contains(path); }
    // The bytes known of the file.
    std::optional<QByteArray> known(const QString &path) const;
    // The file as it is, when it holds other bytes than known; checked now.
    std::optional<FileChange> changeOf(const QString &path);
    // Looks again in a moment (the changes could not be taken yet).
    void lookAgainLater();

    static bool isConflictCopy(const QString &fileName);

signals:
    // Files known whose bytes changed, and conflict copies not reported yet.
    // Nothing is counted as known until the receiver says so with know().
    void changed(const QList<SharedFolder::FileChange> &files, const QStringList &newConflictCopies);

private:
    struct Stamp
    {
        bool exists = false;
        qint64 size = 0;
        QDateTime modified;
        QDateTime metadataChanged;
        bool operator==(const Stamp &) const = default;
    };
    struct Known
    {
        std::optional<QByteArray> bytes;
        Stamp stamp;
    };
    static Stamp stampOf(const QString &path);
    void noticed();
    void look();
    void renewWatches();

    QFileSystemWatcher m_watcher;
    QTimer m_settle;
    QString m_folder;
    QHash<QString, Known> m_known;
    // Whole paths, so that a copy is told once a run, whatever the folder.
    QSet<QString> m_reportedCopies;
};
