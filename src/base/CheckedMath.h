// Whole-number arithmetic that reports an overflow instead of wrapping around, and the rounding
// that the program uses wherever a fractional value becomes a whole number.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "base/Errors.h"

namespace ordalyn {

inline std::int32_t NarrowChecked(std::int64_t value) {
    if (value < std::numeric_limits<std::int32_t>::min() ||
        value > std::numeric_limits<std::int32_t>::max())
        throw Overflow();
    return static_cast<std::int32_t>(value);
}

inline std::int32_t CheckedAdd(std::int32_t a, std::int32_t b) {
    return NarrowChecked(std::int64_t{a} + b);
}

inline std::int32_t CheckedMultiply(std::int32_t a, std::int32_t b) {
    return NarrowChecked(std::int64_t{a} * b);
}

// The nearest whole number; halves go to the even neighbour. Throws Overflow outside 32 bits and
// for values that are no numbers.
inline std::int32_t RoundToLong(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0))
        throw Overflow();
    return static_cast<std::int32_t>(rounded);
}

// The whole-number part: the fraction is cut off towards zero. Throws like RoundToLong.
inline std::int32_t TruncateToLong(double value) {
    return RoundToLong(std::trunc(value));
}

}  // namespace ordalyn
