#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class KController;

// What scripts learn of the budgets: a month's figures as a JSON object
//   {"year", "month",
//    "categories": [{"index", "category", "spent", "budget", "carried", "left"}],
//    "total": {"spent", "budget", "carried", "left"} (absent without budgets),
//    "problem": why the budget file cannot be read (absent when it can)}
// where "budget" is what the month may take, what rolled over included.
namespace BudgetCommand {

// "200605" as year * 100 + month; empty text is this month; nothing for
// text that names no month.
std::optional<int> monthNamed(const QString &text);

QByteArray reportJson(KController &ledger, int year, int month);

} // namespace BudgetCommand
