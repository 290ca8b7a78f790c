#include "graphics/detail/blend.h"

#include <algorithm>
#include <cmath>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/detail/blend.cpp"
#include <hwy/cache_control.h>
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace orbelle::graphics {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

using Pixels = hn::ScalableTag<Argb>;
using PixelVec = hn::Vec<Pixels>;
constexpr hn::RebindToFloat<Pixels> kFloats;
using FloatVec = hn::Vec<decltype(kFloats)>;

// Added to a number of a few hundred at most, it leaves the rounded number in the low bits of the
// float.
constexpr float kRoundingBias = 3 << 22;
constexpr std::uint32_t kBiasBits = 0x4B400000;

template <std::uint32_t kBits>
HWY_INLINE FloatVec Difference(PixelVec source, PixelVec destination) {
    const Pixels d;
    const auto bits = hn::Set(d, kBits);
    const auto difference = hn::Sub(hn::And(source, bits), hn::And(destination, bits));
    return hn::ConvertTo(kFloats, hn::BitCast(hn::RebindToSigned<Pixels>(), difference));
}

HWY_INLINE FloatVec Alpha(PixelVec pixels) {
    return hn::ConvertTo(kFloats,
                         hn::BitCast(hn::RebindToSigned<Pixels>(), hn::ShiftRight<24>(pixels)));
}

// Off by less than a part in a thousand; the processor's is by one in 2,700 at most.
HWY_INLINE FloatVec RoughInverse(FloatVec number) {
#if HWY_ARCH_X86
    return hn::ApproximateReciprocal(number);
#else
    return hn::Div(hn::Set(kFloats, 1.0F), number);
#endif
}

// R, the sum of the two weights of a mean; its half, rounded up; and about its inverse.
struct Weights {
    FloatVec Sum, HalfSum, Inverse;
};

// How far the mean lies from the destination, in one channel: (2 x difference x weight + R) / 2R,
// rounded down. It comes less one and with kBiasBits added.
HWY_INLINE PixelVec Step(FloatVec difference, FloatVec weight, const Weights& weights) {
    const Pixels d;
    // Whole and below 2^24 in size, as all that follows but the quotient: every step is exact.
    const auto n = hn::MulSub(difference, weight, weights.HalfSum);
    const auto bias = hn::Set(kFloats, kRoundingBias);
    // n / R rounded: what n / R rounded down is, or one more. Then the remainder is negative.
    const auto biased = hn::MulAdd(n, weights.Inverse, bias);
    const auto remainder = hn::NegMulAdd(hn::Sub(biased, bias), weights.Sum, n);
    return hn::Sub(hn::BitCast(d, biased), hn::ShiftRight<31>(hn::BitCast(d, remainder)));
}

HWY_INLINE PixelVec BlendVector(PixelVec destination, PixelVec source) {
    const Pixels d;
    const auto all = hn::Set(kFloats, 255.0F);
    const auto sourceAlpha = Alpha(source);
    const auto weight = hn::Mul(all, sourceAlpha);
    const auto sum = hn::MulAdd(Alpha(destination), hn::Sub(all, sourceAlpha), weight);
    Weights weights;
    // Nothing on nothing is no step as well.
    weights.Sum = hn::Max(sum, hn::Set(kFloats, 1.0F));
    weights.HalfSum = hn::Ceil(hn::Mul(weights.Sum, hn::Set(kFloats, 0.5F)));
    weights.Inverse = RoughInverse(weights.Sum);

    const auto blue = Step(Difference<0xFF>(source, destination), weight, weights);
    const auto green = Step(Difference<0xFF00>(source, destination),
                            hn::Mul(weight, hn::Set(kFloats, 1.0F / (1 << 8))), weights);
    const auto red = Step(Difference<0xFF0000>(source, destination),
                          hn::Mul(weight, hn::Set(kFloats, 1.0F / (1 << 16))), weights);
    const auto alpha =
        hn::MulAdd(sum, hn::Set(kFloats, 1.0F / 255.0F), hn::Set(kFloats, kRoundingBias));
    // Added up, what one channel borrows the next pays back.
    constexpr std::uint32_t kSurplus = (kBiasBits - 1) * 0x010101;
    const auto steps = hn::Add(hn::Add(blue, hn::ShiftLeft<8>(green)),
                               hn::Add(hn::ShiftLeft<16>(red), hn::Set(d, 0u - kSurplus)));
    const auto base = hn::Add(hn::And(destination, hn::Set(d, 0xFFFFFFu)),
                              hn::ShiftLeft<24>(hn::BitCast(d, alpha)));
    return hn::Add(base, steps);
}

#if HWY_TARGET != HWY_SCALAR
// The same where all destinations are opaque: the weights add up to 255 x 255, so that the mean is
// a whole number by 255, rounded; it never ends in one half.
HWY_INLINE PixelVec BlendOnOpaque(PixelVec destination, PixelVec source, PixelVec sourceAlpha) {
    const Pixels d;
    const hn::Repartition<std::uint16_t, Pixels> halves;
    using Halves = hn::Vec<decltype(halves)>;
    const auto weight = hn::BitCast(halves, hn::Or(sourceAlpha, hn::ShiftLeft<16>(sourceAlpha)));
    // Steps may pass the ends of 16 bits, what they end at lies between 0 and 65025.
    const auto mean = [&](Halves below, Halves above) HWY_ATTR {
        const auto sum = hn::Add(hn::Sub(hn::ShiftLeft<8>(below), below),
                                 hn::Mul(weight, hn::Sub(above, below)));
        const auto up = hn::Add(sum, hn::Set(halves, std::uint16_t{128}));
        return hn::Add(up, hn::ShiftRight<8>(up));  // the mean is in the upper byte
    };
    const auto below = hn::BitCast(halves, destination);
    const auto above = hn::BitCast(halves, source);
    const auto low = hn::Set(halves, std::uint16_t{0xFF});
    const auto blueAndRed = hn::ShiftRight<8>(mean(hn::And(below, low), hn::And(above, low)));
    const auto green = hn::AndNot(low, mean(hn::ShiftRight<8>(below), hn::ShiftRight<8>(above)));
    return hn::Or(hn::BitCast(d, hn::Or(blueAndRed, green)), hn::Set(d, 255u << 24));
}

#endif

// Rows are opaque over long stretches.
HWY_INLINE PixelVec Blend(PixelVec destination, PixelVec source) {
#if HWY_TARGET != HWY_SCALAR
    const Pixels d;
    if (hn::AllFalse(d, hn::Lt(destination, hn::Set(d, 255u << 24))))
        return BlendOnOpaque(destination, source, hn::ShiftRight<24>(source));
#endif
    return BlendVector(destination, source);
}

// Takes the alphas through the factor, as AlphaFactor::Apply does.
HWY_INLINE PixelVec Scaled(PixelVec pixels, PixelVec multiplier, PixelVec half, int shift) {
    const Pixels d;
    const auto product = hn::Mul(hn::ShiftRight<24>(pixels), multiplier);
    const auto alpha = hn::ShiftRightSame(hn::Add(hn::ShiftRight<1>(product), half), shift);
    return hn::Or(hn::And(pixels, hn::Set(d, 0xFFFFFFu)), hn::ShiftLeft<24>(alpha));
}

// Layers are read once, row after row, and are seldom in the cache: without this most of the time
// of a stack is spent waiting. Where nothing follows, the request is dropped by the machine.
HWY_INLINE void FetchAhead(const Argb* pixels) {
    constexpr std::uintptr_t kAheadBytes = 4096;
    hwy::Prefetch(
        reinterpret_cast<const Argb*>(reinterpret_cast<std::uintptr_t>(pixels) + kAheadBytes));
}

void BlendRowVectors(Argb* destination, const Argb* source, std::size_t count) {
    const Pixels d;
    const auto lowestVisible = hn::Set(d, 1u << 24);
    const auto lowestOpaque = hn::Set(d, 255u << 24);
    const std::size_t step = hn::Lanes(d);
    std::size_t i = 0;
    for (; i + step <= count; i += step) {
        FetchAhead(source + i);
        const auto pixels = hn::LoadU(d, source + i);
        if (hn::AllTrue(d, hn::Lt(pixels, lowestVisible)))
            continue;
        if (hn::AllFalse(d, hn::Lt(pixels, lowestOpaque)))
            hn::StoreU(pixels, d, destination + i);
        else
            hn::StoreU(Blend(hn::LoadU(d, destination + i), pixels), d, destination + i);
    }
    for (; i < count; ++i)
        destination[i] = BlendPixel(destination[i], source[i]);
}

void BlendScaledRowVectors(Argb* destination, const Argb* source, std::size_t count,
                           const AlphaFactor& factor) {
    const Pixels d;
    const auto lowestVisible = hn::Set(d, 1u << 24);
    const auto multiplier = hn::Set(d, factor.Multiplier);
    const auto half = hn::Set(d, 1u << (factor.Shift - 1));
    const std::size_t step = hn::Lanes(d);
    std::size_t i = 0;
    for (; i + step <= count; i += step) {
        FetchAhead(source + i);
        const auto pixels = hn::LoadU(d, source + i);
        if (hn::AllTrue(d, hn::Lt(pixels, lowestVisible)))
            continue;
        const auto scaled = Scaled(pixels, multiplier, half, factor.Shift);
        hn::StoreU(Blend(hn::LoadU(d, destination + i), scaled), d, destination + i);
    }
    for (; i < count; ++i)
        destination[i] =
            BlendPixel(destination[i], SetAlphaByte(source[i], factor.Apply(AlphaOf(source[i]))));
}

void BlendColorVectors(Argb* destination, Argb color, std::size_t count) {
    const Pixels d;
    const auto colors = hn::Set(d, color);
    const std::size_t step = hn::Lanes(d);
    std::size_t i = 0;
    for (; i + step <= count; i += step)
        hn::StoreU(Blend(hn::LoadU(d, destination + i), colors), d, destination + i);
    for (; i < count; ++i)
        destination[i] = BlendPixel(destination[i], color);
}

}  // namespace HWY_NAMESPACE
}  // namespace orbelle::graphics
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace orbelle::graphics {

HWY_EXPORT(BlendRowVectors);
HWY_EXPORT(BlendScaledRowVectors);
HWY_EXPORT(BlendColorVectors);

AlphaFactor::AlphaFactor(float opacity) {
    constexpr int kMantissaBits = 24;
    constexpr int kMaxShift = 31;
    int exponent = 0;
    const float mantissa = std::frexp(std::clamp(opacity, 0.0F, 1.0F), &exponent);
    // Below 2^-9 every alpha becomes 0, as it does with the multiplier 0.
    if (kMantissaBits - exponent - 1 > kMaxShift || std::isnan(opacity))
        return;
    Multiplier = static_cast<std::uint32_t>(std::ldexp(mantissa, kMantissaBits));
    Shift = kMantissaBits - exponent - 1;
}

Argb BlendPixel(Argb destination, Argb source) {
    const unsigned a = AlphaOf(source);
    if (a == 0)
        return destination;
    const unsigned sourceWeight = 255 * a;
    const unsigned destinationWeight = AlphaOf(destination) * (255 - a);
    const unsigned r = sourceWeight + destinationWeight;
    const auto mean = [&](unsigned sourceChannel, unsigned destinationChannel) {
        const unsigned n = sourceWeight * sourceChannel + destinationWeight * destinationChannel;
        return (2 * n + r) / (2 * r);
    };
    return MakeArgb((2 * r + 255) / 510, mean(RedOf(source), RedOf(destination)),
                    mean(GreenOf(source), GreenOf(destination)),
                    mean(BlueOf(source), BlueOf(destination)));
}

void BlendRow(Argb* destination, const Argb* source, std::size_t count) {
    HWY_DYNAMIC_DISPATCH(BlendRowVectors)(destination, source, count);
}

void BlendRow(Argb* destination, const Argb* source, std::size_t count, const AlphaFactor& factor) {
    HWY_DYNAMIC_DISPATCH(BlendScaledRowVectors)(destination, source, count, factor);
}

void BlendColor(Argb* destination, Argb color, std::size_t count) {
    if (AlphaOf(color) == 255)
        std::fill_n(destination, count, color);
    else if (AlphaOf(color) > 0)
        HWY_DYNAMIC_DISPATCH(BlendColorVectors)(destination, color, count);
}

}  // namespace orbelle::graphics
#endif  // HWY_ONCE
