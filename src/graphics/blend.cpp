#include "graphics/blend.h"

#include <algorithm>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/blend.cpp"
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

void BlendRowVectors(Argb* destination, const Argb* source, std::size_t count) {
    const Pixels d;
    const auto lowestVisible = hn::Set(d, 1u << 24);
    const auto lowestOpaque = hn::Set(d, 255u << 24);
    const std::size_t step = hn::Lanes(d);
    std::size_t i = 0;
    for (; i + step <= count; i += step) {
        const auto pixels = hn::LoadU(d, source + i);
        if (hn::AllTrue(d, hn::Lt(pixels, lowestVisible)))
            continue;
        if (hn::AllFalse(d, hn::Lt(pixels, lowestOpaque)))
            hn::StoreU(pixels, d, destination + i);
        else
            hn::StoreU(BlendVector(hn::LoadU(d, destination + i), pixels), d, destination + i);
    }
    for (; i < count; ++i)
        destination[i] = BlendPixel(destination[i], source[i]);
}

void BlendColorVectors(Argb* destination, Argb color, std::size_t count) {
    const Pixels d;
    const auto colors = hn::Set(d, color);
    const std::size_t step = hn::Lanes(d);
    std::size_t i = 0;
    for (; i + step <= count; i += step)
        hn::StoreU(BlendVector(hn::LoadU(d, destination + i), colors), d, destination + i);
    for (; i < count; ++i)
        destination[i] = BlendPixel(destination[i], color);
}

}  // namespace HWY_NAMESPACE
}  // namespace orbelle::graphics
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace orbelle::graphics {

HWY_EXPORT(BlendRowVectors);
HWY_EXPORT(BlendColorVectors);

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
    return MakeARGB((2 * r + 255) / 510, mean(RedOf(source), RedOf(destination)),
                    mean(GreenOf(source), GreenOf(destination)),
                    mean(BlueOf(source), BlueOf(destination)));
}

void BlendRow(Argb* destination, const Argb* source, std::size_t count) {
    HWY_DYNAMIC_DISPATCH(BlendRowVectors)(destination, source, count);
}

void BlendRow(Argb* destination, const Argb* source, std::size_t count,
              const std::array<std::uint8_t, 256>& alphaTable) {
    std::array<Argb, 256> changed;
    while (count > 0) {
        const std::size_t step = std::min(count, changed.size());
        for (std::size_t i = 0; i < step; ++i)
            changed[i] = SetAlphaByte(source[i], alphaTable[AlphaOf(source[i])]);
        BlendRow(destination, changed.data(), step);
        destination += step;
        source += step;
        count -= step;
    }
}

void BlendColor(Argb* destination, Argb color, std::size_t count) {
    if (AlphaOf(color) == 255)
        std::fill_n(destination, count, color);
    else if (AlphaOf(color) > 0)
        HWY_DYNAMIC_DISPATCH(BlendColorVectors)(destination, color, count);
}

}  // namespace orbelle::graphics
#endif  // HWY_ONCE
