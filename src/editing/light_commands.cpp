// Reflection, Shade and Drop Shadow.
#include "editing/style_commands.h"
#include "editing/style_frames.h"
#include "editing/tips.h"
#include "filters/create_region.h"
#include "filters/light_and_shadow.h"
#include "graphics/rotate_flip.h"

namespace orbelle::editing {

using document::IconLayer;

namespace {

constexpr float kReflectionOpacity = 0.4F;
constexpr float kShadeOpacity = 0.3F;
constexpr float kShadowOpacity = 0.4F;

void FillRect(IconLayer& layer, float x, float y) {
    layer.Rect = {x, y, static_cast<float>(layer.ImageWidth),
                  static_cast<float>(layer.ImageHeight)};
    layer.BaseRect = layer.Rect;
    layer.Visible = true;
}

}  // namespace

void Reflection(Editor& editor) {
    if (!editor.Page().HasSelection())
        return;
    const auto [layer, source] = OpenOverlay(editor, steps::Reflection);
    filters::ReflectionPicture picture = filters::Reflection(source.Image);
    graphics::ImageRotateFlip(picture.Image, graphics::RotateFlipType::RotateNoneFlipY);
    if (!picture.Image.IsEmpty())
        layer.Image = picture.Image;
    const float below = source.Rect.Height + source.Rect.Y;
    // Lower than the picture, which takes the margin into account
    // (docs/oddities.md, "Region of a reflection").
    filters::RebuildRegion(layer.Region, layer.Image, {source.Rect.X, below});
    layer.Opacity = kReflectionOpacity;
    FillRect(layer, source.Rect.X, below - 2 * static_cast<float>(picture.Margin) + 1);
    ShowStyle(editor);
    editor.Changed.Tip = {tips::Reflection};
}

void Shade(Editor& editor) {
    if (!editor.Page().HasSelection())
        return;
    const auto [layer, source] = OpenOverlay(editor, steps::Shade);
    if (!source.Image.IsEmpty())
        layer.Image = filters::GradientBlack(source.Image);
    layer.Opacity = kShadeOpacity;
    FillRect(layer, source.Rect.X, source.Rect.Y);
    filters::RebuildRegion(layer.Region, layer.Image, {layer.Rect.X, layer.Rect.Y});
    ShowStyle(editor);
    editor.Changed.Tip = {tips::Shade};
}

void DropShadow(Editor& editor) {
    constexpr int kRadius = 1;
    if (!editor.Page().HasSelection())
        return;
    IconLayer& shadow = OpenUnderlay(editor, steps::DropShadow).New;
    const graphics::Bitmap picture = filters::Shadow(shadow.Image, kRadius);
    if (!picture.IsEmpty())
        shadow.Image = picture;
    shadow.Region = {};
    shadow.Rect.X += 1;
    shadow.Rect.Y += 1;
    filters::RebuildRegion(shadow.Region, shadow.Image, {shadow.Rect.X, shadow.Rect.Y});
    // BaseRect stays the source's (docs/oddities.md, "Box of a shadow").
    shadow.Rect.Width += 2 * kRadius;
    shadow.Rect.Height += 2 * kRadius;
    shadow.ImageWidth = graphics::RoundToEven(shadow.Rect.Width);
    shadow.ImageHeight = graphics::RoundToEven(shadow.Rect.Height);
    shadow.Opacity = kShadowOpacity;
    ShowStyle(editor);
}

}  // namespace orbelle::editing
