#include "ledger/KController.h"

#include "budget/BudgetBook.h"
#include "recurring/ScheduleBook.h"
#include "ledger/ConversionJournal.h"
#include "ledger/DataFolder.h"
#include "ledger/MonthMerge.h"
#include "model/EntryLimits.h"
#include "model/ModifMonthList.h"
#include "model/MonthKey.h"
#include "model/MonthDataList.h"
#include "model/Notifications.h"
#include "model/NumberValue.h"
#include "model/YearDataList.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "storage/ChangeJournal.h"
#include "storage/ColorArchive.h"
#include "storage/DurableFile.h"
#include "storage/ListFile.h"
#include "storage/MonthFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QtDebug>

#include <algorithm>

namespace {
constexpr int kSaveDelayMs = 1000;
// A month that could not be written is tried again this often, so that it is
// saved soon after the disk has room again.
constexpr int kRetryDelayMs = 30000;

int cacheKey(const MonthDataList &list)
{
    return MonthKey::of(list.year(), list.month());
}

// Hidden: it is the program's own bookkeeping, not a file for the user.
const QString kChangeJournalName = QStringLiteral(".penwick-journal");

void setError(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

QStringList namesUnder(const QVariantMap &lists, QLatin1StringView key)
{
    QStringList names;
    for (const QVariant &name : lists.value(key).toList())
        names.append(name.toString());
    return names;
}

// The month file the list would be written as, renumbered. The cached list
// itself stays as it is until the folder holds the new numbers.
QByteArray encodeConverted(const MonthDataList &month, const ListConversion &conversion)
{
    PaymentArray records;
    records.reserve(month.dataListArray().size());
    for (const PaymentDataPtr &r : month.dataListArray()) {
        records.append(std::make_shared<PaymentData>(
            r->year(), r->month(), r->date(),
            conversion.categoryMap.value(r->category(), r->category()), r->details(),
            r->amount(), conversion.paywayMap.value(r->payway(), r->payway())));
    }
    // In the order the month takes in memory once renumbered, so that file
    // and memory agree byte for byte.
    DataList::sortList(records, u"Date");
    MonthDataList converted(month.year(), month.month());
    converted.setDataListArray(records);
    converted.setSummary(month.summary());
    return MonthFile::encode(converted);
}
} // namespace

KController::KController(QObject *parent)
    : QObject(parent)
    , m_sharedFolder(new SharedFolder(this))
    , m_budgets(new BudgetBook(this))
    , m_schedules(new ScheduleBook(this))
{
    connect(m_sharedFolder, &SharedFolder::changed, this, &KController::takeOutsideChanges);
    m_saveTimer.setSingleShot(true);
    m_saveTimer.setInterval(kSaveDelayMs);
    connect(&m_saveTimer, &QTimer::timeout, this, &KController::saveAllEditedData);
    m_retryTimer.setInterval(kRetryDelayMs);
    connect(&m_retryTimer, &QTimer::timeout, this, &KController::saveAllEditedData);
    connect(Notifications::instance(), &Notifications::dataListHasChanged, this,
            &KController::scheduleSave);
    LedgerController::install(this);
}

KController::~KController()
{
    // A journal left behind is replayed at the next start; closing it here
    // is all a controller going away should do.
    if (LedgerController::installed() == this)
        LedgerController::install(nullptr);
}

QString KController::dataFolderPath()
{
    if (m_dataFolder.isEmpty()) {
        m_dataFolder = DataFolder::dataFolderPath();
        if (m_watchShared)
            startWatchingSharedFolder();
    }
    return m_dataFolder;
}

BudgetBook *KController::budgets()
{
    if (!m_budgets->isLoaded() || m_budgets->folder() != dataFolderPath())
        m_budgets->load();
    return m_budgets;
}

QString KController::filePathForYear(int year, int month)
{
    return DataFolder::filePathForYear(dataFolderPath(), year, month);
}

std::shared_ptr<DataList> KController::listForYear(int year, int month)
{
    // Taken as unsigned, so negative months are refused too.
    if (unsigned(month) > 12) {
        qWarning("month:%d is not available!!", month);
        return nullptr;
    }
    // No file name or calendar outside these years.
    if (!EntryLimits::isYearInRange(year))
        return nullptr;
    const int key = MonthKey::of(year, month);
    if (const auto cached = m_listStock.constFind(key); cached != m_listStock.cend())
        return cached.value();
    std::shared_ptr<DataList> list = readDataListOfYear(year, month);
    if (!list)
        return nullptr;
    m_listStock.insert(key, list);
    // Records of other months leave a freshly read month only once it is in
    // the cache: two files that hand records to each other then meet the
    // cached lists instead of reading each other without end.
    if (month != 0)
        settleLoadedList(static_cast<MonthDataList *>(list.get()));
    return list;
}

std::shared_ptr<DataList> KController::listForYear(int year, int month, bool changeLastDate)
{
    std::shared_ptr<DataList> list = listForYear(year, month);
    if (!list || !changeLastDate || month == 0)
        return list;
    const Settings settings;
    if (!settings.changeMonthLastDate())
        return list;
    return std::make_shared<ModifMonthList>(year, month, settings.monthLastDate());
}

std::shared_ptr<MonthDataList> KController::monthListForYear(int year, int month)
{
    if (month == 0)
        return nullptr;
    return std::static_pointer_cast<MonthDataList>(listForYear(year, month));
}

std::shared_ptr<DataList> KController::readDataListOfYear(int year, int month)
{
    if (month == 0) {
        QList<const DataList *> months;
        for (int m = 1; m <= 12; ++m)
            months.append(listForYear(year, m).get()); // held by the cache
        return std::make_shared<YearDataList>(year, months);
    }
    if (month < 1 || month > 12)
        return nullptr;
    return readMonthFile(year, month);
}

std::shared_ptr<MonthDataList> KController::readMonthFile(int year, int month)
{
    const QString path = filePathForYear(year, month);
    QFile file(path);
    QString reason;
    std::shared_ptr<MonthDataList> list;
    // Opened before asking whether it exists: most months do, and the
    // question costs a system call.
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray content = file.readAll();
        m_sharedFolder->know(path, content);
        list = MonthFile::decode(content, &reason);
    } else if (!file.exists()) {
        m_sharedFolder->know(path, std::nullopt);
        return std::make_shared<MonthDataList>(year, month);
    } else
        reason = file.errorString();
    if (list && (list->year() != year || list->month() != month)) {
        reason = tr("the file holds %1/%2 instead").arg(list->year()).arg(list->month());
        list.reset();
    }
    if (!list) {
        // Never overwrite what we could not read: the month stays empty and
        // read-only until the file is mended.
        list = std::make_shared<MonthDataList>(year, month);
        list->setReadOnly(true);
        m_unreadableMonths.insert(MonthKey::of(year, month), reason);
        emit monthFileUnreadable(path, reason);
    }
    return list;
}

QByteArray KController::contentAsLoaded(const MonthDataList &month)
{
    // Unchanged since it was read, so its file still holds what it was read
    // from; a month without a file was empty.
    QFile file(filePathForYear(month.year(), month.month()));
    if (file.open(QIODevice::ReadOnly))
        return file.readAll();
    return MonthFile::encode(MonthDataList(month.year(), month.month()));
}

