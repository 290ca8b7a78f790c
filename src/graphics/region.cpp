#include "graphics/region.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <variant>

#include "graphics/bitmap.h"
#include "graphics/detail/pixel_set.h"
#include "graphics/detail/pixel_union.h"
#include "graphics/detail/scan_conversion.h"

namespace orbelle::graphics {
namespace {

// Where outlines are turned into pixels: twice the largest bitmap to every side, so that a hostile
// outline can't ask for the millions of rows of the whole plane.
constexpr RectI kOutlinePlane{-2 * kMaxBitmapSide, -2 * kMaxBitmapSide, 4 * kMaxBitmapSide,
                              4 * kMaxBitmapSide};

// A combination of more shapes is kept as its pixels: a region that is joined with moved copies of
// itself doesn't double for ever. So is a deeper tree, which is walked by recursion.
constexpr int kMaxShapes = 8192;
constexpr int kMaxDepth = 256;

// So many rows of shapes (16 MiB) are merged at once.
constexpr std::size_t kMaxGatheredRects = 1 << 20;

struct Everything {};

using Pixels = std::shared_ptr<const PixelSet>;
using Mask = std::shared_ptr<const PixelMask>;

bool IsWholeMove(const Matrix& matrix) {
    const auto isWhole = [](double offset) {
        return std::abs(offset) <= kPlane.Width && offset == std::nearbyint(offset);
    };
    return matrix.ScaleX == 1 && matrix.ScaleY == 1 && isWhole(matrix.OffsetX) &&
           isWhole(matrix.OffsetY);
}

Edges Scaled(const Edges& edges, const Matrix& matrix) {
    const auto [left, right] = std::minmax({matrix.ScaleX * edges.Left + matrix.OffsetX,
                                            matrix.ScaleX * edges.Right + matrix.OffsetX});
    const auto [top, bottom] = std::minmax({matrix.ScaleY * edges.Top + matrix.OffsetY,
                                            matrix.ScaleY * edges.Bottom + matrix.OffsetY});
    return {left, top, right, bottom};
}

RectF ToRectF(const Edges& edges) {
    return {static_cast<float>(edges.Left), static_cast<float>(edges.Top),
            static_cast<float>(edges.Right - edges.Left),
            static_cast<float>(edges.Bottom - edges.Top)};
}

RectF ToRectF(const RectI& rect) {
    return {static_cast<float>(rect.X), static_cast<float>(rect.Y), static_cast<float>(rect.Width),
            static_cast<float>(rect.Height)};
}

Pixels MakePixels(std::span<const RectI> rects) {
    return std::make_shared<PixelSet>(rects);
}

std::vector<RectI> RectsOf(Path path, const Matrix& matrix, const RectI& within) {
    path.Transform(matrix);
    return PixelsInside(path.Flatten(), path.Fill(), 0, Intersect(within, kOutlinePlane));
}

// A box around the pixels in `within`, found without them.
RectI BoxAround(const Path& path, const Matrix& matrix, const RectI& within) {
    const Edges own = EdgesOf(path.WorldBounds());
    const Edges box = Scaled(own, matrix);
    // The box and the points come out rounded.
    const auto reach = [](const Edges& edges) {
        return std::max({std::abs(edges.Left), std::abs(edges.Top), std::abs(edges.Right),
                         std::abs(edges.Bottom)});
    };
    const double scale = std::max(std::abs(matrix.ScaleX), std::abs(matrix.ScaleY));
    const double margin = 1 + 1e-6 * (reach(box) + scale * reach(own));
    const Edges wider{box.Left - margin, box.Top - margin, box.Right + margin, box.Bottom + margin};
    const bool isKnown = std::isfinite(wider.Left + wider.Top + wider.Right + wider.Bottom);
    return isKnown ? PixelsInside(wider, 0, within) : within;
}

Pixels PixelsOf(const Pixels& pixels, const Matrix& matrix) {
    if (IsWholeMove(matrix)) {
        const auto dx = static_cast<int>(matrix.OffsetX), dy = static_cast<int>(matrix.OffsetY);
        return dx == 0 && dy == 0 ? pixels : std::make_shared<PixelSet>(*pixels, dx, dy);
    }
    std::vector<RectI> rects = pixels->Rects();
    for (RectI& rect : rects) {
        const Edges edges{double(rect.X), double(rect.Y), double(rect.Right()),
                          double(rect.Bottom())};
        rect = PixelsInside(Scaled(edges, matrix), 0, kPlane);
    }
    return MakePixels(rects);
}

// The pixels of rectangles that overlap, such as the rows of many shapes.
Pixels MergedPixels(std::vector<RectI> rects) {
    const auto sameRows = [](const RectI& a, const RectI& b) {
        return a.Y == b.Y && a.Height == b.Height;
    };
    std::sort(rects.begin(), rects.end(), [](const RectI& a, const RectI& b) {
        return std::tie(a.Y, a.Height, a.X) < std::tie(b.Y, b.Height, b.X);
    });
    std::vector<RectI> merged;
    for (const RectI& rect : rects) {
        if (!merged.empty() && sameRows(merged.back(), rect) && rect.X <= merged.back().Right())
            merged.back() = Unite(merged.back(), rect);
        else
            merged.push_back(rect);
    }
    return MakePixels(merged);
}

}  // namespace

// A shape and how it is moved and scaled, or a combination of nodes from the first to the last.
// Regions share nodes, which change only while a single region holds them; the pixels are filled in
// when they are asked for.
struct Region::Node {
    struct Part {
        CombineMode Mode;  // the first one's joins it to nothing
        std::shared_ptr<const Node> Shape;
    };
    using Combination = std::vector<Part>;

