#pragma once

#include "ledger/ListConversion.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <functional>

// The record, in the data folder, of a renumbering of stored entries under
// way, so that one cut short (the program killed, the power gone) is finished
// at the next start instead of leaving months of two numberings.
//
// 1. begin() writes the journal ".penwick-conversion" atomically, in phase
//    "prepare": the maps, the new lists and every month file to convert.
// 2. writeMonth() puts each month's renumbered content into a side file,
//    "<month file>.converting"; the month files are not touched.
// 3. commit() rewrites the journal in phase "commit" once every side file is
//    on disk. From then on the change is decided.
// 4. finish() lets each side file replace its month file (a rename, which is
//    atomic), writes the new lists into the list file, and removes the journal.
//
// Found in phase "prepare", the months are all old: abandon() throws the side
// files away and a renumbering can be run again from the journal. A change
// whose month contents were given rather than computed (an undo) is not
// repeatable: it is dropped, and the folder stays as it was before it. Found in phase
// "commit", finish() is run again; it renames only the side files still
// there, so every month is either old with its new content waiting beside it,
// or new. Every step is on the disk, folder entries included, before the
// journal records the next; the side files are flushed together, at commit().
class ConversionJournal
{
    Q_DECLARE_TR_FUNCTIONS(ConversionJournal)

public:
    enum class Phase { None, Prepare, Commit };

    explicit ConversionJournal(const QString &folder);

    static QString journalPath(const QString &folder);
    static QString sideFilePath(const QString &monthFile);

    // Reads the folder's journal; Phase::None when there is none. False when
    // there is one that cannot be understood.
    bool read(QString *error);
    Phase phase() const { return m_phase; }
    const ListConversion &conversion() const { return m_conversion; }
    bool isRepeatable() const { return m_repeatable; }
    // File names of the months, relative to the folder.
    const QStringList &files() const { return m_files; }

    bool begin(const ListConversion &conversion, const QStringList &files, bool repeatable,
               QString *error);
    bool writeMonth(const QString &file, const QByteArray &content, QString *error);
    bool commit(QString *error);
    // replaced(n) after the n-th month file was replaced.
    bool finish(const std::function<void(int)> &replaced, QString *error);
    // Throws the side files and the journal away: the months stay as they are.
    void abandon();

private:
    bool writeJournal(Phase phase, QString *error);
    QString pathOf(const QString &file) const;

    QString m_folder;
    Phase m_phase = Phase::None;
    ListConversion m_conversion;
    QStringList m_files;
    bool m_repeatable = true;
};