void KController::settleLoadedList(MonthDataList *list)
{
    // Entries filed in the wrong month go where they belong: no change of
    // the user's, nothing to take back.
    const bool recording = std::exchange(m_recording, false);
    const qsizetype filed = list->dataListArray().size();
    list->checkDateOfDataArray(list->dataListArray());
    m_recording = recording;
    if (list->dataListArray().size() != filed)
        m_current.insert(cacheKey(*list), MonthFile::encode(*list));
    // Moving records out does not make the month differ from its file yet:
    // the file keeps them until the month is written again.
    list->setIsEdited(false);
}

std::shared_ptr<DataList> KController::readDataFromPath(const QString &path)
{
    const auto yearMonth = DataFolder::yearMonthFromPath(path);
    if (!yearMonth)
        return nullptr;
    return listForYear(yearMonth->year, yearMonth->month);
}

bool KController::writeMonth(MonthDataList *list, QString *reason)
{
    *reason = writeMonths({list}).constFirst();
    return reason->isEmpty();
}

QStringList KController::writeMonths(const QList<MonthDataList *> &lists)
{
    QStringList reasons(lists.size());
    QList<DurableFile::File> files;
    QList<qsizetype> written;
    QList<MonthDataList *> unrecorded;
    for (qsizetype i = 0; i < lists.size(); ++i) {
        MonthDataList *list = lists.at(i);
        if (list->isReadOnly()) {
            reasons[i] = tr("The file could not be read, so it is left as it is. Changes to this month "
                            "are not saved.");
            continue;
        }
        const QString path = filePathForYear(list->year(), list->month());
        // Whatever others put into the file since it was read or written goes
        // into the month first, rather than being written over.
        if (const auto change = m_sharedFolder->changeOf(path)) {
            QList<Notice> notices;
            if (takeOutsideMonth(list, *change, &notices))
                expireChanges();
            tell(notices);
            if (list->isReadOnly()) {
                reasons[i] = tr("The file was changed outside Penwick and cannot be read, so it is "
                                "left as it is.");
                continue;
            }
        }
        const QByteArray content = MonthFile::encode(*list);
        // The journal's last record of a month must never be older than its file,
        // or a replay would turn the file back: a change that reached the month
        // without a record of its own (a memo handed over on saving) is recorded
        // first. A month not edited is as its last record or its file has it.
        const int key = cacheKey(*list);
        if (list->isEdited()
            && content != (m_current.contains(key) ? m_current.value(key) : contentAsLoaded(*list)))
            unrecorded.append(list);
        files.append({path, content});
        written.append(i);
    }
    if (!unrecorded.isEmpty())
        recordMonths(unrecorded);
    const QStringList failures = DurableFile::writeEach(files);
    for (qsizetype f = 0; f < files.size(); ++f) {
        const qsizetype i = written.at(f);
        reasons[i] = failures.at(f);
        if (!reasons.at(i).isEmpty())
            continue;
        m_sharedFolder->know(files.at(f).path, files.at(f).content);
        lists.at(i)->setIsEdited(false);
    }
    return reasons;
}

QString KController::writesHeldReason() const
{
    return m_writesHeld == WritesHeld::ForImport
        ? tr("An import is being booked.")
        : tr("The category and payway lists are being changed.");
}

bool KController::writeDataListToFile(MonthDataList *list, QString *error)
{
    if (!list)
        return false;
    if (m_writesHeld != WritesHeld::No) {
        // Stays edited; saved once the folder is through.
        setError(error, tr("%1 The month is saved as soon as that is done.").arg(writesHeldReason()));
        return false;
    }
    QString reason;
    const bool written = writeMonth(list, &reason);
    setMonthWritten(list, written ? QString() : reason);
    if (written)
        return true;
    setError(error, reason);
    emit monthFileNotWritten(filePathForYear(list->year(), list->month()), reason);
    return false;
}

void KController::setMonthWritten(const MonthDataList *list, const QString &failure)
{
    const int key = MonthKey::of(list->year(), list->month());
    const bool changed = failure.isEmpty() ? m_notWritten.remove(key) > 0
                                           : m_notWritten.value(key) != failure;
    if (!failure.isEmpty())
        m_notWritten.insert(key, failure);
    if (m_notWritten.isEmpty())
        m_retryTimer.stop();
    else if (!m_retryTimer.isActive())
        m_retryTimer.start();
    if (changed)
        emit unsavedMonthsChanged();
}

QList<KController::UnsavedMonth> KController::unsavedMonths() const
{
    QList<UnsavedMonth> months;
    for (auto it = m_notWritten.cbegin(); it != m_notWritten.cend(); ++it)
        months.append({it.key() / 100, it.key() % 100, it.value()});
    return months;
}

std::optional<QString> KController::unreadableReason(int year, int month) const
{
    const auto found = m_unreadableMonths.constFind(MonthKey::of(year, month));
    if (found == m_unreadableMonths.cend())
        return std::nullopt;
    return found.value();
}

QList<std::shared_ptr<MonthDataList>> KController::loadMonthFiles()
{
    QList<std::shared_ptr<MonthDataList>> months;
    const QDir folder(dataFolderPath());
    const QStringList entries = folder.entryList(QDir::Files | QDir::Hidden);
    for (const QString &entry : entries) {
        if (const auto list = readDataFromPath(folder.filePath(entry)))
            months.append(std::static_pointer_cast<MonthDataList>(list));
    }
    return months;
}

void KController::readAllData()
{
    loadMonthFiles();
}

QList<std::shared_ptr<DataList>> KController::cachedLists() const
{
    QList<int> keys = m_listStock.keys();
    std::sort(keys.begin(), keys.end());
    QList<std::shared_ptr<DataList>> lists;
    lists.reserve(keys.size());
    for (int key : keys)
        lists.append(m_listStock.value(key));
    return lists;
}

bool KController::saveAllEditedData()
{
    m_saveTimer.stop();
    emit aboutToSaveAllEditedData();
    // A write reports nothing to the cache, but copy it anyway: a window
    // reacting to a failure may ask for another month.
    const auto lists = m_listStock;
    QList<MonthDataList *> edited;
    for (const std::shared_ptr<DataList> &list : lists) {
        if (auto *month = dynamic_cast<MonthDataList *>(list.get()); month && month->isEdited())
            edited.append(month);
    }
    // Stays edited while writes are held; saved once the folder is through.
    if (m_writesHeld == WritesHeld::No && !edited.isEmpty()) {
        const QStringList reasons = writeMonths(edited);
        for (qsizetype i = 0; i < edited.size(); ++i) {
            MonthDataList *month = edited.at(i);
            setMonthWritten(month, reasons.at(i));
            if (!reasons.at(i).isEmpty())
                emit monthFileNotWritten(filePathForYear(month->year(), month->month()), reasons.at(i));
        }
    }
    const bool filesWritten = writeJournaledFiles();
    if (hasUnsavedMonths())
        return false;
    if (m_journal && filesWritten) {
        QString reason;
        if (m_journal->remove(&reason)) {
            m_journal.reset();
            m_journaledMonths.clear();
        } else {
            qWarning("%s", qPrintable(reason));
        }
    }
    return true;
}

