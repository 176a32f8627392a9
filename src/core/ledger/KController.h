#pragma once

#include "ledger/FolderFiles.h"
#include "ledger/ListConversion.h"
#include "ledger/SharedFolder.h"
#include "model/LedgerController.h"

#include <QHash>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>

class BudgetBook;
class ScheduleBook;
class ChangeJournal;
class MonthDataList;

// The application controller's data half: the month store with its cache of
// loaded lists, the routing of changed records to their months, and the
// current category and payway names. It exists once, installed as the
// controller every record reports to; windows ask it for the list of a month
// and never touch a file themselves.
//
// Files are written atomically. A month whose file cannot be read is answered
// as an empty list that is never written back, so the file stays as it was; a
// write that fails leaves its month edited. Both are reported by signal.
//
// Every change is durable the moment it is made: the months it touched go
// into the folder's change journal (one synced append), and their files are
// rewritten about a second later. The next start replays what the journal
// holds, so a crash in between loses nothing.
class KController : public QObject, public LedgerController
{
    Q_OBJECT

public:
    explicit KController(QObject *parent = nullptr);
    ~KController() override;

    // The data folder of the settings; read once and kept until the cache is
    // released (which is how a change of folder takes effect).
    QString dataFolderPath();
    QString filePathForYear(int year, int month);

    // The cached list of a month (loaded on first use), the year list for
    // month 0, nothing for an impossible month.
    std::shared_ptr<DataList> listForYear(int year, int month) override;
    // The same; with changeLastDate and the closing day in force, a new
    // closing-day month instead (not cached).
    std::shared_ptr<DataList> listForYear(int year, int month, bool changeLastDate);
    std::shared_ptr<MonthDataList> monthListForYear(int year, int month);
    // The loader behind the cache: a year list, the month read from its file,
    // or a new empty month when there is no file.
    std::shared_ptr<DataList> readDataListOfYear(int year, int month);
    // The data folder's own list of the month a file name stands for.
    std::shared_ptr<DataList> readDataFromPath(const QString &path);
    // Archives the list into its month file, durably. False, with the reason,
    // when it could not be written: the list then stays edited, is reported
    // by monthFileNotWritten and counts among the unsaved months, which are
    // tried again at every save and every 30 seconds.
    bool writeDataListToFile(MonthDataList *list, QString *error = nullptr);
    // Loads every month file of the data folder.
    void readAllData();
    // Every list in the cache, by year * 100 + month ascending.
    QList<std::shared_ptr<DataList>> cachedLists() const;
    // Writes every edited month of the cache; true when none is left unsaved.
    // Once none is, the change journal has served and is removed.
    bool saveAllEditedData();
    // To be called after finishInterruptedConversion() and before any month
    // is read: brings back the changes a crash kept from their month files,
    // and writes them. False, with the reason, when the journal was damaged
    // or not every change could be brought back; whatever could not is kept
    // beside the journal's name, never thrown away.
    bool replayChangeJournal(QString *error = nullptr);
    // Makes an edit of the month durable at once (a memo, which changes no
    // entry and so reports nothing by itself).
    void keepChange(MonthDataList *list);
    // Whether every unsaved month is safe in the change journal, so that the
    // next start brings it back.
    bool unsavedMonthsAreJournaled() const;
    // The user chose to drop the unsaved changes: the journal goes too.
    void discardUnsavedChanges();
    QString changeJournalPath();

