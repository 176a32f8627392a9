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

struct Operation
{
    int line = 0;
    QXmlStreamAttributes attributes;
};

} // namespace

ImportResult HomeBankImporter::parse(const QByteArray &bytes) const
{
    ImportResult result;
    QXmlStreamReader xml(bytes);
    if (!xml.readNextStartElement() || xml.name() != "homebank"_L1) {
        result.error = Importer::tr("This is not a HomeBank file.");
        return result;
    }
    QHash<int, Category> categories;
    QHash<int, QString> payees;
    QList<Operation> operations;
    while (xml.readNextStartElement()) {
        const QXmlStreamAttributes attributes = xml.attributes();
        const int key = attributes.value("key"_L1).toInt();
        if (xml.name() == "cat"_L1) {
            categories.insert(key, {attributes.value("name"_L1).toString(),
                                    attributes.value("parent"_L1).toInt(),
                                    (attributes.value("flags"_L1).toInt() & IncomeFlag) != 0});
        } else if (xml.name() == "pay"_L1) {
            payees.insert(key, attributes.value("name"_L1).toString());
        } else if (xml.name() == "ope"_L1) {
            operations.append({int(xml.lineNumber()), attributes});
        }
        xml.skipCurrentElement();
    }
    if (xml.hasError()) {
        result.error = Importer::tr("The HomeBank file is damaged at line %1: %2")
                           .arg(xml.lineNumber())
                           .arg(xml.errorString());
        return result;
    }

    const auto categoryOf = [&](int key) -> std::pair<QString, bool> {
        const auto found = categories.constFind(key);
        if (found == categories.cend())
            return {};
        const auto parent = categories.constFind(found->parent);
        if (found->parent == 0 || parent == categories.cend())
            return {found->name, found->income};
        return {parent->name + u':' + found->name, found->income || parent->income};
    };
    for (const Operation &operation : operations) {
        const auto value = [&](const char *name) {
            return operation.attributes.value(QLatin1StringView(name)).toString();
        };
        bool dayOk = false;
        const qint64 day = value("date").toLongLong(&dayOk);
        // Beyond the year 9999 is no date of a household's.
        const QDate date = dayOk && day > 0 && day < 3652060 ? QDate::fromJulianDay(day + DayZero) : QDate();
        if (!date.isValid()) {
            result.problems.append({operation.line, Importer::tr("The date is missing.")});
            continue;
        }
        // Older files call the memo "wording".
        const QString memo = operation.attributes.hasAttribute("memo"_L1) ? value("memo") : value("wording");
        CandidateEntry entry;
        entry.date = date;
        entry.line = operation.line;
        entry.payway = paymodeName(value("paymode").toInt());
        const QString payee = payees.value(value("payee").toInt());
        const QString info = value("info");

        QStringList splitCategories{value("category")};
        QStringList splitAmounts{value("amount")};
        QStringList splitMemos{memo};
        if (operation.attributes.hasAttribute("samt"_L1)) {
            splitCategories = value("scat").split(u"||"_s);
            splitAmounts = value("samt").split(u"||"_s);
            splitMemos = value("smem").split(u"||"_s);
        }
        for (qsizetype i = 0; i < splitAmounts.size(); ++i) {
            bool amountOk = false;
            entry.amount = splitAmounts.at(i).toDouble(&amountOk);
            if (!amountOk) {
                result.problems.append({operation.line,
                                        splitAmounts.at(i).isEmpty()
                                            ? Importer::tr("The amount is missing.")
                                            : Importer::tr("'%1' is not an amount.").arg(splitAmounts.at(i))});
                continue;
            }
            std::tie(entry.category, entry.incomeCategory) = categoryOf(splitCategories.value(i).toInt());
            const QString splitMemo = splitMemos.value(i);
            entry.details = joinDetails({payee, splitMemo.isEmpty() ? memo : splitMemo, info});
            result.entries.append(entry);
        }
    }
    return result;
}
