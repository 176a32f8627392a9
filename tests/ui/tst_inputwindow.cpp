#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "entry/DescriptionMemory.h"
#include "input/InputRow.h"
#include "input/InputWinController.h"
#include "ledger/KController.h"
#include "model/Notifications.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "storage/ListFile.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QSignalSpy>
#include <QFontInfo>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

// Positions in the default lists of a new data folder.
constexpr int Groceries = 1; // pop-up item; category 0
constexpr int EatingOut = 2;
constexpr int Income = 14; // the last item
constexpr int CreditCard = 2;

// The window books into this year without asking.
const int Year = QDate::currentDate().year();

} // namespace

class TestInputWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void firstSizeFitsALaptopInAJapaneseFont();
    void statementsAreEvaluatedAndSpendingSummed();
    void tabPastTheLastRowAddsOne();
    void keyboardAloneBooksRowsOfTwoMonths();
    void rowWithoutCategoryRaisesTheSheet();
    void quitGuard();
    void returnKeyFollowsTheSetting();
    void steppingTheDateMovesOnlyEmptyRows();
    void rememberedDescriptionFillsTheRow();
    void monthThatCannotBeWrittenKeepsItsRows();
    void popUpsFollowChangedLists();
    void amountFieldShowsWhatIsStored_data();
    void amountFieldShowsWhatIsStored();
    void amountThatCannotBeBookedHoldsTheRow();
    void farYearIsAskedFirst();

private:
    template <typename T>
    T *control(int row, InputRow::Role role) const
    {
        auto *found = qobject_cast<T *>(m_window->getControlWithTag(InputRow::tagFor(row, role)));
        if (!found)
            qFatal("row %d has no control of role %d", row, int(role));
        return found;
    }
    QLineEdit *amount(int row) const { return control<QLineEdit>(row, InputRow::Amount); }
    QComboBox *category(int row) const { return control<QComboBox>(row, InputRow::Category); }
    QComboBox *description(int row) const
    {
        return control<QComboBox>(row, InputRow::Description);
    }
    QString sum() const { return m_window->findChild<QLabel *>(u"sumTF"_s)->text(); }
    QMessageBox *sheet(const QString &name) const { return child<QMessageBox>(m_window.get(), name); }
    // Answers the open sheet with the button of that text.
    void clickSheet(const QString &name, const QString &button);
    // Clicks into the field, replaces its text and leaves it with Tab.
    void typeInto(QWidget *field, const QString &text);
    void showWindow();
    QString monthFile(int year, int month) const
    {
        return DataFolder::filePathForYear(m_home.dataFolder(), year, month);
    }

    TestDataFolder m_home;
    std::unique_ptr<KController> m_controller;
    std::unique_ptr<InputWinController> m_window;
};

void TestInputWindow::init()
{
    m_home.freshDataFolder();
    Settings().setVersion(1);
    m_controller = std::make_unique<KController>();
    m_controller->readListPreference();
    m_window = std::make_unique<InputWinController>(m_controller.get());
    m_window->setYear(Year, 5, 31);
    showWindow();
}

void TestInputWindow::cleanup()
{
    m_window.reset();
    m_controller.reset();
    QSettings(u"Penwick"_s, u"Penwick"_s).clear();
}

void TestInputWindow::showWindow()
{
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestInputWindow::clickSheet(const QString &name, const QString &button)
{
    QMessageBox *open = sheet(name);
    QVERIFY(open->isVisible());
    const auto buttons = open->buttons();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [&](QAbstractButton *b) { return b->text() == button; });
    QVERIFY(found != buttons.end());
    (*found)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestInputWindow::typeInto(QWidget *field, const QString &text)
{
    field->setFocus(Qt::TabFocusReason);
    if (auto *line = qobject_cast<QLineEdit *>(field))
        line->selectAll();
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Tab);
}

// A CJK font's average character is a full-width one: measured by it, the
// first window ran off a laptop's screen.
void TestInputWindow::firstSizeFitsALaptopInAJapaneseFont()
{
    QFont japanese(u"Droid Sans Fallback"_s);
    if (QFontInfo(japanese).family() != japanese.family())
        QSKIP("the Japanese font the installer adds is not here");
    const QFont before = QApplication::font();
    const auto restore = qScopeGuard([&before] { QApplication::setFont(before); });
    QApplication::setFont(japanese);
    InputWinController window(m_controller.get());
    QVERIFY2(window.width() <= 1366, qPrintable(u"%1 px"_s.arg(window.width())));
}

