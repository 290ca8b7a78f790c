#include "graphics/detail/blend.h"

#include <algorithm>
#include <bit>
#include <cmath>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/detail/blend.cpp"
#include <hwy/cache_control.h>
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#ifndef ORBELLE_GRAPHICS_BLEND_MASKS
#define ORBELLE_GRAPHICS_BLEND_MASKS
namespace orbelle::graphics {

// Bits that the loops need. They come as an argument because compilers build constants that they
// know anew each time, by way of the ports that have the most to do.
struct BlendMasks {
    Argb LowestVisible = 1U << 24;
    Argb LowestOpaque = 255U << 24;
    Argb Blue = 0xFF, Red = 0xFF0000, BlueGreen = 0xFFFF, BlueRed = 0xFF00FF;
    std::uint32_t OneHalf = 0x800080;  // of 255 / 256, twice

    // A channel c lies as 256.5 + c in a float: c from the 15th bit on, below it one half. So a
    // mean, worked out there, is rounded by cutting what is below the 15th bit.
    std::uint32_t Channel = 0x7F8000;
    std::uint32_t Fraction = 0x7FFF;
    std::uint32_t NoChannel = 0x43804000;
    // Alpha lies as kRoundingBias + alpha: in the low bits.
    std::uint32_t NoAlpha = 0x4B400000;
};

}  // namespace orbelle::graphics
#endif

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

// A vector of pixels, as BlendMasks tells.
struct Planes {
    FloatVec Blue, Green, Red, Alpha;
};

HWY_INLINE PixelVec Bits(FloatVec plane) {
    return hn::BitCast(Pixels(), plane);
}

HWY_INLINE FloatVec Channel(PixelVec shifted, const BlendMasks& masks) {
    const Pixels d;
    return hn::BitCast(
        kFloats, hn::Or(hn::And(shifted, hn::Set(d, masks.Channel)), hn::Set(d, masks.NoChannel)));
}

HWY_INLINE Planes Rounded(const Planes& planes, const BlendMasks& masks) {
    return {Channel(Bits(planes.Blue), masks), Channel(Bits(planes.Green), masks),
            Channel(Bits(planes.Red), masks), planes.Alpha};
}

HWY_INLINE FloatVec Alpha(PixelVec pixels, const BlendMasks& masks) {
    const Pixels d;
    return hn::BitCast(kFloats, hn::Or(hn::ShiftRight<24>(pixels), hn::Set(d, masks.NoAlpha)));
}

HWY_INLINE Planes Spread(PixelVec pixels, FloatVec alpha, const BlendMasks& masks) {
    return {Channel(hn::ShiftLeft<15>(pixels), masks), Channel(hn::ShiftLeft<7>(pixels), masks),
            Channel(hn::ShiftRight<1>(pixels), masks), alpha};
}

// The first where the bits are set, else the second.
HWY_INLINE PixelVec Selected(Argb bits, PixelVec first, PixelVec second) {
    const auto mask = hn::Set(Pixels(), bits);
    return hn::Or(hn::And(first, mask), hn::AndNot(mask, second));
}

// The pixels, their channels rounded.
HWY_INLINE PixelVec Joined(const Planes& planes, const BlendMasks& masks) {
    const auto blue = hn::ShiftRight<15>(Bits(planes.Blue));
    const auto green = hn::ShiftRight<7>(Bits(planes.Green));
    const auto red = hn::ShiftLeft<1>(Bits(planes.Red));
    const auto alpha = hn::ShiftLeft<24>(Bits(planes.Alpha));
    return Selected(masks.BlueGreen, Selected(masks.Blue, blue, green),
                    Selected(masks.Red, red, alpha));
}

// The mean of two channels, the source's share being weight / sum, to the last bit.
HWY_INLINE FloatVec ExactMean(FloatVec below, FloatVec above, FloatVec weight, FloatVec sum) {
    const auto one = hn::Set(kFloats, 1.0F);
    const auto halfSum = hn::Ceil(hn::Mul(sum, hn::Set(kFloats, 0.5F)));
    // The step from `below` is (2 x difference x weight + sum) / 2 sum, rounded down; less one it
    // is n / sum rounded down. Whole and below 2^24 in size, as all that follows but the quotient:
    // every step is exact.
    const auto n = hn::MulSub(hn::Sub(above, below), weight, halfSum);
    const auto bias = hn::Set(kFloats, kRoundingBias);
    const auto quotient = hn::Sub(hn::MulAdd(n, hn::Div(one, sum), bias), bias);
    // Rounded to the nearest: right, or one too many. Then the remainder is negative.
    const auto isTooMany = hn::Lt(hn::NegMulAdd(quotient, sum, n), hn::Zero(kFloats));
    return hn::Add(below, hn::IfThenElse(isTooMany, quotient, hn::Add(quotient, one)));
}

