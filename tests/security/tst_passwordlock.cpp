#include "TestDataFolder.h"

#include "security/PasswordLock.h"
#include "settings/SettingsKeys.h"

#include <QFile>
#include <QSettings>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestPasswordLock : public QObject
{
    Q_OBJECT

private slots:
    void earlierDesHashesStillMatch_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("hash");

        // Stored by earlier versions (DES under the fixed salt "pW"), computed
        // with another crypt(3) implementation.
        QTest::newRow("ascii") << u"abc"_s << u"pWNtzVs0HB6cU"_s;
        QTest::newRow("spaces") << u"mot de passe"_s << u"pWhEhdyYlspdo"_s;
        QTest::newRow("latin") << u"Äpfel"_s << u"pWj9K0vLiFF1U"_s;
        QTest::newRow("japanese") << u"パスワード"_s << u"pWu0ZI8XkWiTs"_s;
    }

    void earlierDesHashesStillMatch()
    {
        QFETCH(QString, text);
        QFETCH(QString, hash);
        QVERIFY(PasswordLock::isLegacyHash(hash));
        QVERIFY(PasswordLock::matches(text, hash));
        QVERIFY(!PasswordLock::matches(QString(), hash));
    }

    void newHashesAreSaltedYescryptOfTheWholeText()
    {
        const QString longText = u"correct horse battery staple"_s + QString(100, u'x');
        const QString hash = PasswordLock::ppCrypt(longText).value_or(QString());
        QVERIFY2(hash.startsWith(u"$y$"_s), qPrintable(hash));
        QVERIFY(!PasswordLock::isLegacyHash(hash));
        QVERIFY(PasswordLock::matches(longText, hash));
        // Every character counts, the last one too.
        QVERIFY(!PasswordLock::matches(longText.chopped(1) + u'y', hash));
        QVERIFY(!PasswordLock::matches(u"correct "_s, hash));
        QVERIFY(PasswordLock::matches(u"パスワード"_s, *PasswordLock::ppCrypt(u"パスワード"_s)));
        // A fresh salt each time: equal passwords do not hash alike.
        QCOMPARE_NE(*PasswordLock::ppCrypt(u"abc"_s), *PasswordLock::ppCrypt(u"abc"_s));

        // No password set: only the empty text matches.
        QCOMPARE(PasswordLock::ppCrypt(QString()), QString());
        QVERIFY(PasswordLock::matches(QString(), QString()));
        QVERIFY(!PasswordLock::matches(u"abc"_s, QString()));
    }

    void desHashIsUpgradedAtUnlock()
    {
        QSettings(u"Penwick"_s, u"Penwick"_s).setValue(SettingsKeys::PasswordHash, u"pWNtzVs0HB6cU"_s);
        QVERIFY(!PasswordLock::unlock(u"abd"_s));
        QCOMPARE(PasswordLock::passwordFromDefault(), u"pWNtzVs0HB6cU"_s);
        QVERIFY(PasswordLock::unlock(u"abc"_s));
        const QString upgraded = PasswordLock::passwordFromDefault();
        QVERIFY2(upgraded.startsWith(u"$y$"_s), qPrintable(upgraded));
        QVERIFY(PasswordLock::unlock(u"abc"_s));
        QCOMPARE(PasswordLock::passwordFromDefault(), upgraded);
    }

    void savedHashReachesTheDiskForTheUserAlone()
    {
        QSettings settings(u"Penwick"_s, u"Penwick"_s);
        settings.remove(SettingsKeys::PasswordHash);
        settings.sync();
        QCOMPARE(PasswordLock::passwordFromDefault(), QString());

        // Read the file itself: the hash must be written at once, not at exit.
        const auto fileText = [&settings] {
            QFile file(settings.fileName());
            return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        };

        QVERIFY(PasswordLock::savePasswordToDefault(u"abc"_s));
        const QString hash = PasswordLock::passwordFromDefault();
        QVERIFY2(fileText().contains(u"se-XCMD="_s + hash), qPrintable(fileText()));
        const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup
            | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QCOMPARE(QFile::permissions(settings.fileName()) & others, QFile::Permissions());
        QVERIFY(QFile::permissions(settings.fileName()) & QFile::ReadOwner);

        QVERIFY(PasswordLock::savePasswordToDefault(QString()));
        QCOMPARE(PasswordLock::passwordFromDefault(), QString());
        QVERIFY(!fileText().contains(hash));
    }

private:
    TestDataFolder m_home;
};

QTEST_GUILESS_MAIN(TestPasswordLock)
#include "tst_passwordlock.moc"
