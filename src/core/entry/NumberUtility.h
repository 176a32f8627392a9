#pragma once

#include <QCoreApplication>
#include <QString>

// The arithmetic an amount field accepts: numbers joined by + - * /, with
// brackets of three kinds, digit grouping commas and a stray "=" allowed, so
// that "1,200+350" or "3*450" books the sum. Bad input is never an error: it
// evaluates to 0.
class NumberUtility
{
    Q_DECLARE_TR_FUNCTIONS(NumberUtility)

public:
    // The value of a statement. Multiplication and division bind tighter than
    // addition and subtraction; operators of one level apply from left to
    // right. A run of several operator characters ("*-") counts as a plain
    // "+" whose operand keeps its own sign, and a trailing operator is
    // ignored. Unbalanced brackets make the whole statement 0; division by
    // zero follows IEEE arithmetic.
    static double numberWithCalcurationStatement(const QString &statement);

    // The multiplication sign of the user's language (a keyboard or input
    // method may type it instead of "*"); empty when there is none.
    static QString multipleCharacter();
};

// The statement with every bracketed part of one kind replaced by its value,
// innermost first, written with six decimals. "0" when that kind of bracket
// does not balance or closes before it opens.
QString expandBracketOfStatement(const QString &statement, QChar open, QChar close);
