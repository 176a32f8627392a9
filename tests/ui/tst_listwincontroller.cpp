#include "LedgerGenerator.h"
#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "ledger/KController.h"
#include "list/ListWinController.h"
#include "model/ModifMonthList.h"
#include "model/Notifications.h"
#include "model/NumberValue.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "storage/DurableFile.h"
#include "widgets/CheckPopUpButton.h"

#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTableView>
#include <QTemporaryDir>
#include <QToolButton>

#include <cerrno>

using namespace Qt::Literals::StringLiterals;

namespace {

// Columns of the table, by the order of the entry's keys.
enum { Year, Month, Date, Category, Details, Amount, Payway };
const int Income = int(LedgerGenerator::categoryNames().size()) - 1;

} // namespace

class TestListWinController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void stepsAcrossTheYearBoundary();
    void editsAnAmountTypedWithSeparators_data();
    void editsAnAmountTypedWithSeparators();
    void choosesACategoryFromThePopUpCell();
    void movesAnEntryByEditingItsMonth();
    void searchesByDayRangeAndKeyword();
    void showsOnlyOneCategoryOnRequest();
    void totalsRateAndLastMonthsBalance();
    void sortsByTheClickedColumn();
    void deletesTheSelectedRowsOnceConfirmed();
    void hidesAndShowsAColumn();
    void memoIsKeptWithItsMonth();
    void opensOnTheClosingDayMonth();
    void newEntryIsAskedForOnTheSelectedDay();
    void exportsEveryEntryAsPdf();

private:
    void openWindow();
    template<typename T>
    T *part(const QString &name) const { return child<T>(m_window.get(), name); }
    QTableView *table() const { return part<QTableView>(u"listTable"_s); }
    QString cell(int row, int column) const
    {
        return table()->model()->index(row, column).data().toString();
    }
    QStringList column(int column) const;
    int rowOf(const QString &details) const;
    QLineEdit *editCell(int row, int column);
    // Types into the cell and presses Return; the view commits on its next pass.
    void typeIntoCell(int row, int column, const QString &text);
    QString label(const QString &name) const { return part<QLabel>(name)->text(); }
    // Shows May 2006 holding these entries.
    void openMay(const PaymentArray &entries);
    QAction *columnItem(int column) const;

    TestDataFolder m_home;
    std::unique_ptr<KController> m_controller;
    std::unique_ptr<ListWinController> m_window;
};

void TestListWinController::init()
{
    QSettings(u"Penwick"_s, u"Penwick"_s).clear();
    const QString folder = m_home.freshDataFolder();
    QVERIFY(LedgerGenerator().writeDataFolder(folder, 2006, 0, 0));
    m_controller = std::make_unique<KController>();
    m_controller->readListPreference();
}

void TestListWinController::cleanup()
{
    m_window.reset();
    m_controller.reset();
}

