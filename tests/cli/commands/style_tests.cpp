// The Style menu and the sliders of the layer panels.
#include "filters/color_adjustments.h"
#include "filters/light_and_shadow.h"
#include "filters/radial_light.h"
#include "rows.h"

namespace orbelle::cli {
namespace {

using graphics::Bitmap;
using testing::FilledPicture;

constexpr graphics::Argb kBlue = 0xFF3366CC;

// A page of 40 x 30 with a picture of 20 x 10 in its middle, over an empty layer.
class StyleCommands : public RowsTest {
protected:
    StyleCommands() {
        const Bitmap picture = FilledPicture(20, 10, kBlue);
        const Placed empty{FilledPicture(40, 30, 0), {}};
        WriteDocument("a.volf", 40, 30, {empty, {picture, {10, 10, 20, 10}}});
        WriteDocument("soft.volf", 40, 30, {empty, {picture, {10, 10, 20, 10}, 0.8F}});
        Bitmap foot = picture;  // a faint row and an empty one below the solid part
        for (int x = 0; x < 20; ++x) {
            foot.SetPixel(x, 8, 0x10FFFFFF);
            foot.SetPixel(x, 9, 0);
        }
        WriteDocument("foot.volf", 40, 30, {{foot, {10, 10, 20, 10}}});
        WriteDocument("corner.volf", 40, 30, {{picture, {0, 0, 20, 10}}});
        WriteDocument("square.volf", 100, 100,
                      {{FilledPicture(90, 90, 0xFF204060), {5, 5, 90, 90}}});
        Write("glass.png", FilledPicture(10, 8, 0xC0336699));
    }

