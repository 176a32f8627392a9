#pragma once

#include <QString>

#include <optional>

// The password that locks the account book. Only a one-way hash of it is
// kept, in the settings; an empty hash means there is no password.
namespace PasswordLock {

// The stored form of a password: empty for an empty text, otherwise a
// yescrypt hash ("$y$…") of its UTF-8 bytes with a fresh random salt, so
// that every character counts and two equal passwords hash apart. Empty
// optional when libcrypt refuses to hash: such a text must never be taken to
// match anything.
std::optional<QString> ppCrypt(const QString &text);

// Whether text is the password whose hash is given: a yescrypt hash, or the
// 13-character DES form of earlier versions (which reads only the first
// eight bytes of the text in the locale's encoding). False when hashing
// fails, so a broken libcrypt locks the user out rather than letting anyone in.
bool matches(const QString &text, const QString &hash);

// Whether the hash is the old DES form, to be replaced at the next unlock.
bool isLegacyHash(const QString &hash);

// The stored hash, or empty when no password is set.
QString passwordFromDefault();

// Whether text unlocks the book. A stored DES hash it matches is replaced by
// a yescrypt one on the way.
bool unlock(const QString &text);

// Stores the hash of password, or removes the lock when password is empty,
// and writes the settings to disk at once, readable by the user alone.
// Stores nothing and answers false when the password cannot be hashed.
bool savePasswordToDefault(const QString &password);

} // namespace PasswordLock