QString KController::changeJournalPath()
{
    return QDir(dataFolderPath()).filePath(kChangeJournalName);
}

void KController::flushJournal()
{
    if (m_journalBatch > 0 || m_journalPending.isEmpty())
        return;
    QList<int> keys = std::exchange(m_journalPending, {}).values();
    std::sort(keys.begin(), keys.end());
    QList<MonthDataList *> months;
    for (int key : keys) {
        auto *month = dynamic_cast<MonthDataList *>(m_listStock.value(key).get());
        if (month && month->isEdited() && !month->isReadOnly())
            months.append(month);
    }
    if (!months.isEmpty())
        recordMonths(months);
}

void KController::recordMonths(const QList<MonthDataList *> &months)
{
    QList<MonthChange> changes;
    changes.reserve(months.size());
    for (const MonthDataList *month : months) {
        const int key = cacheKey(*month);
        QByteArray after = MonthFile::encode(*month);
        QByteArray before = m_current.contains(key) ? m_current.value(key) : contentAsLoaded(*month);
        // Recorded already (a booking writes its month at once), or changed
        // back within the change.
        if (after == before)
            continue;
        m_current.insert(key, after);
        changes.append({month->year(), month->month(), std::move(before), std::move(after)});
    }
    if (m_recording) {
        for (const MonthChange &change : std::as_const(changes)) {
            // A month changed twice within one change keeps its first before.
            const auto same = std::find_if(m_change.months.begin(), m_change.months.end(),
                                           [&change](const MonthChange &earlier) {
                                               return earlier.year == change.year
                                                      && earlier.month == change.month;
                                           });
            if (same == m_change.months.end())
                m_change.months.append(change);
            else
                same->after = change.after;
        }
        if (m_changeDepth == 0 && !m_change.months.isEmpty())
            emit changeRecorded(std::exchange(m_change, {}));
    }
    if (!changes.isEmpty())
        journal(changes);
}

bool KController::journal(const QList<MonthChange> &months, const QMap<QString, QByteArray> &files)
{
    QList<ChangeJournal::Month> records;
    records.reserve(months.size());
    for (const MonthChange &month : months)
        records.append({month.year, month.month, month.after});
    QList<ChangeJournal::File> fileRecords;
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        fileRecords.append({file.key(), file.value()});
    // A journal not brought back (it could not be read) is neither added to
    // nor removed.
    const bool strayJournal = !m_journal && QFileInfo(changeJournalPath()).size() > 0;
    if (!strayJournal) {
        if (!m_journal)
            m_journal = std::make_unique<ChangeJournal>(changeJournalPath());
        QString reason;
        if (m_journal->append(records, &reason, fileRecords)) {
            for (const ChangeJournal::Month &record : std::as_const(records))
                m_journaledMonths.insert(MonthKey::of(record.year, record.month));
            m_filesPending.insert(files);
            return true;
        }
        qWarning("%s", qPrintable(reason));
        dropJournal();
    }
    // Not yet on the disk: write the months themselves, which says what it
    // cannot; not from within the change being reported, though.
    QMetaObject::invokeMethod(this, &KController::saveAllEditedData, Qt::QueuedConnection);
    return false;
}

void KController::beginChange(const QString &label, bool typing)
{
    if (m_changeDepth++ == 0) {
        m_change.label = label;
        m_change.typing = typing;
    }
    ++m_journalBatch;
}

void KController::endChange()
{
    --m_journalBatch;
    flushJournal();
    if (--m_changeDepth == 0 && !m_change.months.isEmpty())
        emit changeRecorded(std::exchange(m_change, {}));
}

bool KController::restoreChange(const Change &change, bool before, QString *error)
{
    if (change.changesLists())
        return restoreLists(change, before, error);
    if (!change.files.isEmpty())
        return restoreFolderFiles(change.files, before, error);
    QList<std::pair<std::shared_ptr<MonthDataList>, std::shared_ptr<MonthDataList>>> restored;
    for (const MonthChange &month : change.months) {
        const auto list = monthListForYear(month.year, month.month);
        if (!list || list->isReadOnly()) {
            setError(error, tr("The file of %1/%2 could not be read, so the change cannot be "
                               "taken back.").arg(month.month).arg(month.year));
            return false;
        }
        auto state = MonthFile::decode(before ? month.before : month.after, error);
        if (!state)
            return false;
        restored.append({list, state});
    }
    const bool recording = std::exchange(m_recording, false);
    ++m_journalBatch;
    for (const auto &[list, state] : restored) {
        list->setDataListArray(state->dataListArray());
        list->setSummary(state->summary());
        list->dataHasChangedAndNotify();
    }
    --m_journalBatch;
    flushJournal();
    m_recording = recording;
    return true;
}

void KController::expireChanges()
{
    m_change = {};
    emit changesExpired();
}

void KController::dropJournal()
{
    if (!m_journal)
        m_journal = std::make_unique<ChangeJournal>(changeJournalPath());
    QString reason;
    if (!m_journal->remove(&reason))
        qWarning("%s", qPrintable(reason));
    m_journal.reset();
    m_journaledMonths.clear();
}

void KController::keepChange(MonthDataList *list)
{
    if (!list || !list->isEdited() || list->isReadOnly() || m_writesHeld != WritesHeld::No
        || m_converting)
        return;
    m_saveTimer.start();
    if (m_listStock.value(cacheKey(*list)).get() != list)
        return;
    m_journalPending.insert(cacheKey(*list));
    flushJournal();
}

bool KController::unsavedMonthsAreJournaled() const
{
    const QList<MonthDataList *> months = cachedMonths();
    return std::all_of(months.cbegin(), months.cend(), [this](const MonthDataList *month) {
        const int key = cacheKey(*month);
        return !month->isEdited() || month->isReadOnly()
               || (m_journaledMonths.contains(key)
                   && m_current.value(key) == MonthFile::encode(*month));
    });
}

void KController::discardUnsavedChanges()
{
    dropJournal();
}