    static std::string Filtered(Bitmap picture, const std::function<void(Bitmap&)>& filter) {
        filter(picture);
        return Argbs(picture);
    }
};

TEST_F(StyleCommands, LayersStepsAndTheOpacityShown) {
    const std::string over = "layers 3, selected 2, 1/size 20 10, undo ";
    const std::string under = "layers 3, selected 1, 2/size 20 10, 2@5,5 FF3366CC, undo 1, ";
    const std::string inPlace = "layers 2, selected 1, slider/opacity 80, undo 1";
    Check({
        {"crystal", "open soft.volf style crystal", over + "2, slider/opacity 100"},
        {"vista", "open soft.volf style vista", over + "1, slider/opacity 100"},
        {"fresh", "open soft.volf style fresh", over + "2, slider/opacity 100"},
        {"origami", "open soft.volf style origami-vertical", over + "2, slider/opacity 100"},
        {"origami", "open soft.volf style origami-horizontal", over + "2, slider/opacity 100"},
        {"reflection", "open soft.volf style reflection", over + "2, slider/opacity 40"},
        {"shade", "open soft.volf style shade", over + "2, slider/opacity 30"},
        {"ios", "open soft.volf style ios", under + "slider/opacity 100, 1/opacity 1"},
        {"shadow", "open soft.volf style shadow", under + "slider/opacity 40, 1/opacity 0.4"},
        {"mac", "open soft.volf style mac", inPlace},
        {"irradiation", "open soft.volf style irradiation", inPlace},
        {"blur", "open soft.volf style blur", inPlace},
        {"sharpen", "open soft.volf style sharpen", inPlace},
        {"disabled", "open soft.volf style disabled", inPlace},
        {"hot", "open soft.volf style hot", inPlace},
    });
}

TEST_F(StyleCommands, WhatTheyDraw) {
    const std::string vista = Filtered(FilledPicture(20, 10, kBlue), [](Bitmap& image) {
        filters::ThreeDStyle(image, filters::kStrongLight);
        filters::SaturationColor(image, 25);
    });
    Check({
        // (-1, 0) on a picture at (5, 5), visible from (2, 1) on; regions lie one to the left. The
        // page shows 198 of white over 0x20: (255 x 198 + 0x20 x 57) / 255.
        {"crystal's gloss", "open square.volf style crystal",
         "1/rect 4 5 90 42, 1/base_rect 4 5 90 42, 1/image 90 42, 1/opacity 1, 1/visible true, "
         "1@40,1 C6FFFFFF, page@44,6 FFCDD4DB, selected 1"},
        {"its region", "open square.volf style crystal tool move click 6 8", "selected 1"},
        {"beside it", "open square.volf style crystal tool move click 5 5", "selected 0"},
        {"crystal on a gloss", "open a.volf style crystal style crystal", "layers 4, selected 3"},
        {"crystal on nothing", "new 30 20 style crystal",
         "layers 2, 1/rect 0 0 30 20, 1/size 30 20, 1/region null, undo 2"},
        {"vista changes the picture, too", "open a.volf style vista", "1/argb " + vista},
        // Two rows below the solid part: 10 + 10 - 2 x 2 + 1. The strongest solid row is the third
        // now, of alpha 255 x 7 \ 10; the region begins with the second one, 16 x 8 \ 10.
        {"reflection stands on the foot", "open foot.volf style reflection",
         "1/rect 10 17 20 10, 1/opacity 0.4, 1@0,2 B23366CC, 1/region 9 21 20 8"},
        {"shade keeps the region", "open a.volf style shade",
         "2/rect 10 10 20 10, 2/opacity 0.3, 2@0,5 7F000000, 2/region 9 10 20 10"},
        {"shadow to the lower right", "open soft.volf style shadow",
         "1/rect 11 11 22 12, 1/base_rect 10 10 20 10, 1/image 22 12, 1/opacity 0.4, "
         "2/opacity 0.8, 2/rect 10 10 20 10"},
        {"a plate cuts the picture", "foreground #00FF00 open corner.volf style ios",
         "0/clip_next true, 0/rect 0 0 40 30, 0/image 40 30, 0/region -1 0 40 30, "
         "1/clip_next false, page@0,0 00000000, page@10,5 FF3366CC, page@10,20 FF00FF00"},
        {"a plate ends the selection", "open a.volf tool select-rectangle drag 1 1 3 3 style ios",
         "selection null"},
        {"folds take the foreground", "foreground #00FF00 open a.volf style origami-vertical",
         "2@0,0 00000000, 2@1,0 0200FF00, 2@1,1 0500FF00"},
        // Grey of 0x33 + 0x66 + 0xCC is 0.3 x 357 = 107.1; then 255 (107 / 255)^0.5 = 165.2.
        {"disabled, all layers", "open a.volf select 0 style disabled",
         "1@0,0 FFA5A5A5, 0@0,0 00000000"},
        // 255 (51 / 255)^0.65 = 89.6, 255 (102 / 255)^0.65 = 140.6, 255 (204 / 255)^0.65 = 220.6.
        {"hot, all layers", "open a.volf select 0 style hot", "1@0,0 FF5A8DDD"},
        {"the states need no visible layer", "open a.volf toggle-visible style hot", "undo 1"},
    });
}

TEST_F(StyleCommands, AdjustmentsStartFromThePress) {
    using namespace filters;
    const Bitmap glass = FilledPicture(10, 8, 0xC0336699);
    const auto adjusted = [&](const std::function<void(Bitmap&)>& filter) {
        return ", 0/argb " + Filtered(glass, filter);
    };
    const auto hue = [](float value) { return [=](Bitmap& image) { HueColor(image, value); }; };
    const auto saturation = [](int value) {
        return [=](Bitmap& image) { SaturationColor(image, value); };
    };
    const auto light = [](double contrast, double brightness) {
        return [=](Bitmap& image) { BrightnessColor(image, contrast, brightness); };
    };
    const std::string open = "open glass.png ";
    Check({
        {"steps of one drag do not add up", open + "hue 10 90 40",
         "0/hue 40, slider/hue 40, undo 1" + adjusted(hue(140))},
        {"drags do", open + "hue 40 hue 60", "0/hue 60, undo 2" + adjusted([&](Bitmap& image) {
                                                 hue(140)(image);
                                                 hue(210)(image);
                                             })},
        {"undo", open + "hue 40 hue 60 undo", "0/hue 40, slider/hue 40" + adjusted(hue(140))},
        // 3.5 and 10.5 are ties: to 4 and to 10.
        {"hue 1", open + "hue 1", "undo 1" + adjusted(hue(4))},
        {"hue 3", open + "hue 3", "undo 1" + adjusted(hue(10))},
        {"saturation 0", open + "saturation 0", "0/saturation 0" + adjusted(saturation(-100))},
        {"saturation 39", open + "saturation 39", "undo 1" + adjusted(saturation(-2))},
        {"saturation 41", open + "saturation 41", "undo 1" + adjusted(saturation(2))},
        {"saturation 100", open + "saturation 100", "undo 1" + adjusted(saturation(150))},
        {"brightness 60", open + "brightness 60", "0/brightness 60" + adjusted(light(1, 50))},
        {"brightness 0", open + "brightness 0", "undo 1" + adjusted(light(1, -250))},
        {"contrast 0", open + "contrast 0", "0/contrast 0" + adjusted(light(0.2, 0))},
        {"contrast 100", open + "contrast 100", "undo 1" + adjusted(light(5, 0))},
        {"contrast 50", open + "contrast 50", "undo 1" + adjusted(light(1, 0))},
        // The brightness of the last drag counts once more.
        {"brightness and contrast work together", open + "brightness 60 contrast 75",
         "0/brightness 60, 0/contrast 75, undo 2" + adjusted([&](Bitmap& image) {
             light(1, 50)(image);
             light(3, 50)(image);
         })},
        {"the part that is drawn is what remains", "open soft.volf hue 0", "1/size 20 10"},
        {"opacity", open + "opacity 80 20 50",
         "0/opacity 0.5, page@0,0 60336699, undo 1, slider/opacity 50"},
        {"undo", open + "opacity 80 50 undo", "0/opacity 1, slider/opacity 100, undo 0"},
        // The ratio stays, and the drag's end draws the picture.
        {"scale", open + "scale 60",
         "0/rect 0 0 20 16, 0/size 20 16, 0/image 20 16, 0/base_rect 0 0 20 16, 0/scale 0, "
         "0@0,0 C0336699, 0@19,15 C0336699, 0/region -1 0 20 16, slider/scale 50, undo 1"},
        {"a tall one", "new 4 8 scale 58", "0/rect 0 0 8 16, 0/size 8 16"},
        // 8 / 10 of 5 is 4 at first; the second step reads the ratio of 15 to 12.
        {"scaled away", open + "scale 55 40", "0/rect 0 0 0 0, 0/image 0 0, 0/size 10 8"},
    });
}

}  // namespace
}  // namespace orbelle::cli
