#include "graphics/detail/resampling.h"

#include <algorithm>
#include <array>

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

// The pixel that a total of blue, green, red (times alpha) and alpha stands for.
HWY_INLINE Argb StraightPixel(const std::array<float, 4>& total) {
    const float alpha = std::min(total[3], 255.0F);
    if (alpha < 0.5F)
        return 0;
    const auto round = [](float channel) HWY_ATTR {
        const float limited = std::min(std::max(channel, 0.0F), 255.0F);
        return static_cast<unsigned>(limited + 0.5F);  // NOLINT(bugprone-incorrect-roundings)
    };
    return MakeArgb(round(alpha), round(total[2] / alpha), round(total[1] / alpha),
                    round(total[0] / alpha));
}

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
        const auto share = hn::Mul(toFloats(hn::ShiftRight<24>(row)), hn::Set(floats, weight));
        blue = hn::Add(blue, hn::Mul(share, toFloats(hn::And(row, low))));
        green = hn::Add(green, hn::Mul(share, toFloats(hn::And(hn::ShiftRight<8>(row), low))));
        red = hn::Add(red, hn::Mul(share, toFloats(hn::And(hn::ShiftRight<16>(row), low))));
        alpha = hn::Add(alpha, share);
        pixels += stride;
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

void AddUpColumnsVectors(const float* sums, int firstColumn, std::span<const Taps> taps,
                         const float* weights, Argb* pixels) {
    // The four numbers of a pixel, or one after the other where vectors are shorter.
    const hn::CappedTag<float, 4> d;
    for (const Taps& tap : taps) {
        const float* first = sums + 4 * static_cast<std::size_t>(tap.First - firstColumn);
        std::array<float, 4> total;
        for (std::size_t part = 0; part < total.size(); part += hn::Lanes(d)) {
            const float* column = first + part;
            auto sum = hn::Zero(d);
            for (int i = 0; i < tap.Count; ++i, column += 4) {
                const auto weight = hn::Set(d, weights[tap.Weights + i]);
                sum = hn::Add(sum, hn::Mul(hn::LoadU(d, column), weight));
            }
            hn::StoreU(sum, d, total.data() + part);
        }
        *pixels++ = StraightPixel(total);
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