void TestListWinController::openWindow()
{
    m_window = std::make_unique<ListWinController>(m_controller.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestListWinController::openMay(const PaymentArray &entries)
{
    QVERIFY(m_controller->addData(entries));
    openWindow();
    m_window->showListOfYear(2006, 5);
}

QStringList TestListWinController::column(int column) const
{
    QStringList texts;
    for (int row = 0; row < table()->model()->rowCount(); ++row)
        texts.append(cell(row, column));
    return texts;
}

int TestListWinController::rowOf(const QString &details) const
{
    return int(column(Details).indexOf(details));
}

QLineEdit *TestListWinController::editCell(int row, int column)
{
    QTableView *view = table();
    const QModelIndex index = view->model()->index(row, column);
    view->setCurrentIndex(index);
    view->edit(index);
    return view->viewport()->findChild<QLineEdit *>();
}

void TestListWinController::typeIntoCell(int row, int column, const QString &text)
{
    QLineEdit *editor = editCell(row, column);
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!table()->viewport()->findChild<QLineEdit *>());
}

QAction *TestListWinController::columnItem(int column) const
{
    const auto items = part<QMenu>(u"tableColumnMenu"_s)->actions();
    for (QAction *item : items) {
        if (item->data().toInt() == column)
            return item;
    }
    return nullptr;
}

void TestListWinController::stepsAcrossTheYearBoundary()
{
    m_controller->addData({entry(2006, 12, 24, u"tree"_s), entry(2007, 1, 2, u"new year"_s)});
    openWindow();
    m_window->showListOfYear(2006, 12);
    QCOMPARE(column(Details), QStringList{u"tree"_s});

    QSignalSpy changed(Notifications::instance(), &Notifications::listWinChangedDate);
    QTest::mouseClick(part<QToolButton>(u"nextButton"_s), Qt::LeftButton);
    QCOMPARE(m_window->year(), 2007);
    QCOMPARE(m_window->month(), 1);
    QCOMPARE(column(Details), QStringList{u"new year"_s});
    QCOMPARE(changed.size(), 1);

    // The month field's arrow carries into the year before.
    part<QSpinBox>(u"monthTF"_s)->stepDown();
    QCOMPARE(m_window->year(), 2006);
    QCOMPARE(m_window->month(), 12);
    QCOMPARE(m_window->currentDataList()->month(), 12);
    QCOMPARE(changed.size(), 2);

    // The month already shown posts nothing.
    m_window->showListOfYear(2006, 12);
    QCOMPARE(changed.size(), 2);

    // Every year a month file can have is reached, and no further.
    const auto step = [this](int year, int month, int by) {
        m_window->showListOfYear(year, month);
        auto *field = part<QSpinBox>(u"monthTF"_s);
        by < 0 ? field->stepDown() : field->stepUp();
        return QDate(m_window->year(), m_window->month(), 1);
    };
    QCOMPARE(step(1970, 1, -1), QDate(1969, 12, 1));
    QCOMPARE(step(1, 1, -1), QDate(1, 1, 1));
    QCOMPARE(step(9999, 12, 1), QDate(9999, 12, 1));
}

void TestListWinController::editsAnAmountTypedWithSeparators_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<float>("stored");
    // The cell opens on the shortest text of the stored float, so a value
    // that is not exact in binary reopens as typed.
    QTest::addColumn<QString>("reopened");
    QTest::newRow("separators") << u"1,234.5"_s << 1234.5f << u"1234.5"_s;
    QTest::newRow("19.99") << u"19.99"_s << 19.99f << u"19.99"_s;
    QTest::newRow("0.1") << u"0.1"_s << 0.1f << u"0.1"_s;
    // Arithmetic is not evaluated in a cell: the leading number counts.
    QTest::newRow("no arithmetic") << u"2*3"_s << 2.0f << u"2"_s;
    // Beyond what an entry holds: refused, the old amount stays.
    QTest::newRow("too large") << u"1e39"_s << 100.0f << u"100"_s;
}

void TestListWinController::editsAnAmountTypedWithSeparators()
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

void TestListWinController::choosesACategoryFromThePopUpCell()
{
    const auto rent = entry(2006, 5, 1, u"rent"_s);
    openMay({rent});
    m_window->setListEditable(true);

    QTableView *view = table();
    view->edit(view->model()->index(0, Category));
    auto *popUp = view->viewport()->findChild<QComboBox *>();
    QVERIFY(popUp);
    QCOMPARE(popUp->count(), int(LedgerGenerator::categoryNames().size()));
    popUp->hidePopup();
    popUp->setCurrentIndex(10);
    emit popUp->activated(10);
    QCOMPARE(rent->category(), 10);
    QCOMPARE(cell(0, Category), LedgerGenerator::categoryNames().at(10));
}

void TestListWinController::movesAnEntryByEditingItsMonth()
{
    const auto trip = entry(2006, 5, 20, u"trip"_s);
    openMay({trip, entry(2006, 5, 21, u"stays"_s)});
    columnItem(Month)->trigger();
    QVERIFY(!table()->horizontalHeader()->isSectionHidden(Month));
    m_window->setListEditable(true);

    typeIntoCell(rowOf(u"trip"_s), Month, u"6"_s);

    QCOMPARE(column(Details), QStringList{u"stays"_s});
    QCOMPARE(trip->month(), 6);
    QCOMPARE(detailsOf(m_controller->listForYear(2006, 6)->dataListArray()),
             QStringList{u"trip"_s});

    // A month out of range changes nothing.
    typeIntoCell(0, Month, u"13"_s);
    QCOMPARE(column(Details), QStringList{u"stays"_s});
    QCOMPARE(cell(0, Month), u"5"_s);
}

