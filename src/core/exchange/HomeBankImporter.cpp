#include "HomeBankImporter.h"

#include "AmountReading.h"

#include <QHash>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

// The day number of 1 January of the year 1 less one, as a Julian day.
constexpr qint64 DayZero = 1721425;
// Beyond the year 9999 is no date of a household's.
constexpr qint64 DayLimit = 3652060;
// The category flag that marks income.
constexpr int IncomeFlag = 1 << 1;

// HomeBank's payment modes by number, in its own order.
const QStringList &paymodeNames()
{
    static const QStringList names{{}, u"Credit card"_s, u"Cheque"_s, u"Cash"_s, u"Transfer"_s,
                                   u"Internal transfer"_s, u"Debit card"_s, u"Standing order"_s,
                                   u"Electronic payment"_s, u"Deposit"_s, u"FI fee"_s,
                                   u"Direct debit"_s};
    return names;
}

// The categories and payees the operations refer to by number.
struct Lists
{
    struct Category
    {
        QString name;
        int parent = 0;
        bool income = false;
    };
    QHash<int, Category> categories;
    QHash<int, QString> payees;
    // Each category's "Parent:Child" name and income flag, made once.
    QHash<int, std::pair<QString, bool>> categoryNames;

    void add(QStringView element, const QXmlStreamAttributes &attributes)
    {
        const int key = attributes.value("key"_L1).toInt();
        if (element == "cat"_L1) {
            categories.insert(key, {attributes.value("name"_L1).toString(), attributes.value("parent"_L1).toInt(),
                                    (attributes.value("flags"_L1).toInt() & IncomeFlag) != 0});
        } else {
            payees.insert(key, attributes.value("name"_L1).toString());
        }
    }

    void nameCategories()
    {
        for (auto c = categories.cbegin(); c != categories.cend(); ++c) {
            const auto parent = categories.constFind(c->parent);
            if (c->parent == 0 || parent == categories.cend())
                categoryNames.insert(c.key(), {c->name, c->income});
            else
                categoryNames.insert(c.key(), {parent->name + u':' + c->name, c->income || parent->income});
        }
    }
};

// The entries of one operation (one per split), or why it cannot be read.
// Its attributes are taken in one pass, by view: a file holds a hundred
// thousand operations, and looking each attribute up by name, or copying
// it, is what reading them would spend its time on.
void addOperation(const QXmlStreamAttributes &attributes, int line, const Lists &lists, ImportResult &result)
{
    qint64 day = 0;
    int paymode = 0;
    int payeeKey = 0;
    int category = 0;
    bool split = false;
    QStringView amount, memo, wording, info, splitCategories, splitAmounts, splitMemos;
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QStringView name = attribute.name();
        const QStringView value = attribute.value();
        if (name.isEmpty())
            continue;
        // By first letter, so that each name is compared once.
        switch (name.front().unicode()) {
        case 'a':
            if (name == u"amount")
                amount = value;
            break;
        case 'c':
            if (name == u"category")
                category = value.toInt();
            break;
        case 'd':
            if (name == u"date")
                day = value.toLongLong();
            break;
        case 'i':
            if (name == u"info")
                info = value;
            break;
        case 'm':
            if (name == u"memo")
                memo = value;
            break;
        case 'p':
            if (name == u"paymode")
                paymode = value.toInt();
            else if (name == u"payee")
                payeeKey = value.toInt();
            break;
        case 's':
            if (name == u"scat") {
                splitCategories = value;
            } else if (name == u"samt") {
                splitAmounts = value;
                split = true;
            } else if (name == u"smem") {
                splitMemos = value;
            }
            break;
        case 'w':
            if (name == u"wording") // what older files call the memo
                wording = value;
            break;
        default:
            break;
        }
    }
    if (day <= 0 || day >= DayLimit) {
        result.problems.append({line, Importer::tr("The date is missing.")});
        return;
    }
    if (memo.isEmpty())
        memo = wording;
    CandidateEntry entry;
    entry.date = QDate::fromJulianDay(day + DayZero);
    entry.line = line;
    entry.payway = paymodeNames().value(paymode);
    const QString payee = lists.payees.value(payeeKey);
    const auto add = [&](QStringView amountText, int category, QStringView memo) {
        const auto value = AmountReading::readPlain(amountText);
        if (!value) {
            result.problems.append({line, amountText.isEmpty()
                                              ? Importer::tr("The amount is missing.")
                                              : Importer::tr("'%1' is not an amount.").arg(amountText)});
            return;
        }
        entry.amount = *value;
        std::tie(entry.category, entry.incomeCategory) = lists.categoryNames.value(category);
        entry.details = Importer::joinDetails({payee, memo, info});
        result.entries.append(entry);
    };
    if (!split) {
        add(amount, category, memo);
        return;
    }
    const QList<QStringView> amounts = splitAmounts.split(u"||");
    const QList<QStringView> categories = splitCategories.split(u"||");
    const QList<QStringView> memos = splitMemos.split(u"||");
    for (qsizetype i = 0; i < amounts.size(); ++i) {
        const QStringView splitMemo = memos.value(i);
        add(amounts.at(i), categories.value(i).toInt(), splitMemo.isEmpty() ? memo : splitMemo);
    }
}

// One reading of the file. Files as HomeBank writes them list categories
// and payees before the operations, and one reading is enough; where one
// comes after an operation, it sets `late`, and the operations are read
// again with every list known.
ImportResult readFile(const QByteArray &bytes, Lists &lists, bool listsKnown, bool &late)
{
    ImportResult result;
    QXmlStreamReader xml(bytes);
    // The file uses no namespaces; resolving them for every attribute of a
    // hundred thousand operations is most of what the reader would spend.
    xml.setNamespaceProcessing(false);
    if (!xml.readNextStartElement() || xml.name() != "homebank"_L1) {
        result.error = Importer::tr("This is not a HomeBank file.");
        return result;
    }
    bool named = listsKnown;
    while (xml.readNextStartElement()) {
        const QStringView element = xml.name();
        if (element == "ope"_L1 && !late) {
            if (!named) {
                lists.nameCategories();
                named = true;
            }
            addOperation(xml.attributes(), int(xml.lineNumber()), lists, result);
        } else if (!listsKnown && (element == "cat"_L1 || element == "pay"_L1)) {
            lists.add(element, xml.attributes());
            late = named;
        }
        xml.skipCurrentElement();
    }
    if (xml.hasError()) {
        result.error = Importer::tr("The HomeBank file is damaged at line %1: %2")
                           .arg(xml.lineNumber())
                           .arg(xml.errorString());
    }
    return result;
}

} // namespace

ImportResult HomeBankImporter::parse(const QByteArray &bytes) const
{
    Lists lists;
    bool late = false;
    ImportResult result = readFile(bytes, lists, false, late);
    if (!late || result.failed())
        return result;
    lists.nameCategories();
    bool again = false;
    return readFile(bytes, lists, true, again);
}