bool KController::replayChangeJournal(QString *error)
{
    const QString path = changeJournalPath();
    QString unreadable;
    ChangeJournal::Contents contents = ChangeJournal::readFile(path, &unreadable);
    if (!unreadable.isEmpty()) {
        setError(error, unreadable);
        return false;
    }
    QStringList problems;
    QList<std::shared_ptr<MonthDataList>> months;
    for (const ChangeJournal::Month &record : std::as_const(contents.months)) {
        QString reason;
        auto month = MonthFile::decode(record.content, &reason);
        if (month && (month->year() != record.year || month->month() != record.month))
            month.reset();
        if (month)
            months.append(month);
        else
            problems.append(tr("The changes to %1/%2 could not be read back.")
                                .arg(record.month).arg(record.year));
    }
    if (contents.foreign || !problems.isEmpty()) {
        // Kept for whoever can make sense of it, out of the way of the next.
        const QString aside = path + QStringLiteral(".unreadable-")
                              + QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss");
        QString reason;
        if (!DurableFile::rename(path, aside, &reason)) {
            setError(error, reason);
            return false;
        }
        problems.prepend(tr("The journal of changes %1 is damaged; it was kept as %2.")
                             .arg(QDir::toNativeSeparators(path), QDir::toNativeSeparators(aside)));
    } else if (!contents.months.isEmpty() || !contents.files.isEmpty() || contents.torn) {
        // Adopted: the months' newer records go after these.
        m_journal = std::make_unique<ChangeJournal>(path);
        for (const ChangeJournal::Month &record : std::as_const(contents.months))
            m_journaledMonths.insert(MonthKey::of(record.year, record.month));
    }
    if (contents.torn)
        problems.append(tr("The last change before Penwick stopped was being written at that "
                           "moment and is not in the book."));
    for (const std::shared_ptr<MonthDataList> &month : std::as_const(months)) {
        month->setIsEdited(true);
        m_listStock.insert(cacheKey(*month), month);
        m_current.insert(cacheKey(*month), MonthFile::encode(*month));
    }
    for (const ChangeJournal::File &file : std::as_const(contents.files))
        m_filesPending.insert(file.name, file.content);
    const bool saved = saveAllEditedData() && m_filesPending.isEmpty();
    for (const ChangeJournal::File &file : std::as_const(contents.files))
        emit folderFileRewritten(file.name);
    if (!saved)
        problems.append(tr("Some of the changes brought back could not be written to their "
                           "months yet; they stay safe in the journal."));
    setError(error, problems.join(u'\n'));
    return problems.isEmpty();
}

bool KController::hasUnsavedMonths() const
{
    const QList<MonthDataList *> months = cachedMonths();
    return std::any_of(months.cbegin(), months.cend(), [](const MonthDataList *month) {
        return month->isEdited() && !month->isReadOnly();
    });
}

void KController::resaveAllDataFile()
{
    readAllData();
    const auto lists = m_listStock;
    for (const std::shared_ptr<DataList> &list : lists) {
        if (auto *month = dynamic_cast<MonthDataList *>(list.get()))
            writeDataListToFile(month);
    }
}

bool KController::releaseAllDataWithSave(bool save)
{
    if (save && !saveAllEditedData())
        return false;
    m_saveTimer.stop();
    m_listStock.clear();
    m_dataFolder.clear();
    m_sharedFolder->watch({});
    // Whatever the journal still holds is replayed when the folder is used
    // again.
    m_journal.reset();
    m_journaledMonths.clear();
    m_journalPending.clear();
    m_filesPending.clear();
    m_current.clear();
    expireChanges();
    m_unreadableMonths.clear();
    m_listFileProblem.clear();
    if (!std::exchange(m_notWritten, {}).isEmpty()) {
        m_retryTimer.stop();
        emit unsavedMonthsChanged();
    }
    return true;
}

QMap<int, PaymentArray> KController::assortDataArray(const PaymentArray &records)
{
    QMap<int, PaymentArray> groups;
    for (const PaymentDataPtr &record : records)
        groups[MonthKey::of(record->year(), record->month())].append(record);
    return groups;
}

bool KController::addData(const PaymentArray &records, QString *error)
{
    bool all = true;
    const auto groups = assortDataArray(records);
    for (const PaymentArray &group : groups) {
        const PaymentDataPtr &first = group.constFirst();
        all = addData(group, first->year(), first->month(), error) && all;
    }
    return all;
}

bool KController::addData(const PaymentArray &records, int year, int month, QString *error)
{
    if (!m_listFileProblem.isEmpty()) {
        setError(error, tr("Nothing can be booked until the list file is mended. %1")
                            .arg(m_listFileProblem));
        return false;
    }
    const auto list = monthListForYear(year, month);
    if (!list) {
        setError(error, tr("There is no month %1 in year %2.").arg(month).arg(year));
        return false;
    }
    if (list->isReadOnly()) {
        setError(error, tr("The file of %1/%2 could not be read, so nothing can be added to it.")
                            .arg(month).arg(year));
        return false;
    }
    // Booked means on the disk: a month that cannot be written gives its new
    // entries back, and is otherwise as it was.
    const bool wasEdited = list->isEdited();
    list->addData(records);
    QString reason;
    if (m_writesHeld == WritesHeld::No && writeMonth(list.get(), &reason)) {
        setMonthWritten(list.get(), {});
        return true;
    }
    if (m_writesHeld != WritesHeld::No)
        reason = tr("%1 Try again when that is done.").arg(writesHeldReason());
    list->deleteData(records);
    list->setIsEdited(wasEdited);
    setError(error, reason);
    return false;
}

void KController::deleteData(const PaymentArray &records)
{
    ++m_journalBatch;
    const auto groups = assortDataArray(records);
    for (const PaymentArray &group : groups) {
        const PaymentDataPtr &first = group.constFirst();
        deleteData(group, first->year(), first->month());
    }
    --m_journalBatch;
    flushJournal();
}

void KController::deleteData(const PaymentArray &records, int year, int month)
{
    if (const auto list = monthListForYear(year, month))
        list->deleteData(records);
}

bool KController::convertCategory(const ConversionMap &map)
{
    return convertStoredData({map, {}, {}});
}

bool KController::convertPayway(const ConversionMap &map)
{
    return convertStoredData({{}, map, {}});
}

bool KController::convertStoredData(const ListConversion &conversion, QString *error)
{
    return !conversionUnderway(error) && runConversion(conversion, error);
}

bool KController::conversionUnderway(QString *error)
{
    ConversionJournal journal(dataFolderPath());
    if (!journal.read(error))
        return true;
    if (journal.phase() != ConversionJournal::Phase::None) {
        setError(error, tr("An earlier change of the lists has not been finished yet."));
        return true;
    }
    return false;
}

QList<MonthDataList *> KController::cachedMonths() const
{
    QList<MonthDataList *> months;
    for (const std::shared_ptr<DataList> &list : m_listStock) {
        if (auto *month = dynamic_cast<MonthDataList *>(list.get()))
            months.append(month);
    }
    return months;
}

QVariantMap KController::heldLists(const QVariantMap &keys)
{
    const QVariantMap file = ListFile::read(dataFolderPath()).value_or(QVariantMap());
    QVariantMap held;
    for (auto it = keys.cbegin(); it != keys.cend(); ++it)
        held.insert(it.key(), file.value(it.key()).toList());
    return held;
}

