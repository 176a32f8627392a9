#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "exchange/ImportDialog.h"
#include "exchange/ImportMapping.h"
#include "ledger/KController.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QTableWidget>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
const QStringList categories{u"Food"_s, u"Home"_s, u"Travel"_s, u"Income"_s};
const QStringList payways{u"Cash"_s, u"Card"_s};

ImportResult fileWith(const QString &category, double amount, const QString &payway)
{
    CandidateEntry entry;
    entry.date = QDate(2024, 1, 2);
    entry.amount = amount;
    entry.category = category;
    entry.payway = payway;
    ImportResult imported;
    imported.entries = {entry};
    return imported;
}
} // namespace

// Where the categories and payment modes of a file that match none of ours
// go: a choice per source name, from the command line's SOURCE=OURS or the
// preview's table, remembered by name for the next import.
class TestImportChoices : public QObject
{
    Q_OBJECT

private slots:
    void choices_data()
    {
        QTest::addColumn<QStringList>("choices");
        QTest::addColumn<QString>("source");
        QTest::addColumn<double>("amount");
        QTest::addColumn<QString>("category");
        QTest::addColumn<QString>("error");

        QTest::newRow("ours by name") << QStringList() << u"ｆｏｏｄ"_s << -1.0 << u"Food"_s << QString();
        QTest::newRow("unmatched go with the others") << QStringList() << u"Pets"_s << -1.0 << u"Home"_s << QString();
        QTest::newRow("a choice, case and width aside")
            << QStringList{u"ＰＥＴＳ = travel"_s} << u"pets"_s << -1.0 << u"Travel"_s << QString();
        QTest::newRow("a choice for the child of a nested name")
            << QStringList{u"Fuel=Travel"_s} << u"Car:Fuel"_s << -1.0 << u"Travel"_s << QString();
        QTest::newRow("income stays income")
            << QStringList{u"Wage=Food"_s} << u"Wage"_s << 5.0 << u"Income"_s << QString();
        QTest::newRow("no equals sign") << QStringList{u"Pets"_s} << u"Pets"_s << -1.0 << QString()
                                        << u"'Pets' is not of the form SOURCE=CATEGORY."_s;
        QTest::newRow("no such category of ours") << QStringList{u"Pets=Boats"_s} << u"Pets"_s << -1.0 << QString()
                                                  << u"There is no category 'Boats'."_s;
    }

    void choices()
    {
        QFETCH(QStringList, choices);
        QFETCH(QString, source);
        QFETCH(double, amount);
        QFETCH(QString, category);
        QFETCH(QString, error);

        ImportMapping mapping(categories, payways);
        mapping.setUnmatchedCategory(1);
        QString why;
        QCOMPARE(mapping.chooseCategories(choices, &why), error.isEmpty());
        QCOMPARE(why, error);
        if (!error.isEmpty())
            return;
        const ImportMapping::Result result = mapping.map(fileWith(source, amount, {}));
        QCOMPARE(result.categories.value(result.entries.constFirst().category), category);
    }

    void choicesAreRememberedByName()
    {
        const ImportResult imported = fileWith(u"Pets"_s, -1, u"Cheque"_s);
        ImportMapping chosen(categories, payways);
        const ImportMapping::Unmatched names = chosen.unmatched(imported);
        QCOMPARE(names.categories, QStringList{u"Pets"_s});
        QCOMPARE(names.payways, QStringList{u"Cheque"_s});
        chosen.setCategoryFor(u"Pets"_s, 2);
        chosen.setPaywayFor(u"Cheque"_s, 1);
        chosen.rememberChoices(names);

        // By name: the lists may have moved on meanwhile.
        ImportMapping later({u"Travel"_s, u"Food"_s, u"Income"_s}, {u"Card"_s, u"Cash"_s});
        later.recallChoices();
        QCOMPARE(later.categoryChosenFor(u"PETS"_s), 0);
        QCOMPARE(later.paywayChosenFor(u"cheque"_s), 0);
        const MappedEntry entry = later.map(imported).entries.constFirst();
        QVERIFY(entry.matched);
        QCOMPARE(entry.category, 0);
        QCOMPARE(entry.payway, 0);

        // Left with the others, a name is forgotten.
        later.setCategoryFor(u"pets"_s, -1);
        later.rememberChoices(names);
        ImportMapping again(categories, payways);
        again.recallChoices();
        QCOMPARE(again.categoryChosenFor(u"Pets"_s), std::nullopt);
        QCOMPARE(again.paywayChosenFor(u"Cheque"_s), 1);
    }

    void previewOffersAChoicePerName()
    {
        m_home.freshDataFolder();
        KController ledger;
        ledger.readListPreference();
        const QString path = QDir(m_home.home()).filePath(u"pets.qif"_s);
        writeBytes(path, "!Type:Bank\nD01/15/2024\nT-12.00\nPPet shop\nLPets\n^\nD01/16/2024\nT-3.00\nLPets\n^\n");
        const QStringList ours = ledger.categoryList();

        {
            ImportDialog dialog(&ledger, path);
            auto *names = dialog.findChild<QTableWidget *>(u"unmatchedNames"_s);
            QVERIFY(names);
            QCOMPARE(names->rowCount(), 1);
            QCOMPARE(names->item(0, 1)->text(), u"Pets"_s);
            auto *box = qobject_cast<QComboBox *>(names->cellWidget(0, 2));
            QCOMPARE(box->currentIndex(), 0);
            QVERIFY(box->currentText().contains(ours.constFirst()));
            box->setCurrentIndex(box->findData(2));
            emit box->activated(box->currentIndex());
            auto *preview = dialog.findChild<QTableView *>(u"previewTable"_s);
            for (int row = 0; row < 2; ++row)
                QCOMPARE(preview->model()->index(row, 3).data().toString(), ours.at(2));
            QVERIFY(dialog.book());
        }
        ImportDialog again(&ledger, path);
        auto *box = qobject_cast<QComboBox *>(
            again.findChild<QTableWidget *>(u"unmatchedNames"_s)->cellWidget(0, 2));
        QCOMPARE(box->currentData().toInt(), 2);
    }

private:
    TestDataFolder m_home;
};

QTEST_MAIN(TestImportChoices)
#include "tst_importchoices.moc"
