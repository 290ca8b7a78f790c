#include "document/scene_painter.h"

#include "graphics/checkerboard.h"
#include "graphics/drawing_context.h"

namespace orbelle::document {

using namespace graphics;

namespace {

constexpr Argb kCheckerLight = MakeArgb(255, 255, 255, 255);
constexpr Argb kCheckerDark = MakeArgb(255, 240, 240, 240);
constexpr Argb kPageShadow = MakeArgb(255, 128, 128, 128);
constexpr float kShadowWidth = 20;
constexpr Argb kPageFrame = MakeArgb(200, 0, 0, 0);

RectF ToRectF(const RectI& rect) {
    return {static_cast<float>(rect.X), static_cast<float>(rect.Y), static_cast<float>(rect.Width),
            static_cast<float>(rect.Height)};
}

void DrawPageBackground(Bitmap& scene, Argb background, const RectI& page) {
    DrawingContext context(scene);
    const RectF rect = ToRectF(page);
    if (background != 0)
        context.FillRectangle(SolidBrush{background}, rect);
    else
        DrawCheckerboard(scene, page, kCheckerDark, kCheckerLight);
    const SolidBrush shadow{kPageShadow};
    context.FillRectangle(shadow, {rect.X + rect.Width, rect.Y, kShadowWidth, rect.Height});
    context.FillRectangle(shadow,
                          {rect.X, rect.Y + rect.Height, rect.Width + kShadowWidth, kShadowWidth});
}

}  // namespace

void DrawScene(Bitmap& scene, const Bitmap& canvas, Argb background, const View& view,
               const Selection& selection) {
    if (!view.ViewActive)
        return;
    if (scene.Width() != view.SceneWidth || scene.Height() != view.SceneHeight)
        scene = Bitmap(view.SceneWidth, view.SceneHeight);
    DrawingContext context(scene);
    context.SetInterpolationMode(InterpolationMode::NearestNeighbor);
    context.Clear(kSceneColor);

    const RectI page = PageOnScene(canvas, view);
    const RectF rect = ToRectF(page);
    DrawPageBackground(scene, background, page);
    context.DrawRectangle({SolidBrush{kPageFrame}, 1},
                          {rect.X - 1, rect.Y - 1, rect.Width + 1, rect.Height + 1});

    context.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
    context.DrawImageRectRectI(canvas, page, {0, 0, canvas.Width(), canvas.Height()});
    selection.DrawShade(context, rect, {}, view.Zoom);
}

RectI PageOnScene(const Bitmap& canvas, const View& view) {
    return {PageOffset(view.HorizontalScroll, view.SceneWidth, canvas.Width(), view.Zoom),
            PageOffset(view.VerticalScroll, view.SceneHeight, canvas.Height(), view.Zoom),
            static_cast<int>(canvas.Width() * view.Zoom),
            static_cast<int>(canvas.Height() * view.Zoom)};
}

std::optional<RectI> ObjectFrame(const Page& page, const View& view) {
    constexpr int kMargin = 2;
    if (!page.HasSelection() || !page.Selected().Visible)
        return std::nullopt;
    const RectF& rect = page.Selected().Rect;
    return RectI{
        RoundToEven(PageOffsetX(page, view) + rect.X * view.Zoom) - kMargin,
        RoundToEven(PageOffsetY(page, view) + rect.Y * view.Zoom) - kMargin,
        RoundToEven(rect.Width * view.Zoom) + 2 * kMargin,
        RoundToEven(rect.Height * view.Zoom) + 2 * kMargin,
    };
}

}  // namespace orbelle::document
