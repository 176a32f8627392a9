#include "QifImporter.h"

#include "AmountReading.h"
#include "DateReading.h"
#include "TextDecoding.h"

#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Section { None, Account, Category, Other };

Section sectionOf(QStringView header)
{
    const QString type = header.toString().toLower().remove(u' ');
    for (const QString &name : {u"!type:bank"_s, u"!type:cash"_s, u"!type:ccard"_s, u"!type:othera"_s,
                            u"!type:otherl"_s}) {
        if (type.startsWith(name))
            return Section::Account;
    }
    return type.startsWith(u"!type:cat"_s) ? Section::Category : Section::Other;
}

struct Split
{
    QString category;
    QString memo;
    QString amount;
};

// One record between ^ lines, as written.
struct Record
{
    int line = 0;
    QString date;
    QString amount;
    QString payee;
    QString memo;
    QString category;
    QString number;
    QList<Split> splits;
};

QString paywayOf(const QString &number)
{
    if (number.isEmpty())
        return {};
    bool isNumber = false;
    (void)number.toLongLong(&isNumber);
    return isNumber ? u"Cheque"_s : number;
}

} // namespace

ImportResult QifImporter::parse(const QByteArray &bytes) const
{
    ImportResult result;
    const QString text = TextDecoding::decode(bytes, TextDecoding::detect(bytes, u"windows-1252"_s));
    const QStringList lines = text.split(u'\n');

    QList<Record> records;
    QSet<QString> incomeCategories;
    Section section = Section::None;
    bool sawHeader = false;
    Record record;
    QString categoryName;
    bool categoryIsIncome = false;
    bool open = false;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).trimmed();
        if (line.isEmpty())
            continue;
        if (line.startsWith(u'!')) {
            if (line.startsWith(u"!type:"_s, Qt::CaseInsensitive)) {
                section = sectionOf(line);
                sawHeader = true;
            } else if (line.startsWith(u"!account"_s, Qt::CaseInsensitive)) {
                section = Section::Other; // the account's own description follows
                sawHeader = true;
            }
            open = false;
            continue;
        }
        const QChar code = line.front().toUpper();
        const QString value = line.mid(1);
        if (!open) {
            record = Record();
            record.line = int(i + 1);
            categoryName.clear();
            categoryIsIncome = false;
            open = true;
        }
        if (code == u'^') {
            open = false;
            if (section == Section::Account)
                records.append(record);
            else if (section == Section::Category && categoryIsIncome)
                incomeCategories.insert(categoryName);
            continue;
        }
        if (section == Section::Category) {
            if (code == u'N')
                categoryName = value;
            else if (code == u'I')
                categoryIsIncome = true;
            continue;
        }
        switch (code.unicode()) {
        case 'D': record.date = value; break;
        case 'T': record.amount = value; break;
        case 'U':
            if (record.amount.isEmpty())
                record.amount = value;
            break;
        case 'P': record.payee = value; break;
        case 'M': record.memo = value; break;
        case 'L': record.category = value; break;
        case 'N': record.number = value; break;
        case 'S': record.splits.append({value, {}, {}}); break;
        case 'E':
            if (!record.splits.isEmpty())
                record.splits.last().memo = value;
            break;
        case '$':
            if (!record.splits.isEmpty())
                record.splits.last().amount = value;
            break;
        default: break;
        }
    }
    if (open && section == Section::Account && !record.date.isEmpty())
        records.append(record); // a last record without its ^
    if (!sawHeader) {
        result.error = Importer::tr("This is not a QIF file: it has no !Type line.");
        return result;
    }

    QStringList dates;
    QStringList amounts;
    for (const Record &r : records) {
        dates.append(r.date);
        amounts.append(r.amount);
    }
    // Most QIF files come from American programs: month first unless the
    // dates say otherwise.
    result.dateOrders = DateReading::ordersFitting(
        dates, {DateOrder::MonthDayYear, DateOrder::DayMonthYear, DateOrder::YearMonthDay});
    result.dateOrder = result.dateOrders.value(0, DateOrder::MonthDayYear);
    const DecimalMark mark = AmountReading::markOf(amounts);

    const auto isIncome = [&](const QString &category) {
        return incomeCategories.contains(category)
            || incomeCategories.contains(category.section(u':', 0, 0));
    };
    for (const Record &r : records) {
        const auto date = DateReading::read(r.date, result.dateOrder);
        if (!date) {
            result.problems.append({r.line, r.date.isEmpty() ? Importer::tr("The date is missing.")
                                                             : Importer::tr("'%1' is not a date.").arg(r.date)});
            continue;
        }
        CandidateEntry entry;
        entry.date = *date;
        entry.line = r.line;
        entry.payway = paywayOf(r.number);
        const QList<Split> parts = r.splits.isEmpty() ? QList<Split>{{r.category, r.memo, r.amount}}
                                                      : r.splits;
        for (const Split &part : parts) {
            const auto amount = AmountReading::read(part.amount, mark);
            if (!amount) {
                result.problems.append({r.line, part.amount.isEmpty()
                                                    ? Importer::tr("The amount is missing.")
                                                    : Importer::tr("'%1' is not an amount.").arg(part.amount)});
                continue;
            }
            entry.amount = *amount;
            entry.category = part.category;
            entry.incomeCategory = isIncome(part.category);
            entry.details = joinDetails({r.payee, part.memo.isEmpty() ? r.memo : part.memo});
            result.entries.append(entry);
        }
    }
    return result;
}
