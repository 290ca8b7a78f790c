#include "graphics/region.h"

#include <algorithm>
#include <cmath>
#include <variant>

#include "graphics/bitmap.h"
#include "graphics/pixel_set.h"
#include "graphics/scan_conversion.h"

namespace orbelle::graphics {
namespace {

// Where outlines are turned into pixels: twice the largest bitmap to every side, so that a hostile
// outline can't ask for the millions of rows of the whole plane.
constexpr RectI kOutlinePlane{-2 * kMaxBitmapSide, -2 * kMaxBitmapSide, 4 * kMaxBitmapSide,
                              4 * kMaxBitmapSide};

// A combination of more shapes is kept as its pixels: that bounds the depth of a tree, and a region
// that is joined with moved copies of itself doesn't double for ever.
constexpr int kMaxShapes = 256;

struct Everything {};

using Pixels = std::shared_ptr<const PixelSet>;

bool IsWholeMove(const Matrix& matrix) {
    const auto isWhole = [](double offset) {
        return std::abs(offset) <= kPlane.Width && offset == std::nearbyint(offset);
    };
    return matrix.ScaleX == 1 && matrix.ScaleY == 1 && isWhole(matrix.OffsetX) &&
           isWhole(matrix.OffsetY);
}

Edges Transformed(const Edges& edges, const Matrix& matrix) {
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

Pixels PixelsOf(const RectF& rect, const Matrix& matrix) {
    const RectI pixels = PixelsInside(Transformed(EdgesOf(rect), matrix), 0, kPlane);
    return MakePixels({&pixels, 1});
}

Pixels PixelsOf(Path path, const Matrix& matrix) {
    path.Transform(matrix);
    return MakePixels(PixelsInside(path.Flatten(), path.Fill(), 0, kOutlinePlane));
}

Pixels PixelsOf(const Pixels& pixels, const Matrix& matrix) {
    if (IsWholeMove(matrix)) {
        const auto dx = static_cast<int>(matrix.OffsetX), dy = static_cast<int>(matrix.OffsetY);
        return dx == 0 && dy == 0 ? pixels : std::make_shared<PixelSet>(*pixels, dx, dy);
    }
    std::vector<RectI> rects = pixels->Rects();
    for (RectI& rect : rects) {
        const Edges edges{double(rect.X), double(rect.Y), double(rect.X) + rect.Width,
                          double(rect.Y) + rect.Height};
        rect = PixelsInside(Transformed(edges, matrix), 0, kPlane);
    }
    return MakePixels(rects);
}

}  // namespace

// A shape and how it is moved and scaled, or two nodes and how they are combined. Nodes never
// change, so regions share them; only the pixels are filled in when they are first asked for.
struct Region::Node {
    using Pointer = std::shared_ptr<const Node>;
    struct Combination {
        Pointer First;
        Pointer Second;
        CombineMode Mode;
    };

    std::variant<Everything, RectF, Path, Pixels, Combination> Shape;
    Matrix Placement{};  // combinations leave it to their shapes
    int ShapeCount = 1;
    mutable Pixels Cache{};

    bool IsEverything() const { return std::holds_alternative<Everything>(Shape); }
    bool IsWholePixels() const {
        return std::holds_alternative<Pixels>(Shape) && IsWholeMove(Placement);
    }
    bool IsNothing() const {
        return std::holds_alternative<Pixels>(Shape) && std::get<Pixels>(Shape)->IsEmpty();
    }

