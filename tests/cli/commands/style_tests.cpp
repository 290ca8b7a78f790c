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

using Filter = std::function<void(Bitmap&)>;

std::string Filtered(Bitmap picture, const std::vector<Filter>& filters) {
    for (const Filter& filter : filters)
        filter(picture);
    return Argbs(picture);
}

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
};

TEST_F(StyleCommands, LayersStepsAndTheOpacityShown) {
    Check("open soft.volf style ", "widths 402020, selected 2, 1/size 20 10, undo ",
          {{"over", "crystal", "2, slider/opacity 100"},
           {"over", "vista", "1, slider/opacity 100"},
           {"over", "fresh", "2, slider/opacity 100"},
           {"over", "origami-vertical", "2, slider/opacity 100"},
           {"over", "reflection", "2, slider/opacity 40"},
           {"over", "shade", "2, slider/opacity 30"}});
    Check("open soft.volf style ", "selected 1, 2/size 20 10, 2@5,5 FF3366CC, undo 1, ",
          {{"under", "ios", "widths 404020, slider/opacity 100, 1/opacity 1"},
           {"under", "shadow", "widths 402220, slider/opacity 40, 1/opacity 0.4"}});
    for (const char* style : {"mac", "irradiation", "blur", "sharpen", "disabled", "hot"})
        Check("open soft.volf style ", "widths 4020, selected 1, slider/opacity 80, undo 1",
              {{"in place", style, ""}});
}

TEST_F(StyleCommands, WhatTheyDraw) {
    const std::string vista =
        Filtered(FilledPicture(20, 10, kBlue),
                 {[](Bitmap& image) { filters::ThreeDStyle(image, filters::kStrongLight); },
                  [](Bitmap& image) { filters::SaturationColor(image, 25); }});
    Check({
        // (-1, 0) on a picture at (5, 5), visible from (2, 1) on; regions lie one to the left. The
        // page shows 198 of white over 0x20: (255 x 198 + 0x20 x 57) / 255.
        {"crystal's gloss", "open square.volf style crystal",
         "1/rect 4 5 90 42, 1/base_rect 4 5 90 42, 1/image 90 42, 1/opacity 1, 1/visible true, "
         "1@40,1 C6FFFFFF, page@44,6 FFCDD4DB, selected 1"},
        {"its region", "open square.volf style crystal tool move click 6 8", "selected 1"},
        {"beside it", "open square.volf style crystal tool move click 5 5", "selected 0"},
        {"crystal on nothing", "new 30 20 style crystal",
         "widths 3030, 1/rect 0 0 30 20, 1/size 30 20, 1/region null, undo 2"},
        {"vista changes the picture, too", "open a.volf style vista", "1/argb " + vista},
        // Two rows below the solid part: 10 + 10 - 2 x 2 + 1. The strongest solid row is the third
        // now, of alpha 255 x 7 \ 10; the region begins with the second one, 16 x 8 \ 10.
        {"reflection stands on the foot", "open foot.volf style reflection",
         "1/rect 10 17 20 10, 1/opacity 0.4, 1@0,2 B23366CC, 1/region 9 21 20 8"},
        {"shade has no first row", "open a.volf style shade",
         "2/rect 10 10 20 10, 2/opacity 0.3, 2@0,5 7F000000, 2/region 9 11 20 9"},
        {"a shadow of nothing can't be picked",
         "open glass.png tool brush-eraser brush-size 60 brush-opacity 100 click 5 4 style shadow",
         "1/region -1 0 10 8, 0/region null"},
        {"shadow to the lower right", "open soft.volf style shadow",
         "1/rect 11 11 22 12, 1/base_rect 10 10 20 10, 1/image 22 12, 1/opacity 0.4, "
         "2/opacity 0.8, 2/rect 10 10 20 10"},
        {"a shadow is shown with the record it has",
         "open soft.volf hue 33 contrast 60 style shadow",
         "1/hue 33, slider/hue 33, 1/contrast 60, slider/contrast 60"},
        {"undone and redone, too", "open soft.volf hue 33 style shadow undo redo",
         "1/hue 33, slider/hue 33, 2/hue 33"},
        {"a plate cuts the picture", "foreground #00FF00 open corner.volf style ios",
         "0/clip_next true, 0/rect 0 0 40 30, 0/image 40 30, 0/region -1 0 40 30, "
         "1/clip_next false, page@0,0 00000000, page@10,5 FF3366CC, page@10,20 FF00FF00"},
        {"folds take the foreground", "foreground #00FF00 open a.volf style origami-vertical",
         "2@0,0 00000000, 2@1,0 0200FF00, 2@1,1 0500FF00"},
        // Grey of 0x33 + 0x66 + 0xCC is 0.3 x 357 = 107.1; then 255 (107 / 255)^0.5 = 165.2.
        {"all disabled", "open a.volf select 0 style disabled", "1@0,0 FFA5A5A5, 0@0,0 00000000"},
        // 255 (51 / 255)^0.65 = 89.6, 255 (102 / 255)^0.65 = 140.6, 255 (204 / 255)^0.65 = 220.6.
        {"all hot", "open a.volf select 0 style hot", "1@0,0 FF5A8DDD"},
    });
}

