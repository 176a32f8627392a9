#pragma once

#include <QList>
#include <QVariantMap>

// Records travel as a list of property maps (D-Bus "aa{sv}"); the generated
// adaptors need the type under one name without a comma.
using QVariantMapList = QList<QVariantMap>;