void TestListWinController::searchesByDayRangeAndKeyword()
{
    openMay({entry(2006, 5, 1, u"Tea"_s, 10), entry(2006, 5, 5, u"Tea and cake"_s, 20),
             entry(2006, 5, 8, u"Bread"_s, 30), entry(2006, 5, 10, u"Green tea"_s, 40),
             entry(2006, 5, 15, u"Tea"_s, 50), entry(2006, 6, 7, u"Tea in June"_s, 60)});

    QTest::keyClicks(part<QLineEdit>(u"dateSearchTF"_s), u"5-10"_s);
    QCOMPARE(column(Details), (QStringList{u"Tea and cake"_s, u"Bread"_s, u"Green tea"_s}));
    // Keywords are case-sensitive: "Green tea" has no "Tea".
    QTest::keyClicks(part<QLineEdit>(u"detailsSearchTF"_s), u"Tea"_s);
    QCOMPARE(column(Details), QStringList{u"Tea and cake"_s});
    QCOMPARE(label(u"extractedTotalTF"_s), u"20"_s);
    QCOMPARE(label(u"expendTotalTF"_s), u"150"_s);

    // The keys follow the user into the next month.
    m_window->moveMonth(1);
    QCOMPARE(column(Details), QStringList{u"Tea in June"_s});

    QTest::mouseClick(part<QPushButton>(u"clearSearchButton"_s), Qt::LeftButton);
    QVERIFY(part<QLineEdit>(u"dateSearchTF"_s)->text().isEmpty());
    m_window->moveMonth(-1);
    QCOMPARE(table()->model()->rowCount(), 5);
}

void TestListWinController::showsOnlyOneCategoryOnRequest()
{
    openMay({entry(2006, 5, 1, u"bus"_s, 5, 2, 0), entry(2006, 5, 2, u"bread"_s, 5, 0, 1),
             entry(2006, 5, 3, u"taxi"_s, 5, 2, 1)});
    auto *categories = part<CheckPopUpButton>(u"categorySearchPp"_s);

    m_window->showDataOfCategory(2);
    QCOMPARE(column(Details), (QStringList{u"bus"_s, u"taxi"_s}));
    QCOMPARE(categories->checkedItemTagArray(), QList<int>{2});

    m_window->showDataOfPayway(1);
    QCOMPARE(column(Details), (QStringList{u"bread"_s, u"taxi"_s}));
    QVERIFY(!categories->menuIsChecked());

    // Out of range clears every key.
    m_window->showDataOfCategory(-1);
    QCOMPARE(table()->model()->rowCount(), 3);

    // Checking by hand: both checked categories show.
    categories->itemWithTag(0)->trigger();
    categories->itemWithTag(2)->trigger();
    QCOMPARE(table()->model()->rowCount(), 3);
    categories->itemWithTag(2)->trigger();
    QCOMPARE(column(Details), QStringList{u"bread"_s});

    // Asked for the month it shows, the window clears the panel and shows
    // every entry again.
    m_window->clearExtractKey();
    m_window->showListOfYear(2006, 5);
    QCOMPARE(table()->model()->rowCount(), 3);
}

void TestListWinController::totalsRateAndLastMonthsBalance()
{
    m_controller->addData({entry(2006, 4, 25, u"salary"_s, 3000, Income),
                           entry(2006, 4, 26, u"rent"_s, 1000, 10),
                           entry(2006, 5, 25, u"salary"_s, 2000, Income),
                           entry(2006, 5, 2, u"food"_s, 300),
                           entry(2006, 5, 3, u"books"_s, 100, 6)});
    openWindow();
    m_window->showListOfYear(2006, 5);
    const auto whole = [](double value) { return QLocale().toString(value, 'f', 0); };
    QCOMPARE(label(u"expendTotalTF"_s), whole(400));
    QCOMPARE(label(u"incomeTotalTF"_s), whole(2000));
    QCOMPARE(label(u"balanceTF"_s), whole(1600));
    const QString tip = part<QGroupBox>(u"totalsBox"_s)->toolTip();
    QVERIFY2(tip.contains(u"Balance of last month"_s) && tip.endsWith(whole(2000)), qPrintable(tip));

    // The search leaves income out of its spending.
    m_window->showDataOfCategory(0);
    QCOMPARE(label(u"extractedTotalTF"_s), u"300"_s);
    QCOMPARE(label(u"extractedRateTF"_s), QLocale().toString(75.0, 'f', 1) + u" %"_s);
    QCOMPARE(label(u"extractedBalanceTF"_s), u"-300"_s);

    // No spending at all: a share of 0, not a division by zero.
    m_window->showListOfYear(2006, 7);
    QCOMPARE(label(u"extractedRateTF"_s), QLocale().toString(0.0, 'f', 1) + u" %"_s);
}