HWY_INLINE bool AllHaveFractions(FloatVec blue, FloatVec green, FloatVec red,
                                 const BlendMasks& masks) {
    const Pixels d;
    const auto bits = hn::Set(d, masks.Fraction);
#if HWY_ARCH_X86 && HWY_TARGET <= HWY_AVX3
    // Each test takes the last one's lanes: that spares putting three masks together.
    const auto inBlue = _mm512_test_epi32_mask(Bits(blue).raw, bits.raw);
    const auto inBoth = _mm512_mask_test_epi32_mask(inBlue, Bits(green).raw, bits.raw);
    const auto inAll = _mm512_mask_test_epi32_mask(inBoth, Bits(red).raw, bits.raw);
    return inAll == 0xFFFF;
#else
    const auto hasNone = [&](FloatVec channel)
                             HWY_ATTR { return hn::Eq(hn::And(Bits(channel), bits), hn::Zero(d)); };
    return hn::AllFalse(d, hn::Or(hn::Or(hasNone(blue), hasNone(green)), hasNone(red)));
#endif
}

// How much the pixels above and all those below them weigh.
struct Weights {
    FloatVec Above, Below;
};

HWY_INLINE Weights WeightsOf(FloatVec alpha) {
    const auto all = hn::Set(kFloats, 255.0F);
#if HWY_NATIVE_FMA
    // Without the bias, in one step each.
    return {hn::MulSub(all, alpha, hn::Set(kFloats, 255 * kRoundingBias)),
            hn::Sub(hn::Set(kFloats, 255 + kRoundingBias), alpha)};
#else
    const auto number = hn::Sub(alpha, hn::Set(kFloats, kRoundingBias));
    return {hn::Mul(all, number), hn::Sub(all, number)};
#endif
}

// Leaves channels that are not rounded yet.
HWY_INLINE void Blend(Planes& below, const Planes& above, const BlendMasks& masks) {
    const auto bias = hn::Set(kFloats, kRoundingBias);
    const Weights weights = WeightsOf(above.Alpha);
    const auto sum = hn::MulAdd(hn::Sub(below.Alpha, bias), weights.Below, weights.Above);
    // Nothing on nothing is no step as well.
    const auto divisor = hn::Max(sum, hn::Set(kFloats, 1.0F));
    const auto share = hn::Div(weights.Above, divisor);
    const auto mean = [&](FloatVec under, FloatVec over)
                          HWY_ATTR { return hn::MulAdd(hn::Sub(over, under), share, under); };
    auto blue = mean(below.Blue, above.Blue);
    auto green = mean(below.Green, above.Green);
    auto red = mean(below.Red, above.Red);
    // The share is off by 2^-25 at most, so that a mean is by 255 x 2^-25, and where machines round
    // before they add, by 2^-17 more: in sum by less than half the last bit. Only where no fraction
    // is left the mean may have been less.
    if (HWY_UNLIKELY(!AllHaveFractions(blue, green, red, masks))) {
        blue = ExactMean(below.Blue, above.Blue, weights.Above, divisor);
        green = ExactMean(below.Green, above.Green, weights.Above, divisor);
        red = ExactMean(below.Red, above.Red, weights.Above, divisor);
    }
    below = {blue, green, red, hn::MulAdd(sum, hn::Set(kFloats, 1.0F / 255.0F), bias)};
}

// The same where all of `below` is opaque. The means are multiples of 1 / 255 and one half: never
// near a whole number.
HWY_INLINE void BlendOnOpaque(Planes& below, const Planes& above) {
    const auto alpha = hn::Sub(above.Alpha, hn::Set(kFloats, kRoundingBias));
    const auto share = hn::Mul(alpha, hn::Set(kFloats, 1.0F / 255.0F));
    const auto mean = [&](FloatVec under, FloatVec over)
                          HWY_ATTR { return hn::MulAdd(hn::Sub(over, under), share, under); };
    below.Blue = mean(below.Blue, above.Blue);
    below.Green = mean(below.Green, above.Green);
    below.Red = mean(below.Red, above.Red);
}

