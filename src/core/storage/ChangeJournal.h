#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QString>

// The append-only file that makes a change durable the moment it is made,
// long before its month file is rewritten. Each record holds the whole month
// files one change touched (a move touches two), so replaying is nothing but
// taking the last content of each month; a record is one write and one
// fdatasync, a fraction of a millisecond, where rewriting a month atomically
// costs two full syncs.
//
// A record may also carry the whole new content of other files of the data
// folder (the schedules), so that a change of entries and of such a file is
// one step: both or neither. Records without files read as before.
//
// The file starts with a signature; each record is its length, a checksum and
// the months, then the files, if any. A record cut short by a crash fails its length or checksum and
// ends the reading: what follows it was never acknowledged.
class ChangeJournal
{
    Q_DECLARE_TR_FUNCTIONS(ChangeJournal)

public:
    struct Month
    {
        int year;
        int month;
        QByteArray content;
    };

    // A file of the data folder by its name there.
    struct File
    {
        QString name;
        QByteArray content;
    };

    struct Contents
    {
        // The last content of each month, in the order of their last records.
        QList<Month> months;
        // The same for the files.
        QList<File> files;
        // Bytes after the last whole record: a change being written when the
        // program stopped.
        bool torn = false;
        // The file is not a journal at all; nothing was taken from it.
        bool foreign = false;
    };

    explicit ChangeJournal(const QString &path);
    ~ChangeJournal();
    ChangeJournal(const ChangeJournal &) = delete;
    ChangeJournal &operator=(const ChangeJournal &) = delete;

    QString path() const { return m_path; }

    // Adds one record and syncs it to the disk before answering. A record
    // that could not be written whole is taken back, so the file stays
    // readable; false then, with the system's reason.
    bool append(const QList<Month> &months, QString *error = nullptr,
                const QList<File> &files = {});
    // Deletes the file, durably: once every month it holds is in its file,
    // an old record must never be replayed over a newer month.
    bool remove(QString *error = nullptr);

    static Contents read(const QByteArray &bytes);
    // No file reads as empty.
    static Contents readFile(const QString &path, QString *error = nullptr);

private:
    bool open(QString *error);
    void close();

    QString m_path;
    int m_fd = -1;
};
