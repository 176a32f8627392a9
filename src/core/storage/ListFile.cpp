#include "storage/ListFile.h"

#include "storage/ColorArchive.h"
#include "storage/PropertyList.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace ListFile {

namespace {

QVariantList listResource(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return PropertyList::fromData(file.readAll()).toList();
}

bool writeDictionary(const QString &path, const QVariantMap &dictionary)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(PropertyList::toXml(dictionary));
    return file.commit();
}

// The dictionary of the file, or nothing when there is a file that does not
// hold one.
std::optional<QVariantMap> readDictionary(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return QVariantMap();
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QVariant value = PropertyList::fromData(file.readAll());
    if (value.typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    return value.toMap();
}

} // namespace

QString dictionaryPathString(const QString &folder)
{
    return QDir(folder).filePath(QStringLiteral("Data.penwick"));
}

QString dataDictionaryPath(const QString &folder)
{
    const QString path = dictionaryPathString(folder);
    if (!QFile::exists(path))
        makeInitialDataToPath(folder);
    return path;
}

bool makeInitialDataToPath(const QString &folder)
{
    QDir().mkpath(folder);
    const QVariantList categories = listResource(QStringLiteral(":/DefaultCategory.plist"));
    QVariantList colors;
    for (const QByteArray &color : ColorArchive::initialColors(int(categories.size())))
        colors.append(color);
    const QVariantMap dictionary{
        {CategoryList, categories},
        {ColorList, colors},
        {PaywayList, listResource(QStringLiteral(":/DefaultPayway.plist"))},
    };
    return writeDictionary(dictionaryPathString(folder), dictionary);
}

QVariantList preferenceDataListForKey(const QString &folder, QLatin1StringView key)
{
    const auto dictionary = readDictionary(dataDictionaryPath(folder));
    if (!dictionary)
        return {};
    return dictionary->value(key).toList();
}

bool setPreferenceDataListForKey(const QString &folder, const QVariantList &list,
                                 QLatin1StringView key)
{
    return setPreferenceDataLists(folder, {{key, list}});
}

bool setPreferenceDataLists(const QString &folder, const QVariantMap &lists)
{
    const QString path = dataDictionaryPath(folder);
    auto dictionary = readDictionary(path);
    if (!dictionary) {
        // Keep what could not be read; an earlier copy is never replaced.
        QString keep = path + QStringLiteral(".unreadable");
        for (int n = 2; QFile::exists(keep); ++n)
            keep = path + QStringLiteral(".unreadable-%1").arg(n);
        if (!QFile::copy(path, keep))
            return false;
        dictionary = QVariantMap();
    }
    for (auto it = lists.cbegin(); it != lists.cend(); ++it)
        dictionary->insert(it.key(), it.value());
    return writeDictionary(path, *dictionary);
}

} // namespace ListFile
