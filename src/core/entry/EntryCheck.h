#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

// The checks at the door: what a script or the command line hands in as a new
// entry or a search, refused with a reason before it reaches a month. The
// running program and penwickctl ask the same questions here, so that both
// refuse the same things.
namespace EntryCheck {

// A whole number: an integer, a real without a fraction, or a text that is
// nothing but one ("12", not "12x" or "abc"). Nothing otherwise.
std::optional<int> wholeNumber(const QVariant &value);
// A finite number, or a text that is nothing but one.
std::optional<double> finiteNumber(const QVariant &value);

// Why the fields of a new entry ("year", "month", "date", "category",
// "details", "amount", "payway") cannot be booked; nothing when they can.
// Numbers must be numbers, the year 1–9999, the amount finite and within
// what an entry stores, the category and payway indices within lists of the
// given sizes (not checked for a size below 0). A month out of 1–12 and a
// day out of its month are left to the record, which keeps them within its
// month as it always has.
std::optional<QString> newEntryProblem(const QVariantMap &fields, int categoryCount,
                                       int paywayCount);

// Why the day cannot be in the month of the year, for callers that refuse
// what the record would otherwise bring within bounds.
std::optional<QString> dateProblem(int year, int month, int day);

// Why an amount cannot be booked: not a number, infinite (as after a
// division by zero) or beyond what an entry holds; nothing when it can.
std::optional<QString> amountProblem(double amount);

// The amount an entry stores for the one typed, when it differs from it
// (99999999 is stored as 100000000).
std::optional<float> changedWhenStored(double typed);

} // namespace EntryCheck
