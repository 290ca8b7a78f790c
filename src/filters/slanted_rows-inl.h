// Filters whose pixels read what they have already rewritten to the left and above, many rows at
// once. To be included once for each instruction set, as Highway's own such headers are.
//
// A vector holds one pixel of each of as many rows as it has lanes, each row kLag pixels behind the
// one above: what the pixels wait for has been rewritten in the steps before.
#if defined(ORBELLE_FILTERS_SLANTED_ROWS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef ORBELLE_FILTERS_SLANTED_ROWS_INL_H
#undef ORBELLE_FILTERS_SLANTED_ROWS_INL_H
#else
#define ORBELLE_FILTERS_SLANTED_ROWS_INL_H
#endif

#include <hwy/highway.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include "graphics/bitmap.h"

HWY_BEFORE_NAMESPACE();
namespace orbelle::filters {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

using graphics::Argb;
using Pixels = hn::ScalableTag<Argb>;
using PixelVec = hn::Vec<Pixels>;

// A pixel of each row and those above and below it. The upper ones have been rewritten.
struct Column {
    PixelVec Above, Here, Below;
};

// As many rows as there are lanes, and the one below them: pixel x of row k lies at step
// x + 1 + kLag k, lane k.
class SlantedRows {
public:
    // The top left pixels of an image, all outside of them counting as `around`. Those nearer to
    // the border than `margin` are read and not rewritten.
    SlantedRows(graphics::Bitmap& image, std::size_t width, std::size_t height, Argb around,
                std::size_t margin)
        : image_(image),
          width_(width),
          height_(height),
          around_(around),
          margin_(margin),
          steps_(width + 1 + kLag * (Lanes() - 1)),
          above_(steps_, around),
          pixels_((steps_ + kLag + 1) * Stride(), around) {}

    // Rewrites all pixels. A copy of `filter` goes along the rows: filter.Next(left, here, right)
    // gives what becomes of `here`, from the left pixels, which have been rewritten, the column to
    // the right and what it remembers.
    template <class Filter>
    void Rewrite(const Filter& filter) {
        for (std::size_t y = 0; y < height_; y += Lanes()) {
            Read(y);
            RewriteBlock(y, filter);
            Write(y);
        }
    }

private:
    static constexpr Argb kLag = 2;

    static std::size_t Lanes() { return hn::Lanes(Pixels()); }
    static std::size_t Stride() { return Lanes() + 1; }

    Argb* At(std::size_t x, std::size_t k) { return &pixels_[(x + 1 + kLag * k) * Stride() + k]; }

    void Read(std::size_t y) {
        if (y > 0)
            std::copy_n(image_.Row(static_cast<int>(y - 1)), width_, above_.begin());
        for (std::size_t k = 0; k <= Lanes(); ++k) {
            const Argb* row = y + k < height_ ? image_.Row(static_cast<int>(y + k)) : nullptr;
            for (std::size_t x = 0; x < width_; ++x)
                *At(x, k) = row ? row[x] : around_;
        }
    }

    // Which of the numbers lie within the margins of 0 to `size`.
    hn::Mask<Pixels> Within(PixelVec numbers, std::size_t size) const {
        const Pixels d;
        const auto margin = static_cast<Argb>(margin_);
        const auto count = static_cast<Argb>(size - std::min(size, 2 * margin_));
        return hn::Lt(hn::Sub(numbers, hn::Set(d, margin)), hn::Set(d, count));
    }

    template <class Filter>
    void RewriteBlock(std::size_t y, Filter filter) {
        const Pixels d;
        const hn::RebindToSigned<Pixels> ints;
        const auto oneDown = hn::IndicesFromVec(
            d, hn::Max(hn::Sub(hn::Iota(ints, 0), hn::Set(ints, 1)), hn::Zero(ints)));
        const auto first = hn::FirstN(d, 1);
        const auto rows = Within(hn::Iota(d, static_cast<Argb>(y)), height_);
        auto columns = hn::Sub(hn::Set(d, ~Argb{0}), hn::Mul(hn::Iota(d, 0), hn::Set(d, kLag)));
        auto left = hn::Set(d, around_), here = left;
        Argb* step = pixels_.data();
        for (std::size_t s = 0; s < steps_; ++s, step += Stride()) {
            const Column right = {
                hn::IfThenElse(first, hn::Set(d, above_[s]), hn::TableLookupLanes(left, oneDown)),
                hn::LoadU(d, step + Stride()), hn::LoadU(d, step + (kLag + 1) * Stride() + 1)};
            const auto isRewritten = hn::And(rows, Within(columns, width_));
            left = hn::IfThenElse(isRewritten, filter.Next(left, here, right), here);
            hn::StoreU(left, d, step);
            here = right.Here;
            columns = hn::Add(columns, hn::Set(d, 1u));
        }
    }

    void Write(std::size_t y) {
        const Pixels d;
        const hn::RebindToSigned<Pixels> ints;
        const auto indices = hn::Mul(hn::Iota(ints, 0), hn::Set(ints, static_cast<int>(Stride())));
        for (std::size_t k = 0; k < std::min(Lanes(), height_ - y); ++k) {
            Argb* row = image_.MutableRow(static_cast<int>(y + k));
            std::size_t x = 0;
            for (; x + Lanes() <= width_; x += Lanes())
                hn::StoreU(hn::GatherIndex(d, At(x, k), indices), d, row + x);
            for (; x < width_; ++x)
                row[x] = *At(x, k);
        }
    }

    graphics::Bitmap& image_;
    std::size_t width_;
    std::size_t height_;
    Argb around_;
    std::size_t margin_;
    std::size_t steps_;
    std::vector<Argb> above_;  // the row above
    std::vector<Argb> pixels_;
};

}  // namespace HWY_NAMESPACE
}  // namespace orbelle::filters
HWY_AFTER_NAMESPACE();

#endif
