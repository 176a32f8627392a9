#include "search/StringUtility.h"

bool stringHasAnyKey(QStringView text, const QStringList &keys)
{
    for (const QString &key : keys) {
        if (!key.isEmpty() && text.contains(key, Qt::CaseSensitive))
            return true;
    }
    return false;
}
