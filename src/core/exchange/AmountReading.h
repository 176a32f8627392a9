#pragma once

#include <QStringList>

#include <optional>

// The character that separates the whole part of an amount from its
// fraction; the other one of point and comma groups thousands.
enum class DecimalMark { Point, Comma };

// Amounts as files write them: "1,234.50", "1.234,50", "-12", "12-",
// "(12.00)", "▲1,200" (minus the Japanese way), "¥1,200", "1 234,50 €",
// full-width digits.
namespace AmountReading {

// The mark a column of amounts uses: a separator followed by other than
// three digits, or the later of two different ones, is the decimal mark;
// a point when nothing tells.
DecimalMark markOf(const QStringList &texts);
// The signed value; nothing for an empty text or one that is not an amount.
std::optional<double> read(QStringView text, DecimalMark mark);
// A number as programs write them for each other ("-1234.5", "1e-05"):
// an optional sign, digits, a point, an exponent and nothing else; nothing
// for any other text, and for infinities.
std::optional<double> readPlain(QStringView text);

} // namespace AmountReading
