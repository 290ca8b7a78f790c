#include <algorithm>

#include "filters/blur_sharpen.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/soften.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "filters/slanted_rows-inl.h"

HWY_BEFORE_NAMESPACE();
namespace orbelle::filters {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Sums of pixels, two channels in each lane: blue and red, green and the number of pixels.
struct Sums {
    PixelVec BlueRed, GreenCount;
};

HWY_INLINE Sums Nothing() {
    return {hn::Zero(Pixels()), hn::Zero(Pixels())};
}

HWY_INLINE Sums operator+(const Sums& a, const Sums& b) {
    return {hn::Add(a.BlueRed, b.BlueRed), hn::Add(a.GreenCount, b.GreenCount)};
}

HWY_INLINE Sums All(PixelVec pixels) {
    const Pixels d;
    return {hn::And(pixels, hn::Set(d, 0xFF00FFu)),
            hn::Or(hn::And(hn::ShiftRight<8>(pixels), hn::Set(d, 0xFFu)), hn::Set(d, 1u << 16))};
}

// Nothing for transparent pixels.
HWY_INLINE Sums Visible(PixelVec pixels) {
    const auto visible = hn::Gt(pixels, hn::Set(Pixels(), (1u << 24) - 1));
    const Sums all = All(pixels);
    return {hn::IfThenElseZero(visible, all.BlueRed), hn::IfThenElseZero(visible, all.GreenCount)};
}

HWY_INLINE Sums Times(const Sums& sums, PixelVec factor) {
    return {hn::Mul(sums.BlueRed, factor), hn::Mul(sums.GreenCount, factor)};
}

// The sums by their counts, rounded to the nearest, ties to even; as colours of alpha 0.
HWY_INLINE PixelVec Means(const Sums& sums) {
    const Pixels d;
    const hn::RebindToSigned<Pixels> ints;
    const hn::RebindToFloat<Pixels> floats;
    const auto number = [&](PixelVec whole)
                            HWY_ATTR { return hn::ConvertTo(floats, hn::BitCast(ints, whole)); };
    // Inverses a little too large and too small. A mean that is no tie is at least 1 / 214 away
    // from one, so that both round it alike; ties they round up and down. The even one of the two
    // is up without the last bit, where down has none.
    const auto count = number(hn::ShiftRight<16>(sums.GreenCount));
    const auto inverseUp = hn::Div(hn::Set(floats, 1 + 1.0F / (1 << 18)), count);
    const auto inverseDown = hn::Mul(inverseUp, hn::Set(floats, 1 - 1.0F / (1 << 17)));
    const auto bias = hn::Set(floats, float{3 << 22});  // whole numbers in the low bits
    const auto mean = [&](PixelVec whole) HWY_ATTR {
        const auto sum = number(whole);
        const auto up = hn::BitCast(d, hn::MulAdd(sum, inverseUp, bias));
        const auto down = hn::BitCast(d, hn::MulAdd(sum, inverseDown, bias));
        return hn::And(up, hn::And(hn::Or(down, hn::Set(d, 0xFEu)), hn::Set(d, 0xFFu)));
    };
    const auto low = hn::Set(d, 0xFFFFu);
    const auto blue = mean(hn::And(sums.BlueRed, low));
    const auto green = mean(hn::And(sums.GreenCount, low));
    const auto red = mean(hn::ShiftRight<16>(sums.BlueRed));
    return hn::Or(blue, hn::Or(hn::ShiftLeft<8>(green), hn::ShiftLeft<16>(red)));
}

class Softening {
public:
    explicit Softening(unsigned own)
        : own_(hn::Set(Pixels(), own)),
          above_(Nothing()),
          below_(Nothing()),
          belowLeft_(Nothing()) {}

    PixelVec Next(PixelVec left, PixelVec here, const Column& right) {
        const Sums aboveRight = Visible(right.Above);
        const Sums others = Times(All(here), own_) + Visible(right.Here) + belowLeft_ + below_ +
                            above_ + aboveRight;
        belowLeft_ = below_;
        below_ = Visible(right.Below);
        above_ = aboveRight;
        const auto means = Means(others + Visible(left));
        return hn::Or(means, hn::And(here, hn::Set(Pixels(), 0xFF000000u)));
    }

private:
    PixelVec own_;
    Sums above_, below_, belowLeft_;
};

void SoftenVectors(graphics::Bitmap& image, unsigned own) {
    SlantedRows(image, image.Width(), image.Height(), 0, 0).Rewrite(Softening(own));
}

}  // namespace HWY_NAMESPACE
}  // namespace orbelle::filters
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace orbelle::filters {

HWY_EXPORT(SoftenVectors);

void Soften(graphics::Bitmap& image, int level) {
    if (!image.IsEmpty())
        HWY_DYNAMIC_DISPATCH(SoftenVectors)(image, 101 - std::clamp(level, 0, 100));
}

}  // namespace orbelle::filters
#endif  // HWY_ONCE