void TestInputWindow::statementsAreEvaluatedAndSpendingSummed()
{
    QCOMPARE(m_window->numberOfRows(), 3);
    QCOMPARE(sum(), u"0"_s);

    category(1)->setCurrentIndex(Groceries);
    typeInto(amount(1), u"2*3"_s);
    QCOMPARE(amount(1)->text(), u"6"_s);
    QCOMPARE(sum(), u"6"_s);

    // Income is not spending; a row without category is not summed either.
    category(2)->setCurrentIndex(Income);
    typeInto(amount(2), u"1,200+350"_s);
    QCOMPARE(amount(2)->text(), u"1550"_s);
    typeInto(amount(3), u"(1+2"_s);
    QCOMPARE(amount(3)->text(), u"0"_s);
    QCOMPARE(sum(), u"6"_s);

    // Choosing a category brings a typed amount into the total.
    typeInto(amount(3), u"10/4"_s);
    category(3)->setCurrentIndex(EatingOut);
    QCOMPARE(amount(3)->text(), u"2.5"_s);
    QCOMPARE(sum(), QLocale().toString(8.5, 'f', 2));
}

void TestInputWindow::tabPastTheLastRowAddsOne()
{
    auto *lastPayway = control<QComboBox>(3, InputRow::Payway);
    control<QLineEdit>(3, InputRow::Day)->setText(u"17"_s);
    lastPayway->setFocus(Qt::TabFocusReason);
    QTest::keyClick(lastPayway, Qt::Key_Tab);
    QCOMPARE(m_window->numberOfRows(), 4);
    // The new row starts on the date of the row it follows.
    QCOMPARE(control<QLineEdit>(4, InputRow::Month)->text(), u"5"_s);
    QCOMPARE(control<QLineEdit>(4, InputRow::Day)->text(), u"17"_s);

    // Row 3 is no longer last: Tab moves into row 4 and adds nothing; Tab
    // walks the whole new row and past its end into a fifth one.
    lastPayway->setFocus(Qt::TabFocusReason);
    QList<QWidget *> visited;
    for (int i = 0; i < 7; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited.append(QApplication::focusWidget());
    }
    QCOMPARE(visited, (QList<QWidget *>{control<QWidget>(4, InputRow::Month),
                                        control<QWidget>(4, InputRow::Day),
                                        control<QWidget>(4, InputRow::Category),
                                        control<QWidget>(4, InputRow::Description),
                                        control<QWidget>(4, InputRow::Amount),
                                        control<QWidget>(4, InputRow::Payway),
                                        control<QWidget>(5, InputRow::Month)}));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), control<QWidget>(4, InputRow::Payway));

    // The buttons lie behind the date on top.
    auto *topYear = m_window->findChild<QLineEdit *>(u"yearTF"_s);
    topYear->setFocus(Qt::TabFocusReason);
    QTest::keyClick(topYear, Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget()->objectName(), u"OKButton"_s);

    // Closing leaves the three fixed rows, and the third is last again.
    m_window->close();
    QVERIFY(!Settings().savedLayout(SettingsKeys::InputWindow).isEmpty());
    QCOMPARE(m_window->numberOfRows(), 3);
    showWindow();
    lastPayway->setFocus(Qt::TabFocusReason);
    QTest::keyClick(lastPayway, Qt::Key_Tab);
    QCOMPARE(m_window->numberOfRows(), 4);
}

void TestInputWindow::keyboardAloneBooksRowsOfTwoMonths()
{
    QSignalSpy listRequests(m_window.get(), &InputWinController::listWindowRequested);
    // From the day on top: Tab into row 1, keep its date, pick a category by
    // its first letters, describe, sum, choose a payway; row 2 goes into
    // June. An empty step only moves on; a typed text replaces the field's.
    QCOMPARE(QApplication::focusWidget()->objectName(), u"dateTF"_s);
    const QStringList steps{{}, {}, {}, u"Gro"_s, u"Market"_s, u"1200+350"_s, u"Cr"_s,
                            u"6"_s, u"2"_s, u"Eat"_s, u"Lunch"_s, u"800"_s};
    for (const QString &text : steps) {
        QWidget *focus = QApplication::focusWidget();
        if (auto *line = qobject_cast<QLineEdit *>(focus))
            line->selectAll();
        QTest::keyClicks(focus, text);
        if (&text != &steps.constLast())
            QTest::keyClick(focus, Qt::Key_Tab);
    }
    QCOMPARE(sum(), QLocale().toString(1550));

    // Return in the amount field books both rows. The only window of the
    // program stays open, ready for the next entries.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(m_window->isVisible());
    QCOMPARE(QApplication::focusWidget()->objectName(), u"dateTF"_s);
    QCOMPARE(listRequests.count(), 0);

    // What a fresh start reads back from the files.
    m_controller->releaseAllDataWithSave(false);
    const auto may = m_controller->monthListForYear(Year, 5)->dataListArray();
    QCOMPARE(may.size(), 1);
    QCOMPARE(may.first()->description(),
             u"Day:%1/5/31 Category:%2 Details:Market Amount:1550.000000 Payway:%3"_s.arg(Year).arg(
                 Groceries - 1).arg(CreditCard));
    const auto june = m_controller->monthListForYear(Year, 6)->dataListArray();
    QCOMPARE(june.size(), 1);
    QCOMPARE(june.first()->date(), 2);
    QCOMPARE(june.first()->details(), u"Lunch"_s);
    QCOMPARE(june.first()->amount(), 800.0f);

    // The rows are empty again and the descriptions are remembered.
    QCOMPARE(amount(1)->text(), QString());
    QCOMPARE(sum(), u"0"_s);
    QCOMPARE(description(1)->count(), 2);
}

