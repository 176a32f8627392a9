#include "TextDecoding.h"

#include <QStringDecoder>

using namespace Qt::Literals::StringLiterals;

QString TextDecoding::detect(const QByteArray &bytes, const QString &fallback)
{
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return u"UTF-8"_s;
    if (bytes.startsWith("\xFF\xFE"))
        return u"UTF-16LE"_s;
    if (bytes.startsWith("\xFE\xFF"))
        return u"UTF-16BE"_s;
    // Mostly ASCII text in UTF-16 has a zero in every other byte.
    const qsizetype sample = std::min<qsizetype>(bytes.size(), 4096) & ~qsizetype(1);
    qsizetype evenZeros = 0;
    qsizetype oddZeros = 0;
    for (qsizetype i = 0; i < sample; i += 2) {
        evenZeros += bytes.at(i) == 0;
        oddZeros += bytes.at(i + 1) == 0;
    }
    if (sample > 0 && oddZeros * 4 > sample)
        return u"UTF-16LE"_s;
    if (sample > 0 && evenZeros * 4 > sample)
        return u"UTF-16BE"_s;
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8.decode(bytes); // the decoding happens here, not in decode()
    return utf8.hasError() ? fallback : u"UTF-8"_s;
}

QString TextDecoding::decode(const QByteArray &bytes, const QString &encoding, bool *ok)
{
    QStringDecoder decoder(encoding.toLatin1().constData());
    if (ok)
        *ok = decoder.isValid();
    if (!decoder.isValid())
        return {};
    return decoder.decode(bytes);
}
