#include "budget/BudgetFile.h"

#include "ledger/ListConversion.h"
#include "storage/ListFile.h"
#include "storage/PropertyList.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cmath>
#include <limits>

namespace BudgetFile {

namespace {

const QString kCategories = QStringLiteral("Categories");
const QString kAllSpending = QStringLiteral("AllSpending");
const QString kCategory = QStringLiteral("Category");
const QString kAmount = QStringLiteral("Amount");
const QString kMonths = QStringLiteral("Months");
const QString kRollOver = QStringLiteral("RollOver");
const QString kRollOverSince = QStringLiteral("RollOverSince");

QString tr(const char *text)
{
    return QCoreApplication::translate("BudgetFile", text);
}

void setError(QString *error, const QString &reason)
{
    if (error)
        *error = reason;
}

bool isNumber(const QVariant &value)
{
    const int type = value.typeId();
    return type == QMetaType::LongLong || type == QMetaType::Double;
}

std::optional<double> amountOf(const QVariant &value)
{
    if (!isNumber(value) || !std::isfinite(value.toDouble()))
        return std::nullopt;
    return value.toDouble();
}

std::optional<int> wholeOf(const QVariant &value)
{
    if (value.typeId() != QMetaType::LongLong)
        return std::nullopt;
    const qint64 number = value.toLongLong();
    if (number < 0 || number > std::numeric_limits<int>::max())
        return std::nullopt;
    return int(number);
}

std::optional<CategoryBudget> budgetOf(const QVariantMap &dict)
{
    CategoryBudget budget;
    const auto amount = amountOf(dict.value(kAmount));
    if (!amount)
        return std::nullopt;
    budget.amount = *amount;
    const QVariant months = dict.value(kMonths, QVariantMap());
    if (months.typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    const QVariantMap monthMap = months.toMap();
    for (auto it = monthMap.cbegin(); it != monthMap.cend(); ++it) {
        bool ok = false;
        const int key = it.key().toInt(&ok);
        const auto monthAmount = amountOf(it.value());
        if (!ok || key % 100 < 1 || key % 100 > 12 || !monthAmount)
            return std::nullopt;
        budget.months.insert(key, *monthAmount);
    }
    budget.rollOver = dict.value(kRollOver, false).toBool();
    if (dict.contains(kRollOverSince)) {
        const auto since = wholeOf(dict.value(kRollOverSince));
        if (!since)
            return std::nullopt;
        budget.rollOverSince = *since;
    }
    return budget;
}

QVariantMap dictOf(const CategoryBudget &budget)
{
    QVariantMap dict{{kAmount, budget.amount}, {kRollOver, budget.rollOver}};
    if (!budget.months.isEmpty()) {
        QVariantMap months;
        for (auto it = budget.months.cbegin(); it != budget.months.cend(); ++it)
            months.insert(QString::number(it.key()), it.value());
        dict.insert(kMonths, months);
    }
    if (budget.rollOver)
        dict.insert(kRollOverSince, qint64(budget.rollOverSince));
    return dict;
}

// Two budgets counted as one, as the entries of two merged categories are.
CategoryBudget merged(const CategoryBudget &a, const CategoryBudget &b)
{
    CategoryBudget sum;
    sum.amount = a.amount + b.amount;
    QList<int> keys = a.months.keys() + b.months.keys();
    for (const int key : std::as_const(keys))
        sum.months.insert(key, a.amountFor(key) + b.amountFor(key));
    sum.rollOver = a.rollOver || b.rollOver;
    if (a.rollOver && b.rollOver)
        sum.rollOverSince = std::min(a.rollOverSince, b.rollOverSince);
    else if (sum.rollOver)
        sum.rollOverSince = a.rollOver ? a.rollOverSince : b.rollOverSince;
    return sum;
}

} // namespace

QString pathIn(const QString &folder)
{
    return QDir(folder).filePath(FileName);
}

std::optional<BudgetPlan> decode(const QByteArray &content, QString *error)
{
    QString reason;
    const QVariant root = PropertyList::fromData(content, &reason);
    if (!root.isValid()) {
        setError(error, reason);
        return std::nullopt;
    }
    if (root.typeId() != QMetaType::QVariantMap) {
        setError(error, tr("It holds no dictionary of budgets."));
        return std::nullopt;
    }
    const QVariantMap dict = root.toMap();
    BudgetPlan plan;
    const QVariant categories = dict.value(kCategories, QVariantList());
    if (categories.typeId() != QMetaType::QVariantList) {
        setError(error, tr("Its budgets by category are not a list."));
        return std::nullopt;
    }
    for (const QVariant &item : categories.toList()) {
        const QVariantMap entry = item.toMap();
        const auto category = wholeOf(entry.value(kCategory));
        const auto budget = budgetOf(entry);
        if (item.typeId() != QMetaType::QVariantMap || !category || !budget) {
            setError(error, tr("A budget of a category cannot be read."));
            return std::nullopt;
        }
        plan.categories.insert(*category, *budget);
    }
    if (dict.contains(kAllSpending)) {
        const auto budget = budgetOf(dict.value(kAllSpending).toMap());
        if (dict.value(kAllSpending).typeId() != QMetaType::QVariantMap || !budget) {
            setError(error, tr("The budget of all spending cannot be read."));
            return std::nullopt;
        }
        plan.allSpending = *budget;
    }
    return plan;
}

QByteArray encode(const BudgetPlan &plan)
{
    QVariantList categories;
    for (auto it = plan.categories.cbegin(); it != plan.categories.cend(); ++it) {
        QVariantMap dict = dictOf(it.value());
        dict.insert(kCategory, qint64(it.key()));
        categories.append(dict);
    }
    QVariantMap root{{kCategories, categories}};
    if (plan.allSpending)
        root.insert(kAllSpending, dictOf(*plan.allSpending));
    return PropertyList::toXml(root);
}

std::optional<QByteArray> renumbered(const QByteArray &content, const ListConversion &conversion,
                                     QString *error)
{
    const auto plan = decode(content, error);
    if (!plan)
        return std::nullopt;
    // The new income index when the new lists come along; without them the
    // income category keeps its place at the end and no spending category
    // is moved onto it.
    const QVariant names = conversion.lists.value(ListFile::CategoryList);
    const int income = names.isValid() ? int(names.toList().size()) - 1
                                       : std::numeric_limits<int>::max();
    BudgetPlan result;
    result.allSpending = plan->allSpending;
    for (auto it = plan->categories.cbegin(); it != plan->categories.cend(); ++it) {
        const int to = conversion.categoryMap.value(it.key(), it.key());
        if (to < 0 || to >= income)
            continue;
        const auto held = result.categories.constFind(to);
        result.categories.insert(to, held == result.categories.cend()
                                         ? it.value()
                                         : merged(held.value(), it.value()));
    }
    return encode(result);
}

} // namespace BudgetFile
