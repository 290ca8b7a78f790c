#include <algorithm>
#include <cstddef>
#include <vector>

#include "filters/blur_sharpen.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/soften.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

// Every pixel waits for the one to its left and for the two above, which have been rewritten. So a
// vector holds a column of rows, each row kLag pixels behind the one above: all its lanes are
// worked out at once, and what they wait for is in the vectors of the steps before.
HWY_BEFORE_NAMESPACE();
namespace orbelle::filters {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

using graphics::Argb;
using graphics::Bitmap;

using Pixels = hn::ScalableTag<Argb>;
using PixelVec = hn::Vec<Pixels>;
constexpr std::size_t kLag = 2;

// Sums of pixels, two channels in each lane: blue and red, green and the number of pixels.
struct Sums {
    PixelVec BlueRed, GreenCount;
};

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

// A block of as many rows as a vector has lanes, and the row below it, slanted: pixel x of row k
// lies at step x + kLag k, lane k. Around the rows there is nothing, which is transparent.
class SlantedRows {
public:
    explicit SlantedRows(std::size_t width)
        : width_(width), above_(Steps() + 1), pixels_((Steps() + kLag) * Stride()) {}

    static std::size_t Lanes() { return hn::Lanes(Pixels()); }
    static std::size_t Stride() { return Lanes() + 1; }
    std::size_t Steps() const { return width_ + kLag * (Lanes() - 1); }

    // Row y and those below it.
    void Read(const Bitmap& image, int y) {
        if (y > 0)
            std::copy_n(image.Row(y - 1), width_, above_.begin());
        for (std::size_t k = 0; k <= Lanes(); ++k) {
            const int from = y + static_cast<int>(k);
            const Argb* row = from < image.Height() ? image.Row(from) : nullptr;
            for (std::size_t x = 0; x < width_; ++x)
                *At(x, k) = row ? row[x] : 0;
        }
    }

    void Write(Bitmap& image, int y) {
        const Pixels d;
        const hn::RebindToSigned<Pixels> ints;
        const auto indices = hn::Mul(hn::Iota(ints, 0), hn::Set(ints, static_cast<int>(Stride())));
        const std::size_t end = std::min<std::size_t>(Lanes(), image.Height() - y);
        for (std::size_t k = 0; k < end; ++k) {
            Argb* row = image.MutableRow(y + static_cast<int>(k));
            std::size_t x = 0;
            for (; x + Lanes() <= width_; x += Lanes())
                hn::StoreU(hn::GatherIndex(d, At(x, k), indices), d, row + x);
            for (; x < width_; ++x)
                row[x] = *At(x, k);
        }
    }

    void Soften(unsigned own) {
        const Pixels d;
        const auto factor = hn::Set(d, own);
        const hn::RebindToSigned<Pixels> ints;
        const auto oneDown = hn::IndicesFromVec(
            d, hn::Max(hn::Sub(hn::Iota(ints, 0), hn::Set(ints, 1)), hn::Zero(ints)));
        const auto first = hn::FirstN(d, 1);
        const Sums nothing{hn::Zero(d), hn::Zero(d)};
        Sums left = nothing, belowLeft = nothing;
        Sums above = Visible(hn::IfThenElseZero(first, hn::Set(d, above_[0])));
        auto rewritten = hn::Zero(d);
        auto pixels = hn::LoadU(d, pixels_.data());
        Argb* step = pixels_.data();
        for (std::size_t s = 0; s < Steps(); ++s, step += Stride()) {
            const auto right = hn::LoadU(d, step + Stride());
            const Sums below = Visible(hn::LoadU(d, step + kLag * Stride() + 1));
            const Sums aboveRight = Visible(hn::IfThenElse(
                first, hn::Set(d, above_[s + 1]), hn::TableLookupLanes(rewritten, oneDown)));
            const Sums others = Times(All(pixels), factor) + Visible(right) + below + belowLeft +
                                above + aboveRight;
            const auto means = Means(others + left);
            rewritten = hn::Or(means, hn::And(pixels, hn::Set(d, 0xFF000000u)));
            hn::StoreU(rewritten, d, step);
            left = Visible(rewritten);
            belowLeft = below;
            above = aboveRight;
            pixels = right;
        }
    }

private:
    // Pixel x of row k.
    Argb* At(std::size_t x, std::size_t k) { return &pixels_[(x + kLag * k) * Stride() + k]; }

    std::size_t width_;
    std::vector<Argb> above_;  // the row above, transparent after its end
    std::vector<Argb> pixels_;
};

void SoftenBlocks(Bitmap& image, unsigned own) {
    SlantedRows rows(image.Width());
    for (int y = 0; y < image.Height(); y += static_cast<int>(SlantedRows::Lanes())) {
        rows.Read(image, y);
        rows.Soften(own);
        rows.Write(image, y);
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace orbelle::filters
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace orbelle::filters {

HWY_EXPORT(SoftenBlocks);

void Soften(graphics::Bitmap& image, int level) {
    if (!image.IsEmpty())
        HWY_DYNAMIC_DISPATCH(SoftenBlocks)(image, 101 - std::clamp(level, 0, 100));
}

}  // namespace orbelle::filters
#endif  // HWY_ONCE
