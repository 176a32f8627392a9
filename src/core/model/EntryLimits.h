#pragma once

#include <cmath>
#include <limits>

// The bounds every entry keeps, wherever it comes from (a window, a script,
// the command line): a year a month file name can hold and a window can show,
// and an amount a 32-bit float stores as a finite number.
namespace EntryLimits {

inline constexpr int FirstYear = 1;
inline constexpr int LastYear = 9999;

constexpr bool isYearInRange(int year)
{
    return year >= FirstYear && year <= LastYear;
}

// Finite, and within what a float holds without becoming infinite.
inline bool isAmountStorable(double amount)
{
    return std::isfinite(amount) && std::fabs(amount) <= double(std::numeric_limits<float>::max());
}

} // namespace EntryLimits