    // One change as the user made it, to be taken back and made again: each
    // month it touched as its file would hold it before and after.
    struct MonthChange
    {
        int year;
        int month;
        QByteArray before;
        QByteArray after;
    };
    struct Change
    {
        QString label;
        QList<MonthChange> months;
        // Made while typing (a memo): successive ones of the same months
        // are taken back as one.
        bool typing = false;
        // A change of the category and payway lists: what the list file
        // held under each key it rewrote, before and after. Its months are
        // the entries it renumbered, and it is taken back the way it was
        // made, crash-safe, through the folder's conversion journal.
        QVariantMap listsBefore;
        QVariantMap listsAfter;
        bool changesLists() const { return !listsAfter.isEmpty(); }
        // The registered folder files (see registerFolderFile()) a change
        // of the lists renumbered, or that changeFolderFile() changed,
        // before and after.
        QList<FolderFileChange> files;
    };
    // Every change of a month until the matching endChange() is one Change
    // under the label (the outermost one's), and one record of the journal.
    void beginChange(const QString &label, bool typing = false);
    void endChange();
    // beginChange() for the scope it lives in.
    class ChangeScope
    {
    public:
        ChangeScope(KController *ledger, const QString &label, bool typing = false)
            : m_ledger(ledger)
        {
            m_ledger->beginChange(label, typing);
        }
        ~ChangeScope() { m_ledger->endChange(); }
        ChangeScope(const ChangeScope &) = delete;
        ChangeScope &operator=(const ChangeScope &) = delete;

    private:
        KController *m_ledger;
    };
    // Puts the months back into the state given, before or after the change
    // (undo and redo). Kept and saved like any change, but not recorded as
    // one. False, with the reason, when a month can no longer take it (its
    // file became unreadable), a folder file no longer holds what the change
    // left or, for the lists, the folder could not be rewritten; nothing is
    // then changed.
    bool restoreChange(const Change &change, bool before, QString *error = nullptr);
    // Whether an edited month of the cache is not on the disk.
    bool hasUnsavedMonths() const;
    struct UnsavedMonth
    {
        int year;
        int month;
        QString reason;
    };
    // The months whose last write failed, with the reason, oldest first.
    QList<UnsavedMonth> unsavedMonths() const;
    // Why the month's file could not be read, when it could not.
    std::optional<QString> unreadableReason(int year, int month) const;
    // Why the list file cannot be read; empty when it can. Nothing is booked
    // and the lists are not changed while it cannot.
    QString listFileProblem() const { return m_listFileProblem; }
    // Loads every month and writes each one again, edited or not.
    void resaveAllDataFile();
    // Optionally saves, then forgets every loaded list and the folder. When
    // saving, a month that could not be written keeps everything loaded and
    // answers false, so that no edit is dropped.
    bool releaseAllDataWithSave(bool save);

    // The records grouped by year * 100 + month, each group in the given order.
    static QMap<int, PaymentArray> assortDataArray(const PaymentArray &records);
    // Adds each month's records to that month and writes it at once: booked
    // means on the disk. A month that cannot be written, or whose file could
    // not be read, takes nothing and is as it was: false then, with the
    // reason, so that the caller keeps what it could not book.
    bool addData(const PaymentArray &records, QString *error = nullptr);
    bool addData(const PaymentArray &records, int year, int month, QString *error = nullptr);
    // Removes the records from their months; written at the next save.
    void deleteData(const PaymentArray &records);
    void deleteData(const PaymentArray &records, int year, int month);
    // Renumbers the entries of every month file of the data folder and writes
    // the new lists into the list file, as one change: killed half-way, it is
    // finished by finishInterruptedConversion() at the next start, and every
    // month is either wholly old or wholly new (see ConversionJournal). The
    // loaded months are renumbered too and announced, and the change is
    // recorded to be taken back. Refused, with nothing changed, while any
    // month file cannot be read or an edited month cannot be saved; the
    // reason goes to error.
    bool convertStoredData(const ListConversion &conversion, QString *error = nullptr);
    bool convertCategory(const ConversionMap &map);
    bool convertPayway(const ConversionMap &map);
    // To be called at start-up, and after a change of data folder, before
    // any month is read: completes a change of the lists that was cut short.
    // True when there was none or it is now complete. False, with the reason,
    // when it could not be completed; a change that had not yet been decided
    // is then dropped and the folder is as it was before it.
    bool finishInterruptedConversion(QString *error = nullptr);

