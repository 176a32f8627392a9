#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "model/CategoryPalette.h"
#include "model/Notifications.h"
#include "password/SetPassPanelController.h"
#include "prefs/ListEditorModel.h"
#include "prefs/MergeItemDialog.h"
#include "prefs/PrefWinController.h"
#include "security/PasswordLock.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "storage/ColorArchive.h"
#include "storage/ListFile.h"
#include "storage/MonthFile.h"
#include "widgets/RgbaQColor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList kCategories{u"Food"_s, u"Rent"_s, u"Fun"_s, u"Income"_s};
const QStringList kPayways{u"Cash"_s, u"Card"_s};

QVariantList variants(const QStringList &names)
{
    return QVariant(names).toList();
}

QStringList storedNames(const QString &folder, QLatin1StringView key)
{
    return QVariant(ListFile::preferenceDataListForKey(folder, key)).toStringList();
}

// The categories of a month file's entries, in the order of their details.
QList<int> storedCategories(const QString &folder, int year, int month)
{
    PaymentArray records =
        MonthFile::decode(readBytes(DataFolder::filePathForYear(folder, year, month)), nullptr)
            ->dataListArray();
    std::sort(records.begin(), records.end(), [](const PaymentDataPtr &a, const PaymentDataPtr &b) {
        return a->details() < b->details();
    });
    QList<int> categories;
    for (const PaymentDataPtr &r : records)
        categories.append(r->category());
    return categories;
}

} // namespace

class TestPrefWinController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void movesByDraggingRenumberTheEntries();
    void dropsOntoARowOrFromAnotherListAreRefused();
    void deletingMergesIntoTheChosenItem();
    void duplicateNamesAreRefused();
    void cancelDropsEveryEdit();
    void okWritesTheSettingsAndAnnouncesThem();
    void aStoredClosingDayIsKeptUntilChanged_data();
    void aStoredClosingDayIsKeptUntilChanged();
    void aRefusedConversionKeepsTheWindowOpen();
    void missingColoursAreWrittenBlack();
    void changingTheDataFolderSavesFirst();
    void closingTheFirstSettingAsksForTheInputWindow();
    void aConfirmedPasswordIsStoredAtOnce_data();
    void aConfirmedPasswordIsStoredAtOnce();

private:
    ListEditorModel *categories() const;
    QTableView *categoryTable() const;
    void pressOk();

    TestDataFolder m_home;
    QString m_folder;
    std::unique_ptr<KController> m_controller;
    std::unique_ptr<PrefWinController> m_window;
};

