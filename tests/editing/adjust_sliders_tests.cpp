#include "editing/adjust_sliders.h"

#include "editing/layer_commands.h"
#include "editing/undo_commands.h"
#include "editing_fixture.h"
#include "filters/color_adjustments.h"

namespace orbelle::editing {
namespace {

using graphics::Bitmap;
using graphics::RectF;

class AdjustSliders : public EditingTest {
protected:
    AdjustSliders() { OpenFile(Picture("a.png", 10, 8, 0xC0336699)); }

    void Drag(Adjustment adjustment, std::initializer_list<int> values) {
        PressAdjustment(editor);
        for (const int value : values)
            ChangeAdjustment(editor, adjustment, value);
        ReleaseAdjustment(editor, adjustment);
    }

    void DragScale(std::initializer_list<int> values) {
        PressScale(editor);
        for (const int value : values)
            ChangeScale(editor, value);
        ReleaseScale(editor);
    }
};

TEST_F(AdjustSliders, StepsOfOneDragStartFromThePressAndDragsAddUp) {
    const Bitmap original = Layer(0).Image;
    Bitmap once = original;
    filters::HueColor(once, 140);  // 40 x 3.5
    Drag(Adjustment::Hue, {10, 90, 40});
    EXPECT_TRUE(testing::SamePixels(Layer(0).Image, once));
    EXPECT_EQ(Layer(0).Hue, 40);
    EXPECT_EQ(editor.Controls.HueValue, "40");
    EXPECT_EQ(editor.History.UndoIndex(), 1);

    Bitmap twice = once;
    filters::HueColor(twice, 210);
    Drag(Adjustment::Hue, {60});
    EXPECT_TRUE(testing::SamePixels(Layer(0).Image, twice));
    EXPECT_TRUE(editor.AdjustSnapshot.IsEmpty());

    Undo(editor);
    EXPECT_TRUE(testing::SamePixels(Layer(0).Image, once));
    Undo(editor);
    EXPECT_TRUE(testing::SamePixels(Layer(0).Image, original));
}

TEST_F(AdjustSliders, PositionsBecomeArgumentsAsTheFiltersWantThem) {
    const auto after = [&](Adjustment adjustment, int value) {
        Drag(adjustment, {value});
        const Bitmap result = Layer(0).Image;
        Undo(editor);
        return result;
    };
    const Bitmap original = Layer(0).Image;
    const auto expect = [&](Adjustment adjustment, int value, auto filter) {
        Bitmap expected = original;
        filter(expected);
        EXPECT_TRUE(testing::SamePixels(after(adjustment, value), expected)) << value;
    };
    using namespace filters;
    // 3.5 and 10.5 are ties: to 4 and to 10.
    expect(Adjustment::Hue, 1, [](Bitmap& image) { HueColor(image, 4); });
    expect(Adjustment::Hue, 3, [](Bitmap& image) { HueColor(image, 10); });
    expect(Adjustment::Saturation, 0, [](Bitmap& image) { SaturationColor(image, -100); });
    expect(Adjustment::Saturation, 39, [](Bitmap& image) { SaturationColor(image, -2); });
    expect(Adjustment::Saturation, 41, [](Bitmap& image) { SaturationColor(image, 2); });
    expect(Adjustment::Saturation, 100, [](Bitmap& image) { SaturationColor(image, 150); });
    expect(Adjustment::Brightness, 60, [](Bitmap& image) { BrightnessColor(image, 1, 50); });
    expect(Adjustment::Contrast, 0, [](Bitmap& image) { BrightnessColor(image, 0.2, 0); });
    expect(Adjustment::Contrast, 100, [](Bitmap& image) { BrightnessColor(image, 5, 0); });
}

TEST_F(AdjustSliders, BrightnessAndContrastAreAppliedTogether) {
    Drag(Adjustment::Brightness, {60});
    Bitmap expected = Layer(0).Image;
    // The brightness of the last drag counts once more; contrast is (2 x 75 - 100) / 25 + 1.
    filters::BrightnessColor(expected, 3, 50);
    Drag(Adjustment::Contrast, {75});
    EXPECT_TRUE(testing::SamePixels(Layer(0).Image, expected));
    EXPECT_EQ(editor.Controls.ContrastValue, "25");
}

TEST_F(AdjustSliders, EachLayerRemembersItsSliders) {
    Drag(Adjustment::Contrast, {80});
    AddLayerCommand(editor);
    EXPECT_EQ(editor.Controls.Contrast.Value, 50);
    SelectLayer(editor, 0);
    EXPECT_EQ(editor.Controls.Contrast.Value, 80);
}

TEST_F(AdjustSliders, NothingHappensWithoutASelectedLayerOrAPress) {
    const Bitmap original = Layer(0).Image;
    ChangeAdjustment(editor, Adjustment::Hue, 50);
    EXPECT_TRUE(testing::SamePixels(Layer(0).Image, original));
    editor.Document.SelectedLayer = document::kNoLayer;
    Drag(Adjustment::Hue, {50});
    DragScale({70});
    PressOpacity(editor);
    EXPECT_EQ(editor.History.UndoIndex(), 0);
}

TEST_F(AdjustSliders, ScalingKeepsTheRatioAndIsDrawnAtTheRelease) {
    PressScale(editor);
    ChangeScale(editor, 60);
    EXPECT_EQ(Layer(0).Rect, (RectF{0, 0, 20, 16}));
    EXPECT_EQ(editor.Controls.ScaleValue, "10");
    EXPECT_EQ(Layer(0).Image.Width(), 10);
    ReleaseScale(editor);
    EXPECT_EQ(Layer(0).Image.Width(), 20);
    EXPECT_EQ(Layer(0).Image.Height(), 16);
    EXPECT_EQ(Layer(0).ImageWidth, 20);
    EXPECT_EQ(Layer(0).BaseRect, (RectF{0, 0, 20, 16}));
    EXPECT_EQ(Layer(0).Image.GetPixel(0, 0), 0xC0336699);
    EXPECT_EQ(Layer(0).Image.GetPixel(19, 15), 0xC0336699);
    EXPECT_EQ(Layer(0).Region.Bounds(), (RectF{-1, 0, 20, 16}));
    EXPECT_EQ(editor.Controls.Scale.Value, 50);
    EXPECT_EQ(editor.Controls.ScaleValue, "0");
    Undo(editor);
    EXPECT_EQ(Layer(0).Rect, (RectF{0, 0, 10, 8}));
    EXPECT_EQ(Layer(0).Image.Width(), 10);
}

// 8 / 10 of 5 is 4 at first; the second step reads the ratio of 15 to 12.
TEST_F(AdjustSliders, ALayerScaledAwayKeepsItsPicture) {
    DragScale({55, 40});
    EXPECT_EQ(Layer(0).Rect, (RectF{0, 0, 0, 0}));
    EXPECT_EQ(Layer(0).ImageWidth, 0);
    EXPECT_EQ(Layer(0).Image.Width(), 10);
}

}  // namespace
}  // namespace orbelle::editing
