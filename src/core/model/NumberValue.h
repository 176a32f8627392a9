#pragma once

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
