#include "document/outside_page.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "graphics/drawing_context.h"

namespace orbelle::document {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using graphics::Intersect;
using graphics::RectI;

constexpr int kAlphas = 256;
// As far as the places of layers go (DrawnArea).
constexpr int kFarAway = 1'000'000'000;
constexpr int kEndless = std::numeric_limits<int>::max();
constexpr RectI kEverywhere{-kFarAway, -kFarAway, kEndless, kEndless};

// The least alpha of which a layer of that opacity leaves something; kAlphas: none.
int LeastVisibleAlpha(float opacity) {
    Bitmap alphas(kAlphas, 1);
    for (int alpha = 0; alpha < kAlphas; ++alpha)
        alphas.SetPixel(alpha, 0, graphics::MakeArgb(static_cast<unsigned>(alpha), 0, 0, 0));
    Bitmap drawn(kAlphas, 1);
    graphics::DrawingContext(drawn).DrawImageRectRectI(
        alphas, {0, 0, kAlphas, 1}, {0, 0, kAlphas, 1}, {graphics::OpacityMatrix(opacity)});
    const Argb* end = drawn.Pixels() + kAlphas;
    return static_cast<int>(
        std::find_if(drawn.Pixels(), end, [](Argb color) { return graphics::AlphaOf(color) > 0; }) -
        drawn.Pixels());
}

// The pixels of a picture that `count` page pixels from `first` on show, along one side: its first
// `shown` ones fill `length` of the page's from `place` on.
struct Span {
    int First = 0;
    int Count = 0;
};

Span SourcesOf(int first, int count, int place, int length, int shown) {
    const auto source = [=](double pixel) {
        return static_cast<int>(std::floor((pixel + 0.5 - place) * shown / length));
    };
    const int begin = source(first);
    return {begin, source(first + (count - 1.0)) - begin + 1};
}

bool ShowsWithin(const IconLayer& layer, const RectI& drawn, const RectI& part, int leastAlpha) {
    if (part.IsEmpty())
        return false;
    const Span columns = SourcesOf(part.X, part.Width, drawn.X, drawn.Width, layer.ImageWidth);
    const Span rows = SourcesOf(part.Y, part.Height, drawn.Y, drawn.Height, layer.ImageHeight);
    const RectI shown{0, 0, std::min(layer.ImageWidth, layer.Image.Width()),
                      std::min(layer.ImageHeight, layer.Image.Height())};
    const RectI sources = Intersect({columns.First, rows.First, columns.Count, rows.Count}, shown);
    for (int y = sources.Y; y < sources.Bottom(); ++y) {
        const Argb* row = layer.Image.Row(y) + sources.X;
        if (std::any_of(row, row + sources.Width, [=](Argb color) {
                return static_cast<int>(graphics::AlphaOf(color)) >= leastAlpha;
            }))
            return true;
    }
    return false;
}

bool ShowsOutside(const IconLayer& layer, const RectI& cut, const RectI& page) {
    const RectI drawn = DrawnArea(layer.Rect);
    const RectI seen = Intersect(drawn, cut);
    if (seen.IsEmpty() || Intersect(seen, page) == seen)
        return false;
    const int leastAlpha = LeastVisibleAlpha(layer.Opacity);
    const std::array<RectI, 4> around{{
        {-kFarAway, -kFarAway, kEndless, kFarAway},
        {-kFarAway, page.Height, kEndless, kEndless},
        {-kFarAway, 0, kFarAway, page.Height},
        {page.Width, 0, kEndless, page.Height},
    }};
    return std::ranges::any_of(around, [&](const RectI& side) {
        return ShowsWithin(layer, drawn, Intersect(seen, side), leastAlpha);
    });
}

// What a plate leaves of the layers above it.
RectI BoxOfPlate(const IconLayer& plate) {
    const graphics::RectF& box = plate.Rect;
    return {graphics::RoundHalfUp(box.X), graphics::RoundHalfUp(box.Y),
            graphics::RoundToEven(box.Width), graphics::RoundToEven(box.Height)};
}

}  // namespace

bool ShowsOutside(const Page& page) {
    const RectI area{0, 0, page.Width, page.Height};
    RectI cut = kEverywhere;
    for (std::size_t i = 0; i < page.Layers.size(); ++i) {
        const IconLayer& layer = page.Layers[i];
        if (!layer.Visible)
            continue;
        if (i > 0 && page.Layers[i - 1].ClipNextLayer)
            cut = Intersect(cut, BoxOfPlate(page.Layers[i - 1]));
        if (ShowsOutside(layer, cut, area))
            return true;
    }
    return false;
}

}  // namespace orbelle::document
