#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "model/Notifications.h"
#include "password/SetPassPanelController.h"
#include "prefs/ListEditorModel.h"
#include "prefs/PrefWinController.h"
#include "security/PasswordLock.h"
#include "settings/Settings.h"
#include "storage/ColorArchive.h"
#include "storage/ListFile.h"
#include "storage/MonthFile.h"
#include "widgets/RgbaQColor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
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
    void init()
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

    void cleanup()
    {
        m_window.reset();
        m_controller.reset();
    }

    void movesByDraggingRenumberTheEntries()
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

    void okWritesTheSettingsAndAnnouncesThem()
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
    }

    void aRefusedConversionKeepsTheWindowOpen()
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

    void changingTheDataFolderSavesFirst()
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
        auto saved =
            MonthFile::decode(readBytes(DataFolder::filePathForYear(m_folder, 2006, 5)), nullptr);
        QVERIFY(detailsOf(saved->dataListArray()).contains(u"Changed, not saved yet"_s));
    }

    void aConfirmedPasswordIsStoredAtOnce()
    {
        // Set in the panel, then the window is cancelled: the password stays.
        const QString newPassword = u"abc"_s;
        QTest::mouseClick(child<QPushButton>(m_window.get(), u"setPassword"_s), Qt::LeftButton);
        auto *panel = child<SetPassPanelController>(m_window.get());
        child<QLineEdit>(panel, u"newPassTF"_s)->setText(newPassword);
        child<QLineEdit>(panel, u"newPassTF2"_s)->setText(newPassword);
        panel->accept();
        QVERIFY(PasswordLock::matches(newPassword, Settings().passwordHash()));
        QCOMPARE(child<QLabel>(m_window.get(), u"passwordState"_s)->text(),
                 u"A password is asked for at start."_s);
        child<QDialogButtonBox>(m_window.get())->button(QDialogButtonBox::Cancel)->click();
        QVERIFY(!m_window->isVisible());
        QVERIFY(PasswordLock::matches(newPassword, Settings().passwordHash()));
    }

private:
    ListEditorModel *categories() const
    {
        return qobject_cast<ListEditorModel *>(categoryTable()->model());
    }

    QTableView *categoryTable() const
    {
        return child<QTableView>(m_window.get(), u"categoryTable"_s);
    }

    void pressOk()
    {
        QTest::mouseClick(child<QDialogButtonBox>(m_window.get())->button(QDialogButtonBox::Ok),
                          Qt::LeftButton);
    }

    TestDataFolder m_home;
    QString m_folder;
    std::unique_ptr<KController> m_controller;
    std::unique_ptr<PrefWinController> m_window;
};

QTEST_MAIN(TestPrefWinController)
#include "tst_prefwincontroller.moc"
