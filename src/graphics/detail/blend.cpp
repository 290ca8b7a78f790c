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

// Added to a number from 0 to 255, it leaves the rounded number in the low byte of the float.
constexpr float kRoundingBias = 1 << 23;

template <int kShift>
HWY_INLINE FloatVec Channel(PixelVec pixels) {
    const Pixels d;
    const auto channel = hn::And(hn::ShiftRight<kShift>(pixels), hn::Set(d, 0xFFu));
    return hn::ConvertTo(kFloats, hn::BitCast(hn::RebindToSigned<Pixels>(), channel));
}

// The two weights of the mean, their sum R, and what turns a sum of weighted colours into a mean.
struct Weights {
    FloatVec Source, Destination, Sum, HalfSum, Scale;
};

// The mean of one channel; only the low byte of each lane means anything.
template <int kShift>
HWY_INLINE PixelVec Mean(PixelVec destination, PixelVec source, const Weights& weights) {
    const Pixels d;
    // At most 255 x 65025, so that every step on N and q x R is exact in a float.
    const auto n = hn::MulAdd(weights.Destination, Channel<kShift>(destination),
                              hn::Mul(weights.Source, Channel<kShift>(source)));
    const auto bias = hn::Set(kFloats, kRoundingBias);
    const auto biased = hn::MulAdd(n, weights.Scale, bias);
    const auto remainder = hn::NegMulAdd(hn::Sub(biased, bias), weights.Sum, n);
    const auto oneMore = hn::VecFromMask(kFloats, hn::Ge(remainder, weights.HalfSum));
    return hn::Sub(hn::BitCast(d, biased), hn::BitCast(d, oneMore));
}

HWY_INLINE PixelVec BlendVector(PixelVec destination, PixelVec source) {
    const Pixels d;
    const auto all = hn::Set(kFloats, 255.0F);
    const auto sourceAlpha = Channel<24>(source);
    Weights weights;
    weights.Source = hn::Mul(all, sourceAlpha);
    weights.Destination = hn::Mul(Channel<24>(destination), hn::Sub(all, sourceAlpha));
    weights.Sum = hn::Add(weights.Source, weights.Destination);
    weights.HalfSum = hn::Mul(weights.Sum, hn::Set(kFloats, 0.5F));
    // A little too small, so that a quotient is either right or one too low, never too high.
    weights.Scale = hn::Div(hn::Set(kFloats, 1.0F - 1.0F / (1 << 20)), weights.Sum);

    const auto alpha =
        hn::MulAdd(weights.Sum, hn::Set(kFloats, 1.0F / 255.0F), hn::Set(kFloats, kRoundingBias));
    // The bits of the bias above the low byte are shifted out, but for blue.
    const auto alphaAndRed = hn::Or(hn::ShiftLeft<24>(hn::BitCast(d, alpha)),
                                    hn::ShiftLeft<16>(Mean<16>(destination, source, weights)));
    const auto greenAndBlue =
        hn::Or(hn::ShiftLeft<8>(Mean<8>(destination, source, weights)),
               hn::And(Mean<0>(destination, source, weights), hn::Set(d, 0xFFu)));
    const auto blended = hn::Or(alphaAndRed, greenAndBlue);
    return hn::IfThenElse(hn::Lt(source, hn::Set(d, 1u << 24)), destination, blended);
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
