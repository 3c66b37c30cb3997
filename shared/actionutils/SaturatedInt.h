#pragma once

#include <climits>
#include <cmath>

/// A number of which nobody knows where it has been (a settings map, a text field) as an int. A cast of one
/// beyond the range of int, or of a NaN, is undefined.
/// \returns the integer part, towards 0; the nearest int for what lies beyond the range, infinities included;
///     0 for what is not a number. Any thread.
inline int saturatedInt(double value)
{
    if (std::isnan(value))
        return 0;
    if (value <= INT_MIN)
        return INT_MIN;
    return value >= INT_MAX ? INT_MAX : static_cast<int>(value);
}
