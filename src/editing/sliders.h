// The sliders of the window, as data: commands read and set them, the window mirrors them.
#pragma once

#include "document/icon_layer.h"
#include "document/page.h"

namespace orbelle::editing {

struct Slider {
    int Value = 0;
    int Minimum = 0;
    int Maximum = 100;
    int Neutral = 0;  // where it changes nothing
    int Label = 0;    // the number beside it, where that is not the value
    bool Enabled = false;

    // The value within the range.
    int Clamped(int value) const {
        return value < Minimum ? Minimum : value > Maximum ? Maximum : value;
    }
    bool operator==(const Slider&) const = default;
};

struct Sliders {
    // Of the selected layer.
    Slider Opacity{10, 0, 100, 100};
    Slider Hue{document::kNeutralHue, 0, 100, document::kNeutralHue};
    Slider Saturation{document::kNeutralSaturation, 0, 100, document::kNeutralSaturation};
    Slider Brightness{document::kNeutralBrightness, 0, 100, document::kNeutralBrightness};
    Slider Contrast{document::kNeutralContrast, 0, 100, document::kNeutralContrast};
    Slider Scale{50, 0, 100, 50};

    Slider PageWidth{1, 1, document::kMaxPageSide, 1};  // page pixels
    Slider PageHeight{1, 1, document::kMaxPageSide, 1};

    Slider ColorOpacity{100, 0, 100, 100};  // of the colour in use
    Slider LineWidth{1, 1, 255, 1};         // pixels
    Slider BrushOpacity{100, 1, 100, 100};
    Slider BrushSize{10, 1, 100, 1};

    bool operator==(const Sliders&) const = default;
};

}  // namespace orbelle::editing
