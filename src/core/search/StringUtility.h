#pragma once

#include <QStringList>

// Keyword tests of the search. Comparison is literal and case-sensitive.

// True when at least one non-empty keyword occurs in the text; empty keywords
// never match, so a list made only of empty pieces matches nothing.
bool stringHasAnyKey(QStringView text, const QStringList &keys);