#if HWY_TARGET != HWY_SCALAR
// A single vector on opaque ones, in 16 bits without being spread. The means are whole numbers by
// 255.
HWY_INLINE PixelVec BlendedOnOpaque(PixelVec below, PixelVec above, FloatVec alpha,
                                    const BlendMasks& masks) {
    const Pixels d;
    const hn::Repartition<std::uint16_t, Pixels> halves;
    using Halves = hn::Vec<decltype(halves)>;
    const auto number = hn::And(Bits(alpha), hn::Set(d, masks.Blue));
    const auto weight = hn::BitCast(halves, hn::Or(number, hn::ShiftLeft<16>(number)));
    const auto oneHalf = hn::BitCast(halves, hn::Set(d, masks.OneHalf));
    // Steps may pass the ends of 16 bits, what they end at lies between 0 and 65025.
    const auto mean = [&](Halves under, Halves over) HWY_ATTR {
        const auto sum =
            hn::Add(hn::Sub(hn::ShiftLeft<8>(under), under), hn::Mul(weight, hn::Sub(over, under)));
        const auto up = hn::Add(sum, oneHalf);
        return hn::Add(up, hn::ShiftRight<8>(up));  // the mean is in the upper byte
    };
    const auto under = hn::BitCast(halves, below);
    const auto over = hn::BitCast(halves, above);
    const auto low = hn::BitCast(halves, hn::Set(d, masks.BlueRed));
    const auto blueAndRed = hn::ShiftRight<8>(mean(hn::And(under, low), hn::And(over, low)));
    const auto green = hn::AndNot(low, mean(hn::ShiftRight<8>(under), hn::ShiftRight<8>(over)));
    return hn::Or(hn::BitCast(d, hn::Or(blueAndRed, green)), hn::Set(d, masks.LowestOpaque));
}
#endif

// The alphas taken through the factor, as AlphaFactor::Apply does.
HWY_INLINE FloatVec ScaledAlpha(PixelVec pixels, const AlphaFactor& factor,
                                const BlendMasks& masks) {
    const Pixels d;
    const auto alpha = hn::ShiftRight<24>(pixels);
#if HWY_NATIVE_FMA
    // Nothing is rounded but the sum.
    const auto number = hn::ConvertTo(kFloats, hn::BitCast(hn::RebindToSigned<Pixels>(), alpha));
    return hn::MulAdd(number, hn::Set(kFloats, factor.Opacity), hn::Set(kFloats, kRoundingBias));
#else
    const auto product = hn::Mul(alpha, hn::Set(d, factor.Multiplier));
    const auto half = hn::Set(d, 1u << (factor.Shift - 1));
    const auto scaled = hn::ShiftRightSame(hn::Add(hn::ShiftRight<1>(product), half), factor.Shift);
    return hn::BitCast(kFloats, hn::Or(scaled, hn::Set(d, masks.NoAlpha)));
#endif
}

// Layers are read once, row after row, and are seldom in the cache: without this most of the time
// of a stack is spent waiting. Where nothing follows, the request is dropped by the machine.
HWY_INLINE void FetchAhead(const Argb* pixels) {
    constexpr std::uintptr_t kAheadBytes = 4096;
    hwy::Prefetch(
        reinterpret_cast<const Argb*>(reinterpret_cast<std::uintptr_t>(pixels) + kAheadBytes));
}

HWY_INLINE bool IsVisible(PixelVec pixels, const BlendMasks& masks) {
    const Pixels d;
    return !hn::AllTrue(d, hn::Lt(pixels, hn::Set(d, masks.LowestVisible)));
}

HWY_INLINE bool IsOpaque(PixelVec pixels, const BlendMasks& masks) {
    const Pixels d;
    return hn::AllFalse(d, hn::Lt(pixels, hn::Set(d, masks.LowestOpaque)));
}

// Tells whether vectors of a row are opaque. Where they are not, only one in eight is looked at:
// the way that asks for nothing is not much longer.
class OpaqueRun {
public:
    HWY_INLINE bool IsOpaqueAt(std::size_t i, PixelVec pixels, const BlendMasks& masks) {
        if (isOpaque_ || i % (8 * hn::Lanes(Pixels())) == 0)
            isOpaque_ = IsOpaque(pixels, masks);
        return isOpaque_;
    }

private:
    bool isOpaque_ = false;
};

