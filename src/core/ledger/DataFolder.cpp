#include "ledger/DataFolder.h"

#include "settings/Settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace DataFolder {

namespace {
QString defaultFolderName()
{
    // The text table answers the key itself when it has no translation.
    const char *key = QT_TRANSLATE_NOOP("Localizable", "DataFolderName");
    const QString name = QCoreApplication::translate("Localizable", key);
    return name == QLatin1StringView(key) ? QStringLiteral("PenwickData") : name;
}
} // namespace

QString dataFolderPath()
{
    const QString chosen = Settings().dataPath();
    if (!chosen.isEmpty())
        return chosen;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString path = QDir(documents).filePath(defaultFolderName());
    QDir().mkpath(path);
    return path;
}

QString filePathForYear(const QString &folder, int year, int month)
{
    // One pass of arg(): a folder name may itself contain "%2".
    return QStringLiteral("%1/Data_%2_%3.Penwick")
        .arg(folder, QString::number(year), QString::number(month));
}

std::optional<YearMonth> yearMonthFromPath(const QString &path)
{
    static const QRegularExpression pattern(QStringLiteral("^Data_(\\d{1,4})_(\\d{1,2})$"));
    const QRegularExpressionMatch match = pattern.match(QFileInfo(path).completeBaseName());
    if (!match.hasMatch())
        return std::nullopt;
    const int year = match.capturedView(1).toInt();
    const int month = match.capturedView(2).toInt();
    if (year < 1 || month < 1 || month > 12)
        return std::nullopt;
    return YearMonth{year, month};
}

} // namespace DataFolder
