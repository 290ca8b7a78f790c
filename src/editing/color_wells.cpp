#include "editing/color_wells.h"

#include "editing/scene_mapping.h"

namespace orbelle::editing {

using graphics::Argb;

namespace {

constexpr double kAlphaPerPercent = 2.55;

Argb& WellColor(Editor& editor, int well) {
    return editor.Tools.Colors[static_cast<std::size_t>(well)];
}

// In percent.
int OpacityOf(Argb color) {
    return graphics::RoundToEven(graphics::AlphaOf(color) / kAlphaPerPercent);
}

Argb WithOpacity(Argb color, int opacity) {
    return graphics::SetAlphaByte(
        color, static_cast<unsigned>(graphics::RoundToEven(opacity * kAlphaPerPercent)));
}

}  // namespace

void ShowColorOpacity(Editor& editor) {
    editor.Sliders.ColorOpacity.Value = OpacityOf(WellColor(editor, editor.Tools.ActiveColor));
}

void UseColorWell(Editor& editor, int well) {
    editor.Tools.ActiveColor = well;
    ShowColorOpacity(editor);
}

Argb ColorToChoose(Argb present) {
    const int opacity = OpacityOf(present);
    return WithOpacity(present, opacity == 0 ? Sliders().ColorOpacity.Maximum : opacity);
}

void ChooseWellColor(Editor& editor, int well, Argb color) {
    WellColor(editor, well) = color;
    UseColorWell(editor, well);
}

void SetWellColor(Editor& editor, int well, Argb color) {
    WellColor(editor, well) = color;
    ShowColorOpacity(editor);
}

void ChangeColorOpacity(Editor& editor, int value) {
    editor.Sliders.ColorOpacity.Value = value;
    Argb& color = WellColor(editor, editor.Tools.ActiveColor);
    color = WithOpacity(color, value);
}

void ExchangeColor(Editor& editor) {
    std::swap(editor.Tools.Colors[0], editor.Tools.Colors[1]);
    ShowColorOpacity(editor);
}

void PickColor(Editor& editor, float x, float y) {
    const document::View& view = editor.View;
    if (x < 0 || y < 0 || x >= static_cast<float>(view.SceneWidth) ||
        y >= static_cast<float>(view.SceneHeight))
        return;
    const graphics::PointF pixel = ScreenToPage(MappingOf(editor), x, y);
    const auto color =
        editor.Canvas.GetPixel(graphics::RoundToEven(pixel.X), graphics::RoundToEven(pixel.Y));
    SetWellColor(editor, editor.Tools.ActiveColor, color.value_or(0));
}

}  // namespace orbelle::editing
