#pragma once

#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

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
bool makeInitialDataToPath(const QString &folder, QString *error = nullptr);

// The whole dictionary (made with the initial lists when the folder has no
// list file). Nothing, with the reason, when the file cannot be read or is
// not a list file: garbage, empty, no dictionary, or lists of the wrong
// kind (names must be strings, colours data).
std::optional<QVariantMap> read(const QString &folder, QString *error = nullptr);
// The list under the key, read anew from the file; empty when the key is
// absent or the file cannot be read. Names come as QString, colours as
// QByteArray archives.
QVariantList preferenceDataListForKey(const QString &folder, QLatin1StringView key);
// Replaces one list and writes the file durably, keeping the others. A file
// that cannot be read is left as it is, and nothing is written.
bool setPreferenceDataListForKey(const QString &folder, const QVariantList &list,
                                 QLatin1StringView key, QString *error = nullptr);
// The same for several lists at once, by key, in one write.
bool setPreferenceDataLists(const QString &folder, const QVariantMap &lists,
                            QString *error = nullptr);

} // namespace ListFile
