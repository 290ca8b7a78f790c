#include "graphics/detail/resampling.h"

#include <algorithm>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/detail/resampling.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

// Sums are made with Mul and Add, in the order of the source pixels, never with MulAdd: its result
// depends on the machine.
HWY_BEFORE_NAMESPACE();
namespace orbelle::graphics {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// One vector's worth of columns.
template <class D>
HWY_INLINE void AddUpRowsOf(D d, const Argb* pixels, std::size_t stride,
                            std::span<const float> weights, float* sums) {
    const hn::RebindToSigned<D> ints;
    const hn::RebindToFloat<D> floats;
    const auto low = hn::Set(d, 0xFFu);
    const auto toFloats = [&](auto channel) HWY_ATTR {
        return hn::ConvertTo(floats, hn::BitCast(ints, channel));
    };
    auto blue = hn::Zero(floats);
    auto green = blue, red = blue, alpha = blue;
    for (const float weight : weights) {
        const auto row = hn::LoadU(d, pixels);
        pixels += stride;
        const auto alphas = hn::ShiftRight<24>(row);
        if (hn::AllTrue(d, hn::Eq(alphas, hn::Zero(d))))
            continue;  // of icons a third is empty
        const auto share = hn::Mul(toFloats(alphas), hn::Set(floats, weight));
        blue = hn::Add(blue, hn::Mul(share, toFloats(hn::And(row, low))));
        green = hn::Add(green, hn::Mul(share, toFloats(hn::And(hn::ShiftRight<8>(row), low))));
        red = hn::Add(red, hn::Mul(share, toFloats(hn::And(hn::ShiftRight<16>(row), low))));
        alpha = hn::Add(alpha, share);
    }
    hn::StoreInterleaved4(blue, green, red, alpha, floats, sums);
}

void AddUpRowsVectors(const Argb* pixels, std::size_t stride, std::span<const float> weights,
                      std::size_t width, float* sums) {
    const hn::ScalableTag<Argb> d;
    const hn::CappedTag<Argb, 1> one;
    std::size_t x = 0;
    for (; x + hn::Lanes(d) <= width; x += hn::Lanes(d))
        AddUpRowsOf(d, pixels + x, stride, weights, sums + 4 * x);
    for (; x < width; ++x)
        AddUpRowsOf(one, pixels + x, stride, weights, sums + 4 * x);
}

// The totals of one pixel: blue, green, red (times alpha) and alpha.
HWY_INLINE void AddUpTaps(const float* columns, const float* weights, int count, float* total) {
    // The four numbers of a pixel, or one after the other where vectors are shorter.
    const hn::CappedTag<float, 4> d;
    for (std::size_t part = 0; part < 4; part += hn::Lanes(d)) {
        const float* column = columns + part;
        auto sum = hn::Zero(d);
        for (int i = 0; i < count; ++i, column += 4)
            sum = hn::Add(sum, hn::Mul(hn::LoadU(d, column), hn::Set(d, weights[i])));
        hn::StoreU(sum, d, total + part);
    }
}

// The pixels that a vector's worth of totals stands for.
template <class D>
HWY_INLINE void StoreStraight(D d, const float* totals, Argb* pixels) {
    const hn::RebindToFloat<D> floats;
    const hn::RebindToSigned<D> ints;
    hn::Vec<decltype(floats)> blue, green, red, total;
    hn::LoadInterleaved4(floats, totals, blue, green, red, total);
    const auto most = hn::Set(floats, 255.0F);
    const auto half = hn::Set(floats, 0.5F);
    const auto alpha = hn::Min(total, most);
    const auto round = [&](auto channel) HWY_ATTR {
        const auto limited = hn::Min(hn::Max(channel, hn::Zero(floats)), most);
        return hn::BitCast(d, hn::ConvertTo(ints, hn::Add(limited, half)));
    };
    const auto colors =
        hn::Or(hn::ShiftLeft<16>(round(hn::Div(red, alpha))),
               hn::Or(hn::ShiftLeft<8>(round(hn::Div(green, alpha))), round(hn::Div(blue, alpha))));
    const auto straight = hn::Or(hn::ShiftLeft<24>(round(alpha)), colors);
    hn::StoreU(hn::IfThenElseZero(hn::RebindMask(d, hn::Ge(alpha, half)), straight), d, pixels);
}

void AddUpColumnsVectors(const float* sums, int firstColumn, std::span<const Taps> taps,
                         const float* weights, Argb* pixels) {
    const hn::ScalableTag<Argb> d;
    const hn::CappedTag<Argb, 1> one;
    // Some vectors at a time: a total can't be read as part of a vector right after it was written.
    constexpr std::size_t kMost = 64;
    HWY_ALIGN float totals[4 * kMost];
    while (!taps.empty()) {
        const std::size_t count = std::min(taps.size(), kMost);
        for (std::size_t x = 0; x < count; ++x)
            AddUpTaps(sums + 4 * static_cast<std::size_t>(taps[x].First - firstColumn),
                      weights + taps[x].Weights, taps[x].Count, totals + 4 * x);
        std::size_t x = 0;
        for (; x + hn::Lanes(d) <= count; x += hn::Lanes(d))
            StoreStraight(d, totals + 4 * x, pixels + x);
        for (; x < count; ++x)
            StoreStraight(one, totals + 4 * x, pixels + x);
        taps = taps.subspan(count);
        pixels += count;
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace orbelle::graphics
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace orbelle::graphics {

HWY_EXPORT(AddUpRowsVectors);
HWY_EXPORT(AddUpColumnsVectors);

void AddUpRows(const Argb* pixels, std::size_t stride, std::span<const float> weights,
               std::size_t width, float* sums) {
    HWY_DYNAMIC_DISPATCH(AddUpRowsVectors)(pixels, stride, weights, width, sums);
}

void AddUpColumns(const float* sums, int firstColumn, std::span<const Taps> taps,
                  const float* weights, Argb* pixels) {
    HWY_DYNAMIC_DISPATCH(AddUpColumnsVectors)(sums, firstColumn, taps, weights, pixels);
}

}  // namespace orbelle::graphics
#endif  // HWY_ONCE
