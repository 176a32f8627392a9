#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "input/InputRow.h"
#include "input/InputWinController.h"
#include "ledger/KController.h"
#include "settings/Settings.h"

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
constexpr int CreditCard = 2;

// The window books into this year without asking.
const int Year = QDate::currentDate().year();

} // namespace

class TestInputWindow : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home.freshDataFolder();
        Settings().setVersion(1);
        m_controller = std::make_unique<KController>();
        m_controller->readListPreference();
        m_window = std::make_unique<InputWinController>(m_controller.get());
        m_window->setYear(Year, 5, 31);
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        m_controller.reset();
        QSettings(u"Penwick"_s, u"Penwick"_s).clear();
    }

    // A CJK font's average character is a full-width one: measured by it, the
    // first window ran off a laptop's screen.
    void firstSizeFitsALaptopInAJapaneseFont()
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

    void keyboardAloneBooksRowsOfTwoMonths()
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
    }

    void monthThatCannotBeWrittenKeepsItsRows()
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
    // Clicks into the field, replaces its text and leaves it with Tab.
    void typeInto(QWidget *field, const QString &text)
    {
        field->setFocus(Qt::TabFocusReason);
        if (auto *line = qobject_cast<QLineEdit *>(field))
            line->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Tab);
    }

    QString monthFile(int year, int month) const
    {
        return DataFolder::filePathForYear(m_home.dataFolder(), year, month);
    }

    TestDataFolder m_home;
    std::unique_ptr<KController> m_controller;
    std::unique_ptr<InputWinController> m_window;
};

QTEST_MAIN(TestInputWindow)
#include "tst_inputwindow.moc"
