// The pixel loops of the colour adjustments, in vector code.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "graphics/color.h"

namespace orbelle::filters {

// Channels are numbered as they lie in memory: blue 0, green 1, red 2.
struct ChannelMix {
    std::array<std::uint8_t, 3> Sources;  // the old channel that each new one takes
    std::uint8_t Mixed;                   // the new channel that is mixed then ...
    std::uint8_t With;                    // ... with this old one
};

// What the two colours of a mix count, in 256ths. Each -255 to 511.
struct MixWeights {
    int First, Second;
};

// Exchanges and mixes channels; a mixed value, its remainder dropped toward zero, that does not fit
// a byte leaves the channel unmixed. Alpha stays.
void MixChannels(std::span<graphics::Argb> pixels, const ChannelMix& mix, MixWeights weights);

// Each of the three: c + factor x (c - grey), in double precision, rounded to nearest (ties to
// even) and limited to 0..255; grey is a third of the sum, remainder dropped. Alpha stays.
void PushFromGrey(std::span<graphics::Argb> pixels, double factor);

}  // namespace orbelle::filters
