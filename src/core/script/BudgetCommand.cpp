#include "script/BudgetCommand.h"

#include "budget/BudgetBook.h"
#include "ledger/KController.h"
#include "model/DataList.h"
#include "model/MonthKey.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace BudgetCommand {

namespace {

// To cents: entries are single precision, and more digits would be noise.
double cents(double amount)
{
    return std::round(amount * 100.0) / 100.0;
}

QJsonObject figuresOf(const BudgetCalculation::Line &line)
{
    return {{u"spent"_s, cents(line.spent)},
            {u"budget"_s, cents(line.available())},
            {u"carried"_s, cents(line.carried)},
            {u"left"_s, cents(line.left())}};
}

} // namespace

std::optional<int> monthNamed(const QString &text)
{
    if (text.isEmpty()) {
        const QDate today = QDate::currentDate();
        return MonthKey::of(today.year(), today.month());
    }
    static const QRegularExpression pattern(u"^\\d{6}$"_s);
    const int key = text.toInt();
    if (!pattern.match(text).hasMatch() || key / 100 < 1 || key % 100 < 1 || key % 100 > 12)
        return std::nullopt;
    return key;
}

QByteArray reportJson(KController &ledger, int year, int month)
{
    QJsonObject json{{u"year"_s, year}, {u"month"_s, month}};
    // The month as the list window shows it, closing day and all.
    const auto listOf = [&ledger](int y, int m) { return ledger.listForYear(y, m, true); };
    const BudgetBook *book = ledger.budgets();
    const QStringList names = ledger.categoryList();
    if (const auto list = listOf(year, month)) {
        const auto report = book->report(*list, int(names.size()) - 1, listOf);
        QJsonArray categories;
        for (const BudgetCalculation::Line &line : report.categories) {
            QJsonObject item = figuresOf(line);
            item.insert(u"index"_s, line.category);
            item.insert(u"category"_s, names.value(line.category));
            categories.append(item);
        }
        json.insert(u"categories"_s, categories);
        if (report.total)
            json.insert(u"total"_s, figuresOf(*report.total));
    }
    if (!book->problem().isEmpty())
        json.insert(u"problem"_s, book->problem());
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

} // namespace BudgetCommand
