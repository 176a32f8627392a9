#include "HomeBankImporter.h"

#include <QHash>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

// The day number of 1 January of the year 1 less one, as a Julian day.
constexpr qint64 DayZero = 1721425;
// The category flag that marks income.
constexpr int IncomeFlag = 1 << 1;

struct Category
{
    QString name;
    int parent = 0;
    bool income = false;
};

// HomeBank's payment modes by number, in its own order.
QString paymodeName(int mode)
{
    static const QStringList names{{}, u"Credit card"_s, u"Cheque"_s, u"Cash"_s, u"Transfer"_s,
                                   u"Internal transfer"_s, u"Debit card"_s, u"Standing order"_s,
                                   u"Electronic payment"_s, u"Deposit"_s, u"FI fee"_s,
                                   u"Direct debit"_s};
    return names.value(mode);
}

// An operation's attributes, taken in one pass: looking each up by name
// is what a file of a hundred thousand operations spends its time on.
struct Operation
{
    int line = 0;
    qint64 day = 0;
    double amount = 0;
    bool amountOk = false;
    QString amountText;
    int paymode = 0;
    int payee = 0;
    int category = 0;
    QString memo;
    QString wording;
    QString info;
    bool split = false;
    QString splitCategories;
    QString splitAmounts;
    QString splitMemos;
};

Operation operationOf(const QXmlStreamAttributes &attributes, int line)
{
    Operation operation;
    operation.line = line;
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QStringView name = attribute.name();
        const QStringView value = attribute.value();
        if (name.isEmpty())
            continue;
        // By first letter, so that each name is compared once.
        switch (name.front().unicode()) {
        case 'a':
            if (name == u"amount") {
                operation.amount = value.toDouble(&operation.amountOk);
                if (!operation.amountOk)
                    operation.amountText = value.toString(); // for the message
            }
            break;
        case 'c':
            if (name == u"category")
                operation.category = value.toInt();
            break;
        case 'd':
            if (name == u"date")
                operation.day = value.toLongLong();
            break;
        case 'i':
            if (name == u"info")
                operation.info = value.toString();
            break;
        case 'm':
            if (name == u"memo")
                operation.memo = value.toString();
            break;
        case 'p':
            if (name == u"paymode")
                operation.paymode = value.toInt();
            else if (name == u"payee")
                operation.payee = value.toInt();
            break;
        case 's':
            if (name == u"scat")
                operation.splitCategories = value.toString();
            else if (name == u"samt")
                operation.splitAmounts = value.toString();
            else if (name == u"smem")
                operation.splitMemos = value.toString();
            break;
        case 'w':
            if (name == u"wording") // what older files call the memo
                operation.wording = value.toString();
            break;
        default:
            break;
        }
    }
    if (operation.memo.isEmpty())
        operation.memo = operation.wording;
    operation.split = attributes.hasAttribute("samt"_L1);
    return operation;
}

} // namespace

Q_DECLARE_TYPEINFO(Operation, Q_RELOCATABLE_TYPE);

namespace {

} // namespace

ImportResult HomeBankImporter::parse(const QByteArray &bytes) const
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
    QHash<int, Category> categories;
    QHash<int, QString> payees;
    QList<Operation> operations;
    while (xml.readNextStartElement()) {
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == "ope"_L1) {
            operations.append(operationOf(attributes, int(xml.lineNumber())));
        } else if (xml.name() == "cat"_L1) {
            categories.insert(attributes.value("key"_L1).toInt(),
                              {attributes.value("name"_L1).toString(), attributes.value("parent"_L1).toInt(),
                               (attributes.value("flags"_L1).toInt() & IncomeFlag) != 0});
        } else if (xml.name() == "pay"_L1) {
            payees.insert(attributes.value("key"_L1).toInt(), attributes.value("name"_L1).toString());
        }
        xml.skipCurrentElement();
    }
    if (xml.hasError()) {
        result.error = Importer::tr("The HomeBank file is damaged at line %1: %2")
                           .arg(xml.lineNumber())
                           .arg(xml.errorString());
        return result;
    }

    // Each category's full name and income flag, once.
    QHash<int, std::pair<QString, bool>> categoryNames;
    for (auto c = categories.cbegin(); c != categories.cend(); ++c) {
        const auto parent = categories.constFind(c->parent);
        if (c->parent == 0 || parent == categories.cend())
            categoryNames.insert(c.key(), {c->name, c->income});
        else
            categoryNames.insert(c.key(), {parent->name + u':' + c->name, c->income || parent->income});
    }
    result.entries.reserve(operations.size());
    for (const Operation &operation : operations) {
        // Beyond the year 9999 is no date of a household's.
        const QDate date = operation.day > 0 && operation.day < 3652060
            ? QDate::fromJulianDay(operation.day + DayZero) : QDate();
        if (!date.isValid()) {
            result.problems.append({operation.line, Importer::tr("The date is missing.")});
            continue;
        }
        CandidateEntry entry;
        entry.date = date;
        entry.line = operation.line;
        entry.payway = paymodeName(operation.paymode);
        const QString payee = payees.value(operation.payee);

        const auto add = [&](double amount, bool amountOk, const QString &amountText, int category,
                             const QString &memo) {
            entry.amount = amount;
            if (!amountOk) {
                result.problems.append({operation.line,
                                        amountText.isEmpty()
                                            ? Importer::tr("The amount is missing.")
                                            : Importer::tr("'%1' is not an amount.").arg(amountText)});
                return;
            }
            std::tie(entry.category, entry.incomeCategory) = categoryNames.value(category);
            entry.details = joinDetails({payee, memo.isEmpty() ? operation.memo : memo, operation.info});
            result.entries.append(entry);
        };
        if (!operation.split) {
            add(operation.amount, operation.amountOk, operation.amountText, operation.category,
                operation.memo);
            continue;
        }
        const QStringList splitCategories = operation.splitCategories.split(u"||"_s);
        const QStringList splitAmounts = operation.splitAmounts.split(u"||"_s);
        const QStringList splitMemos = operation.splitMemos.split(u"||"_s);
        for (qsizetype i = 0; i < splitAmounts.size(); ++i) {
            bool amountOk = false;
            const double amount = splitAmounts.at(i).toDouble(&amountOk);
            add(amount, amountOk, splitAmounts.at(i), splitCategories.value(i).toInt(), splitMemos.value(i));
        }
    }
    return result;
}