void TestInputWindow::rowWithoutCategoryRaisesTheSheet()
{
    typeInto(description(1), u"Mystery"_s);
    category(2)->setCurrentIndex(Groceries);
    typeInto(amount(2), u"300"_s);
    // Only a payway is not data: row 3 is neither faulty nor booked.
    control<QComboBox>(3, InputRow::Payway)->setCurrentIndex(CreditCard);

    // "Select" leaves everything as it was, ready to choose the category.
    m_window->inputData();
    clickSheet(u"categorySheet"_s, u"Select"_s);
    QVERIFY(m_window->isVisible());
    QVERIFY(!QFile::exists(monthFile(Year, 5)));
    QCOMPARE(description(1)->currentText(), u"Mystery"_s);
    QCOMPARE(QApplication::focusWidget(), category(1));

    // "Input" books the rest and drops the faulty row, whose description is
    // still remembered, without a category. With another window open, the
    // input window closes.
    QWidget other;
    other.show();
    m_window->inputData();
    clickSheet(u"categorySheet"_s, u"Input"_s);
    QVERIFY(!m_window->isVisible());
    const auto may = m_controller->monthListForYear(Year, 5)->dataListArray();
    QCOMPARE(detailsOf(may), QStringList{QString()});
    QCOMPARE(may.first()->amount(), 300.0f);
    DescriptionMemory memory;
    memory.readRecentItemsFromDefault();
    QCOMPARE(memory.commonDescriptionsDB().value(u"Mystery"_s).category, -1);
}

void TestInputWindow::quitGuard()
{
    QSignalSpy quits(m_window.get(), &InputWinController::quitRequested);
    QVERIFY(m_window->canTerminateApp());
    // Typed income is not in the spending total, yet it is not thrown away
    // without asking.
    category(1)->setCurrentIndex(Income);
    typeInto(amount(1), u"5000"_s);
    QCOMPARE(sum(), u"0"_s);
    QVERIFY(!m_window->canTerminateApp());

    m_window->confirmInputDataBeforeTerminate();
    clickSheet(u"quitSheet"_s, u"Cancel"_s);
    QCOMPARE(quits.count(), 0);
    QCOMPARE(amount(1)->text(), u"5000"_s);

    // Quit without booking: nothing written, nothing left to hold the quit.
    m_window->confirmInputDataBeforeTerminate();
    clickSheet(u"quitSheet"_s, u"Quit without Quit"_s);
    QCOMPARE(quits.count(), 1);
    QVERIFY(m_window->canTerminateApp());
    QVERIFY(!QFile::exists(monthFile(Year, 5)));

    // Book, then quit.
    showWindow();
    category(1)->setCurrentIndex(Income);
    typeInto(amount(1), u"5000"_s);
    m_window->confirmInputDataBeforeTerminate();
    clickSheet(u"quitSheet"_s, u"Input and Quit"_s);
    QCOMPARE(quits.count(), 2);
    QVERIFY(QFile::exists(monthFile(Year, 5)));
}

