#include "TestDataFolder.h"

#include "security/PasswordLock.h"
#include "settings/SettingsKeys.h"

#include <QFile>
#include <QSettings>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

// The hash as text, so that a failed comparison shows both values.
QString hashOf(const QString &text)
{
    return PasswordLock::ppCrypt(text).value_or(u"<hashing failed>"_s);
}

} // namespace

class TestPasswordLock : public QObject
{
    Q_OBJECT

private slots:
    void hashesAreTraditionalDesCrypt_data();
    void hashesAreTraditionalDesCrypt();
    void onlyTheFirstEightBytesCount();
    void matchesNeedsTheRightText();
    void savedHashReachesTheDiskAndEmptyRemovesIt();

private:
    TestDataFolder m_home;
};

void TestPasswordLock::hashesAreTraditionalDesCrypt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("hash");

    // Computed with another crypt(3) implementation; they also pin the
    // salt, which must never change.
    QTest::newRow("ascii") << u"abc"_s << u"pWNtzVs0HB6cU"_s;
    QTest::newRow("spaces") << u"mot de passe"_s << u"pWhEhdyYlspdo"_s;
    QTest::newRow("latin") << u"Äpfel"_s << u"pWj9K0vLiFF1U"_s;
    QTest::newRow("japanese") << u"パスワード"_s << u"pWu0ZI8XkWiTs"_s;
}

void TestPasswordLock::hashesAreTraditionalDesCrypt()
{
    QFETCH(QString, text);
    QFETCH(QString, hash);
    QCOMPARE(hashOf(text), hash);
}

void TestPasswordLock::onlyTheFirstEightBytesCount()
{
    QCOMPARE(hashOf(u"password1"_s), hashOf(u"password2"_s));
    QCOMPARE(hashOf(u"password"_s + QString(100, u'x')), hashOf(u"password"_s));
    QCOMPARE_NE(hashOf(u"abc"_s), hashOf(u"abd"_s));
}

void TestPasswordLock::matchesNeedsTheRightText()
{
    QCOMPARE(hashOf(QString()), QString());
    const QString abc = u"pWNtzVs0HB6cU"_s;
    QVERIFY(PasswordLock::matches(u"abc"_s, abc));
    QVERIFY(!PasswordLock::matches(u"abd"_s, abc));
    QVERIFY(!PasswordLock::matches(QString(), abc));
    // No password set: only the empty text matches.
    QVERIFY(PasswordLock::matches(QString(), QString()));
    QVERIFY(!PasswordLock::matches(u"abc"_s, QString()));
}

void TestPasswordLock::savedHashReachesTheDiskAndEmptyRemovesIt()
{
    QSettings settings(u"Penwick"_s, u"Penwick"_s);
    QVERIFY(!settings.contains(SettingsKeys::PasswordHash));
    QCOMPARE(PasswordLock::passwordFromDefault(), QString());

    // Read the file itself: the hash must be written at once, not at exit.
    const auto fileText = [&settings] {
        QFile file(settings.fileName());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    };

    QVERIFY(PasswordLock::savePasswordToDefault(u"abc"_s));
    QCOMPARE(PasswordLock::passwordFromDefault(), u"pWNtzVs0HB6cU"_s);
    QVERIFY2(fileText().contains(u"se-XCMD=pWNtzVs0HB6cU"_s), qPrintable(fileText()));

    QVERIFY(PasswordLock::savePasswordToDefault(QString()));
    QCOMPARE(PasswordLock::passwordFromDefault(), QString());
    QVERIFY(!fileText().contains(u"pWNtzVs0HB6cU"_s));
}

QTEST_GUILESS_MAIN(TestPasswordLock)
#include "tst_passwordlock.moc"
