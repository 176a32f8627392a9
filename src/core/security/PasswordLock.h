#pragma once

#include <QString>

#include <optional>

// The password that locks the account book. Only a one-way hash of it is
// kept, in the settings; an empty hash means there is no password.
namespace PasswordLock {

// The stored form of a password: empty for an empty text, otherwise the
// 13-character DES crypt(3) hash of its first bytes in the locale's 8-bit
// encoding. Only the first eight bytes count. Empty optional when libcrypt
// refuses to hash: such a text must never be taken to match anything.
std::optional<QString> ppCrypt(const QString &text);

// Whether text is the password whose hash is given. False when hashing fails,
// so a broken libcrypt locks the user out rather than letting anyone in.
bool matches(const QString &text, const QString &hash);

// The stored hash, or empty when no password is set.
QString passwordFromDefault();

// Stores the hash of password, or removes the lock when password is empty,
// and writes the settings to disk at once. Stores nothing and answers false
// when the password cannot be hashed.
bool savePasswordToDefault(const QString &password);

} // namespace PasswordLock
