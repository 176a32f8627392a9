#include "ScriptTypes.h"

#include <QDBusArgument>

QVariantMap plainArguments(const QVariantMap &arguments)
{
    QVariantMap plain;
    for (auto it = arguments.cbegin(); it != arguments.cend(); ++it) {
        QVariant value = it.value();
        if (value.canConvert<QDBusArgument>()) {
            const auto argument = value.value<QDBusArgument>();
            if (argument.currentType() == QDBusArgument::ArrayType) {
                QVariantList items;
                argument.beginArray();
                while (!argument.atEnd())
                    items.append(argument.asVariant());
                argument.endArray();
                value = items;
            }
        }
        plain.insert(it.key(), value);
    }
    return plain;
}
