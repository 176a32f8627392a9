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

QDBusArgument &operator<<(QDBusArgument &argument, const RunnerMatch &match)
{
    argument.beginStructure();
    argument << match.id << match.text << match.iconName << match.type << match.relevance
             << match.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerMatch &match)
{
    argument.beginStructure();
    argument >> match.id >> match.text >> match.iconName >> match.type >> match.relevance
        >> match.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const RunnerAction &action)
{
    argument.beginStructure();
    argument << action.id << action.text << action.iconName;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerAction &action)
{
    argument.beginStructure();
    argument >> action.id >> action.text >> action.iconName;
    argument.endStructure();
    return argument;
}
