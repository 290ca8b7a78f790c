#include "editing/color_wells.h"

#include "document/scene_painter.h"
#include "graphics/drawing_context.h"

namespace orbelle::editing {

using graphics::Argb;

namespace {

constexpr double kAlphaPerPercent = 2.55;

Argb& WellColor(Editor& editor, int well) {
    return editor.Tools.Colors[static_cast<std::size_t>(well)];
}

unsigned AlphaOfOpacity(const Editor& editor) {
    return static_cast<unsigned>(
        graphics::RoundToEven(editor.Sliders.ColorOpacity.Value * kAlphaPerPercent));
}

}  // namespace

void ShowColorOpacity(Editor& editor) {
    const unsigned alpha = graphics::AlphaOf(WellColor(editor, editor.Tools.ActiveColor));
    editor.Sliders.ColorOpacity.Value = graphics::RoundToEven(alpha / kAlphaPerPercent);
}

void UseColorWell(Editor& editor, int well) {
    editor.Tools.ActiveColor = well;
    ShowColorOpacity(editor);
}

void ChooseWellColor(Editor& editor, int well, Argb color) {
    WellColor(editor, well) = graphics::SetAlphaByte(color, AlphaOfOpacity(editor));
    UseColorWell(editor, well);
}

void SetWellColor(Editor& editor, int well, Argb color) {
    WellColor(editor, well) = color;
    ShowColorOpacity(editor);
}

void ChangeColorOpacity(Editor& editor, int value) {
    editor.Sliders.ColorOpacity.Value = value;
    Argb& color = WellColor(editor, editor.Tools.ActiveColor);
    color = graphics::SetAlphaByte(color, AlphaOfOpacity(editor));
}

void ExchangeColor(Editor& editor) {
    std::swap(editor.Tools.Colors[0], editor.Tools.Colors[1]);
    ShowColorOpacity(editor);
}

void PickColor(Editor& editor, float x, float y) {
    const int column = graphics::RoundToEven(x), row = graphics::RoundToEven(y);
    if (column < 0 || row < 0 || column >= editor.View.SceneWidth || row >= editor.View.SceneHeight)
        return;
    // Only the one pixel of the scene is drawn.
    graphics::Bitmap pixel(1, 1);
    graphics::DrawingContext context(pixel);
    context.SetInterpolationMode(graphics::InterpolationMode::NearestNeighbor);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    const graphics::Bitmap& canvas = editor.Canvas;
    graphics::RectI page = document::PageOnScene(canvas, editor.View);
    page.X -= column;
    page.Y -= row;
    context.DrawImageRectRectI(canvas, page, {0, 0, canvas.Width(), canvas.Height()});
    SetWellColor(editor, editor.Tools.ActiveColor, *pixel.GetPixel(0, 0));
}

}  // namespace orbelle::editing