    // On the very first start (no "Version" yet): writes the initial lists,
    // settles the data folder and remembers both. True when it did.
    bool setUpFirstStart();
    void editData(const PaymentArray &records) override;
    void moveData(const PaymentDataPtr &record, MonthDataList *fromList) override;
    // Reloads the category and payway names from the data folder's list file
    // (made with the initial lists when the folder has none).
    void readListPreference();
    // The lists as the list file holds them now, read anew, with the
    // colours as plain values; a colour that cannot be read comes as gray.
    // Empty when the file cannot be read.
    StoredLists storedLists();
    QStringList categoryList() const override { return m_categoryList; }
    QStringList paywayList() const override { return m_paywayList; }

    // From now on, and in every data folder used later, changes that others
    // make to the folder's files (a second computer through a sync service)
    // are taken in: a cached month that is not edited here reloads, an edited
    // one is merged with theirs (see MonthMerge), the list file and the
    // registered folder files are read again. Before a month is written its
    // file is checked, so that no outside change is written over. A change
    // of months or lists cannot be taken back, so the changes recorded so
    // far expire.
    void watchSharedFolder();

    // Books the entries of an imported file as one change, whole or not at
    // all: they are added to their months in memory, then every month touched
    // goes into ONE record of the change journal (the moment the import is
    // booked, which a restart replays), and then the month files are written.
    // Killed before that record is whole, the folder is as it was; after it,
    // wholly imported. One step of the undo history, labelled by its count.
    // Refused with nothing changed, the reason in error, while the list file
    // cannot be read, the lists are being renumbered, or a month touched
    // cannot be read. `progress` is told of each month added before the
    // record is written; answering false cancels, and nothing is kept.
    using ImportProgress = std::function<bool(int done, int total)>;
    bool bookImport(const PaymentArray &records, QString *error = nullptr,
                    const ImportProgress &progress = {});

