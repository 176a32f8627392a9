#include "TestDataFolder.h"
#include "TestHelpers.h"
#include "WindowHelpers.h"

#include "app/KAppController.h"
#include "input/InputRow.h"
#include "input/InputWinController.h"
#include "list/DataListTableModel.h"
#include "list/ListWinController.h"
#include "prefs/PrefWinController.h"
#include "ledger/KController.h"
#include "ledger/RescueFolder.h"
#include "model/MonthDataList.h"
#include "model/Notifications.h"
#include "password/ConfirmPassPanelController.h"
#include "security/PasswordLock.h"
#include "settings/Settings.h"
#include "storage/DurableFile.h"
#include "storage/ListFile.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QTranslator>

#include <cerrno>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace {

// A message box by name, whether it stands alone or sits on a window.
QMessageBox *messageBox(const QString &name)
{
    for (QWidget *top : QApplication::topLevelWidgets()) {
        if (top->objectName() == name && top->isVisible())
            return qobject_cast<QMessageBox *>(top);
        if (auto *box = top->findChild<QMessageBox *>(name); box && box->isVisible())
            return box;
    }
    return nullptr;
}

bool click(QMessageBox *box, const QString &text)
{
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        if (button->text() == text) {
            button->click();
            return true;
        }
    }
    return false;
}

} // namespace