void TestInputWindow::returnKeyFollowsTheSetting()
{
    // 2: Return books and asks for the list window.
    QSignalSpy listRequests(m_window.get(), &InputWinController::listWindowRequested);
    for (int setting : {2, 3}) {
        Settings().setReturnInputDefault(setting);
        m_window->setPopupButtonTitle();
        showWindow();
        category(1)->setCurrentIndex(Groceries);
        amount(1)->setFocus();
        QTest::keyClicks(amount(1), u"100"_s);
        QTest::keyClick(amount(1), Qt::Key_Return);
    }
    QCOMPARE(listRequests.count(), 1);
    // 3: Return books nothing, yet a focused button still answers it.
    QVERIFY(m_window->isVisible());
    QCOMPARE(m_controller->monthListForYear(Year, 5)->dataListArray().size(), 1);
    auto *book = m_window->findChild<QWidget *>(u"inputButton"_s);
    book->setFocus(Qt::TabFocusReason);
    QTest::keyClick(book, Qt::Key_Return);
    QCOMPARE(m_controller->monthListForYear(Year, 5)->dataListArray().size(), 2);
}

void TestInputWindow::steppingTheDateMovesOnlyEmptyRows()
{
    const auto dateOfRow = [this](int row) {
        return control<QLineEdit>(row, InputRow::Month)->text() + u'/'
            + control<QLineEdit>(row, InputRow::Day)->text();
    };
    category(1)->setCurrentIndex(Groceries);
    m_window->incrementDate();
    QCOMPARE(m_window->inputDate(), QDate(Year, 6, 1));
    QCOMPARE(dateOfRow(1), u"5/31"_s);
    QCOMPARE(dateOfRow(2), u"6/1"_s);

    // A date typed on top applies to every row and rolls over.
    typeInto(m_window->findChild<QLineEdit *>(u"dateTF"_s), u"32"_s);
    QCOMPARE(m_window->inputDate(), QDate(Year, 7, 2));
    QCOMPARE(dateOfRow(1), u"7/2"_s);

    // Rows keep their own year across New Year.
    m_window->setYear(Year, 12, 31);
    typeInto(amount(1), u"40"_s);
    m_window->incrementDate();
    QCOMPARE(m_window->inputDate(), QDate(Year + 1, 1, 1));
    m_window->inputData();
    QVERIFY(QFile::exists(monthFile(Year, 12)));
    QVERIFY(!QFile::exists(monthFile(Year + 1, 12)));
}

void TestInputWindow::rememberedDescriptionFillsTheRow()
{
    category(1)->setCurrentIndex(EatingOut);
    typeInto(description(1), u"Lunch"_s);
    typeInto(amount(1), u"800"_s);
    m_window->inputData();
    showWindow();

    // Choosing it from the list fills category and amount.
    description(2)->setFocus();
    QTest::keyClick(description(2), Qt::Key_Down);
    QCOMPARE(description(2)->currentText(), u"Lunch"_s);
    QCOMPARE(category(2)->currentIndex(), EatingOut);
    QCOMPARE(amount(2)->text(), u"800"_s);
    QCOMPARE(sum(), u"800"_s);

    // Typed out in full, it never replaces a category or amount the user
    // chose; the start of a remembered description stays what was typed.
    category(3)->setCurrentIndex(Groceries);
    typeInto(amount(3), u"950"_s);
    typeInto(description(3), u"Lunch"_s);
    QCOMPARE(category(3)->currentIndex(), Groceries);
    QCOMPARE(amount(3)->text(), u"950"_s);
    m_window->makeNewInputViewFromAction();
    typeInto(description(4), u"Lu"_s);
    QCOMPARE(description(4)->currentText(), u"Lu"_s);
    QCOMPARE(category(4)->currentIndex(), 0);
    QCOMPARE(amount(4)->text(), QString());
}

void TestInputWindow::monthThatCannotBeWrittenKeepsItsRows()
{
    // May's file is damaged: its month is read-only and takes nothing.
    writeBytes(monthFile(Year, 5), "not a month");
    category(1)->setCurrentIndex(Groceries);
    typeInto(description(1), u"Market"_s);
    typeInto(amount(1), u"1200"_s);
    category(2)->setCurrentIndex(Groceries);
    control<QLineEdit>(2, InputRow::Month)->setText(u"6"_s);
    typeInto(amount(2), u"300"_s);
    // Return in a description box books as well.
    description(2)->setFocus();
    QTest::keyClick(description(2), Qt::Key_Return);

    const QString why = child<QMessageBox>(m_window.get(), u"notBookedSheet"_s)->informativeText();
    QVERIFY2(why.contains(u"could not be read"_s), qPrintable(why));
    QCOMPARE(m_controller->monthListForYear(Year, 6)->dataListArray().size(), 1);
    // The window stays open with May's row as it was; June's row is gone.
    QVERIFY(m_window->isVisible());
    QCOMPARE(description(1)->currentText(), u"Market"_s);
    QCOMPARE(amount(2)->text(), QString());
    QCOMPARE(sum(), QLocale().toString(1200));
    QCOMPARE(readBytes(monthFile(Year, 5)), QByteArray("not a month"));
}

