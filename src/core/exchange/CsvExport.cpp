#include "CsvExport.h"

#include "CsvMapping.h"

#include "ledger/KController.h"
#include "model/DataList.h"
#include "model/MonthKey.h"
#include "model/MonthDataList.h"
#include "model/NumberValue.h"

#include <QDate>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

void appendField(QByteArray &line, const QString &field)
{
    static const QRegularExpression needsQuotes(u"[,\"\\r\\n]|^\\s|\\s$"_s);
    if (needsQuotes.match(field).hasMatch()) {
        line += '"';
        line += QString(field).replace(u'"', u"\"\""_s).toUtf8();
        line += '"';
    } else {
        line += field.toUtf8();
    }
}

void appendLine(QByteArray &text, const QStringList &fields)
{
    for (qsizetype i = 0; i < fields.size(); ++i) {
        if (i > 0)
            text += ',';
        appendField(text, fields.at(i));
    }
    text += "\r\n";
}

} // namespace

QByteArray CsvExport::text(const PaymentArray &records, const QStringList &categories,
                           const QStringList &payways)
{
    QByteArray text;
    text.reserve(records.size() * 48);
    appendLine(text, CsvMapping::exportHeader());
    for (const PaymentDataPtr &record : records) {
        appendLine(text, {QDate(record->year(), record->month(), record->date()).toString(Qt::ISODate),
                          categories.value(record->category()), record->details(),
                          shortestText(record->amount()), payways.value(record->payway())});
    }
    return text;
}

std::optional<CsvExport::Scope> CsvExport::scopeNamed(QStringView text)
{
    if (text == u"all"_s)
        return Scope{};
    static const QRegularExpression pattern(u"^(\\d{4})(\\d\\d)?$"_s);
    const auto match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const Scope scope{match.capturedView(1).toInt(), match.capturedView(2).toInt()};
    if (scope.year < 1 || scope.month > 12 || (match.hasCaptured(2) && scope.month < 1))
        return std::nullopt;
    return scope;
}

std::optional<PaymentArray> CsvExport::records(KController &ledger, Scope scope, QString *error)
{
    QList<int> months;
    if (scope.year == 0) {
        ledger.readAllData();
        for (const auto &list : ledger.cachedLists()) {
            if (list->month() != 0)
                months.append(MonthKey::of(list->year(), list->month()));
        }
    } else {
        for (int month = scope.month ? scope.month : 1; month <= (scope.month ? scope.month : 12); ++month)
            months.append(MonthKey::of(scope.year, month));
    }
    PaymentArray records;
    for (const int id : months) {
        const auto list = ledger.monthListForYear(id / 100, id % 100);
        if (const auto reason = ledger.unreadableReason(id / 100, id % 100)) {
            if (error)
                *error = tr("%1/%2 cannot be read: %3").arg(id / 100).arg(id % 100).arg(*reason);
            return std::nullopt;
        }
        if (!list)
            continue;
        PaymentArray month = list->dataListArray();
        std::stable_sort(month.begin(), month.end(), [](const PaymentDataPtr &a, const PaymentDataPtr &b) {
            return a->date() < b->date();
        });
        records += month;
    }
    return records;
}

std::optional<QByteArray> CsvExport::ledgerText(KController &ledger, Scope scope, QString *error)
{
    const auto found = records(ledger, scope, error);
    if (!found)
        return std::nullopt;
    return text(*found, ledger.categoryList(), ledger.paywayList());
}
