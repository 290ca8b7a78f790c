#include "graphics/codecs/png_unfilter.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/codecs/png_unfilter.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

static_assert(std::endian::native == std::endian::little, "pixels are taken from bytes");

HWY_BEFORE_NAMESPACE();
namespace orbelle::graphics {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// All four channels at once, each for itself.
HWY_INLINE Argb AddChannels(Argb a, Argb b) {
    constexpr Argb kHighBits = 0x80808080;
    return ((a & ~kHighBits) + (b & ~kHighBits)) ^ ((a ^ b) & kHighBits);
}

HWY_INLINE Argb MeanChannels(Argb a, Argb b) {
    return (a & b) + (((a ^ b) & 0xFEFEFEFE) >> 1);
}

// In the order of Argb; of three bytes with the one behind them.
template <std::size_t Step>
HWY_INLINE Argb PixelAt(const std::uint8_t* bytes, std::size_t x) {
    Argb color = 0;
    std::memcpy(&color, bytes + x * Step, sizeof color);
    return (color & 0xFF00FF00) | RedOf(color) | BlueOf(color) << 16;
}

template <std::size_t Step>
constexpr Argb kFilled = Step == 3 ? 0xFF000000 : 0;

// `guess` takes the pixels to the left and above.
template <std::size_t Step, typename Guess>
HWY_INLINE void Restore(const std::uint8_t* bytes, std::span<Argb> row, const Argb* above,
                        const Guess& guess) {
    Argb left = 0;
    for (std::size_t x = 0; x < row.size(); ++x) {
        left = AddChannels(PixelAt<Step>(bytes, x), guess(left, above[x]));
        row[x] = left | kFilled<Step>;
    }
}

#if HWY_TARGET == HWY_SCALAR

HWY_INLINE Argb PaethChannels(Argb left, Argb above, Argb corner) {
    Argb guess = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const auto channel = [shift](Argb color) { return static_cast<int>(color >> shift & 255); };
        const int fromCorner = channel(above) - channel(corner);
        const int aside = channel(left) - channel(corner);
        const int toLeft = std::abs(fromCorner);
        const int toAbove = std::abs(aside);
        const int toCorner = std::abs(fromCorner + aside);
        const Argb other = toAbove <= toCorner ? above : corner;
        const Argb nearest = toLeft <= std::min(toAbove, toCorner) ? left : other;
        guess |= nearest & Argb{255} << shift;
    }
    return guess;
}

template <std::size_t Step>
HWY_INLINE void RestorePaeth(const std::uint8_t* bytes, std::span<Argb> row, const Argb* above) {
    Argb left = 0, corner = 0;
    for (std::size_t x = 0; x < row.size(); ++x) {
        left = AddChannels(PixelAt<Step>(bytes, x), PaethChannels(left, above[x], corner));
        corner = above[x];
        row[x] = left | kFilled<Step>;
    }
}

#else

// The guess is the one of left, above and corner that left + above - corner is nearest to. Each
// pixel waits for the one before.
template <std::size_t Step>
HWY_INLINE void RestorePaeth(const std::uint8_t* bytes, std::span<Argb> row, const Argb* above) {
    const hn::FixedTag<std::int16_t, 4> d;
    const hn::FixedTag<std::uint8_t, 4> narrow;
    const hn::FixedTag<Argb, 1> whole;
    const auto channels = [&](Argb color) HWY_ATTR {
        return hn::PromoteTo(d, hn::BitCast(narrow, hn::Set(whole, color)));
    };
    const auto low = hn::Set(d, 255);
    auto left = hn::Zero(d), corner = hn::Zero(d);
    for (std::size_t x = 0; x < row.size(); ++x) {
        const auto over = channels(above[x]);
        const auto fromCorner = hn::Sub(over, corner);
        const auto aside = hn::Sub(left, corner);
        const auto toAbove = hn::Abs(aside);
        const auto toCorner = hn::Abs(hn::Add(fromCorner, aside));
        const auto other = hn::IfThenElse(hn::Gt(toAbove, toCorner), corner, over);
        const auto isOther = hn::Gt(hn::Abs(fromCorner), hn::Min(toAbove, toCorner));
        const auto nearest = hn::IfThenElse(isOther, other, left);
        left = hn::And(hn::Add(channels(PixelAt<Step>(bytes, x)), nearest), low);
        corner = over;
        row[x] = hn::GetLane(hn::BitCast(whole, hn::DemoteTo(narrow, left))) | kFilled<Step>;
    }
}

#endif

template <std::size_t Step>
HWY_INLINE void RestoreBy(std::uint8_t filter, const std::uint8_t* bytes, std::span<Argb> row,
                          const Argb* above) {
    switch (filter) {
        case 0:
            return Restore<Step>(bytes, row, above, [](Argb, Argb) HWY_ATTR { return Argb{0}; });
        case 1:
            return Restore<Step>(bytes, row, above, [](Argb left, Argb) HWY_ATTR { return left; });
        case 2:
            return Restore<Step>(bytes, row, above, [](Argb, Argb over) HWY_ATTR { return over; });
        case 3:
            return Restore<Step>(bytes, row, above, [](Argb left, Argb over) HWY_ATTR {
                return MeanChannels(left, over);
            });
        default:
            return RestorePaeth<Step>(bytes, row, above);
    }
}

void RestoreRowVectors(std::uint8_t filter, const std::uint8_t* bytes, bool hasAlpha,
                       std::span<Argb> row, const Argb* above) {
    if (hasAlpha)
        RestoreBy<4>(filter, bytes, row, above);
    else
        RestoreBy<3>(filter, bytes, row, above);
}

}  // namespace HWY_NAMESPACE
}  // namespace orbelle::graphics
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace orbelle::graphics {

HWY_EXPORT(RestoreRowVectors);

void RestoreRow(std::uint8_t filter, const std::uint8_t* bytes, bool hasAlpha, std::span<Argb> row,
                const Argb* above) {
    HWY_DYNAMIC_DISPATCH(RestoreRowVectors)(filter, bytes, hasAlpha, row, above);
}

}  // namespace orbelle::graphics
#endif
