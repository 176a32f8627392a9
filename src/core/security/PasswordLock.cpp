#include "security/PasswordLock.h"

#include "settings/Settings.h"

#include <QByteArray>

#include <crypt.h>

#include <memory>

namespace {

// Every stored hash begins with this salt; changing it would make every
// password that was ever set stop matching.
constexpr char Salt[] = "pW";

// Longer texts are cut before hashing; DES reads only the first eight bytes
// anyway.
constexpr qsizetype MaxPasswordBytes = 30;

} // namespace

namespace PasswordLock {

std::optional<QString> ppCrypt(const QString &text)
{
    if (text.isEmpty())
        return QString();

    const QByteArray phrase = text.toLocal8Bit().left(MaxPasswordBytes);
    // crypt_r keeps its state here instead of in a static buffer; it is too
    // large for the stack and must start zeroed.
    auto data = std::make_unique<crypt_data>();
    const char *hash = crypt_r(phrase.constData(), Salt, data.get());
    // libcrypt reports failure either by null or by a token starting with '*'.
    if (!hash || hash[0] == '*')
        return std::nullopt;
    return QString::fromLatin1(hash);
}

bool matches(const QString &text, const QString &hash)
{
    const std::optional<QString> textHash = ppCrypt(text);
    return textHash && *textHash == hash;
}

QString passwordFromDefault()
{
    return Settings().passwordHash();
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