class TestKAppController : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QSettings(u"Penwick"_s, u"Penwick"_s).clear();
        m_home.freshDataFolder();
        Settings().setVersion(1);
    }

    void cleanup()
    {
        closeTopLevels();
    }

    void withPasswordNothingStartsUntilConfirmed()
    {
        // A first start, locked: not even the first-start files may appear
        // before the password is given.
        Settings().setVersion(0);
        QVERIFY(PasswordLock::savePasswordToDefault(u"secret"_s));
        const QString listFile = ListFile::dictionaryPathString(m_home.dataFolder());

        KAppController controller;
        QAction probe;
        probe.setData(int(KAppController::ListWindowTag));
        controller.confirmPassword();
        QVERIFY(!controller.running());
        QVERIFY(!controller.validateMenuItem(&probe));
        QVERIFY(!QFileInfo::exists(listFile));
        QCOMPARE(Settings().version(), 0);

        const auto panels = visibleTopLevels<ConfirmPassPanelController>();
        QCOMPARE(panels.size(), 1);
        auto *field = panels.first()->findChild<QLineEdit *>(u"passwordTF"_s);
        // A wrong password is the panel's test.
        QTest::keyClicks(field, u"secret"_s);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_VERIFY(controller.running());
        QVERIFY(controller.validateMenuItem(&probe));
        QVERIFY(QFileInfo::exists(listFile));
        QCOMPARE(Settings().version(), 1);
    }

    void firstStartSetsUpTheDataFolder()
    {
        QSettings(u"Penwick"_s, u"Penwick"_s).clear();
        KAppController controller;
        controller.confirmPassword();
        // The folder itself is the ledger's test; here, that it is set up.
        QCOMPARE(Settings().version(), 1);

        // Preferences and the input window open.
        const auto preferences = visibleTopLevels<PrefWinController>();
        QCOMPARE(preferences.size(), 1);
        QVERIFY(preferences.first()->firstSetting());
        QCOMPARE(visibleTopLevels<InputWinController>().size(), 1);

        // OK with the closing day untouched stores no day and announces none.
        QSignalSpy lastDate(Notifications::instance(), &Notifications::lastDateHasChanged);
        preferences.first()->accept();
        QVERIFY(!QSettings(u"Penwick"_s, u"Penwick"_s).contains(u"monthLastDate"_s));
        QCOMPARE(lastDate.size(), 0);
    }

    void storeProblemsAreToldOncePerFile()
    {
        KAppController controller;
        controller.confirmPassword();
        QWidget front;
        front.show();
        front.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&front));

        const QString may = m_home.filePath(u"Data_2006_5.Penwick"_s);
        emit controller.ledger()->monthFileNotWritten(may, u"No space left on device"_s);
        emit controller.ledger()->monthFileNotWritten(may, u"No space left on device"_s);
        const QList<QMessageBox *> boxes = front.findChildren<QMessageBox *>();
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes.first()->windowModality(), Qt::WindowModal);
        QVERIFY(boxes.first()->text().contains(u"May 2006"_s));
        QVERIFY(boxes.first()->informativeText().contains(u"No space left on device"_s));
    }

    void typedInputHoldsTheQuit()
    {
        KAppController controller;
        controller.confirmPassword();
        QVERIFY(controller.applicationShouldTerminate());
        auto *input = visibleTopLevels<InputWinController>().constFirst();
        auto *amount = qobject_cast<QLineEdit *>(input->getControlWithTag(InputRow::tagFor(1, InputRow::Amount)));
        QTest::keyClicks(amount, u"1200"_s);
        QVERIFY(!controller.applicationShouldTerminate());
        // The input window asks what to do with it, in a sheet of its own.
        QTRY_VERIFY(input->findChild<QMessageBox *>() && input->findChild<QMessageBox *>()->isVisible());
    }

    void unfinishedListChangeIsReportedAtStart()
    {
        // The record a crashed renumbering leaves behind, damaged.
        QFile journal(m_home.filePath(u".penwick-conversion"_s));
        QVERIFY(journal.open(QIODevice::WriteOnly));
        journal.write("{ not json");
        journal.close();

        KAppController controller;
        controller.confirmPassword();
        QVERIFY(controller.running());
        const auto boxes = visibleTopLevels<QMessageBox>();
        QCOMPARE(boxes.size(), 1);
        QVERIFY(boxes.first()->text().contains(u"could not be finished"_s));
        QVERIFY(boxes.first()->informativeText().contains(u".penwick-conversion"_s));
    }

    void unsavedMonthsHoldTheQuit()
    {
        const auto faultGuard = qScopeGuard([] { DurableFile::setFaultForTesting(std::nullopt); });
        QString rescued;
        {
            KAppController controller;
            controller.confirmPassword();
            KController *ledger = controller.ledger();
            QVERIFY(ledger->addData({std::make_shared<PaymentData>(2006, 5, 2, 0, u"kept"_s, 5, 0)}));
            DurableFile::setFaultForTesting(
                DurableFile::Fault{DurableFile::Step::Write, ENOSPC, ledger->dataFolderPath()});
            ledger->monthListForYear(2006, 5)->dataListArray().constFirst()->setDetails(u"edited"_s);

            controller.quit();
            QMessageBox *asked = messageBox(u"unsavedSheet"_s);
            QVERIFY(asked);
            QVERIFY(asked->informativeText().contains(QString::fromLocal8Bit(std::strerror(ENOSPC))));
            QVERIFY(click(asked, u"Save a Copy…"_s));
            const auto pending = RescueFolder::pending(ledger->dataFolderPath());
            QCOMPARE(pending.size(), 1);
            rescued = pending.constFirst().folder;
        }
        DurableFile::setFaultForTesting(std::nullopt);
        closeTopLevels();

        // The next start offers the copy back.
        KAppController next;
        next.confirmPassword();
        QMessageBox *offer = messageBox(u"rescueSheet"_s);
        QVERIFY(offer);
        QVERIFY(click(offer, u"Bring Back"_s));
        QVERIFY(!QFileInfo::exists(rescued));
        QCOMPARE(next.ledger()->monthListForYear(2006, 5)->dataListArray().constFirst()->details(),
                 u"edited"_s);
        QVERIFY(!next.ledger()->monthListForYear(2006, 5)->isEdited());
    }

    void undoReachesEveryWindow_data()
    {
        QTest::addColumn<QString>("catalogue");
        QTest::addColumn<QString>("undoText");
        QTest::addColumn<QString>("redoText");
        QTest::newRow("English") << QString() << u"&Undo Change of Details"_s
                                 << u"&Redo Change of Details"_s;
        QTest::newRow("Japanese") << QStringLiteral(PENWICK_JA_CATALOGUE)
                                  << u"「内容の変更」を取り消す(&U)"_s << u"「内容の変更」をやり直す(&R)"_s;
    }

    // One history for the program: Undo and Redo lead the Edit menu of every
    // window, say what they take back, and a change made in the list window is
    // taken back from the input window's menu.
    void undoReachesEveryWindow()
    {
        QFETCH(QString, catalogue);
        QFETCH(QString, undoText);
        QFETCH(QString, redoText);
        QTranslator translator;
        if (!catalogue.isEmpty()) {
            QVERIFY(translator.load(catalogue));
            QCoreApplication::installTranslator(&translator);
        }
        const auto uninstall = qScopeGuard([&translator] { QCoreApplication::removeTranslator(&translator); });
        writeMonthFile(Settings().dataPath(), 2006, 5, {entry(2006, 5, 3, u"lunch"_s)});

        KAppController controller;
        controller.confirmPassword();
        controller.showInputWindow();
        controller.showListWindow();
        const auto inputs = visibleTopLevels<InputWinController>();
        const auto lists = visibleTopLevels<ListWinController>();
        QCOMPARE(inputs.size(), 1);
        QCOMPARE(lists.size(), 1);
        QAction *undo = nullptr;
        for (QWidget *window : {static_cast<QWidget *>(inputs.constFirst()), static_cast<QWidget *>(lists.constFirst())}) {
            const auto *edit = window->findChild<QMenu *>(u"editMenu"_s);
            QVERIFY(edit);
            undo = edit->actions().value(0);
            QCOMPARE(undo->objectName(), u"undoAction"_s);
            QCOMPARE(edit->actions().value(1)->objectName(), u"redoAction"_s);
            QVERIFY(!undo->isEnabled());
        }

        ListWinController *list = lists.constFirst();
        list->showListOfYear(2006, 5);
        list->findChild<QPushButton *>(u"editButton"_s)->click();
        QAbstractItemModel *model = list->findChild<QTableView *>()->model();
        QVERIFY(model->setData(model->index(0, DataListTableModel::DetailsColumn), u"dinner"_s));
        QCOMPARE(undo->text(), undoText);

        const auto may = controller.ledger()->monthListForYear(2006, 5);
        undo->trigger(); // the action of the input window's menu: it is the same
        QCOMPARE(may->dataListArray().constFirst()->details(), u"lunch"_s);
        QCOMPARE(model->index(0, DataListTableModel::DetailsColumn).data().toString(), u"lunch"_s);
        const auto *redo = lists.constFirst()->findChild<QMenu *>(u"editMenu"_s)->actions().value(1);
        QCOMPARE(redo->text(), redoText);
    }

private:
    TestDataFolder m_home;
};

QTEST_MAIN(TestKAppController)
#include "tst_kappcontroller.moc"
