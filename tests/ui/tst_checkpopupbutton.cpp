#include "widgets/CheckPopUpButton.h"

#include <QAction>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestCheckPopUpButton : public QObject
{
    Q_OBJECT

private slots:
    void checksGoByTag()
    {
        CheckPopUpButton button(u"Category"_s);
        button.replaceItems({u"Food"_s, u"Rent"_s, u"R&D"_s});
        QVERIFY(!button.menuIsChecked());
        QCOMPARE(button.text(), u"Category: All"_s);

        button.setStateWithTagArray({2, 0, 7});
        QCOMPARE(button.checkedItemTagArray(), (QList<int>{0, 2}));
        QCOMPARE(button.checkedItemTitles(), (QStringList{u"Food"_s, u"R&D"_s}));
        QVERIFY(button.menuIsChecked());

        // Checking all leaves the fixed items alone.
        button.setStateToAllItem(true);
        QCOMPARE(button.checkedItemTagArray(), (QList<int>{0, 1, 2}));
        const auto actions = button.menu()->actions();
        for (const QAction *action : actions) {
            if (action->data().toInt() >= CheckPopUpButton::FirstFixedTag)
                QVERIFY(!action->isChecked());
        }

        button.setStateWithTagArray({1});
        QCOMPARE(button.text(), u"Category: Rent"_s);
    }

    void rebuildingDropsTheChecks()
    {
        CheckPopUpButton button(u"Payway"_s);
        button.replaceItems({u"Cash"_s, u"Card"_s});
        button.setStateToAllItem(true);
        button.replaceItems({u"Cash"_s, u"Card"_s, u"Bank"_s});
        QVERIFY(!button.menuIsChecked());
        QCOMPARE(button.itemWithTag(2)->text(), u"Bank"_s);
        QVERIFY(!button.itemWithTag(3));
    }

    void menuStaysOpenWhileItemsAreClicked()
    {
        CheckPopUpButton button(u"Category"_s);
        button.replaceItems({u"Food"_s, u"Rent"_s, u"Income"_s});
        button.show();
        QSignalSpy changed(&button, &CheckPopUpButton::checksChanged);
        QMenu *menu = button.menu();
        menu->popup(button.mapToGlobal(QPoint(0, button.height())));
        QVERIFY(QTest::qWaitForWindowExposed(menu));

        for (const int tag : {0, 2}) {
            const QRect item = menu->actionGeometry(button.itemWithTag(tag));
            QTest::mouseClick(menu, Qt::LeftButton, {}, item.center());
        }
        QVERIFY(menu->isVisible());
        QCOMPARE(button.checkedItemTagArray(), (QList<int>{0, 2}));
        QCOMPARE(changed.size(), 2);
        QCOMPARE(button.text(), u"Category: 2 selected"_s);

        // "Clear Selection" does its work and closes the menu.
        QAction *clear = menu->actions().at(1);
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(clear).center());
        QTRY_VERIFY(!menu->isVisible());
        QVERIFY(!button.menuIsChecked());
        QCOMPARE(changed.size(), 3);
    }
};

QTEST_MAIN(TestCheckPopUpButton)
#include "tst_checkpopupbutton.moc"