    const Pixels& Covered() const;
    Pointer Transformed(const Matrix& matrix) const;
    static Pointer Combined(const Pointer& first, const Pointer& second, CombineMode mode);
};

namespace {

using NodePointer = std::shared_ptr<const Region::Node>;

template <typename Shape>
NodePointer MakeNode(Shape shape) {
    return std::make_shared<Region::Node>(Region::Node{std::move(shape)});
}

}  // namespace

const Pixels& Region::Node::Covered() const {
    if (Cache)
        return Cache;
    if (IsEverything())
        Cache = MakePixels({&kPlane, 1});
    else if (const auto* rect = std::get_if<RectF>(&Shape))
        Cache = PixelsOf(*rect, Placement);
    else if (const auto* path = std::get_if<Path>(&Shape))
        Cache = PixelsOf(*path, Placement);
    else if (const auto* pixels = std::get_if<Pixels>(&Shape))
        Cache = PixelsOf(*pixels, Placement);
    else if (const auto* both = std::get_if<Combination>(&Shape))
        Cache = std::make_shared<PixelSet>(*both->First->Covered(), *both->Second->Covered(),
                                           both->Mode);
    return Cache;
}

NodePointer Region::Node::Transformed(const Matrix& matrix) const {
    Node moved{.Shape = Shape, .Placement = Placement, .ShapeCount = ShapeCount};
    if (auto* both = std::get_if<Combination>(&moved.Shape)) {
        both->First = both->First->Transformed(matrix);
        both->Second = both->Second->Transformed(matrix);
    } else {
        moved.Placement.Scale(matrix.ScaleX, matrix.ScaleY, MatrixOrder::Append);
        moved.Placement.Translate(matrix.OffsetX, matrix.OffsetY, MatrixOrder::Append);
    }
    return std::make_shared<Node>(std::move(moved));
}

NodePointer Region::Node::Combined(const NodePointer& first, const NodePointer& second,
                                   CombineMode mode) {
    const bool keepsFirst = mode == CombineMode::Union || mode == CombineMode::Xor;
    if (mode == CombineMode::Replace || (first->IsNothing() && keepsFirst))
        return second;
    if (first->IsNothing() || (second->IsNothing() && mode != CombineMode::Intersect))
        return first;
    if (second->IsNothing())
        return second;
    const int shapes = first->ShapeCount + second->ShapeCount;
    if ((first->IsWholePixels() && second->IsWholePixels()) || shapes > kMaxShapes)
        return MakeNode(
            Pixels(std::make_shared<PixelSet>(*first->Covered(), *second->Covered(), mode)));
    return std::make_shared<Node>(
        Node{.Shape = Combination{first, second, mode}, .ShapeCount = shapes});
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

void Region::CombineRect(const RectF& rect, CombineMode mode) {
    Combine(FromRect(rect), mode);
}

void Region::Combine(const Region& other, CombineMode mode) {
    if (other.node_ && mode == CombineMode::Replace)
        node_ = other.node_;
    else if (other.node_ && node_)
        node_ = Node::Combined(node_, other.node_, mode);
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
        return ToRectF(Transformed(EdgesOf(*rect), node_->Placement));
    if (const auto* path = std::get_if<Path>(&node_->Shape))
        return path->IsEmpty()
                   ? RectF{}
                   : ToRectF(Transformed(EdgesOf(path->WorldBounds()), node_->Placement));
    return ToRectF(node_->Covered()->Bounds());
}

bool Region::IsVisiblePoint(float x, float y) const {
    return node_ &&
           (node_->IsEverything() || node_->Covered()->Contains(RoundHalfUp(x), RoundHalfUp(y)));
}

bool Region::IsEmpty() const {
    return !node_ || node_->Covered()->IsEmpty();
}

std::vector<RectI> Region::Rects(const RectI& within) const {
    if (!node_ || within.IsEmpty())
        return {};
    const PixelSet& pixels = *node_->Covered();
    const RectI bounds = pixels.Bounds();
    if (Intersect(bounds, within) == bounds)
        return pixels.Rects();
    return PixelSet(pixels, PixelSet({&within, 1}), CombineMode::Intersect).Rects();
}

std::vector<RectI> Region::Rects() const {
    return node_ ? node_->Covered()->Rects() : std::vector<RectI>{};
}

}  // namespace orbelle::graphics
