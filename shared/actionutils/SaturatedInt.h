#pragma once

#include <climits>
#include <cmath>

/// The integer part of a number; the nearest int beyond its range, 0 for what is not a number. A cast of such
/// numbers is undefined.
inline int saturatedInt(double value)
{
    if (std::isnan(value))
        return 0;
    if (value <= INT_MIN)
        return INT_MIN;
    return value >= INT_MAX ? INT_MAX : static_cast<int>(value);
}
