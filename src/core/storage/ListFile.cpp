#include "storage/ListFile.h"

#include "storage/ColorArchive.h"
#include "storage/DurableFile.h"
#include "storage/PropertyList.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ListFile {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("ListFile", text);
}

// A list of the initial ones, in the user's language when it has them.
QVariantList listResource(const QString &name)
{
    const QString translated = QStringLiteral(":/%1/%2").arg(QLocale().name().section(u'_', 0, 0), name);
    QFile file(QFile::exists(translated) ? translated : u":/"_s + name);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return PropertyList::fromData(file.readAll()).toList();
}

bool writeDictionary(const QString &path, const QVariantMap &dictionary, QString *error)
{
    return DurableFile::write(path, PropertyList::toXml(dictionary), error);
}

bool isListOf(const QVariant &value, QMetaType::Type type)
{
    if (value.typeId() != QMetaType::QVariantList)
        return false;
    const QVariantList list = value.toList();
    return std::all_of(list.cbegin(), list.cend(),
                       [type](const QVariant &item) { return item.typeId() == type; });
}

// Why the dictionary is not a list file, or nothing when it is one.
std::optional<QString> problemOf(const QVariantMap &dictionary)
{
    for (const QLatin1StringView key : {CategoryList, PaywayList}) {
        if (!dictionary.contains(key))
            return tr("it has no %1").arg(key);
        if (!isListOf(dictionary.value(key), QMetaType::QString))
            return tr("its %1 is not a list of names").arg(key);
    }
    if (dictionary.value(CategoryList).toList().isEmpty())
        return tr("its %1 is empty").arg(CategoryList);
    if (dictionary.contains(ColorList) && !isListOf(dictionary.value(ColorList), QMetaType::QByteArray))
        return tr("its %1 is not a list of colours").arg(ColorList);
    return std::nullopt;
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

bool makeInitialDataToPath(const QString &folder, QString *error)
{
    QDir().mkpath(folder);
    const QVariantList categories = listResource(u"DefaultCategory.plist"_s);
    QVariantList colors;
    for (const QByteArray &color : ColorArchive::initialColors(int(categories.size())))
        colors.append(color);
    const QVariantMap dictionary{
        {CategoryList, categories},
        {ColorList, colors},
        {PaywayList, listResource(u"DefaultPayway.plist"_s)},
    };
    return writeDictionary(dictionaryPathString(folder), dictionary, error);
}

std::optional<QVariantMap> read(const QString &folder, QString *error)
{
    const QString path = dataDictionaryPath(folder);
    QFile file(path);
    QString reason;
    if (!file.open(QIODevice::ReadOnly)) {
        reason = file.errorString();
    } else {
        const QVariant value = PropertyList::fromData(file.readAll(), &reason);
        if (value.typeId() == QMetaType::QVariantMap) {
            const QVariantMap dictionary = value.toMap();
            const auto problem = problemOf(dictionary);
            if (!problem)
                return dictionary;
            reason = *problem;
        } else if (value.isValid()) {
            reason = tr("it holds no dictionary");
        }
    }
    if (error)
        *error = tr("The list file %1 cannot be read: %2").arg(path, reason);
    return std::nullopt;
}

QVariantList preferenceDataListForKey(const QString &folder, QLatin1StringView key)
{
    const auto dictionary = read(folder);
    return dictionary ? dictionary->value(key).toList() : QVariantList();
}

bool setPreferenceDataListForKey(const QString &folder, const QVariantList &list,
                                 QLatin1StringView key, QString *error)
{
    return setPreferenceDataLists(folder, {{key, list}}, error);
}

bool setPreferenceDataLists(const QString &folder, const QVariantMap &lists, QString *error)
{
    // A file that cannot be read is never replaced: it may be the only copy
    // of a household's lists, waiting to be mended.
    auto dictionary = read(folder, error);
    if (!dictionary)
        return false;
    for (auto it = lists.cbegin(); it != lists.cend(); ++it)
        dictionary->insert(it.key(), it.value());
    return writeDictionary(dictionaryPathString(folder), *dictionary, error);
}

} // namespace ListFile