void TestListWinController::sortsByTheClickedColumn()
{
    openMay({entry(2006, 5, 1, u"b"_s, 300), entry(2006, 5, 2, u"a"_s, 100),
             entry(2006, 5, 3, u"c"_s, 200)});
    QHeaderView *header = table()->horizontalHeader();
    const auto clickHeader = [header](int section) {
        const int x = header->sectionViewportPosition(section) + header->sectionSize(section) / 2;
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(x, header->height() / 2));
    };
    // Each click turns the order: the rows run largest first when they ran
    // smallest first, else smallest first.
    clickHeader(Amount);
    QCOMPARE(column(Details), (QStringList{u"a"_s, u"c"_s, u"b"_s}));
    QCOMPARE(header->sortIndicatorOrder(), Qt::AscendingOrder);
    clickHeader(Amount);
    QCOMPARE(column(Details), (QStringList{u"b"_s, u"c"_s, u"a"_s}));
    QCOMPARE(header->sortIndicatorOrder(), Qt::DescendingOrder);
    clickHeader(Details);
    QCOMPARE(column(Details), (QStringList{u"a"_s, u"b"_s, u"c"_s}));

    // A change of the month brings back the day order.
    m_controller->listForYear(2006, 5)->dataListArray().constFirst()->setAmount(50);
    QCOMPARE(column(Details), (QStringList{u"b"_s, u"a"_s, u"c"_s}));
    QVERIFY(!header->isSortIndicatorShown());
}

