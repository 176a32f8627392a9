#include "ledger/ConversionJournal.h"

#include "storage/DurableFile.h"
#include "storage/ListFile.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace {

QJsonArray mapToJson(const ConversionMap &map)
{
    QJsonArray pairs;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        pairs.append(QJsonArray{it.key(), it.value()});
    return pairs;
}

ConversionMap mapFromJson(const QJsonArray &pairs)
{
    ConversionMap map;
    for (const QJsonValue &pair : pairs)
        map.insert(pair[0].toInt(), pair[1].toInt());
    return map;
}

// The lists hold names (strings) and archived colours (bytes).
QJsonObject listsToJson(const QVariantMap &lists)
{
    QJsonObject object;
    for (auto it = lists.cbegin(); it != lists.cend(); ++it) {
        QJsonArray values;
        const QVariantList list = it.value().toList();
        for (const QVariant &value : list) {
            if (value.typeId() == QMetaType::QByteArray)
                values.append(
                    QJsonObject{{u"data"_s, QString::fromLatin1(value.toByteArray().toBase64())}});
            else
                values.append(value.toString());
        }
        object.insert(it.key(), values);
    }
    return object;
}

QVariantMap listsFromJson(const QJsonObject &object)
{
    QVariantMap lists;
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        QVariantList list;
        const QJsonArray values = it.value().toArray();
        for (const QJsonValue &value : values) {
            if (value.isObject())
                list.append(QByteArray::fromBase64(value[u"data"_s].toString().toLatin1()));
            else
                list.append(value.toString());
        }
        lists.insert(it.key(), list);
    }
    return lists;
}

} // namespace

ConversionJournal::ConversionJournal(const QString &folder)
    : m_folder(folder)
{
}

QString ConversionJournal::journalPath(const QString &folder)
{
    return QDir(folder).filePath(u".penwick-conversion"_s);
}

QString ConversionJournal::sideFilePath(const QString &monthFile)
{
    return monthFile + u".converting"_s;
}

QString ConversionJournal::pathOf(const QString &file) const
{
    return QDir(m_folder).filePath(file);
}

bool ConversionJournal::read(QString *error)
{
    m_phase = Phase::None;
    m_conversion = {};
    m_files.clear();
    m_repeatable = true;
    QFile file(journalPath(m_folder));
    if (!file.exists())
        return true;
    QJsonParseError parseError;
    const QJsonDocument document = file.open(QIODevice::ReadOnly)
        ? QJsonDocument::fromJson(file.readAll(), &parseError)
        : QJsonDocument();
    const QString phase = document[u"phase"_s].toString();
    if (phase != "prepare"_L1 && phase != "commit"_L1) {
        if (error)
            *error = tr("The record of an unfinished change of the lists, %1, cannot be read.")
                         .arg(file.fileName());
        return false;
    }
    m_phase = phase == "commit"_L1 ? Phase::Commit : Phase::Prepare;
    m_conversion.categoryMap = mapFromJson(document[u"category"_s].toArray());
    m_conversion.paywayMap = mapFromJson(document[u"payway"_s].toArray());
    m_conversion.lists = listsFromJson(document[u"lists"_s].toObject());
    m_repeatable = document[u"repeatable"_s].toBool(true);
    const QJsonArray files = document[u"files"_s].toArray();
    for (const QJsonValue &name : files)
        m_files.append(name.toString());
    return true;
}

bool ConversionJournal::writeJournal(Phase phase, QString *error)
{
    QJsonArray files;
    for (const QString &name : std::as_const(m_files))
        files.append(name);
    const QJsonObject journal{
        {u"phase"_s, phase == Phase::Commit ? u"commit"_s : u"prepare"_s},
        {u"category"_s, mapToJson(m_conversion.categoryMap)},
        {u"payway"_s, mapToJson(m_conversion.paywayMap)},
        {u"lists"_s, listsToJson(m_conversion.lists)},
        {u"files"_s, files},
        {u"repeatable"_s, m_repeatable},
    };
    if (!DurableFile::write(journalPath(m_folder), QJsonDocument(journal).toJson(), error))
        return false;
    m_phase = phase;
    return true;
}

bool ConversionJournal::begin(const ListConversion &conversion, const QStringList &files,
                              bool repeatable, QString *error)
{
    m_conversion = conversion;
    m_files = files;
    m_repeatable = repeatable;
    return writeJournal(Phase::Prepare, error);
}

bool ConversionJournal::writeMonth(const QString &file, const QByteArray &content, QString *error)
{
    // Nothing relies on a side file before commit(), which makes them all
    // durable at once: one flush of the disk for every month instead of one
    // for each.
    return DurableFile::writeUnsynced(sideFilePath(pathOf(file)), content, error);
}

bool ConversionJournal::commit(QString *error)
{
    // Every side file, and its name, must be on the disk before the journal
    // says they are all there.
    for (const QString &name : std::as_const(m_files)) {
        if (!DurableFile::syncToDisk(sideFilePath(pathOf(name)), error))
            return false;
    }
    return DurableFile::syncFolder(m_folder, error) && writeJournal(Phase::Commit, error);
}

bool ConversionJournal::finish(const std::function<void(int)> &replaced, QString *error)
{
    int done = 0;
    for (const QString &name : std::as_const(m_files)) {
        const QString target = pathOf(name);
        const QString side = sideFilePath(target);
        // A side file that is gone has replaced its month already.
        if (QFile::exists(side) && !DurableFile::rename(side, target, error))
            return false;
        if (replaced)
            replaced(++done);
    }
    if (!DurableFile::syncFolder(m_folder, error))
        return false;
    if (!m_conversion.lists.isEmpty()
        && !ListFile::setPreferenceDataLists(m_folder, m_conversion.lists, error))
        return false;
    QFile::remove(journalPath(m_folder));
    DurableFile::syncFolder(m_folder); // a journal that comes back only repeats the renames
    m_phase = Phase::None;
    return true;
}

void ConversionJournal::abandon()
{
    // The side files, and the temporary file of one whose writing was cut
    // short.
    const QDir folder(m_folder);
    const QStringList sideFiles = folder.entryList({u"*.converting"_s, u"*.converting.*"_s},
                                                   QDir::Files | QDir::Hidden);
    for (const QString &name : sideFiles)
        QFile::remove(folder.filePath(name));
    QFile::remove(journalPath(m_folder));
    DurableFile::syncFolder(m_folder);
    m_phase = Phase::None;
}
