#include "filters/edge_relief.h"

#include <algorithm>

#include "graphics/drawing_context.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/edge_relief.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "filters/slanted_rows-inl.h"

HWY_BEFORE_NAMESPACE();
namespace orbelle::filters {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

using Numbers = hn::RebindToSigned<Pixels>;

// Outside of the picture. Such a pixel counts for nothing: the rule is that the alpha read last
// counts again there, but that could only matter in the top row and the left column, which are
// transparent themselves.
constexpr Argb kOutside = 0xFF000000;

// Tells where a pixel of the 3 x 3 around has an alpha below a threshold. No change touches alpha.
class EdgeFinder {
public:
    explicit EdgeFinder(unsigned threshold)
        : threshold_(hn::Set(Pixels(), threshold << 24)),
          left_(hn::Set(Pixels(), kOutside)),
          here_(left_) {}

    hn::Mask<Pixels> Next(const Column& right) {
        const auto least = hn::Min(hn::Min(right.Above, right.Here), right.Below);
        const auto around = hn::Min(hn::Min(left_, here_), least);
        left_ = here_;
        here_ = least;
        return hn::Lt(around, threshold_);
    }

private:
    PixelVec threshold_;
    PixelVec left_, here_;  // the lowest alphas of two columns, with colour bits under them
};

template <int kShift>
HWY_INLINE PixelVec Channel(PixelVec pixels) {
    return hn::And(hn::ShiftRight<kShift>(pixels), hn::Set(Pixels(), 0xFFu));
}

// `here` with other colours where there is an edge.
HWY_INLINE PixelVec WithColors(hn::Mask<Pixels> isEdge, PixelVec here, PixelVec red, PixelVec green,
                               PixelVec blue) {
    const auto colors = hn::Or(hn::ShiftLeft<16>(red), hn::Or(hn::ShiftLeft<8>(green), blue));
    return hn::IfThenElse(isEdge, hn::Or(hn::And(here, hn::Set(Pixels(), 0xFF000000u)), colors),
                          here);
}

// Averages pixels with an alpha below kBelow around them.
class Darkening {
public:
    static constexpr unsigned kBelow = 100;

    Darkening() : edge_(kBelow), above_(hn::Set(Pixels(), kOutside)), below_(above_) {}

    PixelVec Next(PixelVec left, PixelVec here, const Column& right) {
        const PixelVec terms[] = {here, left, right.Here, above_, below_};
        above_ = right.Above;
        below_ = right.Below;
        return WithColors(edge_.Next(right), here, Mean<16>(terms), Mean<8>(terms), Mean<0>(terms));
    }

private:
    // Five terms by six: darker than their mean (docs/oddities.md, "Five sixths").
    template <int kShift>
    static HWY_INLINE PixelVec Mean(const PixelVec (&terms)[5]) {
        auto sum = hn::Zero(Pixels());
        for (const auto& term : terms)
            sum = hn::Add(sum, Channel<kShift>(term));
        // 10923 / 65536 is a little more than a sixth: exact for the sums of five bytes.
        return hn::ShiftRight<16>(hn::Mul(sum, hn::Set(Pixels(), 10923u)));
    }

    EdgeFinder edge_;
    PixelVec above_, below_;
};

struct Channels {
    PixelVec Red, Green, Blue;
};

HWY_INLINE Channels ChannelsOf(PixelVec pixels) {
    return {Channel<16>(pixels), Channel<8>(pixels), Channel<0>(pixels)};
}

HWY_INLINE Channels Largest(const Channels& a, const Channels& b) {
    return {hn::Max(a.Red, b.Red), hn::Max(a.Green, b.Green), hn::Max(a.Blue, b.Blue)};
}

// Moves pixels with an alpha below kBelow around them away from the largest channels there.
class Emphasis {
public:
    static constexpr unsigned kBelow = 150;
    static constexpr int kOffset = 5;

    Emphasis()
        : edge_(kBelow),
          here_(ChannelsOf(hn::Zero(Pixels()))),
          hereOuter_(here_),
          leftOuter_(here_) {}

    PixelVec Next(PixelVec left, PixelVec here, const Column& right) {
        const Channels outer = Largest(ChannelsOf(right.Above), ChannelsOf(right.Below));
        const Channels all = Largest(outer, ChannelsOf(right.Here));
        const Channels most = Largest(Largest(all, here_), Largest(leftOuter_, ChannelsOf(left)));
        leftOuter_ = hereOuter_;
        hereOuter_ = outer;
        here_ = all;
        const Channels own = ChannelsOf(here);
        return WithColors(edge_.Next(right), here, Moved(own.Red, most.Red),
                          Moved(own.Green, most.Green), Moved(own.Blue, most.Blue));
    }

private:
    static HWY_INLINE PixelVec Moved(PixelVec value, PixelVec most) {
        const Numbers numbers;
        const auto moved =
            hn::Sub(hn::Add(hn::Add(value, value), hn::Set(Pixels(), kOffset)), most);
        const auto limited =
            hn::Min(hn::Max(hn::BitCast(numbers, moved), hn::Zero(numbers)), hn::Set(numbers, 255));
        return hn::BitCast(Pixels(), limited);
    }

    EdgeFinder edge_;
    Channels here_;                   // the largest of the column here
    Channels hereOuter_, leftOuter_;  // of two columns without the middle, which changes
};

void SetEdgeOff(graphics::Bitmap& image, std::size_t width, std::size_t height) {
    SlantedRows(image, width, height, kOutside, 1).Rewrite(Darkening());
    SlantedRows(image, width, height, kOutside, 0).Rewrite(Emphasis());
}

}  // namespace HWY_NAMESPACE
}  // namespace orbelle::filters
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace orbelle::filters {

using graphics::Bitmap;

HWY_EXPORT(SetEdgeOff);

StylePicture FreshStyle(const Bitmap& image, int pageWidth, int pageHeight) {
    StylePicture relief{Bitmap(pageWidth, pageHeight), 0, 0, image.Width(), image.Height()};
    graphics::DrawingContext(relief.Image)
        .DrawImageRect(image, {1, 1, static_cast<float>(image.Width() - 2),
                               static_cast<float>(image.Height() - 2)});
    HWY_DYNAMIC_DISPATCH(SetEdgeOff)
    (relief.Image, std::min(image.Width(), relief.Image.Width()),
     std::min(image.Height(), relief.Image.Height()));
    return relief;
}

}  // namespace orbelle::filters
#endif  // HWY_ONCE
