#pragma once

#include <QList>
#include <QVariantMap>

// Records travel as a list of property maps (D-Bus "aa{sv}"); the generated
// adaptors need the type under one name without a comma.
using QVariantMapList = QList<QVariantMap>;

// A script's named arguments as the core takes them: arrays inside "a{sv}"
// arrive still marshalled and become plain lists.
QVariantMap plainArguments(const QVariantMap &arguments);
