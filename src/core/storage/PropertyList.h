#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

// Property lists as QVariant trees: dictionaries are QVariantMap, arrays
// QVariantList, strings QString, data QByteArray, integers qint64, reals
// double, booleans bool and dates QDateTime.
namespace PropertyList {

// Parses XML or binary property-list data; an invalid QVariant (with the
// reason in `error`) when the data is neither.
QVariant fromData(const QByteArray &data, QString *error = nullptr);
// The XML form.
QByteArray toXml(const QVariant &value);

} // namespace PropertyList