bool KController::runConversion(const ListConversion &conversion, QString *error)
{
    Change change{tr("Change of Categories and Payways"), {}, false,
                  heldLists(conversion.lists), conversion.lists, {}};
    if (!conversion.renumbers()) {
        if (!conversion.lists.isEmpty()
            && !ListFile::setPreferenceDataLists(dataFolderPath(), conversion.lists, error))
            return false;
        readListPreference();
        if (change.listsBefore != change.listsAfter)
            emit changeRecorded(change);
        return true;
    }

    const auto months = monthsReadyForRewrite(error);
    if (!months)
        return false;
    // Only the months whose entries take new numbers are rewritten; the
    // change keeps both forms of each, to be taken back.
    for (const auto &month : *months) {
        QByteArray before = MonthFile::encode(*month);
        QByteArray after = encodeConverted(*month, conversion);
        if (before != after)
            change.months.append({month->year(), month->month(), std::move(before),
                                  std::move(after)});
    }
    const auto files = m_folderFiles.renumbered(dataFolderPath(), conversion, error);
    if (!files)
        return false;
    change.files = *files;
    if (!rewriteFolder(conversion, change.months, change.files, true, error))
        return false;

    // Each record reports its change; re-sorting its month for every one of
    // them would make renumbering decades of entries crawl. The month is
    // brought up to date once, after all its records.
    const bool recordable = settleRewrittenMonths([&conversion](MonthDataList *month) {
        if (!conversion.categoryMap.isEmpty())
            month->convertCategory(conversion.categoryMap);
        if (!conversion.paywayMap.isEmpty())
            month->convertPayway(conversion.paywayMap);
    });
    for (const FolderFileChange &file : std::as_const(change.files))
        emit folderFileRewritten(file.name);
    if (!recordable) {
        expireChanges();
        return true;
    }
    emit changeRecorded(change);
    return true;
}

std::optional<QList<std::shared_ptr<MonthDataList>>>
KController::monthsReadyForRewrite(QString *error)
{
    // The files must hold what the cache holds before the cache is written
    // out renumbered: loading may move records into other months, and
    // saving writes those.
    loadMonthFiles();
    saveAllEditedData();
    auto months = loadMonthFiles();
    for (const MonthDataList *month : cachedMonths()) {
        const QString date = QStringLiteral("%1/%2").arg(month->month()).arg(month->year());
        if (month->isReadOnly()) {
            setError(error, tr("The entries of %1 cannot be read, so none of the stored entries "
                               "has been renumbered and the lists are unchanged. Mend or remove "
                               "the file %2 first.")
                                .arg(date, filePathForYear(month->year(), month->month())));
            return std::nullopt;
        }
        if (month->isEdited()) {
            setError(error, tr("The entries of %1 could not be saved, so none of the stored "
                               "entries has been renumbered and the lists are unchanged.")
                                .arg(date));
            return std::nullopt;
        }
    }
    // Records in the old numbers must not outlive the change.
    if (m_journal) {
        setError(error, tr("The journal of changes %1 could not be removed, so none of the stored "
                           "entries has been renumbered and the lists are unchanged.")
                            .arg(QDir::toNativeSeparators(changeJournalPath())));
        return std::nullopt;
    }
    return months;
}

bool KController::rewriteFolder(const ListConversion &conversion,
                                const QList<MonthChange> &months,
                                const QList<FolderFileChange> &folderFiles, bool after,
                                QString *error)
{
    // The months first, then the other files, each with its content.
    QStringList files;
    QList<QByteArray> contents;
    for (const MonthChange &month : months) {
        files.append(QFileInfo(filePathForYear(month.year, month.month)).fileName());
        contents.append(after ? month.after : month.before);
    }
    for (const FolderFileChange &file : folderFiles) {
        files.append(file.name);
        contents.append(after ? file.after : file.before);
    }
    const int count = int(files.size());
    const int total = 2 * count;

    // Whoever shows progress may let the event loop run; nothing else may
    // write a month until the folder is through.
    m_writesHeld = WritesHeld::ForConversion;
    ConversionJournal journal(dataFolderPath());
    bool decided = journal.begin(conversion, files, conversion.renumbers(), error);
    for (int i = 0; decided && i < count; ++i) {
        decided = journal.writeMonth(files.at(i), contents.at(i), error);
        if (decided)
            emit conversionProgress(i + 1, total);
    }
    decided = decided && journal.commit(error);
    if (!decided) {
        journal.abandon();
        m_writesHeld = WritesHeld::No;
        return false;
    }
    QString reason;
    const bool finished = journal.finish(
        [this, count, total](int done) { emit conversionProgress(count + done, total); }, &reason);
    m_writesHeld = WritesHeld::No;
    // Our own doing, not to be taken for another computer's; cut short, the
    // folder holds some files of each kind.
    for (int i = 0; i < count; ++i) {
        const QString path = QDir(dataFolderPath()).filePath(files.at(i));
        QFile file(path);
        m_sharedFolder->know(path, finished || !file.open(QIODevice::ReadOnly) ? contents.at(i)
                                                                               : file.readAll());
    }
    if (!finished) {
        // Some months hold the new content and some do not yet; the next
        // start completes the change. Until then nothing of the old may be
        // written back.
        for (MonthDataList *month : cachedMonths())
            month->setReadOnly(true);
        setError(error, tr("%1 The change is completed the next time Penwick starts; until then "
                           "no month is saved.").arg(reason));
        return false;
    }
    return true;
}

bool KController::settleRewrittenMonths(const std::function<void(MonthDataList *)> &apply)
{
    const QList<MonthDataList *> cached = cachedMonths();
    QList<bool> changedMeanwhile;
    changedMeanwhile.reserve(cached.size());
    m_converting = true;
    for (MonthDataList *month : cached) {
        changedMeanwhile.append(month->isEdited());
        apply(month);
    }
    m_converting = false;
    readListPreference();
    // What the months held before is the files' no longer.
    m_current.clear();
    for (qsizetype i = 0; i < cached.size(); ++i) {
        // The files hold this content already, unless the month changed
        // while the folder was being rewritten.
        cached.at(i)->setIsEdited(changedMeanwhile.at(i));
        if (changedMeanwhile.at(i))
            m_current.insert(cacheKey(*cached.at(i)), MonthFile::encode(*cached.at(i)));
        cached.at(i)->notifyChange();
    }
    saveAllEditedData();
    return !changedMeanwhile.contains(true);
}

bool KController::restoreLists(const Change &change, bool before, QString *error)
{
    ListConversion conversion;
    conversion.lists = before ? change.listsBefore : change.listsAfter;
    if (change.months.isEmpty() && change.files.isEmpty()) {
        if (!ListFile::setPreferenceDataLists(dataFolderPath(), conversion.lists, error))
            return false;
        readListPreference();
        emit Notifications::instance()->listPreferenceHasUpDated();
        return true;
    }
    if (conversionUnderway(error) || !monthsReadyForRewrite(error))
        return false;
    // The months must hold what the change left, or the restore would throw
    // away whatever came after it.
    QHash<int, PaymentArray> restored;
    for (const MonthChange &month : change.months) {
        const auto list = monthListForYear(month.year, month.month);
        if (!list || MonthFile::encode(*list) != (before ? month.after : month.before)) {
            setError(error, tr("The entries of %1/%2 were changed since, so the change of the "
                               "lists cannot be taken back.")
                                .arg(month.month).arg(month.year));
            return false;
        }
        const auto state = MonthFile::decode(before ? month.before : month.after, error);
        if (!state)
            return false;
        restored.insert(MonthKey::of(month.year, month.month), state->dataListArray());
    }
    for (const FolderFileChange &file : change.files) {
        if (FolderFiles::read(dataFolderPath(), file.name) != (before ? file.after : file.before)) {
            setError(error, tr("%1 was changed since, so the change of the lists cannot be taken "
                               "back.").arg(file.name));
            return false;
        }
    }
    if (!rewriteFolder(conversion, change.months, change.files, !before, error))
        return false;
    if (!settleRewrittenMonths([&restored](MonthDataList *month) {
            const auto found = restored.constFind(cacheKey(*month));
            if (found != restored.cend())
                month->setDataListArray(*found);
        }))
        expireChanges();
    for (const FolderFileChange &file : change.files)
        emit folderFileRewritten(file.name);
    emit Notifications::instance()->listPreferenceHasUpDated();
    return true;
}

