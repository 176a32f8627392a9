#include "budget/BudgetAmount.h"

#include "entry/EntryCheck.h"
#include "entry/NumberUtility.h"

#include <QRegularExpression>

std::optional<double> BudgetAmount::read(const QString &text, QString *problem)
{
    problem->clear();
    QString statement = text.trimmed();
    if (statement.isEmpty())
        return std::nullopt;
    if (const QString sign = NumberUtility::multipleCharacter(); !sign.isEmpty())
        statement.replace(sign, QStringLiteral("*"));
    static const QRegularExpression allowed(QStringLiteral("^[0-9.,+\\-*/()\\[\\]{}= ]+$"));
    static const QRegularExpression digit(QStringLiteral("\\d"));
    if (!allowed.match(statement).hasMatch() || !statement.contains(digit)) {
        *problem = tr("\"%1\" is not an amount.").arg(text);
        return std::nullopt;
    }
    const double amount = NumberUtility::numberWithCalcurationStatement(statement);
    if (auto why = EntryCheck::amountProblem(amount)) {
        *problem = *why;
        return std::nullopt;
    }
    if (amount < 0) {
        *problem = tr("A budget cannot be below zero.");
        return std::nullopt;
    }
    return amount;
}

QString BudgetAmount::editingText(double amount)
{
    return QString::number(amount, 'f', 2).remove(QRegularExpression(QStringLiteral("\\.?0+$")));
}
