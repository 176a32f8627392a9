#include "entry/NumberUtility.h"

#include "model/NumberValue.h"

namespace {

bool isOperator(QChar c)
{
    return c == u'+' || c == u'-' || c == u'*' || c == u'/';
}

// The run of characters from pos that are (or are not) operators; pos moves
// past it.
QStringView takeRun(QStringView text, qsizetype &pos, bool operators)
{
    const qsizetype start = pos;
    while (pos < text.size() && isOperator(text[pos]) == operators)
        ++pos;
    return text.sliced(start, pos - start);
}

// A bracket-free statement, scanned once from the left. "term" collects the
// products and quotients of the current summand, "sum" what came before it.
double evaluateFlatStatement(QStringView text)
{
    qsizetype pos = 0;
    double sum = 0;
    double term = doubleValueOf(takeRun(text, pos, false));
    while (pos < text.size()) {
        const QStringView op = takeRun(text, pos, true);
        const QStringView operand = takeRun(text, pos, false);
        if (operand.isEmpty())
            break;
        const double value = doubleValueOf(operand);
        if (op == u"*") {
            term *= value;
        } else if (op == u"/") {
            term /= value;
        } else if (op == u"-") {
            sum += term;
            term = -value;
        } else {
            sum += term;
            term = value;
        }
    }
    return sum + term;
}

} // namespace

double NumberUtility::numberWithCalcurationStatement(const QString &statement)
{
    if (statement.isEmpty())
        return 0;
    QString text = statement;
    text.remove(u',').remove(u'=').remove(u' ');
    // Replacing an empty text would insert "*" between every character.
    if (const QString sign = multipleCharacter(); !sign.isEmpty())
        text.replace(sign, QStringLiteral("*"));
    text = expandBracketOfStatement(text, u'[', u']');
    text = expandBracketOfStatement(text, u'{', u'}');
    text = expandBracketOfStatement(text, u'(', u')');
    return evaluateFlatStatement(text);
}

QString NumberUtility::multipleCharacter()
{
    return tr("Multiple Character");
}

QString expandBracketOfStatement(const QString &statement, QChar open, QChar close)
{
    QString text = statement;
    while (text.contains(open) && text.contains(close)) {
        const qsizetype closeAt = text.indexOf(close);
        // lastIndexOf() counts a negative start from the end, so a closing
        // bracket in front needs its own test.
        const qsizetype openAt = closeAt > 0 ? text.lastIndexOf(open, closeAt - 1) : -1;
        if (openAt < 0)
            return QStringLiteral("0");
        const QString inner = text.sliced(openAt + 1, closeAt - openAt - 1);
        const QString bracketed = text.sliced(openAt, closeAt - openAt + 1);
        // Six decimals, as "%f" writes them: (1/3)*3 is 0.999999 on purpose.
        text.replace(bracketed,
                     QString::number(NumberUtility::numberWithCalcurationStatement(inner), 'f', 6));
    }
    if (text.contains(open) || text.contains(close))
        return QStringLiteral("0");
    return text;
}