bool KController::finishInterruptedConversion(QString *error)
{
    ConversionJournal journal(dataFolderPath());
    if (!journal.read(error))
        return false;
    switch (journal.phase()) {
    case ConversionJournal::Phase::None:
        return true;
    case ConversionJournal::Phase::Commit: {
        const bool finished = journal.finish({}, error);
        for (const QString &name : m_folderFiles.names())
            emit folderFileRewritten(name);
        return finished;
    }
    case ConversionJournal::Phase::Prepare:
        break;
    }
    if (!journal.isRepeatable()) {
        journal.abandon();
        setError(error, tr("Taking back a change of the category and payway lists was cut short. "
                           "The lists and the entries are as they were before it."));
        return false;
    }
    // Not one month was replaced yet: start the change again from the top.
    const ListConversion conversion = journal.conversion();
    journal.abandon();
    QString reason;
    if (runConversion(conversion, &reason))
        return true;
    setError(error, tr("A change of the category and payway lists was interrupted and could not "
                       "be finished: %1").arg(reason));
    return false;
}

bool KController::setUpFirstStart()
{
    Settings settings;
    if (settings.version() != 0)
        return false;
    const QString folder = DataFolder::dataFolderPath();
    ListFile::dataDictionaryPath(folder);
    settings.setVersion(1);
    settings.setDataPath(folder);
    settings.sync();
    m_dataFolder = folder;
    return true;
}

void KController::editData(const PaymentArray &records)
{
    if (m_converting)
        return;
    const auto groups = assortDataArray(records);
    for (const PaymentArray &group : groups) {
        const PaymentDataPtr &first = group.constFirst();
        if (auto list = monthListForYear(first->year(), first->month()))
            list->dataHasChangedAndNotify();
    }
}

void KController::moveData(const PaymentDataPtr &record, MonthDataList *fromList)
{
    const auto target = monthListForYear(record->year(), record->month());
    if (!target || target.get() == fromList)
        return;
    if (target->isReadOnly()) {
        // The record stays in the month it came from, and in that month's
        // file, rather than go where it could never be saved.
        emit monthFileNotWritten(filePathForYear(target->year(), target->month()),
                                 tr("The file of this month could not be read, so no entry "
                                    "can be moved into it."));
        return;
    }
    // Both months in one record: a crash never leaves the entry in both or
    // in neither.
    ++m_journalBatch;
    target->addData({record});
    fromList->deleteData({record});
    --m_journalBatch;
    flushJournal();
}

void KController::readListPreference()
{
    // One read of the list file serves the check and both lists.
    QString problem;
    if (m_sharedFolder->isWatching()) {
        const QString path = ListFile::dictionaryPathString(dataFolderPath());
        QFile file(path);
        m_sharedFolder->know(path, file.open(QIODevice::ReadOnly)
                                       ? std::optional<QByteArray>(file.readAll())
                                       : std::nullopt);
    }
    const std::optional<QVariantMap> lists = ListFile::read(dataFolderPath(), &problem);
    if (lists)
        problem.clear();
    if (std::exchange(m_listFileProblem, problem) != problem)
        emit listFileUnreadable(ListFile::dictionaryPathString(dataFolderPath()), problem);
    m_categoryList = lists ? namesUnder(*lists, ListFile::CategoryList) : QStringList();
    m_paywayList = lists ? namesUnder(*lists, ListFile::PaywayList) : QStringList();
}

StoredLists KController::storedLists()
{
    StoredLists stored;
    const std::optional<QVariantMap> lists = ListFile::read(dataFolderPath());
    if (!lists)
        return stored;
    stored.categories = namesUnder(*lists, ListFile::CategoryList);
    for (const QVariant &archive : lists->value(ListFile::ColorList).toList())
        stored.colors.append(ColorArchive::decode(archive.toByteArray()).value_or(RgbaColor::gray()));
    stored.payways = namesUnder(*lists, ListFile::PaywayList);
    return stored;
}

void KController::scheduleSave(DataList *list)
{
    // Closing-day lists and year lists report their months' changes too; the
    // months report their own.
    if (auto *month = dynamic_cast<MonthDataList *>(list))
        keepChange(month);
    else if (list && list->isEdited())
        m_saveTimer.start();
}

// Changes of the data folder by others ------------------------------------

void KController::watchSharedFolder()
{
    m_watchShared = true;
    if (!m_sharedFolder->isWatching())
        startWatchingSharedFolder();
}

void KController::startWatchingSharedFolder()
{
    const QString folder = dataFolderPath();
    m_sharedFolder->watch(folder);
    // What is loaded already was read from the files as they are now, or
    // written into them.
    auto contentOf = [](const QString &path) -> std::optional<QByteArray> {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            return file.readAll();
        return std::nullopt;
    };
    const QString listFile = ListFile::dictionaryPathString(folder);
    m_sharedFolder->know(listFile, contentOf(listFile));
    for (const QString &name : m_folderFiles.names()) {
        const QString path = QDir(folder).filePath(name);
        m_sharedFolder->know(path, contentOf(path));
    }
    for (const MonthDataList *month : cachedMonths()) {
        const QString path = filePathForYear(month->year(), month->month());
        m_sharedFolder->know(path, contentOf(path));
    }
}

void KController::takeOutsideChanges(const QList<SharedFolder::FileChange> &files,
                                     const QStringList &conflictCopies)
{
    QList<Notice> notices;
    if (!conflictCopies.isEmpty()) {
        notices.append(
            {tr("A sync service left copies of files in the data folder."),
             tr("Penwick does not read these files and leaves them as they are. Compare each "
                "with the month it names, copy over what is missing, then remove it:\n%1")
                 .arg(conflictCopies.join(u'\n'))});
    }
    // The renumbering writes every month; what others did meanwhile is taken
    // once it is through.
    const bool busy = m_writesHeld != WritesHeld::No || m_converting;
    if (busy && !files.isEmpty())
        m_sharedFolder->lookAgainLater();
    bool changed = false;
    const QString listFile = ListFile::dictionaryPathString(dataFolderPath());
    for (const SharedFolder::FileChange &change : files) {
        if (busy)
            break;
        if (change.path == listFile) {
            takeOutsideLists(&notices);
            m_sharedFolder->know(change.path, change.bytes);
            continue;
        }
        // Whoever holds its content reads it again, and reports it when it
        // cannot.
        if (const QString name = QFileInfo(change.path).fileName(); m_folderFiles.contains(name)) {
            m_sharedFolder->know(change.path, change.bytes);
            emit folderFileRewritten(name);
            continue;
        }
        const auto yearMonth = DataFolder::yearMonthFromPath(change.path);
        const int key = yearMonth ? MonthKey::of(yearMonth->year, yearMonth->month) : 0;
        auto *month = dynamic_cast<MonthDataList *>(m_listStock.value(key).get());
        if (month)
            changed = takeOutsideMonth(month, change, &notices) || changed;
        else
            m_sharedFolder->know(change.path, change.bytes);
    }
    // The recorded changes hold whole months as they were here: taking one
    // back now would throw away what came from outside.
    if (changed)
        expireChanges();
    tell(notices);
}

