#include "LedgerGenerator.h"
#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "ledger/KController.h"
#include "model/NumberValue.h"
#include "list/ListWinController.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {

// Columns of the table, by the order of the entry's keys.
enum { Year, Month, Date, Category, Details, Amount, Payway };

} // namespace

class TestListWinController : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QSettings(u"Penwick"_s, u"Penwick"_s).clear();
        const QString folder = m_home.freshDataFolder();
        QVERIFY(LedgerGenerator().writeDataFolder(folder, 2006, 0, 0));
        m_controller = std::make_unique<KController>();
        m_controller->readListPreference();
    }

    void cleanup()
    {
        m_window.reset();
        m_controller.reset();
    }

    void editsAnAmountTypedWithSeparators_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<float>("stored");
        // The cell opens on the shortest text of the stored float, so a value
        // that is not exact in binary reopens as typed.
        QTest::addColumn<QString>("reopened");
        QTest::newRow("separators") << u"1,234.5"_s << 1234.5f << u"1234.5"_s;
        QTest::newRow("0.1") << u"0.1"_s << 0.1f << u"0.1"_s;
        // Beyond what an entry holds: refused, the old amount stays.
        QTest::newRow("too large") << u"1e39"_s << 100.0f << u"100"_s;
    }

    void editsAnAmountTypedWithSeparators()
    {
        QFETCH(QString, typed);
        QFETCH(float, stored);
        QFETCH(QString, reopened);
        const auto lunch = entry(2006, 5, 3, u"lunch"_s);
        openMay({lunch});

        // Outside edit mode no cell opens.
        QVERIFY(!editCell(0, Amount));

        m_window->setListEditable(true);
        typeIntoCell(0, Amount, typed);
        QCOMPARE(lunch->amount(), stored);
        QCOMPARE(m_controller->monthListForYear(2006, 5)->isEdited(), stored != 100.0f);
        QCOMPARE(label(u"expendTotalTF"_s), amountText(stored));
        QLineEdit *editor = editCell(0, Amount);
        QVERIFY(editor);
        QCOMPARE(editor->text(), reopened);
    }

    void movesAnEntryByEditingItsMonth()
    {
        const auto trip = entry(2006, 5, 20, u"trip"_s);
        openMay({trip, entry(2006, 5, 21, u"stays"_s)});
        columnItem(Month)->trigger();
        QVERIFY(!table()->horizontalHeader()->isSectionHidden(Month));
        m_window->setListEditable(true);

        typeIntoCell(int(column(Details).indexOf(u"trip"_s)), Month, u"6"_s);

        QCOMPARE(column(Details), QStringList{u"stays"_s});
        QCOMPARE(trip->month(), 6);
        QCOMPARE(detailsOf(m_controller->listForYear(2006, 6)->dataListArray()),
                 QStringList{u"trip"_s});

        // A month out of range changes nothing.
        typeIntoCell(0, Month, u"13"_s);
        QCOMPARE(column(Details), QStringList{u"stays"_s});
        QCOMPARE(cell(0, Month), u"5"_s);
    }

private:
    void openWindow()
    {
        m_window = std::make_unique<ListWinController>(m_controller.get());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    template<typename T>
    T *part(const QString &name) const { return child<T>(m_window.get(), name); }
    QTableView *table() const { return part<QTableView>(u"listTable"_s); }
    QString cell(int row, int column) const
    {
        return table()->model()->index(row, column).data().toString();
    }

    QStringList column(int column) const
    {
        QStringList texts;
        for (int row = 0; row < table()->model()->rowCount(); ++row)
            texts.append(cell(row, column));
        return texts;
    }

    QLineEdit *editCell(int row, int column)
    {
        QTableView *view = table();
        const QModelIndex index = view->model()->index(row, column);
        view->setCurrentIndex(index);
        view->edit(index);
        return view->viewport()->findChild<QLineEdit *>();
    }

    // Types into the cell and presses Return; the view commits on its next pass.
    void typeIntoCell(int row, int column, const QString &text)
    {
        QLineEdit *editor = editCell(row, column);
        QVERIFY(editor);
        editor->selectAll();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(!table()->viewport()->findChild<QLineEdit *>());
    }

    QString label(const QString &name) const { return part<QLabel>(name)->text(); }
    // Shows May 2006 holding these entries.
    void openMay(const PaymentArray &entries)
    {
        QVERIFY(m_controller->addData(entries));
        openWindow();
        m_window->showListOfYear(2006, 5);
    }

    QAction *columnItem(int column) const
    {
        const auto items = part<QMenu>(u"tableColumnMenu"_s)->actions();
        for (QAction *item : items) {
            if (item->data().toInt() == column)
                return item;
        }
        return nullptr;
    }

    TestDataFolder m_home;
    std::unique_ptr<KController> m_controller;
    std::unique_ptr<ListWinController> m_window;
};

QTEST_MAIN(TestListWinController)
#include "tst_listwincontroller.moc"
