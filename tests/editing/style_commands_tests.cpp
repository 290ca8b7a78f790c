#include "editing/style_commands.h"

#include "editing/menu_state.h"
#include "editing/undo_commands.h"
#include "editing_fixture.h"
#include "filters/color_adjustments.h"
#include "filters/light_and_shadow.h"
#include "filters/radial_light.h"
#include "filters/state_looks.h"
#include "graphics/rotate_flip.h"

namespace orbelle::editing {
namespace {

using filters::Fold;
using graphics::Bitmap;
using graphics::RectF;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

// A page of 40 x 30 with a picture of 20 x 10 at (10, 10), both layers visible, the picture
// selected.
class StyleCommands : public EditingTest {
protected:
    StyleCommands() {
        NewPage(40, 30);
        host.File = Picture("a.png", 20, 10, 0xFF3366CC);
        Import(editor);
        host.Tips.clear();
        steps = editor.History.UndoIndex();
    }

    int steps = 0;  // undo steps before the style
};

struct Bookkeeping {
    const char* Name;
    void (*Command)(Editor&);
    int NewLayers;
    int Selected;
    int UndoSteps;
    int Opacity;  // of the slider
    std::vector<int> Tips;
};

TEST_F(StyleCommands, EachMakesItsLayersStepsAndTips) {
    const Bookkeeping cases[] = {
        {"Crystal", Crystal, 1, 2, 2, 100, {9}},
        {"Vista", Vista, 1, 2, 1, 100, {11}},
        {"Fresh", Fresh, 1, 2, 2, 100, {11}},
        {"Origami", [](Editor& e) { Origami(e, Fold::Vertical); }, 1, 2, 2, 100, {9}},
        {"Reflection", Reflection, 1, 2, 2, 40, {8}},
        {"Shade", Shade, 1, 2, 2, 30, {10}},
        {"iOS", iOS, 1, 1, 1, 100, {14}},
        {"DropShadow", DropShadow, 1, 1, 1, 40, {}},
        {"Mac", Mac, 0, 1, 1, 100, {2}},
        {"Irradiation", Irradiation, 0, 1, 1, 100, {2}},
        {"Blur", Blur, 0, 1, 1, 100, {}},
        {"Sharpen", Sharpen, 0, 1, 1, 100, {}},
        {"Disabled", DisabledState, 0, 1, 1, 100, {2}},
        {"Hot", HotState, 0, 1, 1, 100, {2}},
    };
    const Bitmap before = Layer(1).Image;
    for (const Bookkeeping& c : cases) {
        SCOPED_TRACE(c.Name);
        host.Tips.clear();
        c.Command(editor);
        EXPECT_EQ(editor.Document.LayerCount(), 2 + c.NewLayers);
        EXPECT_EQ(editor.Document.SelectedLayer, c.Selected);
        EXPECT_EQ(editor.History.UndoIndex() - steps, c.UndoSteps);
        EXPECT_EQ(editor.Controls.Opacity.Value, c.Opacity);
        EXPECT_THAT(host.Tips, ElementsAreArray(c.Tips));
        EXPECT_THAT(host.Messages, ElementsAre());
        EXPECT_EQ(host.Busy, 0);
        for (int i = 0; i < c.UndoSteps; ++i)
            Undo(editor);
        EXPECT_EQ(editor.Document.LayerCount(), 2);
        EXPECT_TRUE(testing::SamePixels(Layer(1).Image, before));
    }
}

TEST_F(StyleCommands, NothingHappensWithoutASelectedLayer) {
    editor.Document.SelectedLayer = document::kNoLayer;
    for (const auto command : {Crystal, Vista, Fresh, Reflection, Shade, iOS, DropShadow, Mac,
                               Irradiation, Blur, Sharpen})
        command(editor);
    EXPECT_EQ(editor.History.UndoIndex(), steps);
    EXPECT_EQ(editor.Document.LayerCount(), 2);
}

TEST_F(StyleCommands, TheMenuFollowsTheSelectedLayerButForFreshAndTheStates) {
    Layer(1).Visible = false;
    OpenStyleMenu(editor);
    EXPECT_FALSE(editor.Controls.m_Shadow.Enabled);
    EXPECT_FALSE(editor.Controls.m_Sharpen.Enabled);
    EXPECT_TRUE(editor.Controls.m_freshstyle.Enabled);
    EXPECT_TRUE(editor.Controls.m_Hot.Enabled);
}

TEST_F(StyleCommands, ReflectionStandsOnThePicturesFoot) {
    Layer(1).Image.SetPixel(3, 9, 0);
    for (int x = 0; x < 20; ++x)
        Layer(1).Image.SetPixel(x, 8, 0x10FFFFFF), Layer(1).Image.SetPixel(x, 9, 0);
    Reflection(editor);
    // Two rows below the solid part: 10 + 10 - 2 x 2 + 1.
    EXPECT_EQ(Layer(2).Rect, (RectF{10, 17, 20, 10}));
    EXPECT_EQ(Layer(2).Opacity, 0.4F);
    // The strongest solid row is the third now: alpha 255 x 7 \ 10.
    EXPECT_EQ(Layer(2).Image.GetPixel(0, 2), graphics::MakeArgb(178, 0x33, 0x66, 0xCC));
    // The region begins where the picture's rectangle ends, with the second row: alpha 16 x 8 \ 10.
    EXPECT_EQ(Layer(2).Region.Bounds(), (RectF{9, 21, 20, 8}));
}

TEST_F(StyleCommands, ShadeCoversThePictureAndKeepsItsRegion) {
    Shade(editor);
    EXPECT_EQ(Layer(2).Rect, (RectF{10, 10, 20, 10}));
    EXPECT_EQ(Layer(2).Image.GetPixel(0, 5), 0x7F000000U);
    EXPECT_EQ(Layer(2).Region.Bounds(), Layer(1).Region.Bounds());
}

TEST_F(StyleCommands, DropShadowLiesBelowToTheLowerRight) {
    Layer(1).Opacity = 0.8F;
    DropShadow(editor);
    EXPECT_EQ(Layer(1).Rect, (RectF{11, 11, 22, 12}));
    EXPECT_EQ(Layer(1).BaseRect, (RectF{10, 10, 20, 10}));
    EXPECT_EQ(Layer(1).ImageWidth, 22);
    EXPECT_EQ(Layer(1).Opacity, 0.4F);
    EXPECT_EQ(Layer(2).Opacity, 0.8F);
    EXPECT_EQ(Layer(2).Rect, (RectF{10, 10, 20, 10}));
    EXPECT_EQ(Layer(2).Image.GetPixel(0, 0), 0xFF3366CC);
}

TEST_F(StyleCommands, IosPutsAPlateUnderThePictureThatCutsIt) {
    editor.Colors[0] = 0xFF00FF00;
    Layer(1).Rect.X = 0;
    Layer(1).Rect.Y = 0;
    iOS(editor);
    EXPECT_TRUE(Layer(1).ClipNextLayer);
    EXPECT_EQ(Layer(1).Rect, (RectF{0, 0, 40, 30}));
    EXPECT_EQ(Layer(1).ImageWidth, 40);
    EXPECT_FALSE(Layer(2).ClipNextLayer);
    EXPECT_EQ(Layer(2).Image.GetPixel(0, 0), 0xFF3366CC);
    const Bitmap& page = editor.Canvas;
    EXPECT_EQ(page.GetPixel(0, 0), 0U);
    EXPECT_EQ(page.GetPixel(10, 5), 0xFF3366CC);
    EXPECT_EQ(page.GetPixel(10, 20), 0xFF00FF00);
}

TEST_F(StyleCommands, VistaAlsoChangesThePictureBelow) {
    Bitmap expected = Layer(1).Image;
    filters::ThreeDStyle(expected, 5);
    filters::SaturationColor(expected, 25);
    Vista(editor);
    EXPECT_TRUE(testing::SamePixels(Layer(1).Image, expected));
}

TEST_F(StyleCommands, TheStatesChangeEveryLayer) {
    // Grey of 0x33 + 0x66 + 0xCC is 0.3 x 357 = 107.1; then 255 (107 / 255)^0.5 = 165.2.
    DisabledState(editor);
    EXPECT_EQ(Layer(1).Image.GetPixel(0, 0), 0xFFA5A5A5);
    EXPECT_EQ(Layer(0).Image.GetPixel(0, 0), 0U);
    Undo(editor);
    HotState(editor);
    // 255 (51 / 255)^0.65 = 89.6, 255 (102 / 255)^0.65 = 140.6, 255 (204 / 255)^0.65 = 220.6.
    EXPECT_EQ(Layer(1).Image.GetPixel(0, 0), 0xFF5A8DDD);
}

TEST_F(StyleCommands, CrystalTwiceUsesTheFirstGlossAsItsSource) {
    Crystal(editor);
    const RectF first = Layer(2).Rect;
    Crystal(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 4);
    EXPECT_EQ(editor.Document.SelectedLayer, 3);
    EXPECT_LT(Layer(3).Rect.Width, first.Width);
}

}  // namespace
}  // namespace orbelle::editing
