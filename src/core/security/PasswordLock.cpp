#include "security/PasswordLock.h"

#include "settings/Settings.h"

#include <QByteArray>

#include <crypt.h>

#include <memory>

namespace {

// Earlier versions hashed with DES under this fixed salt; such hashes are
// still accepted so that nobody is locked out by an update.
constexpr qsizetype LegacyHashLength = 13;
// DES read only this much of a text, in the locale's encoding.
constexpr qsizetype LegacyPasswordBytes = 30;

// The hash of phrase under the setting (a salt, or a whole stored hash).
std::optional<QString> cryptWith(const QByteArray &phrase, const char *setting)
{
    // crypt_r keeps its state here instead of in a static buffer; it is too
    // large for the stack and must start zeroed.
    auto data = std::make_unique<crypt_data>();
    const char *hash = crypt_r(phrase.constData(), setting, data.get());
    // libcrypt reports failure either by null or by a token starting with '*'.
    if (!hash || hash[0] == '*')
        return std::nullopt;
    return QString::fromLatin1(hash);
}

} // namespace

namespace PasswordLock {

std::optional<QString> ppCrypt(const QString &text)
{
    if (text.isEmpty())
        return QString();
    char salt[CRYPT_GENSALT_OUTPUT_SIZE];
    // Cost 0 is libcrypt's default for the method; the salt's randomness
    // comes from the system.
    if (!crypt_gensalt_rn("$y$", 0, nullptr, 0, salt, sizeof salt))
        return std::nullopt;
    return cryptWith(text.toUtf8(), salt);
}

bool isLegacyHash(const QString &hash)
{
    return hash.size() == LegacyHashLength && !hash.startsWith(u'$');
}

bool matches(const QString &text, const QString &hash)
{
    if (text.isEmpty() || hash.isEmpty())
        return text.isEmpty() && hash.isEmpty();
    const QByteArray phrase = isLegacyHash(hash) ? text.toLocal8Bit().left(LegacyPasswordBytes)
                                                 : text.toUtf8();
    const std::optional<QString> textHash = cryptWith(phrase, hash.toLatin1().constData());
    return textHash && *textHash == hash;
}

QString passwordFromDefault()
{
    return Settings().passwordHash();
}

bool unlock(const QString &text)
{
    const QString stored = passwordFromDefault();
    if (!matches(text, stored))
        return false;
    if (isLegacyHash(stored))
        savePasswordToDefault(text); // kept as it was if this fails: it still matches
    return true;
}

bool savePasswordToDefault(const QString &password)
{
    const std::optional<QString> hash = ppCrypt(password);
    if (!hash)
        return false;
    Settings settings;
    settings.setPasswordHash(*hash);
    settings.sync();
    return true;
}

} // namespace PasswordLock
