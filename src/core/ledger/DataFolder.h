#pragma once

#include <QString>

#include <optional>

// Where the ledger lives and how its files are named: one file per month,
// "Data_<year>_<month>.Penwick" with the month unpadded, and the list file
// "Data.penwick", all in one folder.
namespace DataFolder {

// The folder of the setting "DataPath" when it is not empty, else the folder
// "PenwickData" (localised) in the user's Documents folder, created when
// missing. The path is answered even if it cannot be created.
QString dataFolderPath();

QString filePathForYear(const QString &folder, int year, int month);

struct YearMonth
{
    int year;
    int month;
};
// The year and month a month file's name stands for: the last path component
// without its extension must read "Data_<year>_<month>", the month 1..12 in
// one or two digits. Anything else answers nothing.
std::optional<YearMonth> yearMonthFromPath(const QString &path);

} // namespace DataFolder