void TestInputWindow::popUpsFollowChangedLists()
{
    category(1)->setCurrentIndex(EatingOut);
    category(2)->setCurrentIndex(Groceries);
    typeInto(amount(1), u"100"_s);
    typeInto(amount(2), u"50"_s);

    // Groceries is renamed, Eating out moves: choices follow names, and the
    // total follows the choices.
    const QVariantList categories{u"Eating out"_s, u"Food"_s, u"Income"_s};
    QVERIFY(ListFile::setPreferenceDataListForKey(m_home.dataFolder(), categories,
                                                  ListFile::CategoryList));
    m_controller->readListPreference();
    emit Notifications::instance()->listPreferenceHasUpDated();
    QTRY_COMPARE(category(1)->count(), 4);
    QCOMPARE(category(1)->currentText(), u"Eating out"_s);
    QCOMPARE(category(2)->currentIndex(), 0);
    QCOMPARE(sum(), u"100"_s);
}

void TestInputWindow::amountFieldShowsWhatIsStored_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("bookable");
    // Not exact in binary, yet shown as typed.
    QTest::newRow("19.99") << u"19.99"_s << u"19.99"_s << true;
    QTest::newRow("0.1") << u"0.1"_s << u"0.1"_s << true;
    QTest::newRow("1234.56") << u"1234.56"_s << u"1234.56"_s << true;
    QTest::newRow("sum of tenths") << u"0.1+0.2"_s << u"0.3"_s << true;
    // What the entry keeps where it cannot keep what was typed.
    QTest::newRow("stored rounded") << u"99999999"_s << u"100000000"_s << true;
    QTest::newRow("no minus zero") << u"-0"_s << u"0"_s << true;
    // Left as typed, to be mended.
    QTest::newRow("division by zero") << u"1/0"_s << u"1/0"_s << false;
    QTest::newRow("zero by zero") << u"0/0"_s << u"0/0"_s << false;
    QTest::newRow("beyond a float") << u"999999999999999999999*999999999999999999"_s
                                    << u"999999999999999999999*999999999999999999"_s << false;
}

void TestInputWindow::amountFieldShowsWhatIsStored()
{
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QFETCH(bool, bookable);
    category(1)->setCurrentIndex(Groceries);
    typeInto(amount(1), typed);
    QCOMPARE(amount(1)->text(), shown);
    QCOMPARE(amount(1)->styleSheet().isEmpty(), bookable);
    QCOMPARE(sum(), bookable ? QLocale().toString(shown.toDouble(), 'f', shown.contains(u'.') ? 2 : 0)
                             : u"0"_s);
}

void TestInputWindow::amountThatCannotBeBookedHoldsTheRow()
{
    category(1)->setCurrentIndex(Groceries);
    typeInto(amount(1), u"1/0"_s);
    QVERIFY(amount(1)->toolTip().contains(u"division by zero"_s));
    category(2)->setCurrentIndex(Groceries);
    typeInto(amount(2), u"300"_s);

    // Nothing is booked until the amount is mended, and the sheet leads there.
    m_window->inputData();
    QCOMPARE(sheet(u"amountSheet"_s)->text(), u"The amount in row 1 cannot be booked."_s);
    sheet(u"amountSheet"_s)->button(QMessageBox::Ok)->click();
    QCOMPARE(QApplication::focusWidget(), amount(1));
    QVERIFY(!QFile::exists(monthFile(Year, 5)));

    typeInto(amount(1), u"1/4"_s);
    m_window->inputData();
    QCOMPARE(amount(1)->text(), QString());
    QCOMPARE(m_controller->monthListForYear(Year, 5)->dataListArray().size(), 2);
}

void TestInputWindow::farYearIsAskedFirst()
{
    // A year typed short books into the year 25 only when the user says so.
    m_window->setYear(25, 3, 14);
    category(1)->setCurrentIndex(Groceries);
    typeInto(amount(1), u"12"_s);
    m_window->inputData();
    clickSheet(u"yearSheet"_s, u"Change the Year"_s);
    QCOMPARE(QApplication::focusWidget()->objectName(), u"yearTF"_s);
    QVERIFY(!QFile::exists(monthFile(25, 3)));

    m_window->inputData();
    clickSheet(u"yearSheet"_s, u"Book"_s);
    QVERIFY(QFile::exists(monthFile(25, 3)));
}

QTEST_MAIN(TestInputWindow)
#include "tst_inputwindow.moc"
