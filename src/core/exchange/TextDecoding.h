#pragma once

#include <QByteArray>
#include <QString>

// Files from banks and other programs come in whatever encoding their
// platform used. These name it (for a person to confirm or change) and turn
// the bytes into text through Qt's converters, which reach ICU for the
// legacy Japanese ones.
namespace TextDecoding {

// A byte-order mark decides; else text with a zero in every other byte is
// UTF-16; else valid UTF-8 is UTF-8; else `fallback`.
QString detect(const QByteArray &bytes, const QString &fallback);
// The bytes as text, without a byte-order mark. Nothing, with ok false, for
// an encoding nobody knows; bytes that do not fit become U+FFFD.
QString decode(const QByteArray &bytes, const QString &encoding, bool *ok = nullptr);

} // namespace TextDecoding
