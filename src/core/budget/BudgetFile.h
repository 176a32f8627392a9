#pragma once

#include "budget/BudgetPlan.h"

#include <QByteArray>
#include <QString>

#include <optional>

struct ListConversion;

// The data folder's budget file "Budgets.plist": an XML property list
//   Categories  array of dictionaries: Category (index), Amount (real),
//               Months (dictionary "YYYYMM" to real), RollOver (boolean),
//               RollOverSince (integer YYYYMM)
//   AllSpending one such dictionary without Category, when there is one
// Budgets travel with the data folder, like the lists whose indices they use.
namespace BudgetFile {

inline constexpr QLatin1StringView FileName{"Budgets.plist"};

QString pathIn(const QString &folder);

// Nothing, with the reason, when the content is not such a file: garbage,
// no dictionary, a category that is not an index, an amount that is not a
// finite number.
std::optional<BudgetPlan> decode(const QByteArray &content, QString *error = nullptr);
QByteArray encode(const BudgetPlan &plan);

// The file's content after the preferences renumbered the categories: a
// budget follows its category to its new index; budgets of categories merged
// into one add up (month by month, and rolling over when either did); a
// category that is gone, or that becomes the income category, loses its
// budget. Nothing, with the reason, when the content cannot be read.
std::optional<QByteArray> renumbered(const QByteArray &content, const ListConversion &conversion,
                                     QString *error = nullptr);

} // namespace BudgetFile