bool KController::takeOutsideMonth(MonthDataList *month, const SharedFolder::FileChange &change,
                                   QList<Notice> *notices)
{
    const int key = cacheKey(*month);
    const QString name = QLocale().toString(QDate(month->year(), month->month(), 1),
                                            QStringLiteral("MMMM yyyy"));
    const std::optional<QByteArray> base = m_sharedFolder->known(change.path);
    m_sharedFolder->know(change.path, change.bytes);
    if (!change.bytes) {
        // Penwick never removes a month file, an emptied month included, so
        // this is no deletion of entries to follow: a sync tool between two
        // steps, or a mistake.
        notices->append({tr("The file of %1 was removed from the data folder.").arg(name),
                         tr("Not by Penwick, which keeps even an empty month as a file. The "
                            "month stays as it is here and its file is written again at its "
                            "next change. The file was \"%1\".")
                             .arg(QDir::toNativeSeparators(change.path))});
        return false;
    }
    const bool unreadableHere = m_unreadableMonths.contains(key);
    // Read-only for a renumbering cut short: left to the next start.
    if (month->isReadOnly() && !unreadableHere)
        return false;
    QString reason;
    std::shared_ptr<MonthDataList> theirs = MonthFile::decode(*change.bytes, &reason);
    if (theirs && (theirs->year() != month->year() || theirs->month() != month->month())) {
        reason = tr("the file holds %1/%2 instead").arg(theirs->year()).arg(theirs->month());
        theirs.reset();
    }
    if (!theirs) {
        if (unreadableHere)
            return false;
        if (month->isEdited()) {
            notices->append({tr("The file of %1 was changed outside Penwick and cannot be read.")
                                 .arg(name),
                             tr("%1\n\nThe month stays as it is here, with your changes, and "
                                "they replace the damaged file when it is saved.")
                                 .arg(reason)});
            return false;
        }
        // As when it is found so at loading: never written over.
        month->setReadOnly(true);
        m_unreadableMonths.insert(key, reason);
        emit monthFileUnreadable(change.path, reason);
        return false;
    }

    const bool recording = std::exchange(m_recording, false);
    if (!month->isEdited() || month->isReadOnly()) {
        month->setReadOnly(false);
        m_unreadableMonths.remove(key);
        month->setDataListArray(theirs->dataListArray());
        month->setSummary(theirs->summary());
        month->dataHasChanged();
        m_current.insert(key, *change.bytes);
        settleLoadedList(month);
        // A replay must not bring back what the journal holds of it.
        if (m_journaledMonths.contains(key))
            journal({{month->year(), month->month(), {}, m_current.value(key)}});
        m_recording = recording;
        month->notifyChange();
        return true;
    }

    // No file before: the month was empty.
    std::shared_ptr<MonthDataList> before = base ? MonthFile::decode(*base, &reason) : nullptr;
    if (!before)
        before = std::make_shared<MonthDataList>(month->year(), month->month());
    const MonthMerge::Result merged =
        MonthMerge::merge({before->dataListArray(), before->summary()},
                          {month->dataListArray(), month->summary()},
                          {theirs->dataListArray(), theirs->summary()});
    month->setDataListArray(merged.records);
    month->setSummary(merged.summary);
    month->dataHasChanged();
    // A change like any other: journaled now, saved with the others.
    recordMonths({month});
    m_recording = recording;
    month->notifyChange();

    if (!merged.conflicts.isEmpty() || merged.summaryConflict) {
        QStringList lines;
        for (const MonthMerge::Conflict &conflict : merged.conflicts) {
            lines.append(tr("Here: %1").arg(conflict.ours ? describeEntry(conflict.ours)
                                                          : tr("deleted")));
            lines.append(tr("There: %1").arg(conflict.theirs ? describeEntry(conflict.theirs)
                                                             : tr("deleted")));
            lines.append(QString());
        }
        if (merged.summaryConflict)
            lines.append(tr("The memo was changed on both; it now holds both texts."));
        notices->append(
            {tr("Entries of %1 were changed both here and on another computer.").arg(name),
             tr("Both versions of each are kept in the month, nothing was thrown away. Look at "
                "these entries and delete the version that is wrong:\n\n%1")
                 .arg(lines.join(u'\n').trimmed())});
    }
    return true;
}

void KController::takeOutsideLists(QList<Notice> *notices)
{
    const QStringList categories = m_categoryList;
    const QStringList payways = m_paywayList;
    readListPreference();
    // Renaming keeps every entry's number; moving or removing an item means
    // the other computer renumbered its months.
    auto rearranged = [](const QStringList &before, const QStringList &after) {
        if (after.size() < before.size())
            return true;
        for (qsizetype i = 0; i < before.size(); ++i) {
            if (const qsizetype at = after.indexOf(before.at(i)); at >= 0 && at != i)
                return true;
        }
        return false;
    };
    if (rearranged(categories, m_categoryList) || rearranged(payways, m_paywayList)) {
        expireChanges();
        QStringList edited;
        for (const MonthDataList *month : cachedMonths()) {
            if (month->isEdited())
                edited.append(QLocale().toString(QDate(month->year(), month->month(), 1),
                                                 QStringLiteral("MMMM yyyy")));
        }
        notices->append(
            {tr("The category and payway lists were rearranged on another computer."),
             edited.isEmpty()
                 ? tr("Its renumbered months are taken in as they arrive.")
                 : tr("Its renumbered months are taken in as they arrive. Entries changed here "
                      "in the meantime still carry the old numbers and may show another "
                      "category or payway; look over: %1")
                       .arg(edited.join(QStringLiteral(", ")))});
    }
    emit Notifications::instance()->listPreferenceHasUpDated();
}

void KController::tell(const QList<Notice> &notices)
{
    if (notices.isEmpty())
        return;
    QStringList details;
    for (const Notice &notice : notices)
        details.append(notices.size() == 1 ? notice.details : notice.text + u'\n' + notice.details);
    emit sharedFolderNotice(notices.size() == 1
                                ? notices.constFirst().text
                                : tr("The data folder was changed on another computer."),
                            details.join(QStringLiteral("\n\n")));
}

QString KController::describeEntry(const PaymentDataPtr &record) const
{
    const QDate day = QDate(record->year(), record->month(), 1).addDays(record->date() - 1);
    return QStringList{QLocale().toString(day, QLocale::ShortFormat),
                       m_categoryList.value(record->category()), record->details(),
                       amountText(record->amount()), m_paywayList.value(record->payway())}
        .join(QStringLiteral(", "));
}

