#include "model/NumberValue.h"

#include <QByteArray>
#include <QLocale>
#include <QString>
#include <QVariant>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

int truncateToInt(double value)
{
    if (std::isnan(value))
        return 0;
    if (value >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (value <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return int(value);
}

namespace {

qsizetype skipSpaces(QStringView text)
{
    qsizetype i = 0;
    while (i < text.size() && text[i].isSpace())
        ++i;
    return i;
}

qsizetype skipDigits(QStringView text, qsizetype i)
{
    while (i < text.size() && text[i] >= u'0' && text[i] <= u'9')
        ++i;
    return i;
}

bool isSign(QStringView text, qsizetype i)
{
    return i < text.size() && (text[i] == u'+' || text[i] == u'-');
}

// The leading decimal number of a text, as plain ASCII for a parser that does
// not depend on the user's locale.
QByteArray leadingNumber(QStringView text, bool allowFraction)
{
    qsizetype start = skipSpaces(text);
    qsizetype i = start;
    if (isSign(text, i))
        ++i;
    const qsizetype digitsStart = i;
    i = skipDigits(text, i);
    bool anyDigit = i > digitsStart;
    if (allowFraction) {
        if (i < text.size() && text[i] == u'.') {
            const qsizetype fractionStart = i + 1;
            const qsizetype fractionEnd = skipDigits(text, fractionStart);
            if (anyDigit || fractionEnd > fractionStart) {
                anyDigit = true;
                i = fractionEnd;
            }
        }
        if (anyDigit && i < text.size() && (text[i] == u'e' || text[i] == u'E')) {
            qsizetype e = i + 1;
            if (isSign(text, e))
                ++e;
            const qsizetype exponentEnd = skipDigits(text, e);
            if (exponentEnd > e)
                i = exponentEnd;
        }
    }
    if (!anyDigit)
        return {};
    return text.sliced(start, i - start).toLatin1();
}

} // namespace

int integerValueOf(QStringView text)
{
    const QByteArray digits = leadingNumber(text, false);
    if (digits.isEmpty())
        return 0;
    bool ok = false;
    const qlonglong value = digits.toLongLong(&ok);
    if (ok)
        return truncateToInt(double(value));
    return digits.startsWith('-') ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

float floatValueOf(QStringView text)
{
    return float(doubleValueOf(text));
}

double doubleValueOf(QStringView text)
{
    const QByteArray number = leadingNumber(text, true);
    return number.isEmpty() ? 0.0 : number.toDouble();
}

int integerValueOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return integerValueOf(QStringView(value.toString()));
    case QMetaType::Float:
    case QMetaType::Double:
        return truncateToInt(value.toDouble());
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::UInt:
        return truncateToInt(value.toDouble());
    default:
        return value.toInt();
    }
}

float floatValueOf(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString)
        return floatValueOf(QStringView(value.toString()));
    return value.toFloat();
}

QString shortestText(float value)
{
    // At most 48 characters: a sign, "0." and the 45 decimals of the smallest
    // float; the largest has 39 digits.
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed);
    return QString::fromLatin1(buffer.data(), result.ptr - buffer.data());
}

QString editingText(float amount)
{
    return amount == 0 ? QStringLiteral("0") : shortestText(amount);
}

double shortestDouble(float value)
{
    if (!std::isfinite(value))
        return double(value);
    return shortestText(value).toDouble();
}

QString amountText(double amount)
{
    // Amounts are single precision: cents are all they can hold faithfully.
    const double cents = std::round(amount * 100.0) / 100.0;
    const bool whole = cents == std::trunc(cents);
    return QLocale().toString(cents, 'f', whole ? 0 : 2);
}
