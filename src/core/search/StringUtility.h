#pragma once

#include <QList>
#include <QStringList>

// What the search fields of the list window and of scripts are parsed with,
// and the keyword tests of the matching. Comparison is literal and
// case-sensitive.
//
// Besides the plain blank, comma and hyphen, the typed text may use the
// separators of the user's language, looked up in the translation context
// "StringUtility" under the keys "Space Character", "Kuten Character" (a full
// stop that separates), "Minus Character" and "Tilde Character" (both mark a
// range of days). A key without translation stands for its own text, which
// never survives the blanks being turned into commas first.

// The text with every literal occurrence of `from` replaced by `to`; an empty
// `from` leaves the text as it is.
QString replaceStringFrom(QString text, QStringView from, QStringView to);

// The days a date search names: "1,5,10-12" is 1, 5, 10, 11, 12. Pieces are
// read by their leading number (no number is 0, so "3,,4" is 3, 0, 4); a
// range runs from its first to its last number and stops after 31 ("25-40"
// is 25 to 31, "20-" is 20 alone, "12-10" is nothing). Order and duplicates
// are kept.
QList<int> separateDateKeyToArray(QStringView text);

// The keywords of a details search, split at blanks, commas and the
// language's separators. Empty pieces are kept (they match nothing).
QStringList separateStringKeyToArray(QStringView text);

// True when at least one non-empty keyword occurs in the text; empty keywords
// never match, so a list made only of empty pieces matches nothing.
bool stringHasAnyKey(QStringView text, const QStringList &keys);
