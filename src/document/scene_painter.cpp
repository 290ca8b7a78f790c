#include "document/scene_painter.h"

#include <algorithm>
#include <cmath>
#include <vector>

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

struct PagePlace {
    float Left = 0;  // scene pixels
    float Top = 0;
    int Width = 0;
    int Height = 0;
};

PagePlace PlaceOnScene(const Bitmap& canvas, const View& view) {
    const int width = static_cast<int>(canvas.Width() * view.Zoom);
    const int height = static_cast<int>(canvas.Height() * view.Zoom);
    return {static_cast<float>((view.SceneWidth - width) * ScrollRatio(view.HorizontalScroll)),
            static_cast<float>((view.SceneHeight - height) * ScrollRatio(view.VerticalScroll)),
            width, height};
}

void DrawPageBackground(Bitmap& scene, Argb background, const RectF& page, float halfZoom) {
    DrawingContext context(scene);
    if (background != 0)
        context.FillRectangle(SolidBrush{background}, page);
    else
        DrawCheckerboard(scene,
                         {static_cast<int>(std::ceil(page.X)), static_cast<int>(std::ceil(page.Y)),
                          static_cast<int>(page.Width), static_cast<int>(page.Height)},
                         kCheckerDark, kCheckerLight);
    const SolidBrush shadow{kPageShadow};
    context.FillRectangle(shadow,
                          {page.X + page.Width - halfZoom, page.Y, kShadowWidth, page.Height});
    context.FillRectangle(shadow, {page.X, page.Y + page.Height - halfZoom,
                                   page.Width + kShadowWidth - halfZoom, kShadowWidth});
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

    const auto [left, top, width, height] = PlaceOnScene(canvas, view);
    const auto pageWidth = static_cast<float>(width);
    const auto pageHeight = static_cast<float>(height);

    // The background lies half a page pixel to the lower right of the picture
    // (docs/oddities.md, "Half a pixel").
    const auto halfZoom = static_cast<float>(RoundToEven(view.Zoom / 2));
    DrawPageBackground(scene, background, {left + halfZoom, top + halfZoom, pageWidth, pageHeight},
                       halfZoom);
    context.DrawRectangle({SolidBrush{kPageFrame}, 1}, {left, top, pageWidth + 1, pageHeight + 1});

    context.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
    context.DrawImageRectRectI(canvas, PageOnScene(canvas, view),
                               {0, 0, canvas.Width(), canvas.Height()});
    selection.DrawShade(context, {left, top, pageWidth, pageHeight}, {}, view.Zoom);
}

RectI PageOnScene(const Bitmap& canvas, const View& view) {
    const PagePlace page = PlaceOnScene(canvas, view);
    return {static_cast<int>(page.Left), static_cast<int>(page.Top), page.Width, page.Height};
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
