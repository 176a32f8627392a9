#include "OfxImporter.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTemporaryFile>

#include <libofx/libofx.h>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

QString paywayOf(const OfxTransactionData &data)
{
    if (data.check_number_valid && data.check_number[0] != '\0')
        return u"Cheque"_s;
    if (!data.transactiontype_valid)
        return {};
    switch (data.transactiontype) {
    case OFX_ATM:
    case OFX_CASH: return u"Cash"_s;
    case OFX_POS: return u"Debit card"_s;
    case OFX_XFER: return u"Transfer"_s;
    case OFX_CHECK: return u"Cheque"_s;
    case OFX_PAYMENT: return u"Electronic payment"_s;
    case OFX_DEP:
    case OFX_DIRECTDEP: return u"Deposit"_s;
    case OFX_DIRECTDEBIT: return u"Direct debit"_s;
    case OFX_REPEATPMT: return u"Standing order"_s;
    case OFX_FEE:
    case OFX_SRVCHG: return u"FI fee"_s;
    default: return {};
    }
}

struct Reading
{
    ImportResult *result;
    // The line of each transaction in the file, in order: libofx tells none.
    QList<int> lines;
};

int takeTransaction(const OfxTransactionData data, void *context)
{
    auto *reading = static_cast<Reading *>(context);
    ImportResult &result = *reading->result;
    const int line = reading->lines.value(result.entries.size() + result.problems.size(),
                                          int(result.entries.size() + result.problems.size() + 1));
    if (!data.date_posted_valid && !data.date_initiated_valid) {
        result.problems.append({line, Importer::tr("The date is missing.")});
        return 0;
    }
    if (!data.amount_valid) {
        result.problems.append({line, Importer::tr("The amount is missing.")});
        return 0;
    }
    CandidateEntry entry;
    entry.line = line;
    entry.date = QDateTime::fromSecsSinceEpoch(data.date_posted_valid ? data.date_posted
                                                                      : data.date_initiated)
                     .date();
    entry.amount = data.amount;
    entry.details = Importer::joinDetails({data.name_valid ? QString::fromUtf8(data.name) : QString(),
                                           data.memo_valid ? QString::fromUtf8(data.memo) : QString()});
    entry.payway = paywayOf(data);
    result.entries.append(entry);
    return 0;
}

} // namespace

ImportResult OfxImporter::parse(const QByteArray &bytes) const
{
    ImportResult result;
    if (!bytes.contains("<OFX>") && !bytes.contains("<ofx>")) {
        result.error = Importer::tr("This is not an OFX file.");
        return result;
    }
    // libofx reads only files.
    QTemporaryFile file;
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush()) {
        result.error = Importer::tr("The file cannot be read: %1").arg(file.errorString());
        return result;
    }
    Reading reading{&result, {}};
    static const QRegularExpression transaction(u"<STMTTRN>"_s, QRegularExpression::CaseInsensitiveOption);
    const QString text = QString::fromLatin1(bytes);
    for (auto match = transaction.globalMatch(text); match.hasNext();)
        reading.lines.append(int(QStringView(text).left(match.next().capturedStart()).count(u'\n') + 1));

    // libofx talks on stderr unless told not to.
    for (int *flag : {&ofx_PARSER_msg, &ofx_DEBUG_msg, &ofx_DEBUG1_msg, &ofx_DEBUG2_msg, &ofx_DEBUG3_msg,
                      &ofx_DEBUG4_msg, &ofx_DEBUG5_msg, &ofx_STATUS_msg, &ofx_INFO_msg,
                      &ofx_WARNING_msg, &ofx_ERROR_msg})
        *flag = 0;
    const std::unique_ptr<void, int (*)(LibofxContextPtr)> context(libofx_get_new_context(),
                                                                   libofx_free_context);
    ofx_set_transaction_cb(context.get(), takeTransaction, &reading);
    libofx_proc_file(context.get(), QFile::encodeName(file.fileName()).constData(), AUTODETECT);
    return result;
}
