#include "editing/tools/draw_shape.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

#include "editing/scene_mapping.h"
#include "editing/tools/mirror.h"
#include "graphics/drawing_context.h"

namespace orbelle::editing {

using namespace graphics;

namespace {

// All in layer pixels. The shape lies one pixel to the upper left of the points it is dragged
// between and is one pixel larger than their distance and the pixel under the pointer ask for
// (docs/oddities.md, "Shapes to the upper left").
struct ShapeBox {
    PointF Start;
    PointF End;
    PointF Anchor;  // one pixel to the upper left of Start
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
};

ShapeBox BoxBetween(PointF start, PointF end, bool square) {
    ShapeBox box{start, end, {start.X - 1, start.Y - 1}};
    box.Left = std::min(start.X, end.X) - 1;
    box.Top = std::min(start.Y, end.Y) - 1;
    box.Width = std::max(start.X, end.X) - 1 - box.Left + 2;
    box.Height = std::max(start.Y, end.Y) - 1 - box.Top + 2;
    if (square)
        box.Width = box.Height = std::max(box.Width, box.Height);
    return box;
}

PointF From(PointF origin, PointF point) {
    return {point.X - origin.X, point.Y - origin.Y};
}

// Counted from `origin`, layer pixels.
ShapeBox BoxOf(const Editor& editor, const StrokeDrag& drag, const Pointer& pointer,
               PointF origin = {}) {
    const SceneMapping mapping = MappingOf(editor);
    const RectF& layer = editor.Page().Selected().Rect;
    return BoxBetween(From(origin, ScreenToLayer(mapping, layer, drag.Press.X, drag.Press.Y)),
                      From(origin, ScreenToLayer(mapping, layer, pointer.X, pointer.Y)),
                      pointer.IsShiftAlone());
}

bool IsRectangle(Tool tool) {
    return tool == Tool::Rectangle || tool == Tool::FilledRectangle;
}

// Around the middle of the shape's box, to its edges; a line's to those of a square.
Brush RadialBrush(const ShapeBox& box, Tool tool, Argb centre, Argb surround) {
    Path outline(FillMode::Winding);
    if (tool == Tool::Line) {
        const float side = std::max(box.Width, box.Height);
        outline.AddRectangle({box.Left, box.Top, side, side});
    } else if (IsRectangle(tool)) {
        outline.AddRectangle({box.Left, box.Top, box.Width, box.Height});
    } else {
        outline.AddEllipse({box.Left, box.Top, box.Width, box.Height});
    }
    const auto half = [](float side) { return static_cast<float>(RoundToEven(side) / 2); };
    return PathGradientBrush{
        outline, centre, {box.Left + half(box.Width), box.Top + half(box.Height)}, surround};
}

// The gradients run from the foreground to the background colour, whichever is in use, and the
// linear ones begin at the press.
std::optional<Brush> MakeBrush(const Editor& editor, const ShapeBox& box) {
    const Argb foreground = editor.Tools.Colors[0], background = editor.Tools.Colors[1];
    const auto linear = [&](RectF rect, LinearGradientMode mode) {
        return CreateLineBrushFromRect(rect, foreground, background, mode);
    };
    const PointF anchor = box.Anchor;
    switch (editor.Tools.InUse == Tool::Pencil ? FillKind::Solid : editor.Tools.FillKind) {
        case FillKind::Solid:
            break;
        case FillKind::HorizontalGradient:
            return linear({anchor.X, anchor.Y, box.Width - 2, box.Height},
                          LinearGradientMode::Horizontal);
        case FillKind::VerticalGradient:
            return linear({anchor.X, anchor.Y, box.Width, box.Height - 2},
                          LinearGradientMode::Vertical);
        case FillKind::RadialGradient:
            return RadialBrush(box, editor.Tools.InUse, foreground, background);
    }
    return SolidBrush{editor.Tools.ActiveColor == 0 ? foreground : background};
}

// Equal points draw nothing: a stroke that stays on one pixel is drawn to another place on it.
void DrawFreehand(DrawingContext& context, const Pen& pen, std::vector<PointF> points) {
    constexpr float kDotLength = 0.449F;
    if (std::adjacent_find(points.begin(), points.end(), std::not_equal_to()) == points.end() &&
        !points.empty())
        points.push_back({points.front().X + kDotLength, points.front().Y + kDotLength});
    context.DrawLines(pen, points);
}

// The shape alone, on a picture whose corner is the layer's pixel `origin`.
void DrawAt(PointF origin, const Editor& editor, const StrokeDrag& drag, Bitmap& image,
            const Pointer& pointer, SmoothingMode smoothing) {
    const Tool tool = editor.Tools.InUse;
    const ShapeBox box = BoxOf(editor, drag, pointer, origin);
    const std::optional<Brush> brush = MakeBrush(editor, box);
    if (!brush)
        return;

    DrawingContext context(image);
    context.SetSmoothingMode(smoothing);  // rectangles stay hard-edged all the same
    const float penWidth =
        tool == Tool::Pencil ? 1 : static_cast<float>(editor.Sliders.LineWidth.Value);
    const Pen pen{*brush, penWidth};
    const RectF whole{box.Left, box.Top, box.Width, box.Height};
    const RectF outline{box.Left, box.Top, box.Width - 1, box.Height - 1};
    switch (tool) {
        case Tool::Pencil: {
            std::vector<PointF> points = drag.Freehand;
            for (PointF& point : points)
                point = From(origin, point);
            return DrawFreehand(context, pen, std::move(points));
        }
        case Tool::Line:
            return context.DrawLine(pen, box.Start, box.End);
        case Tool::Rectangle:
            return context.DrawRectangle(pen, outline);
        case Tool::Ellipse:
            return context.DrawEllipse(pen, outline);
        case Tool::FilledRectangle:
            return context.FillRectangle(*brush, whole);
        case Tool::FilledEllipse:
            return context.FillEllipse(*brush, whole);
        default:
            return;
    }
}

}  // namespace

void DrawShape(const Editor& editor, const StrokeDrag& drag, Bitmap& image, const Pointer& pointer,
               SmoothingMode smoothing) {
    if (editor.Tools.Mirror == MirrorAxes())
        return DrawAt({}, editor, drag, image, pointer, smoothing);
    DrawMirrored(editor, image, [&](Bitmap& picture, PointF origin) {
        DrawAt(origin, editor, drag, picture, pointer, smoothing);
    });
}

RectF ShapeArea(const Editor& editor, const StrokeDrag& drag, const Pointer& pointer) {
    if (editor.Tools.InUse == Tool::Pencil)
        return {};
    const ShapeBox box = BoxOf(editor, drag, pointer);
    const RectF& layer = editor.Page().Selected().Rect;
    if (editor.Tools.InUse != Tool::Line)
        return {layer.X + box.Left, layer.Y + box.Top, box.Width, box.Height};
    const auto [left, right] = std::minmax(box.Start.X, box.End.X);
    const auto [top, bottom] = std::minmax(box.Start.Y, box.End.Y);
    return {layer.X + left, layer.Y + top, right - left + 1, bottom - top + 1};
}

}  // namespace orbelle::editing