// It is a layer like any other then.
TEST_F(StyleCommands, APictureMergedIntoItsPlate) {
    Check("foreground #00FF00 open corner.volf style ios select 1 merge ", "",
          {{"looks the same", "copy",
            "widths 40, 0/clip_next false, 0/rect 0 0 40 30, 0@0,0 00000000, 0@10,5 FF3366CC, "
            "0@10,20 FF00FF00, clipboard@0,0 00000000, clipboard@10,5 FF3366CC, undo 3"},
           {"is mirrored", "flip horizontal",
            "page@29,5 FF3366CC, page@10,5 FF00FF00, page@39,0 00000000, undo 4"},
           {"is cut", "cut", "widths , clipboard/size 40 30, undo 4"},
           {"is cut in part", "tool select-rectangle drag 0 0 19 9 cut",
            "clipboard/size 20 10, page@10,5 00000000, page@10,20 FF00FF00"},
           {"changes its place", "import glass.png select 0 order front",
            "widths 1040, selected 1, page@10,5 FF3366CC"}});
}

TEST_F(StyleCommands, AdjustmentsStartFromThePress) {
    using namespace filters;
    const auto adjusted = [](const std::vector<Filter>& filters) {
        return ", 0/argb " + Filtered(FilledPicture(10, 8, 0xC0336699), filters);
    };
    const auto hue = [](float value) { return [=](Bitmap& image) { HueColor(image, value); }; };
    const auto saturation = [](int value) {
        return [=](Bitmap& image) { SaturationColor(image, value); };
    };
    const auto light = [](double contrast, double brightness) {
        return [=](Bitmap& image) { BrightnessColor(image, contrast, brightness); };
    };
    Check(
        "open glass.png ", "undo 1",
        {{"steps don't add up", "hue 10 90 40", ", 0/hue 40, slider/hue 40" + adjusted({hue(140)})},
         // 3.5 and 10.5 are ties: to 4 and to 10.
         {"a tie up", "hue 1", adjusted({hue(4)})},
         {"and down", "hue 3", adjusted({hue(10)})},
         {"none", "saturation 0", ", 0/saturation 0" + adjusted({saturation(-100)})},
         {"little", "saturation 39", adjusted({saturation(-2)})},
         {"much", "saturation 41", adjusted({saturation(2)})},
         {"most", "saturation 100", adjusted({saturation(150)})},
         {"bright", "brightness 60", ", 0/brightness 60" + adjusted({light(1, 50)})},
         {"dark", "brightness 0", adjusted({light(1, -250)})},
         {"even", "contrast 0", ", 0/contrast 0" + adjusted({light(0.2, 0)})},
         {"hard", "contrast 100", adjusted({light(5, 0)})},
         {"as it was", "contrast 50", adjusted({light(1, 0)})},
         {"opacity", "opacity 80 20 50", ", 0/opacity 0.5, page@0,0 60336699, slider/opacity 50"},
         // The ratio stays, and the drag's end draws the picture.
         {"scale", "scale 60",
          ", 0/rect 0 0 20 16, 0/size 20 16, 0/image 20 16, 0/base_rect 0 0 20 16, 0/scale 0, "
          "0@0,0 C0336699, 0@19,15 C0336699, 0/region -1 0 20 16, slider/scale 50"},
         {"through nothing and back", "scale 30 0 60",
          ", 0/rect 0 0 20 16, 0/image 20 16, 0@19,15 C0336699"},
         {"a pixel is left", "scale 55 0", ", 0/rect 0 0 1 1, 0/image 1 1, 0@0,0 C0336699"}});
    Check({
        {"drags do", "open glass.png hue 40 hue 60",
         "0/hue 60, undo 2" + adjusted({hue(140), hue(210)})},
        {"undo", "open glass.png hue 40 hue 60 undo",
         "0/hue 40, slider/hue 40" + adjusted({hue(140)})},
        // The brightness of the last drag counts once more.
        {"brightness and contrast work together", "open glass.png brightness 60 contrast 75",
         "0/brightness 60, 0/contrast 75, undo 2" + adjusted({light(1, 50), light(3, 50)})},
        {"undo", "open glass.png opacity 80 50 undo", "0/opacity 1, slider/opacity 100, undo 0"},
        // 10 + 7 / 2 is a tie: to 14.
        {"an oblong one has whole sides", "open a.volf scale 57",
         "1/rect 10 10 27 14, 1/base_rect 10 10 27 14, 1/image 27 14, page/pixels 10-23: 10-36"},
        {"a tall one", "new 4 8 scale 58", "0/rect 0 0 8 16, 0/size 8 16"},
    });
}

}  // namespace
}  // namespace orbelle::cli
