#include "document/compositor.h"

#include <algorithm>
#include <cstdint>

#include "filters/round_shape.h"
#include "graphics/drawing_context.h"
#include "graphics/parallel.h"

namespace orbelle::document {

using graphics::Bitmap;
using graphics::RectF;
using graphics::RectI;

namespace {

// Pixels of all layers: below, starting a thread takes longer than it saves.
constexpr std::int64_t kFewPixels = 4 << 20;
constexpr int kBandRows = 32;

// The smallest box around the pixels of `area`, which lies in both pictures, that differ.
RectI DifferingPixels(const Bitmap& first, const Bitmap& second, const RectI& area) {
    const int end = area.X + area.Width;
    int left = end, right = area.X, top = 0, bottom = 0;
    for (int y = area.Y; y < area.Y + area.Height; ++y) {
        const graphics::Argb* a = first.Row(y);
        const graphics::Argb* b = second.Row(y);
        if (std::equal(a + area.X, a + end, b + area.X))
            continue;
        int x = area.X;
        while (x < left && a[x] == b[x])
            ++x;
        left = x;
        x = end;
        while (x > right && a[x - 1] == b[x - 1])
            --x;
        right = x;
        top = bottom == 0 ? y : top;
        bottom = y + 1;
    }
    return bottom == 0 ? RectI{} : RectI{left, top, right - left, bottom - top};
}

}  // namespace

bool Compositor::Drawn::DiffersAtMostInImage(const Drawn& other) const {
    return Opacity == other.Opacity && Destination == other.Destination && Source == other.Source &&
           AreSame(CutBy.get(), other.CutBy.get());
}

bool Compositor::AreSame(const Plate* plates, const Plate* others) {
    for (; plates != others; plates = plates->Before.get(), others = others->Before.get()) {
        if (!plates || !others || plates->Box != others->Box)
            return false;
    }
    return true;
}

bool Compositor::Drawn::operator==(const Drawn& other) const {
    return Image.SharesPixelsWith(other.Image) && DiffersAtMostInImage(other);
}

RectI Compositor::ChangedArea(const Drawn& before, const Drawn& after, const RectI& page) {
    if (before == after)
        return {};
    const Bitmap &image = after.Image, &old = before.Image;
    const RectI &to = after.Destination, &from = after.Source;
    const bool samePlace = before.DiffersAtMostInImage(after) && image.Width() == old.Width() &&
                           image.Height() == old.Height() && image.Format() == old.Format();
    // One pixel of a scaled picture reaches into others.
    const bool scaled = to.Width != from.Width || to.Height != from.Height;
    if (!samePlace || scaled)
        return Unite(Intersect(before.Destination, page), Intersect(to, page));
    RectI changed =
        DifferingPixels(old, image, Intersect(from, {0, 0, image.Width(), image.Height()}));
    changed.X += to.X - from.X;
    changed.Y += to.Y - from.Y;
    return Intersect(changed, page);
}

std::vector<Compositor::Drawn> Compositor::ListLayers(Page& page) {
    std::vector<Drawn> drawn;
    std::shared_ptr<const Plate> plates;
    for (std::size_t i = 0; i < page.Layers.size(); ++i) {
        const IconLayer& layer = page.Layers[i];
        if (!layer.Visible)
            continue;
        if (i > 0 && page.Layers[i - 1].ClipNextLayer) {
            IconLayer& plate = page.Layers[i - 1];
            const int width = graphics::RoundToEven(plate.Rect.Width);
            const int height = graphics::RoundToEven(plate.Rect.Height);
            plate.Path = filters::IosPlatePath(width, height, plate.Rect.X, plate.Rect.Y);
            const RectF box{plate.Rect.X, plate.Rect.Y, static_cast<float>(width),
                            static_cast<float>(height)};
            plates = std::make_shared<Plate>(Plate{box, plates});
        }
        drawn.push_back({layer.Image,
                         layer.Opacity,
                         DrawnArea(layer.Rect),
                         {0, 0, layer.ImageWidth, layer.ImageHeight},
                         plates});
    }
    return drawn;
}

void Compositor::Draw(Bitmap& page, const std::vector<Drawn>& layers, std::size_t first,
                      std::size_t last, const RectI& area) const {
    graphics::DrawingContext context(page);
    context.SetInterpolationMode(interpolation_);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    const auto clip = graphics::Region::FromPixelRects({area});
    context.SetClipRegion(clip, graphics::CombineMode::Replace);
    const Plate* cutBy = nullptr;  // those that the clip has been cut to
    std::vector<graphics::ImageToDraw> images;
    for (std::size_t i = first; i < last; ++i) {
        const Drawn& layer = layers[i];
        if (Intersect(layer.Destination, area).IsEmpty())
            continue;
        if (layer.CutBy.get() != cutBy) {
            context.DrawImages(images);
            images.clear();
        }
        // All that cut a layer cut those above it, too.
        for (const Plate* plate = layer.CutBy.get(); plate != cutBy; plate = plate->Before.get()) {
            const RectF& box = plate->Box;
            context.SetClipPath(filters::IosPlatePath(static_cast<int>(box.Width),
                                                      static_cast<int>(box.Height), box.X, box.Y),
                                graphics::CombineMode::Intersect);
        }
        cutBy = layer.CutBy.get();
        images.push_back({layer.Image,
                          layer.Destination,
                          layer.Source,
                          {graphics::OpacityMatrix(layer.Opacity)}});
    }
    context.DrawImages(images);
}

// No pixel depends on what is drawn beside it.
void Compositor::DrawInBands(Bitmap& page, const std::vector<Drawn>& layers, std::size_t first,
                             std::size_t last, const RectI& area) const {
    const auto layerCount = static_cast<std::int64_t>(last - first);
    if (layerCount * area.Width * area.Height < kFewPixels || area.Height < 2 * kBandRows) {
        Draw(page, layers, first, last, area);
        return;
    }
    page.MutablePixels();  // from here on nobody copies them
    const auto bands = static_cast<std::size_t>((area.Height + kBandRows - 1) / kBandRows);
    graphics::ForEachInParallel(bands, [&](std::size_t band) {
        const RectI rows{area.X, area.Y + static_cast<int>(band) * kBandRows, area.Width,
                         kBandRows};
        Draw(page, layers, first, last, Intersect(rows, area));
    });
}

void Compositor::Update(Bitmap& page, const std::vector<Drawn>& layers) {
    const RectI whole{0, 0, page.Width(), page.Height()};
    const auto [newFirst, oldFirst] =
        std::mismatch(layers.begin(), layers.end(), drawn_.begin(), drawn_.end());
    const auto prefix = static_cast<std::size_t>(newFirst - layers.begin());
    const auto [newLast, oldLast] =
        std::mismatch(layers.rbegin(), std::make_reverse_iterator(newFirst), drawn_.rbegin(),
                      std::make_reverse_iterator(oldFirst));
    RectI damage;
    if (newLast.base() - newFirst == oldLast.base() - oldFirst) {
        auto before = oldFirst;
        for (auto after = newFirst; after != newLast.base(); ++before, ++after)
            damage = Unite(damage, ChangedArea(*before, *after, whole));
    } else {
        for (auto layer = newFirst; layer != newLast.base(); ++layer)
            damage = Unite(damage, Intersect(layer->Destination, whole));
        for (auto layer = oldFirst; layer != oldLast.base(); ++layer)
            damage = Unite(damage, Intersect(layer->Destination, whole));
    }
    if (damage.IsEmpty())
        return;

    // What lies below is flattened once it has stayed the same for two changes in a row: a drag.
    const bool known = prefix >= below_.size() && !below_.empty() &&
                       std::equal(below_.begin(), below_.end(), layers.begin());
    const bool dragging = prefix > 0 && prefix == lastPrefix_;
    if (dragging && !(known && below_.size() == prefix)) {
        belowPicture_ = Bitmap(page.Width(), page.Height());
        DrawInBands(belowPicture_, layers, 0, prefix, whole);
        below_.assign(layers.begin(), newFirst);
    }
    lastPrefix_ = prefix;

    std::size_t start = 0;
    if (dragging || known) {
        start = below_.size();
        for (int y = damage.Y; y < damage.Y + damage.Height; ++y)
            std::copy_n(belowPicture_.Row(y) + damage.X, damage.Width,
                        page.MutableRow(y) + damage.X);
    } else {
        for (int y = damage.Y; y < damage.Y + damage.Height; ++y)
            std::fill_n(page.MutableRow(y) + damage.X, damage.Width, graphics::Argb{0});
    }
    DrawInBands(page, layers, start, layers.size(), damage);
}

void Compositor::Compose(Page& page, graphics::InterpolationMode interpolation,
                         graphics::Bitmap& canvas) {
    page.Width = std::max(page.Width, 1);
    page.Height = std::max(page.Height, 1);
    std::vector<Drawn> layers = ListLayers(page);

    const bool sameSize = canvas.Width() == page.Width && canvas.Height() == page.Height;
    if (!sameSize || interpolation != interpolation_ || !isComplete_) {
        canvas = Bitmap(page.Width, page.Height);
        drawn_.clear();
        below_.clear();
        belowPicture_ = {};
        lastPrefix_ = 0;
    }
    interpolation_ = interpolation;
    isComplete_ = false;
    Update(canvas, layers);
    drawn_ = std::move(layers);
    isComplete_ = true;
}

bool LookAlike(const Page& page, const Page& other) {
    return page.Width == other.Width && page.Height == other.Height &&
           std::ranges::equal(
               page.Layers, other.Layers, [](const IconLayer& a, const IconLayer& b) {
                   return a.Image.SharesPixelsWith(b.Image) && a.Opacity == b.Opacity &&
                          a.Rect == b.Rect && a.ImageWidth == b.ImageWidth &&
                          a.ImageHeight == b.ImageHeight && a.Visible == b.Visible &&
                          a.ClipNextLayer == b.ClipNextLayer;
               });
}

graphics::Bitmap Flatten(Page page) {
    graphics::Bitmap canvas;
    Compositor().Compose(page, graphics::InterpolationMode::NearestNeighbor, canvas);
    return canvas;
}

}  // namespace orbelle::document