    std::variant<Everything, RectF, Path, Pixels, Mask, Combination> Shape;
    Matrix Placement{};  // combinations leave it to their parts
    int ShapeCount = 1;
    int Depth = 0;
    mutable Pixels Cache{};
    mutable RectI CachedWithin{};

    bool IsEverything() const { return std::holds_alternative<Everything>(Shape); }
    bool IsWholePixels() const {
        return std::holds_alternative<Pixels>(Shape) && IsWholeMove(Placement);
    }
    bool IsNothing() const {
        return std::holds_alternative<Pixels>(Shape) && std::get<Pixels>(Shape)->IsEmpty();
    }
    bool Knows(const RectI& area) const { return Cache && Intersect(CachedWithin, area) == area; }

    // Null unless the shape is a mask that was only moved and lies on the plane with all its
    // pixels.
    const PixelMask* MovedMask() const;
    RectI BoundsOfMask(const PixelMask& mask) const;
    bool ContainsInMask(const PixelMask& mask, int x, int y) const;

    // A set that has the node's pixels in `within`, a part of the plane, and any others outside.
    const Pixels& Covered(const RectI& within) const;
    void AppendRects(std::vector<RectI>& rects, const RectI& within) const;
    // A box around the pixels in `within`, not always the smallest.
    RectI BoxWithin(const RectI& within) const;
    std::shared_ptr<Node> Transformed(const Matrix& matrix) const;
};

namespace {

using Node = Region::Node;

template <typename Shape>
std::shared_ptr<Node> MakeNode(Shape shape) {
    return std::make_shared<Node>(Node{std::move(shape)});
}

// The pixels of shapes that are joined; null where a list of their rows costs less.
Pixels JoinedBits(std::span<const Node::Part> parts, const RectI& within) {
    std::vector<RectI> boxes;
    boxes.reserve(parts.size());
    for (const Node::Part& part : parts)
        boxes.push_back(part.Shape->BoxWithin(within));
    const RectI area = BoxAround(boxes);
    if (!PixelUnion::IsWorthwhile(area, parts.size()))
        return nullptr;
    PixelUnion joined(area);
    std::vector<RectI> rects;
    for (std::size_t i = 0; i < parts.size() && !joined.IsWhole(); ++i) {
        // Of shapes that lie on each other most add nothing.
        if (joined.Covers(boxes[i]))
            continue;
        rects.clear();
        parts[i].Shape->AppendRects(rects, area);
        for (const RectI& rect : rects)
            joined.Add(rect);
    }
    return MakePixels(joined.Rects());
}

Pixels PixelsOf(const Node::Combination& parts, const RectI& within) {
    Pixels result;
    for (auto part = parts.begin(); part != parts.end();) {
        const CombineMode mode = part->Mode;
        auto end = part + 1;
        // Shapes that are joined, or cut off, one after the other are merged at once.
        if (mode == CombineMode::Union || mode == CombineMode::Exclude)
            end =
                std::find_if(end, parts.end(), [&](const auto& next) { return next.Mode != mode; });
        Pixels operand;
        if (end - part == 1) {
            operand = part->Shape->Covered(within);
            ++part;
        } else if ((operand = JoinedBits({part, end}, within))) {
            part = end;
        } else {
            std::vector<RectI> rects;
            for (; part != end && rects.size() < kMaxGatheredRects; ++part)
                part->Shape->AppendRects(rects, within);
            operand = MergedPixels(std::move(rects));
        }
        if (result)
            result = std::make_shared<PixelSet>(*result, *operand, mode);
        else
            result = std::move(operand);
    }
    return result;
}

void CombineInto(std::shared_ptr<Node>& first, const std::shared_ptr<Node>& second,
                 CombineMode mode) {
    const bool keepsSecond = mode == CombineMode::Union || mode == CombineMode::Xor;
    if (first->IsNothing()) {
        if (keepsSecond)
            first = second;
        return;
    }
    if (second->IsNothing()) {
        if (mode == CombineMode::Intersect)
            first = second;
        return;
    }
    auto* parts = std::get_if<Node::Combination>(&first->Shape);
    const bool appends = parts && first.use_count() == 1;
    const int shapes = first->ShapeCount + second->ShapeCount;
    const int depth = std::max(first->Depth + (appends ? 0 : 1), second->Depth + 1);
    if ((first->IsWholePixels() && second->IsWholePixels()) || shapes > kMaxShapes ||
        depth > kMaxDepth) {
        first = MakeNode(Pixels(
            std::make_shared<PixelSet>(*first->Covered(kPlane), *second->Covered(kPlane), mode)));
        return;
    }
    if (appends)
        parts->push_back({mode, second});
    else
        first = MakeNode(Node::Combination{{CombineMode::Union, first}, {mode, second}});
    first->ShapeCount = shapes;
    first->Depth = depth;
    first->Cache = {};
}

}  // namespace

const PixelMask* Node::MovedMask() const {
    const auto* mask = std::get_if<Mask>(&Shape);
    if (!mask || Placement.ScaleX != 1 || Placement.ScaleY != 1)
        return nullptr;
    const RectI whole = BoundsOfMask(**mask);
    // At the plane's end pixels may have been cut off.
    return whole.X > kPlane.X && whole.Y > kPlane.Y && whole.Right() < kPlane.Right() &&
                   whole.Bottom() < kPlane.Bottom()
               ? mask->get()
               : nullptr;
}

RectI Node::BoundsOfMask(const PixelMask& mask) const {
    const RectI box = mask.Bounds();
    return PixelsInside(
        Scaled({double(box.X), double(box.Y), double(box.Right()), double(box.Bottom())},
               Placement),
        0, kPlane);
}

bool Node::ContainsInMask(const PixelMask& mask, int x, int y) const {
    return mask.Contains(static_cast<std::int64_t>(std::floor(x - Placement.OffsetX)),
                         static_cast<std::int64_t>(std::floor(y - Placement.OffsetY)));
}

const Pixels& Node::Covered(const RectI& within) const {
    if (Knows(within))
        return Cache;
    if (const auto* pixels = std::get_if<Pixels>(&Shape)) {
        Cache = PixelsOf(*pixels, Placement);
        CachedWithin = kPlane;
        return Cache;
    }
    if (const auto* mask = std::get_if<Mask>(&Shape)) {
        Cache = PixelsOf(MakePixels((*mask)->Rects()), Placement);
        CachedWithin = kPlane;
        return Cache;
    }
    if (const auto* parts = std::get_if<Combination>(&Shape)) {
        Cache = PixelsOf(*parts, within);
    } else {
        std::vector<RectI> rects;
        AppendRects(rects, within);
        Cache = MakePixels(rects);
    }
    CachedWithin = within;
    return Cache;
}

void Node::AppendRects(std::vector<RectI>& rects, const RectI& within) const {
    std::vector<RectI> own;
    if (IsEverything())
        own = {within};
    else if (const auto* rect = std::get_if<RectF>(&Shape))
        own = {PixelsInside(Scaled(EdgesOf(*rect), Placement), 0, within)};
    else if (const auto* path = std::get_if<Path>(&Shape))
        own = RectsOf(*path, Placement, within);
    else
        own = Covered(within)->Rects();
    rects.insert(rects.end(), own.begin(), own.end());
}

RectI Node::BoxWithin(const RectI& within) const {
    if (IsEverything())
        return within;
    if (const auto* rect = std::get_if<RectF>(&Shape))
        return PixelsInside(Scaled(EdgesOf(*rect), Placement), 0, within);
    if (const auto* path = std::get_if<Path>(&Shape))
        return BoxAround(*path, Placement, within);
    return Intersect(Covered(within)->Bounds(), within);
}

std::shared_ptr<Node> Node::Transformed(const Matrix& matrix) const {
    auto moved = std::make_shared<Node>(
        Node{.Shape = Shape, .Placement = Placement, .ShapeCount = ShapeCount, .Depth = Depth});
    if (auto* parts = std::get_if<Combination>(&moved->Shape)) {
        for (Part& part : *parts)
            part.Shape = part.Shape->Transformed(matrix);
    } else {
        moved->Placement.Scale(matrix.ScaleX, matrix.ScaleY, MatrixOrder::Append);
        moved->Placement.Translate(matrix.OffsetX, matrix.OffsetY, MatrixOrder::Append);
    }
    return moved;
}

Region Region::Infinite() {
    return Region(MakeNode(Everything{}));
}

Region Region::Empty() {
    return Region(MakeNode(Pixels(std::make_shared<PixelSet>())));
}

Region Region::FromRect(const RectF& rect) {
    const Edges edges = EdgesOf(rect);
    // Written so that not-a-number fails.
    const bool hasArea = edges.Left < edges.Right && edges.Top < edges.Bottom;
    return hasArea ? Region(MakeNode(rect)) : Empty();
}

Region Region::FromPath(const Path& path) {
    return path.IsNull() ? Region() : Region(MakeNode(path));
}

Region Region::FromPixelRects(std::vector<RectI> rects) {
    return Region(MakeNode(MakePixels(rects)));
}

Region Region::FromMask(PixelMask mask) {
    return mask.Bounds().IsEmpty()
               ? Empty()
               : Region(MakeNode(Mask(std::make_shared<PixelMask>(std::move(mask)))));
}

void Region::CombineRect(const RectF& rect, CombineMode mode) {
    Combine(FromRect(rect), mode);
}

void Region::Combine(const Region& other, CombineMode mode) {
    const std::shared_ptr<Node> second = other.node_;  // also counts a region joined with itself
    if (second && mode == CombineMode::Replace)
        node_ = second;
    else if (second && node_)
        CombineInto(node_, second, mode);
}

void Region::Translate(float dx, float dy) {
    Transform({.OffsetX = dx, .OffsetY = dy});
}

void Region::Transform(const Matrix& matrix) {
    if (node_)
        node_ = node_->Transformed(matrix);
}

RectF Region::Bounds() const {
    if (!node_)
        return {};
    if (const auto* rect = std::get_if<RectF>(&node_->Shape))
        return ToRectF(Scaled(EdgesOf(*rect), node_->Placement));
    if (const auto* path = std::get_if<Path>(&node_->Shape))
        return path->IsEmpty() ? RectF{}
                               : ToRectF(Scaled(EdgesOf(path->WorldBounds()), node_->Placement));
    if (const PixelMask* mask = node_->MovedMask())
        return ToRectF(node_->BoundsOfMask(*mask));
    return ToRectF(node_->Covered(kPlane)->Bounds());
}

bool Region::IsVisiblePoint(float x, float y) const {
    if (!node_ || node_->IsEverything())
        return node_ != nullptr;
    const RectI pixel{RoundHalfUp(x), RoundHalfUp(y), 1, 1};
    if (const PixelMask* mask = node_->MovedMask())
        return node_->ContainsInMask(*mask, pixel.X, pixel.Y);
    // Many points may be asked for: one on its own isn't worth remembering.
    return node_->Covered(node_->Knows(pixel) ? pixel : kPlane)->Contains(pixel.X, pixel.Y);
}

bool Region::IsEmpty() const {
    return !node_ || (!node_->MovedMask() && node_->Covered(kPlane)->IsEmpty());
}

std::vector<RectI> Region::Rects(const RectI& within) const {
    if (!node_ || within.IsEmpty())
        return {};
    const PixelSet& pixels = *node_->Covered(Intersect(within, kPlane));
    const RectI bounds = pixels.Bounds();
    if (Intersect(bounds, within) == bounds)
        return pixels.Rects();
    return PixelSet(pixels, PixelSet({&within, 1}), CombineMode::Intersect).Rects();
}

std::vector<RectI> Region::Rects() const {
    return node_ ? node_->Covered(kPlane)->Rects() : std::vector<RectI>{};
}

}  // namespace orbelle::graphics