bool KController::bookImport(const PaymentArray &records, QString *error,
                             const ImportProgress &progress)
{
    return bookAsOneChange(records, {},
                           tr("Import of %n Entries", nullptr, int(records.size())), error,
                           progress, true);
}

bool KController::bookAsOneChange(const PaymentArray &records,
                                  const QMap<QString, QByteArray> &files, const QString &label,
                                  QString *error, const ImportProgress &progress, bool writeNow)
{
    if (!m_listFileProblem.isEmpty()) {
        setError(error, tr("Nothing can be booked until the list file is mended. %1")
                            .arg(m_listFileProblem));
        return false;
    }
    if (m_writesHeld != WritesHeld::No) {
        setError(error, tr("%1 Try again when that is done.").arg(writesHeldReason()));
        return false;
    }
    const QMap<int, PaymentArray> groups = assortDataArray(records);
    QList<std::shared_ptr<MonthDataList>> months;
    months.reserve(groups.size());
    for (auto group = groups.cbegin(); group != groups.cend(); ++group) {
        const int year = group.key() / 100;
        const int month = group.key() % 100;
        const auto list = monthListForYear(year, month);
        if (!list) {
            setError(error, tr("There is no month %1 in year %2.").arg(month).arg(year));
            return false;
        }
        if (list->isReadOnly()) {
            setError(error, tr("The file of %1/%2 could not be read, so nothing was booked.")
                                .arg(month)
                                .arg(year));
            return false;
        }
        months.append(list);
    }

    const ChangeScope scope(this, label);
    // While the entries are in memory only, nothing may write a month or
    // record it on its own: that would put part of the import on the disk.
    // Whoever shows progress may let the event loop run meanwhile.
    m_saveTimer.stop();
    m_writesHeld = WritesHeld::ForImport;
    QList<bool> wasEdited;
    QList<MonthChange> changes;
    changes.reserve(months.size());
    const int total = int(months.size());
    bool cancelled = false;
    int added = 0;
    for (; added < total && !cancelled; ++added) {
        MonthDataList *month = months.at(added).get();
        const int key = cacheKey(*month);
        wasEdited.append(month->isEdited());
        QByteArray before = m_current.contains(key) ? m_current.value(key) : contentAsLoaded(*month);
        month->addData(groups.value(key));
        changes.append({month->year(), month->month(), std::move(before), MonthFile::encode(*month)});
        cancelled = progress && !progress(added + 1, total);
    }
    m_writesHeld = WritesHeld::No;
    // The moment of booking.
    if (cancelled || !journal(changes, files)) {
        m_writesHeld = WritesHeld::ForImport;
        for (int i = 0; i < added; ++i) {
            MonthDataList *month = months.at(i).get();
            month->deleteData(groups.value(cacheKey(*month)));
            month->setIsEdited(wasEdited.at(i));
        }
        m_writesHeld = WritesHeld::No;
        setError(error, cancelled ? tr("The import was cancelled; nothing was booked.")
                                  : tr("The entries could not be recorded, so nothing was booked."));
        return false;
    }
    for (const MonthChange &change : std::as_const(changes))
        m_current.insert(MonthKey::of(change.year, change.month), change.after);
    if (m_recording)
        m_change.months += changes;
    // Safe in the journal: a month that cannot be written now stays edited
    // and is tried again like any other.
    if (writeNow) {
        saveAllEditedData();
    } else {
        // The files at once, so that whoever reads one finds what was
        // booked; the months with the next save.
        writeJournaledFiles();
        m_saveTimer.start();
    }
    return true;
}

// Files of the data folder that hold category or payway numbers -------------

void KController::registerFolderFile(const QString &name, const FolderFiles::Renumber &renumber)
{
    m_folderFiles.add(name, renumber);
}

std::optional<QByteArray> KController::readFolderFile(const QString &name, QString *error)
{
    const QString path = QDir(dataFolderPath()).filePath(name);
    QString reason;
    const std::optional<QByteArray> content = FolderFiles::read(dataFolderPath(), name, &reason);
    m_sharedFolder->know(path, content);
    setError(error, reason);
    return content;
}

void KController::takeOutsideChangeOf(const QString &name)
{
    // Taken once the folder is through, like every other change.
    if (m_writesHeld != WritesHeld::No || m_converting)
        return;
    const QString path = QDir(dataFolderPath()).filePath(name);
    if (const auto change = m_sharedFolder->changeOf(path)) {
        m_sharedFolder->know(path, change->bytes);
        emit folderFileRewritten(name);
    }
}

bool KController::changeFolderFile(const FolderFileChange &change, const QString &label,
                                   QString *error)
{
    if (!writeFolderFile(change.name, change.after, error))
        return false;
    emit changeRecorded({label, {}, false, {}, {}, {change}});
    return true;
}

bool KController::restoreFolderFiles(const QList<FolderFileChange> &files, bool before,
                                     QString *error)
{
    // Whatever came after the change, here or on another computer, is not
    // thrown away.
    for (const FolderFileChange &file : files) {
        if (FolderFiles::read(dataFolderPath(), file.name) != (before ? file.after : file.before)) {
            setError(error, tr("%1 was changed since, so the change cannot be taken back.")
                                .arg(file.name));
            return false;
        }
    }
    for (const FolderFileChange &file : files) {
        if (!writeFolderFile(file.name, before ? file.before : file.after, error))
            return false;
        emit folderFileRewritten(file.name);
    }
    return true;
}

bool KController::writeFolderFile(const QString &name, const QByteArray &content, QString *error)
{
    if (m_writesHeld != WritesHeld::No) {
        setError(error, tr("%1 Try again when that is done.").arg(writesHeldReason()));
        return false;
    }
    // The journal may hold an older content, which a replay would bring
    // back over this one: it gets the new one first.
    const bool journaled =
        (m_journal || m_filesPending.contains(name)) && journal({}, {{name, content}});
    QString reason;
    const QString path = QDir(dataFolderPath()).filePath(name);
    if (DurableFile::write(path, content, &reason)) {
        m_sharedFolder->know(path, content);
        m_filesPending.remove(name);
        return true;
    }
    // Safe in the journal, and written at the next save.
    if (journaled)
        return true;
    setError(error, reason);
    return false;
}

bool KController::bookWithFolderFiles(const PaymentArray &records,
                                      const QMap<QString, QByteArray> &files,
                                      const QString &label, QString *error)
{
    return bookAsOneChange(records, files, label, error, {}, false);
}

bool KController::writeJournaledFiles()
{
    if (m_writesHeld != WritesHeld::No)
        return m_filesPending.isEmpty();
    for (auto file = m_filesPending.begin(); file != m_filesPending.end();) {
        QString reason;
        const QString path = QDir(dataFolderPath()).filePath(file.key());
        if (DurableFile::write(path, file.value(), &reason)) {
            m_sharedFolder->know(path, file.value());
            file = m_filesPending.erase(file);
        } else {
            qWarning("%s", qPrintable(reason));
            ++file;
        }
    }
    return m_filesPending.isEmpty();
}
