#include "search/StringUtility.h"

#include "model/NumberValue.h"

#include <QCoreApplication>

namespace {

QString localizedSeparator(const char *key)
{
    return QCoreApplication::translate("StringUtility", key);
}

// Blanks and full stops, plain or of the user's language, become commas.
QString commaSeparated(QStringView text)
{
    QString result = replaceStringFrom(text.toString(), u" ", u",");
    result = replaceStringFrom(std::move(result),
                               localizedSeparator(QT_TRANSLATE_NOOP("StringUtility", "Space Character")),
                               u",");
    return replaceStringFrom(std::move(result),
                             localizedSeparator(QT_TRANSLATE_NOOP("StringUtility", "Kuten Character")),
                             u",");
}

} // namespace

QString replaceStringFrom(QString text, QStringView from, QStringView to)
{
    if (from.isEmpty())
        return text;
    return text.replace(from.toString(), to.toString(), Qt::CaseSensitive);
}

QList<int> separateDateKeyToArray(QStringView text)
{
    QList<int> days;
    if (text.isEmpty())
        return days;
    QString normalised = commaSeparated(text);
    normalised = replaceStringFrom(
        std::move(normalised),
        localizedSeparator(QT_TRANSLATE_NOOP("StringUtility", "Minus Character")), u"-");
    normalised = replaceStringFrom(
        std::move(normalised),
        localizedSeparator(QT_TRANSLATE_NOOP("StringUtility", "Tilde Character")), u"-");

    constexpr int lastDay = 31;
    const QStringList pieces = normalised.split(u',');
    for (const QString &piece : pieces) {
        if (!piece.contains(u'-')) {
            days.append(integerValueOf(QStringView(piece)));
            continue;
        }
        // "20-" is an open range that names its start alone.
        QStringView range(piece);
        if (range.endsWith(u'-'))
            range.chop(1);
        const QList<QStringView> bounds = range.split(u'-');
        const int first = integerValueOf(bounds.constFirst());
        const int last = integerValueOf(bounds.constLast());
        for (int day = first; day <= last && day <= lastDay; ++day)
            days.append(day);
    }
    return days;
}

QStringList separateStringKeyToArray(QStringView text)
{
    if (text.isEmpty())
        return {};
    return commaSeparated(text).split(u',');
}

bool stringHasAnyKey(QStringView text, const QStringList &keys)
{
    for (const QString &key : keys) {
        if (!key.isEmpty() && text.contains(key, Qt::CaseSensitive))
            return true;
    }
    return false;
}
