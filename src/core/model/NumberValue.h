#pragma once

class QString;
class QVariant;
class QStringView;

// How a boxed value turns into a number wherever the program takes "the integer
// value" or "the float value" of something a person or a script typed: numbers
// are truncated toward zero, texts are read from their leading number
// ("12abc" is 12, "abc" is 0), and nothing ever overflows.

// Truncation toward zero that saturates at the ends of the int range; NaN is 0.
int truncateToInt(double value);

int integerValueOf(const QVariant &value);
float floatValueOf(const QVariant &value);

int integerValueOf(QStringView text);
float floatValueOf(QStringView text);
double doubleValueOf(QStringView text);

// The fewest decimal digits that read back as the same float, in fixed
// notation ("1000000", not "1e+06"; "0.1", not "0.10000000149011612"): how an
// amount is shown wherever it leaves the program as text.
QString shortestText(float value);
// That text's value as a double, for where amounts leave as numbers.
double shortestDouble(float value);
// An amount as a person edits it: the shortest text, with no "-0".
QString editingText(float amount);

// An amount or total as the windows show it, in the user's locale: cents
// when there are any, a whole number bare ("1,234.50", "1,200").
QString amountText(double amount);
