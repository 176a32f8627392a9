#include "TestDataFolder.h"
#include "TestHelpers.h"
#include "WindowHelpers.h"

#include "app/KAppController.h"
#include "list/ListWinController.h"
#include "ledger/KController.h"
#include "prefs/ListEditorModel.h"
#include "prefs/PrefWinController.h"
#include "settings/Settings.h"
#include "storage/ListFile.h"

#include <QDialogButtonBox>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList kCategories{u"Food"_s, u"Rent"_s, u"Fun"_s, u"Income"_s};

} // namespace

// A change of the lists made in the preferences is one step of the history
// every window's Edit menu takes back, and a preferences window left open
// never writes lists that changed under it.
class TestListUndoWindows : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        const QString folder = m_home.freshDataFolder();
        Settings().setVersion(1);
        QVERIFY(ListFile::setPreferenceDataLists(
            folder, {{ListFile::CategoryList, QVariant(kCategories).toList()},
                     {ListFile::PaywayList, QVariant(QStringList{u"Cash"_s}).toList()}}));
        writeMonthFile(folder, 2006, 5, {entry(2006, 5, 3, u"cinema"_s, 900, 2, 0)});
    }

    void cleanup()
    {
        closeTopLevels();
    }

    void theListsAreTakenBackFromAnyWindow()
    {
        KAppController controller;
        controller.confirmPassword();
        controller.showListWindow();
        const QMenu *edit = visibleTopLevels<ListWinController>().constFirst()->findChild<QMenu *>(u"editMenu"_s);
        QVERIFY(edit);
        QAction *undo = edit->actions().value(0);
        QAction *redo = edit->actions().value(1);
        KController *ledger = controller.ledger();
        const auto may = ledger->monthListForYear(2006, 5);

        controller.showPrefWindow();
        auto *preferences = visibleTopLevels<PrefWinController>().value(0);
        QVERIFY(preferences);
        auto *categories = qobject_cast<ListEditorModel *>(
            child<QTableView>(preferences, u"categoryTable"_s)->model());
        const auto pressOk = [preferences] {
            child<QDialogButtonBox>(preferences)->button(QDialogButtonBox::Ok)->click();
        };
        QVERIFY(categories->moveItem(2, 0)); // Fun first
        pressOk();
        QCOMPARE(ledger->categoryList().first(), u"Fun"_s);
        QCOMPARE(may->dataListArray().constFirst()->category(), 0);
        QCOMPARE(undo->text(), u"&Undo Change of Categories and Payways"_s);

        undo->trigger();
        QCOMPARE(ledger->categoryList(), kCategories);
        QCOMPARE(may->dataListArray().constFirst()->category(), 2);
        QCOMPARE(redo->text(), u"&Redo Change of Categories and Payways"_s);

        // Open again with an edit begun, the window must not write it over what
        // Redo brings back.
        controller.showPrefWindow();
        QVERIFY(categories->moveItem(1, 0)); // Rent first
        redo->trigger();
        QCOMPARE(ledger->categoryList().first(), u"Fun"_s);
        pressOk();
        QTRY_VERIFY(preferences->findChild<QMessageBox *>());
        QCOMPARE(ledger->categoryList().first(), u"Fun"_s);
        QCOMPARE(may->dataListArray().constFirst()->category(), 0);
        QCOMPARE(categories->editor().names().first(), u"Fun"_s); // shown as they are now
    }

private:
    TestDataFolder m_home;
};

QTEST_MAIN(TestListUndoWindows)
#include "tst_listundowindows.moc"
