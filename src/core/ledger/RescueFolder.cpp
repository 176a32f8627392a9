#include "ledger/RescueFolder.h"

#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "model/MonthDataList.h"
#include "storage/DurableFile.h"
#include "storage/MonthFile.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace RescueFolder {

namespace {

const QString kNoteName = u"rescue.json"_s;
const QString kTimeFormat = u"yyyy-MM-ddTHH-mm-ss"_s;

QString tr(const char *text)
{
    return QCoreApplication::translate("RescueFolder", text);
}

// What the file holds now, as a fingerprint; empty when there is no file.
QString fingerprint(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLatin1(
        QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256).toHex());
}

QJsonObject noteOf(const QString &folder)
{
    QFile file(QDir(folder).filePath(kNoteName));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

bool sameEntry(const PaymentData &a, const PaymentData &b)
{
    return a.date() == b.date() && a.category() == b.category() && a.details() == b.details()
        && a.amount() == b.amount() && a.payway() == b.payway();
}

} // namespace

QString root()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
        .filePath(u"unsaved"_s);
}

std::optional<QString> save(KController &ledger, QString *error)
{
    const QDateTime now = QDateTime::currentDateTime();
    QString folder = QDir(root()).filePath(now.toString(kTimeFormat));
    for (int n = 2; QFileInfo::exists(folder); ++n)
        folder = QDir(root()).filePath(now.toString(kTimeFormat) + u'-' + QString::number(n));
    if (!QDir().mkpath(folder)) {
        if (error)
            *error = tr("The folder %1 could not be made.").arg(folder);
        return std::nullopt;
    }

    QJsonObject months;
    const auto lists = ledger.cachedLists();
    for (const auto &list : lists) {
        auto *month = dynamic_cast<MonthDataList *>(list.get());
        if (!month || !month->isEdited() || month->isReadOnly())
            continue;
        const QString path = ledger.filePathForYear(month->year(), month->month());
        const QString name = QFileInfo(path).fileName();
        if (!DurableFile::write(QDir(folder).filePath(name), MonthFile::encode(*month), error))
            return std::nullopt;
        months.insert(name, fingerprint(path));
    }
    const QJsonObject note{{u"dataFolder"_s, ledger.dataFolderPath()},
                           {u"made"_s, now.toString(Qt::ISODate)},
                           {u"months"_s, months}};
    if (!DurableFile::write(QDir(folder).filePath(kNoteName), QJsonDocument(note).toJson(), error))
        return std::nullopt;
    return folder;
}

QList<Pending> pending(const QString &dataFolder)
{
    QList<Pending> found;
    const QDir rescues(root());
    const QStringList names = rescues.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    const QString wanted = QFileInfo(dataFolder).canonicalFilePath();
    for (const QString &name : names) {
        const QString folder = rescues.filePath(name);
        const QJsonObject note = noteOf(folder);
        if (QFileInfo(note.value(u"dataFolder"_s).toString()).canonicalFilePath() != wanted)
            continue;
        found.append({folder, QDateTime::fromString(note.value(u"made"_s).toString(), Qt::ISODate),
                      note.value(u"months"_s).toObject().keys()});
    }
    return found;
}

bool mergeBack(KController &ledger, const QString &rescueFolder, QString *report)
{
    const QJsonObject months = noteOf(rescueFolder).value(u"months"_s).toObject();
    QStringList done;
    QStringList problems;
    for (auto it = months.constBegin(); it != months.constEnd(); ++it) {
        const QString name = it.key();
        const auto yearMonth = DataFolder::yearMonthFromPath(name);
        QFile file(QDir(rescueFolder).filePath(name));
        QString reason;
        std::shared_ptr<MonthDataList> rescued;
        if (!yearMonth)
            reason = tr("the name does not stand for a month");
        else if (!file.open(QIODevice::ReadOnly))
            reason = file.errorString();
        else
            rescued = MonthFile::decode(file.readAll(), &reason);
        const auto month = rescued ? ledger.monthListForYear(yearMonth->year, yearMonth->month)
                                   : nullptr;
        if (rescued && !month)
            reason = tr("there is no such month");
        if (month && month->isReadOnly())
            reason = tr("the month's own file cannot be read");
        if (!reason.isEmpty() || !month || month->isReadOnly()) {
            problems.append(u"%1: %2"_s.arg(name, reason));
            continue;
        }

        const QString path = ledger.filePathForYear(yearMonth->year, yearMonth->month);
        const bool unchangedSince = fingerprint(path) == it.value().toString() && !month->isEdited();
        if (unchangedSince) {
            month->setDataListArray(rescued->dataListArray());
            month->setSummary(rescued->summary());
            month->dataHasChangedAndNotify();
        } else {
            PaymentArray missing;
            for (const PaymentDataPtr &entry : rescued->dataListArray()) {
                const auto &have = month->dataListArray();
                if (std::none_of(have.cbegin(), have.cend(), [&](const PaymentDataPtr &own) {
                        return sameEntry(*own, *entry);
                    }))
                    missing.append(entry);
            }
            if (month->summary().isEmpty() && !rescued->summary().isEmpty())
                month->setSummary(rescued->summary());
            if (!missing.isEmpty())
                month->addData(missing);
            month->setIsEdited(true);
        }
        if (!ledger.writeDataListToFile(month.get(), &reason)) {
            problems.append(u"%1: %2"_s.arg(name, reason));
            continue;
        }
        done.append(unchangedSince ? tr("%1: brought back as it was").arg(name)
                                   : tr("%1: its file had changed since, so the entries it "
                                        "lacked were added").arg(name));
    }
    if (report)
        *report = (done + problems).join(u'\n');
    if (!problems.isEmpty())
        return false;
    return discard(rescueFolder);
}

bool discard(const QString &rescueFolder)
{
    return QDir(rescueFolder).removeRecursively();
}

} // namespace RescueFolder
