#pragma once

// A month as one number, year * 100 + month: the key the ledger files its
// months under, ordered like the calendar, and what month steppers move.
namespace MonthKey {

constexpr int of(int year, int month)
{
    return year * 100 + month;
}

// The key of the month `months` later (earlier when negative).
constexpr int added(int key, int months)
{
    // Counted in months from year 0, so that the steps carry across years.
    const int index = key / 100 * 12 + key % 100 - 1 + months;
    return of(index / 12, index % 12 + 1);
}

} // namespace MonthKey