void TestPrefWinController::init()
{
    m_folder = m_home.freshDataFolder();
    QVariantList colors;
    for (const QByteArray &color : ColorArchive::initialColors(int(kCategories.size())))
        colors.append(color);
    QVERIFY(
        ListFile::setPreferenceDataLists(m_folder, {{ListFile::CategoryList, variants(kCategories)},
                                                    {ListFile::ColorList, colors},
                                                    {ListFile::PaywayList, variants(kPayways)}}));
    // One entry of each category, named after it; the payway is the same.
    PaymentArray records;
    for (int c = 0; c < kCategories.size(); ++c)
        records.append(entry(2006, 5, c + 1, kCategories.at(c), 100, c, 1));
    writeMonthFile(m_folder, 2006, 5, records);

    m_controller = std::make_unique<KController>();
    m_controller->readListPreference();
    m_window = std::make_unique<PrefWinController>(m_controller.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestPrefWinController::cleanup()
{
    m_window.reset();
    m_controller.reset();
}

ListEditorModel *TestPrefWinController::categories() const
{
    return qobject_cast<ListEditorModel *>(categoryTable()->model());
}

QTableView *TestPrefWinController::categoryTable() const
{
    return child<QTableView>(m_window.get(), u"categoryTable"_s);
}

void TestPrefWinController::pressOk()
{
    QTest::mouseClick(child<QDialogButtonBox>(m_window.get())->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
}

void TestPrefWinController::movesByDraggingRenumberTheEntries()
{
    ListEditorModel *model = categories();
    // Rent dragged above Food, as the table view hands it to its model.
    std::unique_ptr<QMimeData> drag(model->mimeData({model->index(1, 0)}));
    QVERIFY(model->canDropMimeData(drag.get(), Qt::MoveAction, 0, 0, {}));
    QVERIFY(model->dropMimeData(drag.get(), Qt::MoveAction, 0, 0, {}));
    // Food dragged below the last row.
    drag.reset(model->mimeData({model->index(1, 0)}));
    QVERIFY(model->dropMimeData(drag.get(), Qt::MoveAction, -1, -1, {}));
    QCOMPARE(model->editor().names(), (QStringList{u"Rent"_s, u"Fun"_s, u"Food"_s}));
    QCOMPARE(model->color(0), toQColor(*ColorArchive::decode(ColorArchive::initialColors(4)[1])));

    QSignalSpy announced(Notifications::instance(), &Notifications::listPreferenceHasUpDated);
    pressOk();
    QVERIFY(!m_window->isVisible());
    QCOMPARE(announced.size(), 1);
    QCOMPARE(storedNames(m_folder, ListFile::CategoryList),
             (QStringList{u"Rent"_s, u"Fun"_s, u"Food"_s, u"Income"_s}));
    // By details: Food, Fun, Income, Rent.
    QCOMPARE(storedCategories(m_folder, 2006, 5), (QList<int>{2, 1, 3, 0}));
    QCOMPARE(m_controller->categoryList().constFirst(), u"Rent"_s);
}

void TestPrefWinController::dropsOntoARowOrFromAnotherListAreRefused()
{
    ListEditorModel *model = categories();
    std::unique_ptr<QMimeData> drag(model->mimeData({model->index(0, 0)}));
    QVERIFY(!model->canDropMimeData(drag.get(), Qt::MoveAction, -1, -1, model->index(2, 0)));
    QVERIFY(!model->dropMimeData(drag.get(), Qt::MoveAction, -1, -1, model->index(2, 0)));
    auto *payways = qobject_cast<ListEditorModel *>(
        child<QTableView>(m_window.get(), u"paywayTable"_s)->model());
    QVERIFY(!payways->dropMimeData(drag.get(), Qt::MoveAction, 0, 0, {}));
    QCOMPARE(model->editor().names(), kCategories.mid(0, 3));
    QCOMPARE(payways->editor().names(), kPayways);
}

void TestPrefWinController::deletingMergesIntoTheChosenItem()
{
    auto *remove = child<QPushButton>(categoryTable()->parentWidget(), u"deleteItems"_s);
    QVERIFY(!remove->isEnabled());
    categoryTable()->selectRow(0);
    QVERIFY(remove->isEnabled());
    QTest::mouseClick(remove, Qt::LeftButton);
    auto *dialog = child<MergeItemDialog>(m_window.get());
    QVERIFY(dialog->isVisible());
    auto *targets = child<QComboBox>(dialog, u"convertMenuPp"_s);
    QCOMPARE(targets->count(), 2); // every other item: Rent, Fun
    targets->setCurrentIndex(1);
    dialog->accept();
    QCOMPARE(categories()->editor().names(), (QStringList{u"Rent"_s, u"Fun"_s}));

    pressOk();
    QCOMPARE(storedNames(m_folder, ListFile::CategoryList),
             (QStringList{u"Rent"_s, u"Fun"_s, u"Income"_s}));
    QCOMPARE(ListFile::preferenceDataListForKey(m_folder, ListFile::ColorList).size(), 3);
    // Food went to Fun, and income moved down with the list.
    QCOMPARE(storedCategories(m_folder, 2006, 5), (QList<int>{1, 1, 2, 0}));
    QCOMPARE(m_controller->listForYear(2006, 5)->incomeTotal(), 100.f);
}

void TestPrefWinController::duplicateNamesAreRefused()
{
    ListEditorModel *model = categories();
    QSignalSpy refused(model, &ListEditorModel::nameRefused);
    // Its own name too: ending the edit without a change beeps as well.
    for (const QString &name : {u"Rent"_s, u"Income"_s, QString(), u"Food"_s})
        QVERIFY(!model->setData(model->index(0, 0), name));
    QCOMPARE(refused.size(), 4);
    QVERIFY(model->setData(model->index(0, 0), u"Groceries"_s));
    QCOMPARE(model->editor().names().constFirst(), u"Groceries"_s);

    // Two new items keep their names apart only once renamed. The first one's
    // name, left as offered, is refused as well when the second is added
    // (the window lets that pass without a beep).
    auto *add = child<QPushButton>(categoryTable()->parentWidget(), u"addItem"_s);
    QTest::mouseClick(add, Qt::LeftButton);
    QTest::mouseClick(add, Qt::LeftButton);
    QCOMPARE(model->editor().names().mid(3), (QStringList{u"Untitled"_s, u"Untitled"_s}));
    QCOMPARE(refused.size(), 5);
    QVERIFY(!model->setData(model->index(4, 0), u"Groceries"_s));
    QCOMPARE(refused.size(), 6);

    // New categories take palette colours no other one has; Reset Colours
    // gives every category its palette colour by position again.
    QCOMPARE(model->color(3), toQColor(CategoryPalette::colorAt(3)));
    QCOMPARE(model->color(4), toQColor(CategoryPalette::colorAt(4)));
    model->setColor(0, Qt::black);
    QTest::mouseClick(child<QPushButton>(categoryTable()->parentWidget(), u"resetColors"_s),
                      Qt::LeftButton);
    QCOMPARE(model->color(0), toQColor(CategoryPalette::colorAt(0)));
}

void TestPrefWinController::cancelDropsEveryEdit()
{
    const QByteArray listFile = readBytes(ListFile::dictionaryPathString(m_folder));
    categories()->setData(categories()->index(0, 0), u"Groceries"_s);
    categories()->moveItem(2, 0);
    child<QCheckBox>(m_window.get(), u"openWindow1"_s)->setChecked(true);
    QSignalSpy announced(Notifications::instance(), &Notifications::listPreferenceHasUpDated);
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QVERIFY(!m_window->isVisible());
    QCOMPARE(announced.size(), 0);
    QCOMPARE(readBytes(ListFile::dictionaryPathString(m_folder)), listFile);
    QVERIFY(!Settings().openWindow(Settings::StartWindow::List));
    // The next opening shows what is stored.
    QCOMPARE(categories()->editor().names(), kCategories.mid(0, 3));
    QVERIFY(!child<QCheckBox>(m_window.get(), u"openWindow1"_s)->isChecked());
}

void TestPrefWinController::okWritesTheSettingsAndAnnouncesThem()
{
    QSignalSpy lastDate(Notifications::instance(), &Notifications::lastDateHasChanged);
    child<QCheckBox>(m_window.get(), u"openWindow0"_s)->setChecked(false);
    child<QCheckBox>(m_window.get(), u"openWindow3"_s)->setChecked(true);
    auto *closing = child<QCheckBox>(m_window.get(), u"setLastDateCB"_s);
    auto *day = child<QSpinBox>(m_window.get(), u"lastDateTF"_s);
    QVERIFY(!day->isEnabled());
    closing->setChecked(true);
    QVERIFY(day->isEnabled());
    day->setValue(25);
    auto *returnKey = child<QComboBox>(m_window.get(), u"returnInputPp"_s);
    returnKey->setCurrentIndex(returnKey->findData(2));
    pressOk();

    Settings settings;
    QVERIFY(!settings.openWindow(Settings::StartWindow::Input));
    QVERIFY(settings.openWindow(Settings::StartWindow::Balance));
    QVERIFY(settings.changeMonthLastDate());
    QCOMPARE(settings.monthLastDate(), 25);
    QCOMPARE(settings.returnInputDefault(), 2);
    QCOMPARE(lastDate.size(), 1);
    // Income is written last, in the current language and gray, whatever it
    // was before.
    QCOMPARE(storedNames(m_folder, ListFile::CategoryList).constLast(), u"Income"_s);
    QCOMPARE(
        ListFile::preferenceDataListForKey(m_folder, ListFile::ColorList).constLast().toByteArray(),
        ColorArchive::encodeWhite(0.5f));

    // Unchanged closing day: nothing to announce.
    m_window->show();
    QCOMPARE(child<QSpinBox>(m_window.get(), u"lastDateTF"_s)->value(), 25);
    pressOk();
    QCOMPARE(lastDate.size(), 1);
}

void TestPrefWinController::aStoredClosingDayIsKeptUntilChanged_data()
{
    QTest::addColumn<QVariant>("stored"); // none: no key at all
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("afterStepUp");
    QTest::newRow("none") << QVariant() << u"–"_s << 1;
    QTest::newRow("0") << QVariant(0) << u"0"_s << 1;
    QTest::newRow("negative") << QVariant(-3) << QLocale().toString(-3) << 1;
    QTest::newRow("a day") << QVariant(25) << u"25"_s << 26;
}

void TestPrefWinController::aStoredClosingDayIsKeptUntilChanged()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, shown);
    QFETCH(int, afterStepUp);
    QSettings raw(u"Penwick"_s, u"Penwick"_s);
    raw.setValue(SettingsKeys::ChangeMonthLastDate, true);
    if (stored.isValid())
        raw.setValue(SettingsKeys::MonthLastDate, stored);
    else
        raw.remove(SettingsKeys::MonthLastDate);
    m_window = std::make_unique<PrefWinController>(m_controller.get());
    m_window->show();
    auto *day = child<QSpinBox>(m_window.get(), u"lastDateTF"_s);
    QCOMPARE(day->text(), shown);

    QSignalSpy lastDate(Notifications::instance(), &Notifications::lastDateHasChanged);
    pressOk();
    QCOMPARE(raw.contains(SettingsKeys::MonthLastDate), stored.isValid());
    QCOMPARE(raw.value(SettingsKeys::MonthLastDate).toInt(), stored.toInt());
    QCOMPARE(lastDate.size(), 0);

    // A day the user picks replaces it.
    m_window->show();
    day->stepUp();
    pressOk();
    QCOMPARE(raw.value(SettingsKeys::MonthLastDate).toInt(), afterStepUp);
    QCOMPARE(lastDate.size(), 1);
}

void TestPrefWinController::aRefusedConversionKeepsTheWindowOpen()
{
    writeBytes(DataFolder::filePathForYear(m_folder, 2007, 1), "not a month");
    const QByteArray may = readBytes(DataFolder::filePathForYear(m_folder, 2006, 5));
    categories()->moveItem(0, 3);
    pressOk();
    QVERIFY(m_window->isVisible());
    auto *box = child<QMessageBox>(m_window.get());
    QVERIFY(box->isVisible());
    QVERIFY(box->informativeText().contains(u"1/2007"_s));
    QCOMPARE(readBytes(DataFolder::filePathForYear(m_folder, 2006, 5)), may);
    QCOMPARE(storedNames(m_folder, ListFile::CategoryList), kCategories);
    QCOMPARE(categories()->editor().names(), (QStringList{u"Rent"_s, u"Fun"_s, u"Food"_s}));
}

void TestPrefWinController::missingColoursAreWrittenBlack()
{
    const QByteArray red = ColorArchive::initialColors(4).at(3);
    QVERIFY(ListFile::setPreferenceDataListForKey(m_folder, {red}, ListFile::ColorList));
    m_window = std::make_unique<PrefWinController>(m_controller.get());
    m_window->show();
    pressOk();
    const QVariantList colors = ListFile::preferenceDataListForKey(m_folder, ListFile::ColorList);
    QCOMPARE(colors.size(), kCategories.size());
    QCOMPARE(colors.at(0).toByteArray(), red);
    QCOMPARE(ColorArchive::decode(colors.at(2).toByteArray()), RgbaColor());
}

void TestPrefWinController::changingTheDataFolderSavesFirst()
{
    const auto may = m_controller->listForYear(2006, 5);
    may->dataListArray().constFirst()->setDetails(u"Changed, not saved yet"_s);
    const QString other = m_home.freshDataFolder();
    Settings().setDataPath(m_folder); // the window chooses; the test only made the folder

    QSignalSpy changed(m_window.get(), &PrefWinController::dataFolderChanged);
    QSignalSpy announced(Notifications::instance(), &Notifications::listPreferenceHasUpDated);
    QVERIFY(m_window->changeDataFolder(other));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toString(), other);
    QCOMPARE(announced.size(), 1);
    QCOMPARE(Settings().dataPath(), other);
    QCOMPARE(m_controller->dataFolderPath(), other);
    QCOMPARE(child<QLineEdit>(m_window.get(), u"dataPathTF"_s)->text(),
             QDir::toNativeSeparators(other));
    auto saved =
        MonthFile::decode(readBytes(DataFolder::filePathForYear(m_folder, 2006, 5)), nullptr);
    QVERIFY(detailsOf(saved->dataListArray()).contains(u"Changed, not saved yet"_s));
    // The new folder's own lists: the initial ones.
    QVERIFY(QFile::exists(ListFile::dictionaryPathString(other)));
    QCOMPARE(categories()->editor().names(),
             storedNames(other, ListFile::CategoryList).mid(0, categories()->rowCount()));

    // The folder in use again: nothing happens.
    QVERIFY(!m_window->changeDataFolder(other + u"/"_s));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(announced.size(), 1);
}

