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
constexpr double kShadowStrength = 0.35;  // of black
constexpr int kShadowFade = 10;           // scene pixels
constexpr int kShadowDrop = 3;
constexpr Argb kPageFrame = MakeArgb(200, 0, 0, 0);

RectF ToRectF(const RectI& rect) {
    return {static_cast<float>(rect.X), static_cast<float>(rect.Y), static_cast<float>(rect.Width),
            static_cast<float>(rect.Height)};
}

// How much of the shadow is seen along one side of the page, for the scene pixels from `from` on:
// it comes up over the fade's width at the page's start, so that nothing of it is seen before the
// page, and goes down again over the same width beyond `end`.
std::vector<double> ShadowAlong(int from, int to, int start, int end) {
    std::vector<double> strengths;
    for (int at = from; at < to; ++at) {
        const double inside = std::min(at - start, end - 1 + kShadowFade - at) + 0.5;
        const double share = std::clamp(inside / kShadowFade, 0.0, 1.0);
        strengths.push_back(share * share * (3 - 2 * share));
    }
    return strengths;
}

// On a scene that is all of one colour.
void DrawPageShadow(Bitmap& scene, Argb ground, const RectI& page) {
    const int right = page.X + page.Width, bottom = page.Y + page.Height;
    const int fromX = std::max(page.X, 0), fromY = std::max(page.Y, 0);
    const int toX = std::min(right + kShadowFade, scene.Width());
    const int toY = std::min(bottom + kShadowDrop + kShadowFade, scene.Height());
    if (fromX >= toX || fromY >= toY || (right >= toX && bottom >= toY))
        return;
    const std::vector<double> across = ShadowAlong(fromX, toX, page.X, right);
    const std::vector<double> down =
        ShadowAlong(fromY, toY, page.Y + kShadowDrop, bottom + kShadowDrop);
    const auto shaded = [](unsigned channel, double light) {
        return static_cast<unsigned>(std::lround(channel * light));
    };
    // Along the middle of a side all rows, or all pixels of a row, are alike.
    const auto isLikeLast = [](const std::vector<double>& strengths, int i) {
        const auto at = static_cast<std::size_t>(i);
        return i > 0 && strengths[at] == strengths[at - 1];
    };
    for (int y = fromY; y < toY; ++y) {
        Argb* row = scene.MutableRow(y);
        const int begin = y < bottom ? std::clamp(right, fromX, toX) : fromX;
        if (isLikeLast(down, y - fromY) && y != bottom) {
            std::copy(scene.Row(y - 1) + begin, scene.Row(y - 1) + toX, row + begin);
            continue;
        }
        for (int x = begin; x < toX; ++x) {
            if (x > begin && isLikeLast(across, x - fromX)) {
                row[x] = row[x - 1];
                continue;
            }
            const double light = 1 - kShadowStrength * across[static_cast<std::size_t>(x - fromX)] *
                                         down[static_cast<std::size_t>(y - fromY)];
            row[x] = MakeArgb(255, shaded(RedOf(ground), light), shaded(GreenOf(ground), light),
                              shaded(BlueOf(ground), light));
        }
    }
}

void DrawPageBackground(Bitmap& scene, Argb background, const RectI& page) {
    if (background != 0)
        DrawingContext(scene).FillRectangle(SolidBrush{background}, ToRectF(page));
    else
        DrawCheckerboard(scene, page, kCheckerDark, kCheckerLight);
}

}  // namespace

void DrawScene(Bitmap& scene, const Bitmap& canvas, Argb background, const View& view,
               const Selection& selection, const SceneLooks& looks) {
    if (!view.ViewActive)
        return;
    if (scene.Width() != view.SceneWidth || scene.Height() != view.SceneHeight)
        scene = Bitmap(view.SceneWidth, view.SceneHeight);
    DrawingContext context(scene);
    context.SetInterpolationMode(looks.SmoothWhenSmall && view.Zoom < 1
                                     ? InterpolationMode::HighQuality
                                     : InterpolationMode::NearestNeighbor);
    context.Clear(looks.Ground);

    const RectI page = PageOnScene(canvas, view);
    const RectF rect = ToRectF(page);
    DrawPageShadow(scene, looks.Ground, page);
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
