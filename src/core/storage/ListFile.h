#pragma once

#include <QString>
#include <QVariantList>
#include <QVariantMap>

// The list file "Data.penwick" of a data folder: a property-list dictionary
// of the category names ("CategoryList", the income category last), one
// archived colour per category ("ColorList") and the payway names
// ("PaywayList"). Indices into these lists are what the month files store.
namespace ListFile {

inline constexpr QLatin1StringView CategoryList{"CategoryList"};
inline constexpr QLatin1StringView ColorList{"ColorList"};
inline constexpr QLatin1StringView PaywayList{"PaywayList"};

QString dictionaryPathString(const QString &folder);
// The list file's path, after creating it with the initial lists when the
// folder has none.
QString dataDictionaryPath(const QString &folder);
// Creates the folder when missing and writes the initial lists into it.
bool makeInitialDataToPath(const QString &folder);

// The list under the key, read anew from the file; empty when the key is
// absent or the file cannot be read. Names come as QString, colours as
// QByteArray archives.
QVariantList preferenceDataListForKey(const QString &folder, QLatin1StringView key);
// Replaces one list and writes the file atomically, keeping the others. A
// file that exists but cannot be read is kept beside it as
// "Data.penwick.unreadable" first.
bool setPreferenceDataListForKey(const QString &folder, const QVariantList &list,
                                 QLatin1StringView key);
// The same for several lists at once, by key, in one write.
bool setPreferenceDataLists(const QString &folder, const QVariantMap &lists);

} // namespace ListFile