    // The budgets of the data folder, loaded with it and read again when the
    // lists or the folder change.
    BudgetBook *budgets();
    // The schedules of the data folder; empty until the application reads
    // them, once the journal is replayed.
    ScheduleBook *schedules() const { return m_schedules; }
    // Files of the data folder that hold category or payway numbers --------
    //
    // Besides the months, the data folder may hold files of our own whose
    // content names categories and payways by number (the schedules'
    // entries). Each is registered once by its name in the folder with the
    // pure function that renumbers its content, (old bytes, conversion) →
    // new bytes, or nothing with the reason when the old bytes cannot be
    // read. From then on:
    // - a renumbering (convertStoredData(), and one finished at the next
    //   start) rewrites the file in the same crash-safe change as the
    //   months: a side file, renamed into place with them. A file the
    //   folder does not have is left out; one that cannot be read refuses
    //   the renumbering with nothing changed, as an unreadable month does.
    // - the Change keeps its content before and after (Change::files), and
    //   undo and redo put it back with the months; refused when the file
    //   was changed since.
    // - in a shared folder (watchSharedFolder()), a change others make to it
    //   is taken in as a month's is: once no renumbering or booking is
    //   under way, and at once by takeOutsideChangeOf().
    // - folderFileRewritten(name) tells whoever holds its content to read
    //   it again (through readFolderFile()), after any of these and after
    //   a replay of the journal.
    // Write such a file only through writeFolderFile(), changeFolderFile()
    // or bookWithFolderFiles(): the journal may hold an older content of it
    // that a replay would otherwise bring back.
    void registerFolderFile(const QString &name, const FolderFiles::Renumber &renumber);
    // The registered file's content, for whoever holds it from now on: a
    // change others make after this is told by folderFileRewritten().
    // Nothing when there is no file, or with the reason when it cannot be
    // read.
    std::optional<QByteArray> readFolderFile(const QString &name, QString *error = nullptr);
    // Takes in a change others made to the registered file that was not
    // taken yet. Called before an edit of it, so that the edit starts from
    // what the file holds and writes over nothing unseen.
    void takeOutsideChangeOf(const QString &name);
    // Writes a registered file of the folder durably. Refused, with the
    // reason, while the lists are being renumbered or an import booked.
    bool writeFolderFile(const QString &name, const QByteArray &content, QString *error = nullptr);
    // writeFolderFile() of change.after as one step of the undo history,
    // under the label: taking it back writes change.before, and is refused
    // once the file holds anything but change.after.
    bool changeFolderFile(const FolderFileChange &change, const QString &label,
                          QString *error = nullptr);
    // Books the entries and the new contents of registered files as one
    // change, whole or not at all, like bookImport(): one record of the
    // journal holds the months and the files, and they are booked once it
    // is written. The folder files are then written at once, the months
    // with the next save, about a second later, as after any change. One
    // step of the undo history
    // under the label when there are entries; taking it back takes back the
    // entries only, the files stay as they are.
    bool bookWithFolderFiles(const PaymentArray &records, const QMap<QString, QByteArray> &files,
                             const QString &label, QString *error = nullptr);

signals:
    // A registered folder file was rewritten by the ledger, or changed by
    // others: read it again.
    void folderFileRewritten(const QString &name);
    // Emitted before the edited months are written, so that a window can hand
    // over what it still holds (a memo being typed).
    void aboutToSaveAllEditedData();
    // A month file could not be read or decoded; its month is read-only.
    void monthFileUnreadable(const QString &path, const QString &reason);
    // A month file could not be written; its month stays edited.
    void monthFileNotWritten(const QString &path, const QString &reason);
    // The list file cannot be read (or can again, with an empty reason).
    void listFileUnreadable(const QString &path, const QString &reason);
    // A month joined or left the unsaved months.
    void unsavedMonthsChanged();
    // A conversion of the stored data has done `done` of `total` steps.
    void conversionProgress(int done, int total);
    // A change was made (see Change); emitted when it is complete.
    void changeRecorded(const KController::Change &change);
    // The changes recorded so far can no longer be restored: the folder was
    // let go.
    void changesExpired();
    // What the user should look at after others changed the data folder:
    // entries changed on both sides, a month file gone or damaged, copies a
    // sync service left. One call for everything found at one look.
    void sharedFolderNotice(const QString &text, const QString &details);

private:
    QList<std::shared_ptr<MonthDataList>> loadMonthFiles();
    bool runConversion(const ListConversion &conversion, QString *error);
    // Whether the folder's conversion journal holds a change not yet
    // finished, or cannot be read; the reason goes to error.
    bool conversionUnderway(QString *error);
    // Every month of the folder loaded, and on the disk as the cache holds
    // it, so that the folder can be rewritten; nothing when a month is
    // unreadable or unsaved, or changes are still journaled.
    std::optional<QList<std::shared_ptr<MonthDataList>>> monthsReadyForRewrite(QString *error);
    // Writes each month's content (after or before) and the lists through
    // the conversion journal. True once the folder holds all of it; after
    // the point of no return a failure leaves the cache read-only until the
    // next start completes the change. Only a renumbering by maps is
    // repeatable from the journal; a restore cut short is dropped.
    bool rewriteFolder(const ListConversion &conversion, const QList<MonthChange> &months,
                       const QList<FolderFileChange> &files, bool after, QString *error);
    // Brings the cache in line with a rewritten folder: apply() changes
    // each cached month in memory, then the lists are read anew and the
    // months announced. False when a month changed while the folder was
    // being rewritten, which the changes recorded before cannot account for.
    bool settleRewrittenMonths(const std::function<void(MonthDataList *)> &apply);
    bool restoreLists(const Change &change, bool before, QString *error);
    bool restoreFolderFiles(const QList<FolderFileChange> &files, bool before, QString *error);
    // What the list file holds now under each of the keys.
    QVariantMap heldLists(const QVariantMap &keys);
    QList<MonthDataList *> cachedMonths() const;
    std::shared_ptr<MonthDataList> readMonthFile(int year, int month);
    void settleLoadedList(MonthDataList *list);
    // The content of a month no change has touched since it was read.
    QByteArray contentAsLoaded(const MonthDataList &month);
    void scheduleSave(DataList *list);
    // Records the months changed since the last record: into the journal,
    // and into the change being made.
    void flushJournal();
    // Both for the months given, as they are now.
    void recordMonths(const QList<MonthDataList *> &months);
    // Appends the months to the journal; on failure the journal is dropped
    // (it may not hold anything older than a month's file) and the months
    // are written at once instead.
    bool journal(const QList<MonthChange> &months, const QMap<QString, QByteArray> &files = {});
    // Adds the entries to their months and journals them with the files as
    // one record; see bookImport(). The month files follow at once when
    // writeNow, else with the next save, like any change.
    bool bookAsOneChange(const PaymentArray &records, const QMap<QString, QByteArray> &files,
                         const QString &label, QString *error, const ImportProgress &progress,
                         bool writeNow);
    // Writes the folder files the journal holds newer than the folder; true
    // when none is left.
    bool writeJournaledFiles();
    void expireChanges();
    void dropJournal();
    // Writes without reporting; the caller decides what a failure means.
    bool writeMonth(MonthDataList *list, QString *reason);
    // The same for several months, with one flush of the disk for all: for
    // each the reason it was not written, empty where it was.
    QStringList writeMonths(const QList<MonthDataList *> &lists);
    void setMonthWritten(const MonthDataList *list, const QString &failure);

