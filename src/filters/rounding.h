// Rounding of computed channel values.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>

namespace orbelle::filters {

// The nearest whole number within 0 to 255, ties to even. Not for not-a-number.
inline unsigned RoundToByte(double value) {
    // The sum has no bits left for fractions, so the machine rounds them away by its own rule.
    constexpr double kNoFractions = 0x1p52;
    const double sum = std::clamp(value, 0.0, 255.0) + kNoFractions;
    return static_cast<unsigned>(std::bit_cast<std::uint64_t>(sum) & 0xFF);
}

}  // namespace orbelle::filters
