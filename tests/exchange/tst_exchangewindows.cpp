#include "TestDataFolder.h"
#include "WindowHelpers.h"

#include "app/KAppController.h"
#include "exchange/CsvMapping.h"
#include "exchange/ImportDialog.h"
#include "input/InputWinController.h"
#include "ledger/KController.h"
#include "list/ListWinController.h"
#include "model/MonthDataList.h"
#include "settings/Settings.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTableView>
#include <QTest>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

// The import preview offscreen: what it shows of a file, the choices that
// change it, and how the windows open it; and what the list window exports.
class TestExchangeWindows : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home.freshDataFolder();
        m_ledger = std::make_unique<KController>();
        m_ledger->readListPreference();
    }

    void cleanup()
    {
        m_ledger.reset();
    }

    // A bank's statement: one row booked already, one whose date cannot be read.
    void previewShowsEveryRowAndBooks()
    {
        QVERIFY(m_ledger->addData({std::make_shared<PaymentData>(2006, 5, 3, 0, u"Bakery"_s, 4.5f, 0)}));
        const QByteArray statement = "Date,Details,Amount\n"
                                     "2006-05-03,Bakery,-4.50\n"
                                     "2006-05-31,Rent,-700\n"
                                     "someday,Lost,-1\n"
                                     "2006-06-25,Salary,2100\n";
        ImportDialog dialog(m_ledger.get(), writeFile(u"bank.csv"_s, statement));
        auto *table = dialog.findChild<QTableView *>(u"previewTable"_s);
        QAbstractItemModel *rows = table->model();
        QCOMPARE(rows->rowCount(), 3);
        QCOMPARE(rows->index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        QCOMPARE(rows->index(1, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QCOMPARE(rows->index(2, 3).data().toString(), m_ledger->categoryList().constLast());
        const auto *problems = dialog.findChild<QListWidget *>(u"problemList"_s);
        QCOMPARE(problems->count(), 1);
        QCOMPARE(problems->item(0)->text(), u"Line 4: 'someday' is not a date."_s);

        // Unticking a row leaves it out of the booking.
        QVERIFY(rows->setData(rows->index(1, 0), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(dialog.book());
        QVERIFY2(dialog.reportText().contains(u"Left out: 1"_s), qPrintable(dialog.reportText()));
        QCOMPARE(m_ledger->monthListForYear(2006, 5)->dataListArray().size(), 1);
        QCOMPARE(m_ledger->monthListForYear(2006, 6)->dataListArray().size(), 1);
        // The next statement of the bank reads as this one did.
        QVERIFY(CsvMapping::remembered({u"Date"_s, u"Details"_s, u"Amount"_s}).has_value());
    }

    void ambiguousDatesAreAChoice()
    {
        ImportDialog dialog(m_ledger.get(), writeFile(u"odd.csv"_s, "Datum,Memo,Betrag\n03/04/2006,Tea,-3\n"));
        auto *order = dialog.findChild<QComboBox *>(u"dateOrderBox"_s);
        QVERIFY(order->isVisibleTo(&dialog));
        QVERIFY(!order->toolTip().isEmpty());
        const QAbstractItemModel *rows = dialog.findChild<QTableView *>(u"previewTable"_s)->model();
        for (const auto &[choice, date] : {std::pair{DateOrder::DayMonthYear, QDate(2006, 4, 3)},
                                           std::pair{DateOrder::MonthDayYear, QDate(2006, 3, 4)}}) {
            order->setCurrentIndex(order->findData(int(choice)));
            emit order->activated(order->currentIndex());
            QCOMPARE(rows->index(0, 2).data().toString(), QLocale().toString(date, QLocale::ShortFormat));
        }
    }

    void windowsOfferImportAndTakeDrops()
    {
        m_ledger.reset();
        Settings().setVersion(1);
        KAppController app;
        app.confirmPassword();
        app.showInputWindow();
        app.showListWindow();
        QWidget *input = visibleTopLevels<InputWinController>().value(0);
        ListWinController *list = visibleTopLevels<ListWinController>().value(0);
        QVERIFY(input && list);
        for (const QWidget *window : {input, static_cast<QWidget *>(list)}) {
            const QMenu *file = window->findChild<QMenuBar *>()->actions().constFirst()->menu();
            const QList<QAction *> items = file->actions();
            QVERIFY(std::any_of(items.cbegin(), items.cend(), [](const QAction *item) {
                return item->text() == u"&Import…"_s && item->isEnabled();
            }));
        }

        const QString path = writeFile(u"drop.qif"_s, "!Type:Bank\nD05/03/2006\nT-3\nPTea\n^\n");
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(path)});
        // As a drag arrives: entering names the window it is dropped on.
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(list, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(list, &drop);
        auto *dialog = list->findChild<ImportDialog *>();
        QVERIFY(dialog);
        QCOMPARE(dialog->findChild<QTableView *>(u"previewTable"_s)->model()->rowCount(), 1);
        dialog->close();
    }

    void listWindowExportsWhatItShows()
    {
        QVERIFY(m_ledger->addData({std::make_shared<PaymentData>(2006, 5, 3, 0, u"Bakery"_s, 4.5f, 0),
                                   std::make_shared<PaymentData>(2006, 5, 9, 1, u"Rent"_s, 700, 0),
                                   std::make_shared<PaymentData>(2006, 6, 1, 0, u"Tea"_s, 3, 0)}));
        ListWinController window(m_ledger.get());
        window.showListOfYear(2006, 5);
        window.showDataOfCategory(0);
        const auto lines = [&window](ListWinController::CsvScope scope) {
            return QString::fromUtf8(window.csvText(scope).value_or(QByteArray())).split(u"\r\n"_s, Qt::SkipEmptyParts);
        };
        QCOMPARE(lines(ListWinController::CsvScope::SearchResult).size(), 2);
        QVERIFY(lines(ListWinController::CsvScope::SearchResult).at(1).startsWith(u"2006-05-03,"_s));
        QCOMPARE(lines(ListWinController::CsvScope::Month).size(), 3);
        QCOMPARE(lines(ListWinController::CsvScope::Year).size(), 4);
        QCOMPARE(lines(ListWinController::CsvScope::All), lines(ListWinController::CsvScope::Year));
    }

private:
    QString writeFile(const QString &name, const QByteArray &bytes) const
    {
        const QString path = QDir(m_home.home()).filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("could not write %s", qPrintable(path));
        return path;
    }

    TestDataFolder m_home;
    std::unique_ptr<KController> m_ledger;
};

QTEST_MAIN(TestExchangeWindows)
#include "tst_exchangewindows.moc"