    // Changes of the data folder by others (see watchSharedFolder()).
    void startWatchingSharedFolder();
    void takeOutsideChanges(const QList<SharedFolder::FileChange> &files,
                            const QStringList &conflictCopies);
    struct Notice
    {
        QString text;
        QString details;
    };
    // Takes the file's new content into its cached month; true when the
    // month changed.
    bool takeOutsideMonth(MonthDataList *month, const SharedFolder::FileChange &change,
                          QList<Notice> *notices);
    void takeOutsideLists(QList<Notice> *notices);
    void tell(const QList<Notice> &notices);
    QString describeEntry(const PaymentDataPtr &record) const;

    // year * 100 + month to list; month 0 holds the year list.
    QHash<int, std::shared_ptr<DataList>> m_listStock;
    QString m_dataFolder;
    QStringList m_categoryList;
    QStringList m_paywayList;
    // Records renumbered in memory report nothing.
    bool m_converting = false;
    // While the folder is renumbered, only the conversion writes to it; while
    // an import's entries are in memory only, nothing does. A month changed
    // meanwhile stays edited and is saved afterwards.
    enum class WritesHeld { No, ForConversion, ForImport };
    WritesHeld m_writesHeld = WritesHeld::No;
    // Why a month cannot be written now, as the user is told.
    QString writesHeldReason() const;
    // Edited months reach the disk about a second after the last change, not
    // only at quit.
    QTimer m_saveTimer;
    QTimer m_retryTimer;
    // year * 100 + month to why its file could not be read or written.
    QMap<int, QString> m_unreadableMonths;
    QMap<int, QString> m_notWritten;
    QString m_listFileProblem;

    std::unique_ptr<ChangeJournal> m_journal;
    // year * 100 + month of the months the journal holds; the last record of
    // each holds its content in m_current.
    QSet<int> m_journaledMonths;
    // Months changed since their last record; a move of entries between two
    // months is one record, written when the outermost batch ends.
    QSet<int> m_journalPending;
    int m_journalBatch = 0;
    // year * 100 + month to the month's content as of its last change or its
    // loading: the "before" of its next change.
    QHash<int, QByteArray> m_current;
    // The change being made; recorded changes are those of the user, not
    // the loading of misfiled entries or an undo.
    Change m_change;
    int m_changeDepth = 0;
    bool m_recording = true;

    // Before the books, which register their files when made.
    FolderFiles m_folderFiles;
    SharedFolder *m_sharedFolder;
    BudgetBook *m_budgets;
    ScheduleBook *m_schedules;
    bool m_watchShared = false;

    // Folder files journaled and not yet written, by name.
    QMap<QString, QByteArray> m_filesPending;
};