void TestListWinController::deletesTheSelectedRowsOnceConfirmed()
{
    openMay({entry(2006, 5, 1, u"one"_s), entry(2006, 5, 2, u"two"_s), entry(2006, 5, 3, u"three"_s)});
    auto *deleteButton = part<QPushButton>(u"deleteButton"_s);
    table()->selectRow(0);
    QVERIFY(!deleteButton->isEnabled());

    m_window->setListEditable(true);
    table()->selectionModel()->select(table()->model()->index(2, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QVERIFY(deleteButton->isEnabled());

    // Cancel keeps everything.
    const auto answer = [&](QMessageBox::ButtonRole role) {
        QTest::mouseClick(deleteButton, Qt::LeftButton);
        auto *box = part<QMessageBox>(u"deleteConfirmation"_s);
        const auto buttons = box->buttons();
        for (QAbstractButton *button : buttons) {
            if (box->buttonRole(button) == role)
                button->click();
        }
        QTRY_VERIFY(!m_window->findChild<QMessageBox *>());
    };
    answer(QMessageBox::RejectRole);
    QCOMPARE(table()->model()->rowCount(), 3);
    answer(QMessageBox::DestructiveRole);
    QCOMPARE(column(Details), QStringList{u"two"_s});
    QCOMPARE(m_controller->listForYear(2006, 5)->dataListArray().size(), 1);
}

void TestListWinController::hidesAndShowsAColumn()
{
    openWindow();
    QHeaderView *header = table()->horizontalHeader();
    QVERIFY(header->isSectionHidden(Year));
    QVERIFY(!header->isSectionHidden(Details));

    columnItem(Details)->trigger();
    QVERIFY(header->isSectionHidden(Details));
    QSettings settings(u"Penwick"_s, u"Penwick"_s);
    QCOMPARE(settings.value(SettingsKeys::ColumnMenuStates).toList(),
             (QVariantList{0, 0, 1, 1, 0, 1, 1}));

    // Shown again, it joins at the right end.
    columnItem(Details)->trigger();
    QVERIFY(!header->isSectionHidden(Details));
    QCOMPARE(header->visualIndex(Details), header->count() - 1);

    // A new window takes the saved states and column order.
    columnItem(Payway)->trigger();
    m_window.reset();
    openWindow();
    header = table()->horizontalHeader();
    QVERIFY(header->isSectionHidden(Payway));
    QVERIFY(!columnItem(Payway)->isChecked());
    QCOMPARE(header->visualIndex(Details), header->count() - 1);
}

void TestListWinController::memoIsKeptWithItsMonth()
{
    openWindow();
    m_window->showListOfYear(2006, 5);
    auto *memo = part<QPlainTextEdit>(u"summaryText"_s);
    QTest::keyClicks(memo, u"Car inspection"_s);
    m_window->moveMonth(1);
    QVERIFY(memo->toPlainText().isEmpty());

    const auto may = m_controller->monthListForYear(2006, 5);
    QCOMPARE(may->summary(), u"Car inspection"_s);
    // Durable at once, in the change journal; the month's file follows.
    QVERIFY(m_controller->unsavedMonthsAreJournaled());
    QTRY_VERIFY(!may->isEdited());
    QVERIFY(QFile::exists(m_controller->filePathForYear(2006, 5)));

    m_window->moveMonth(-1);
    QCOMPARE(memo->toPlainText(), u"Car inspection"_s);

    // One the disk does not take stays in its month, and the status bar says
    // so until it is saved.
    const auto faultGuard = qScopeGuard([] { DurableFile::setFaultForTesting(std::nullopt); });
    DurableFile::setFaultForTesting(
        DurableFile::Fault{DurableFile::Step::Write, ENOSPC, m_controller->dataFolderPath()});
    memo->moveCursor(QTextCursor::End);
    QTest::keyClicks(memo, u", tyres"_s);
    m_window->moveMonth(1);
    QVERIFY(may->isEdited());
    QVERIFY(!m_controller->saveAllEditedData());
    const auto *unsaved = part<QLabel>(u"unsavedLabel"_s);
    QVERIFY(!unsaved->isHidden());
    QVERIFY2(unsaved->text().contains(u"5/2006"_s), qPrintable(unsaved->text()));
    DurableFile::setFaultForTesting(std::nullopt);
    QVERIFY(m_controller->saveAllEditedData());
    QVERIFY(unsaved->isHidden());
    QCOMPARE(may->summary(), u"Car inspection, tyres"_s);
}

void TestListWinController::opensOnTheClosingDayMonth()
{
    Settings settings;
    settings.setChangeMonthLastDate(true);
    settings.setMonthLastDate(15);
    openWindow();
    const QDate expected = ModifMonthList::closingMonthOf(QDate::currentDate(), 15);
    QCOMPARE(m_window->year(), expected.year());
    QCOMPARE(m_window->month(), expected.month());
    QVERIFY(dynamic_cast<ModifMonthList *>(m_window->currentDataList()));

    // A day of the month before shows with its month.
    m_window->showListOfYear(2006, 5);
    m_controller->addData({entry(2006, 4, 20, u"late april"_s), entry(2006, 5, 2, u"may"_s)});
    QCOMPARE(column(Details), (QStringList{u"late april"_s, u"may"_s}));
    QCOMPARE(column(Date), (QStringList{u"4/20"_s, u"2"_s}));
}

void TestListWinController::newEntryIsAskedForOnTheSelectedDay()
{
    openMay({entry(2006, 5, 17, u"cake"_s)});
    QSignalSpy asked(m_window.get(), &ListWinController::inputWindowRequested);
    QTest::mouseClick(part<QPushButton>(u"addButton"_s), Qt::LeftButton);
    table()->selectRow(0);
    QTest::mouseClick(part<QPushButton>(u"addButton"_s), Qt::LeftButton);
    QCOMPARE(asked.size(), 2);
    QCOMPARE(asked.at(0), (QVariantList{2006, 5, 1}));
    QCOMPARE(asked.at(1), (QVariantList{2006, 5, 17}));
}

void TestListWinController::exportsEveryEntryAsPdf()
{
    const QString pdftotext = QStandardPaths::findExecutable(u"pdftotext"_s);
    if (pdftotext.isEmpty())
        QSKIP("pdftotext (poppler-utils) is needed to read the PDF back; make test installs it");

    PaymentArray month;
    for (int i = 0; i < 400; ++i)
        month.append(entry(2006, 5, 1 + i % 31, u"Entry %1"_s.arg(i, 3, 10, QChar(u'0')), float(i * 10 + 1),
                           i % Income, i % 4));
    m_controller->addData(month);
    openWindow();
    m_window->showListOfYear(2006, 5);

    const QTemporaryDir folder;
    const QString path = folder.filePath(u"may.pdf"_s);
    QVERIFY(m_window->exportPdf(path));
    QProcess reader;
    reader.start(pdftotext, {path, u"-"_s});
    QVERIFY(reader.waitForFinished(30000));
    const QString text = QString::fromUtf8(reader.readAllStandardOutput());

    QVERIFY(text.contains(m_window->windowTitle().section(u" – "_s, 0, 0)));
    QVERIFY(text.contains(label(u"expendTotalTF"_s)));
    QStringList missing;
    for (const PaymentDataPtr &record : std::as_const(month)) {
        if (!text.contains(record->details()))
            missing.append(record->details());
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u", ")));
    QVERIFY2(text.count(u'\f') > 1, "400 rows take more than one page");
}

QTEST_MAIN(TestListWinController)
#include "tst_listwincontroller.moc"