// One vector. The pixels stay spread from the first layer to the last.
HWY_INLINE void BlendLayersAt(Argb* destination, std::span<const LayerRow> layers, std::size_t i,
                              OpaqueRun& run, const BlendMasks& masks) {
    const Pixels d;
    auto layer = layers.begin();
    auto source = hn::Undefined(d);
    const auto isAtVisible = [&]() HWY_ATTR {
        for (; layer != layers.end(); ++layer) {
            FetchAhead(layer->Pixels + i);
            source = hn::LoadU(d, layer->Pixels + i);
            if (IsVisible(source, masks))
                return true;
        }
        return false;
    };
    if (!isAtVisible())
        return;
    auto pixels = hn::LoadU(d, destination + i);
    while (!layer->Factor && IsOpaque(source, masks)) {
        pixels = source;
        ++layer;
        if (!isAtVisible()) {
            hn::StoreU(pixels, d, destination + i);
            return;
        }
    }
    const auto alpha = [&]() HWY_ATTR {
        return layer->Factor ? ScaledAlpha(source, *layer->Factor, masks) : Alpha(source, masks);
    };
    const bool isOpaque = run.IsOpaqueAt(i, pixels, masks);
#if HWY_TARGET != HWY_SCALAR
    if (isOpaque && layer + 1 == layers.end()) {
        hn::StoreU(BlendedOnOpaque(pixels, source, alpha(), masks), d, destination + i);
        return;
    }
#endif
    Planes below = Spread(pixels, Alpha(pixels, masks), masks);
    for (;;) {
        const Planes above = Spread(source, alpha(), masks);
        if (isOpaque)
            BlendOnOpaque(below, above);
        else
            Blend(below, above, masks);
        ++layer;
        if (!isAtVisible())
            break;
        below = Rounded(below, masks);
    }
    hn::StoreU(Joined(below, masks), d, destination + i);
}

void BlendLayersVectors(Argb* destination, std::span<const LayerRow> layers, std::size_t count,
                        const BlendMasks& masks) {
    const std::size_t step = hn::Lanes(Pixels());
    OpaqueRun run;
    std::size_t i = 0;
    for (; i + step <= count; i += step)
        BlendLayersAt(destination, layers, i, run, masks);
    for (; i < count; ++i) {
        for (const LayerRow& layer : layers) {
            const Argb source = layer.Pixels[i];
            const unsigned alpha = AlphaOf(source);
            destination[i] =
                BlendPixel(destination[i],
                           SetAlphaByte(source, layer.Factor ? layer.Factor->Apply(alpha) : alpha));
        }
    }
}

void BlendColorVectors(Argb* destination, Argb color, std::size_t count, const BlendMasks& masks) {
    const Pixels d;
    const auto colors = hn::Set(d, color);
    const auto alpha = Alpha(colors, masks);
    const Planes above = Spread(colors, alpha, masks);
    const std::size_t step = hn::Lanes(d);
    std::size_t i = 0;
    for (; i + step <= count; i += step) {
        const auto pixels = hn::LoadU(d, destination + i);
#if HWY_TARGET != HWY_SCALAR
        if (IsOpaque(pixels, masks)) {
            hn::StoreU(BlendedOnOpaque(pixels, colors, alpha, masks), d, destination + i);
            continue;
        }
#endif
        Planes below = Spread(pixels, Alpha(pixels, masks), masks);
        Blend(below, above, masks);
        hn::StoreU(Joined(below, masks), d, destination + i);
    }
    for (; i < count; ++i)
        destination[i] = BlendPixel(destination[i], color);
}

}  // namespace HWY_NAMESPACE
}  // namespace orbelle::graphics
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace orbelle::graphics {

HWY_EXPORT(BlendLayersVectors);
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
    Opacity = std::clamp(opacity, 0.0F, 1.0F);
    // A product ends in one half if the alpha has as many twos as are missing here.
    const int missing = Shift - std::countr_zero(Multiplier);
    if (missing >= 0 && missing < 8)
        Opacity = std::nextafter(Opacity, 2.0F);
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

void BlendLayers(Argb* destination, std::span<const LayerRow> layers, std::size_t count) {
    HWY_DYNAMIC_DISPATCH(BlendLayersVectors)(destination, layers, count, BlendMasks());
}

void BlendRow(Argb* destination, const Argb* source, std::size_t count) {
    const LayerRow row{source, nullptr};
    BlendLayers(destination, {&row, 1}, count);
}

void BlendColor(Argb* destination, Argb color, std::size_t count) {
    if (AlphaOf(color) == 255)
        std::fill_n(destination, count, color);
    else if (AlphaOf(color) > 0)
        HWY_DYNAMIC_DISPATCH(BlendColorVectors)(destination, color, count, BlendMasks());
}

}  // namespace orbelle::graphics
#endif  // HWY_ONCE
