#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "password/ConfirmPassPanelController.h"
#include "password/SetPassPanelController.h"
#include "security/PasswordLock.h"
#include "settings/SettingsKeys.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

// The hash of "abc", as earlier versions stored it.
const QString AbcHash = u"pWNtzVs0HB6cU"_s;

QSettings settings()
{
    return QSettings(u"Penwick"_s, u"Penwick"_s);
}

QString storedHash()
{
    return settings().value(SettingsKeys::PasswordHash).toString();
}

// Whether the stored hash is that of the text, whatever its salt.
bool storedIs(const QString &text)
{
    return PasswordLock::matches(text, storedHash());
}

QLineEdit *field(QWidget *panel, const QString &name)
{
    return child<QLineEdit>(panel, name);
}

QString message(QWidget *panel)
{
    return child<QLabel>(panel, u"passMessageTF"_s)->text();
}

QPushButton *button(QWidget *panel, QDialogButtonBox::StandardButton which)
{
    return child<QDialogButtonBox>(panel)->button(which);
}

// Replaces the field's text by typing, as a user would.
void retype(QWidget *panel, const QString &name, const QString &text)
{
    field(panel, name)->clear();
    QTest::keyClicks(field(panel, name), text);
}

// Fills the three fields and presses Return in the last.
void submitSetPanel(QWidget *panel, const QString &oldText, const QString &newText,
                    const QString &repeatText)
{
    retype(panel, u"oldPassTF"_s, oldText);
    retype(panel, u"newPassTF"_s, newText);
    retype(panel, u"newPassTF2"_s, repeatText);
    QTest::keyClick(field(panel, u"newPassTF2"_s), Qt::Key_Return);
}

void deleteClosedPanels()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class TestPasswordPanels : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        settings().remove(SettingsKeys::PasswordHash);
        deleteClosedPanels();
    }

    void setChangeAndRemoveThePassword()
    {
        QPointer<SetPassPanelController> panel = openSetPanel();
        QCOMPARE(panel->windowModality(), Qt::WindowModal);
        submitSetPanel(panel, QString(), u"abc"_s, u"abc"_s);
        QVERIFY(storedIs(u"abc"_s));
        QVERIFY(!panel->isVisible());
        deleteClosedPanels();
        QVERIFY(panel.isNull());

        submitSetPanel(openSetPanel(), u"abc"_s, u"xyzzy"_s, u"xyzzy"_s);
        QVERIFY(storedIs(u"xyzzy"_s));

        panel = openSetPanel();
        submitSetPanel(panel, u"xyzzy"_s, QString(), QString());
        QVERIFY(!panel->isVisible());
        QVERIFY(settings().contains(SettingsKeys::PasswordHash));
        QCOMPARE(storedHash(), QString());
    }

    void wrongOldOrMismatchedNewIsRefused()
    {
        // Without a password any old text is wrong; with one, a different text.
        for (const QString &stored : {QString(), AbcHash}) {
            settings().setValue(SettingsKeys::PasswordHash, stored);
            SetPassPanelController *panel = openSetPanel();
            submitSetPanel(panel, u"abd"_s, u"new"_s, u"new"_s);
            QCOMPARE(message(panel), u"Old password is wrong"_s);
            QVERIFY(panel->isVisible());
            QCOMPARE(storedHash(), stored);
            // Selected, ready to be typed over.
            QCOMPARE(field(panel, u"oldPassTF"_s)->selectedText(), u"abd"_s);
            panel->reject();
        }

        settings().setValue(SettingsKeys::PasswordHash, AbcHash);
        SetPassPanelController *panel = openSetPanel();
        submitSetPanel(panel, u"abc"_s, u"xyzzy"_s, u"xyzzz"_s);
        QCOMPARE(message(panel), u"New password is wrong"_s);
        QVERIFY(panel->isVisible());
        QVERIFY(storedIs(u"abc"_s));

        submitSetPanel(panel, u"abc"_s, u"xyzzy"_s, u"xyzzy"_s);
        QVERIFY(!panel->isVisible());
        QVERIFY(storedIs(u"xyzzy"_s));
    }

    void confirmRetriesUntilRight()
    {
        settings().setValue(SettingsKeys::PasswordHash, AbcHash);
        // A start-up panel may well delete itself; the signal must still come.
        QPointer<ConfirmPassPanelController> panel = new ConfirmPassPanelController;
        panel->setAttribute(Qt::WA_DeleteOnClose);
        QSignalSpy confirmed(panel, &ConfirmPassPanelController::confirmed);
        QSignalSpy canceled(panel, &ConfirmPassPanelController::canceled);
        panel->runAsWindow();
        QCOMPARE(message(panel), u"Enter your password"_s);

        for (const QString &wrong : {u"abd"_s, QString(), u"ABC"_s}) {
            retype(panel, u"passwordTF"_s, wrong);
            QTest::keyClick(field(panel, u"passwordTF"_s), Qt::Key_Return);
            QCOMPARE(message(panel), u"Password is wrong"_s);
            QVERIFY(panel->isVisible());
        }

        retype(panel, u"passwordTF"_s, u"abc"_s);
        // Press OK from inside the event loop, as a user would, so that the
        // panel's deletion is due on the loop's next pass too.
        qsizetype confirmedRightAway = -1;
        QTimer::singleShot(0, panel, [&] {
            QTest::keyClick(field(panel, u"passwordTF"_s), Qt::Key_Return);
            confirmedRightAway = confirmed.count();
        });
        QVERIFY(confirmed.wait());
        QCOMPARE(confirmedRightAway, 0);
        QCOMPARE(canceled.count(), 0);
        deleteClosedPanels();
        QVERIFY(panel.isNull());
    }

    void confirmCancels_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("cancel button") << 0;
        QTest::newRow("escape") << 1;
        QTest::newRow("close button") << 2;
    }

    void confirmCancels()
    {
        QFETCH(int, way);
        settings().setValue(SettingsKeys::PasswordHash, AbcHash);
        ConfirmPassPanelController panel;
        QSignalSpy confirmed(&panel, &ConfirmPassPanelController::confirmed);
        QSignalSpy canceled(&panel, &ConfirmPassPanelController::canceled);
        panel.runAsWindow();
        // The right password counts only with OK.
        retype(&panel, u"passwordTF"_s, u"abc"_s);

        if (way == 0)
            button(&panel, QDialogButtonBox::Cancel)->click();
        else if (way == 1)
            QTest::keyClick(field(&panel, u"passwordTF"_s), Qt::Key_Escape);
        else
            panel.close();
        QVERIFY(!panel.isVisible());
        QCOMPARE(canceled.count(), 0);
        QVERIFY(canceled.wait());
        QCOMPARE(confirmed.count(), 0);
    }

private:
    SetPassPanelController *openSetPanel()
    {
        auto *panel = new SetPassPanelController(&m_preferences);
        panel->open();
        return panel;
    }

    TestDataFolder m_home;
    QWidget m_preferences;
};

QTEST_MAIN(TestPasswordPanels)
#include "tst_passwordpanels.moc"
