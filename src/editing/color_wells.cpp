#include "editing/color_wells.h"

#include "document/scene_painter.h"
#include "graphics/drawing_context.h"

namespace orbelle::editing {

using graphics::Argb;

namespace {

constexpr double kAlphaPerPercent = 2.55;

Argb& WellColor(Editor& editor, int well) {
    return editor.Colors[static_cast<std::size_t>(well)];
}

unsigned AlphaOfOpacity(const Editor& editor) {
    return static_cast<unsigned>(
        graphics::RoundToEven(editor.Controls.ColorOpacity.Value * kAlphaPerPercent));
}

}  // namespace

void ShowColorOpacity(Editor& editor) {
    const unsigned alpha = graphics::AlphaOf(WellColor(editor, editor.ActiveColor));
    editor.Controls.ColorOpacity.Value = graphics::RoundToEven(alpha / kAlphaPerPercent);
}

void UseColorWell(Editor& editor, int well) {
    editor.ActiveColor = well;
    ShowColorOpacity(editor);
    editor.Host.ControlsChanged();
}

void AskWellColor(Editor& editor, int well) {
    Argb& color = WellColor(editor, well);
    if (const std::optional<Argb> chosen = editor.Host.AskColor(color))
        color = graphics::SetAlphaByte(*chosen, AlphaOfOpacity(editor));
    UseColorWell(editor, well);
}

void SetWellColor(Editor& editor, int well, Argb color) {
    WellColor(editor, well) = color;
    ShowColorOpacity(editor);
    editor.Host.ControlsChanged();
}

void ChangeColorOpacity(Editor& editor, int value) {
    editor.Controls.ColorOpacity.Value = value;
    Argb& color = WellColor(editor, editor.ActiveColor);
    color = graphics::SetAlphaByte(color, AlphaOfOpacity(editor));
    editor.Host.ControlsChanged();
}

void ExchangeColor(Editor& editor) {
    std::swap(editor.Colors[0], editor.Colors[1]);
    ShowColorOpacity(editor);
    editor.Host.ControlsChanged();
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
    SetWellColor(editor, editor.ActiveColor, *pixel.GetPixel(0, 0));
}

}  // namespace orbelle::editing
