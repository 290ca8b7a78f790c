#include "editing/apply_layer_pixels.h"

#include "editing/view_commands.h"
#include "filters/blur_sharpen.h"
#include "filters/color_adjustments.h"
#include "filters/erasers.h"

namespace orbelle::editing {

using graphics::Bitmap;
using graphics::RoundToEven;

namespace {

// 0 to 350 for the slider's 0 to 100.
float HueOf(int slider) {
    return static_cast<float>(RoundToEven(slider * 3.5));
}

// -100 at 0, 0 at 40, 150 at 100.
int SaturationOf(int slider) {
    return slider < 40 ? RoundToEven((slider - 40) * 2.5) : RoundToEven(slider * 2.5 - 100);
}

// 0.2 at 0, 1 at 50, 5 at 100.
double ContrastOf(int slider) {
    const double c = slider * 2;
    if (c == 100)
        return 1;
    return c > 100 ? (c - 100) / 25 + 1 : 1 / (5 - c / 25);
}

// -250 to 250.
double BrightnessOf(int slider) {
    return slider * 5.0 - 250;
}

void Run(Bitmap& work, PixelFilter filter, const Controls& controls, int x, int y) {
    switch (filter) {
        case PixelFilter::Hue:
            return filters::HueColor(work, HueOf(controls.Hue.Value));
        case PixelFilter::BrightnessContrast:
            return filters::BrightnessColor(work, ContrastOf(controls.Contrast.Value),
                                            BrightnessOf(controls.Brightness.Value));
        case PixelFilter::Saturation:
            return filters::SaturationColor(work, SaturationOf(controls.Saturation.Value));
        case PixelFilter::PencilEraser:
            return filters::EraseColor(work, x, y);
        case PixelFilter::Sharpen:
            return filters::Sharpen(work, filters::kSharpenLevel);
        case PixelFilter::BrushEraser:
            return filters::EraseTool(work, x, y, controls.BrushSize.Value,
                                      controls.BrushOpacity.Value / 2);
    }
}

}  // namespace

void ApplyLayerPixels(Editor& editor, PixelFilter filter, const Bitmap& source, float x, float y) {
    document::IconLayer& layer = editor.Document.Selected();
    Bitmap work = CopyBitmap(source, layer.ImageWidth, layer.ImageHeight);
    if (!source.IsEmpty() && !work.IsEmpty()) {
        Run(work, filter, editor.Controls, RoundToEven(x), RoundToEven(y));
        layer.Image = work;
    }
    Compose(editor);
}

}  // namespace orbelle::editing