void TestPrefWinController::closingTheFirstSettingAsksForTheInputWindow()
{
    QSignalSpy input(m_window.get(), &PrefWinController::showInputWindowRequested);
    m_window->setFirstSetting(true);
    QVERIFY(child<QWidget>(m_window.get(), u"welcome"_s)->isVisible());
    m_window->close();
    QCOMPARE(input.size(), 1);
    // Only the first time.
    m_window->show();
    QVERIFY(!child<QWidget>(m_window.get(), u"welcome"_s)->isVisible());
    pressOk();
    QCOMPARE(input.size(), 1);
}

void TestPrefWinController::aConfirmedPasswordIsStoredAtOnce_data()
{
    QTest::addColumn<QString>("oldPassword");
    QTest::addColumn<QString>("newPassword");
    QTest::addColumn<int>("closedBy");
    QTest::newRow("set, then Cancel") << QString() << u"abc"_s << 0;
    QTest::newRow("set, then Escape") << QString() << u"abc"_s << 1;
    QTest::newRow("removed, then closed") << u"abc"_s << QString() << 2;
}

void TestPrefWinController::aConfirmedPasswordIsStoredAtOnce()
{
    QFETCH(QString, oldPassword);
    QFETCH(QString, newPassword);
    QFETCH(int, closedBy);
    QVERIFY(PasswordLock::savePasswordToDefault(oldPassword));
    m_window = std::make_unique<PrefWinController>(m_controller.get());
    m_window->show();

    QTest::mouseClick(child<QPushButton>(m_window.get(), u"setPassword"_s), Qt::LeftButton);
    auto *panel = child<SetPassPanelController>(m_window.get());
    child<QLineEdit>(panel, u"oldPassTF"_s)->setText(oldPassword);
    child<QLineEdit>(panel, u"newPassTF"_s)->setText(newPassword);
    child<QLineEdit>(panel, u"newPassTF2"_s)->setText(newPassword);
    panel->accept();
    QVERIFY(PasswordLock::matches(newPassword, Settings().passwordHash()));
    QCOMPARE(child<QLabel>(m_window.get(), u"passwordState"_s)->text(),
             newPassword.isEmpty() ? u"No password is asked for at start."_s
                                   : u"A password is asked for at start."_s);

    if (closedBy == 0)
        child<QDialogButtonBox>(m_window.get())->button(QDialogButtonBox::Cancel)->click();
    else if (closedBy == 1)
        QTest::keyClick(m_window.get(), Qt::Key_Escape);
    else
        m_window->close();
    QVERIFY(!m_window->isVisible());
    QVERIFY(PasswordLock::matches(newPassword, Settings().passwordHash()));
}

QTEST_MAIN(TestPrefWinController)
#include "tst_prefwincontroller.moc"
