#include "TestHelpers.h"

#include "prefs/ListEditor.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(ConversionMap)

namespace {

// Applies edits written as "move <from> <dropRow>", "merge <row> <target>",
// "rename <row> <name>" and "add <name>", the way a user makes them one after
// another in the window.
void edit(ListEditor &editor, const QStringList &edits)
{
    for (const QString &line : edits) {
        const QStringList word = line.split(u' ');
        if (word[0] == "move"_L1)
            QVERIFY2(editor.moveItem(word[1].toInt(), word[2].toInt()), qPrintable(line));
        else if (word[0] == "merge"_L1)
            QVERIFY2(editor.mergeItem(word[1].toInt(), word[2].toInt()), qPrintable(line));
        else if (word[0] == "rename"_L1)
            QVERIFY2(editor.renameItem(word[1].toInt(), word[2]), qPrintable(line));
        else if (word[0] == "add"_L1)
            editor.addItem(word[1]);
        else
            QFAIL(qPrintable(line));
    }
}

} // namespace

class TestListEditor : public QObject
{
    Q_OBJECT

private slots:
    void conversionMaps_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<bool>("incomeLast");
        QTest::addColumn<QStringList>("result");
        QTest::addColumn<ConversionMap>("map");

        const auto row = [](const char *name, const char *names, QStringList edits, bool incomeLast,
                            const char *result, const ConversionMap &map) {
            QTest::newRow(name) << words(QString::fromLatin1(names)) << edits << incomeLast
                                << words(QString::fromLatin1(result)) << map;
        };
        row("no edit", "A B C D E F", {}, true, "A B C D E F", {});
        row("move 3 to 2 keeps 5", "A B C D E F", {u"move 3 2"_s}, true, "A B D C E F", {{3, 2}, {2, 3}});
        row("move first below the last", "A B C D E F", {u"move 0 6"_s}, true, "B C D E F A",
            {{0, 5}, {1, 0}, {2, 1}, {3, 2}, {4, 3}, {5, 4}});
        row("merge then move, income follows", "A B C", {u"merge 1 2"_s, u"move 0 2"_s}, true, "C A",
            {{0, 1}, {1, 0}, {2, 0}, {3, 2}});
        row("delete one category, income one down", "A B C", {u"merge 0 1"_s}, true, "B C",
            {{1, 0}, {2, 1}, {3, 2}});
        row("added item, income one up", "A B", {u"add Untitled"_s}, true, "A B Untitled", {{2, 3}});
        row("merge into a renamed item", "A B C", {u"rename 1 X"_s, u"merge 0 1"_s}, true, "X C",
            {{1, 0}, {2, 1}, {3, 2}});
        row("rename the item another was merged into", "A B C", {u"merge 1 0"_s, u"rename 0 X"_s}, true,
            "X C", {{1, 0}, {2, 1}, {3, 2}});
        row("merge into a new item", "A B", {u"add Untitled"_s, u"merge 0 2"_s}, true, "B Untitled",
            {{0, 1}, {1, 0}});
        row("two items of one name keep their own entries", "U U C", {u"move 2 0"_s}, true, "C U U",
            {{0, 1}, {1, 2}, {2, 0}});
        row("payways have no income", "P Q R", {u"merge 1 2"_s, u"add S"_s}, false, "P R S", {{2, 1}});
    }

    void conversionMaps()
    {
        QFETCH(QStringList, names);
        QFETCH(QStringList, edits);
        QFETCH(bool, incomeLast);
        QFETCH(QStringList, result);
        QFETCH(ConversionMap, map);

        ListEditor editor(names);
        edit(editor, edits);
        QCOMPARE(editor.names(), result);
        QCOMPARE(incomeLast ? editor.conversionMapWithIncomeLast() : editor.conversionMap(), map);
        QCOMPARE(editor.isModified(), !edits.isEmpty());
    }

    void refusedEditsChangeNothing()
    {
        ListEditor editor({u"Food"_s, u"Rent"_s});
        editor.setReservedNames({u"Income"_s});
        QVERIFY(!editor.renameItem(0, u"Rent"_s));   // another item's name
        QVERIFY(!editor.renameItem(0, u"Food"_s));   // its own name
        QVERIFY(!editor.renameItem(0, u"Income"_s)); // the income category's
        QVERIFY(!editor.renameItem(0, u"  "_s));
        QVERIFY(!editor.renameItem(2, u"Car"_s));
        QVERIFY(!editor.mergeItem(1, 1));
        QVERIFY(!editor.mergeItem(0, 2));
        QVERIFY(!editor.moveItem(1, 1)); // dropped back into its own gap
        QVERIFY(!editor.moveItem(1, 2));
        QVERIFY(!editor.moveItem(0, 3));
        QCOMPARE(editor.names(), (QStringList{u"Food"_s, u"Rent"_s}));
        QVERIFY(!editor.isModified());
        QVERIFY(editor.conversionMapWithIncomeLast().isEmpty());
        QVERIFY(editor.renameItem(0, u"Groceries"_s));
    }

    void coloursTravelWithTheirItems()
    {
        const RgbaColor red{1, 0, 0}, green{0, 1, 0}, blue{0, 0, 1}, black{};
        ListEditor editor({u"A"_s, u"B"_s, u"C"_s}, {red, green, blue});
        editor.addItem(u"Untitled"_s, black);
        editor.moveItem(2, 0);
        QVERIFY(editor.mergeItem(1, 3)); // A into Untitled
        editor.setColor(0, RgbaColor::gray());
        QCOMPARE(editor.names(), (QStringList{u"C"_s, u"B"_s, u"Untitled"_s}));
        QCOMPARE(editor.colors(), (QList<RgbaColor>{RgbaColor::gray(), green, black}));
        QVERIFY(editor.isModified());
    }

    void dropPositions_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("dropRow");
        QTest::addColumn<int>("to");
        QTest::newRow("up") << 3 << 1 << 1;
        QTest::newRow("down") << 1 << 4 << 3;
        QTest::newRow("own upper gap") << 2 << 2 << 2;
        QTest::newRow("own lower gap") << 2 << 3 << 2;
        QTest::newRow("to the end") << 0 << 5 << 4;
    }

    void dropPositions()
    {
        QFETCH(int, from);
        QFETCH(int, dropRow);
        QFETCH(int, to);
        QCOMPARE(ListEditor::moveDestination(from, dropRow), to);
    }
};

QTEST_GUILESS_MAIN(TestListEditor)
#include "tst_listeditor.moc"
