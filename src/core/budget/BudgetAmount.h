#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

// An amount typed into a budget field, with the arithmetic the input
// window's amount fields take ("1,200+350"). Where a booking would count a
// stray word as 0, a budget refuses it: a budget of nothing by a slip of the
// keyboard would go unnoticed for a month.
class BudgetAmount
{
    Q_DECLARE_TR_FUNCTIONS(BudgetAmount)

public:
    // The amount; nothing for an empty field, or, with the reason in
    // `problem`, for text that is no statement, a result that is not finite
    // or beyond what an entry holds, or one below zero.
    static std::optional<double> read(const QString &text, QString *problem);
    // How a field shows an amount to be edited: plain digits, no grouping.
    static QString editingText(double amount);
};
