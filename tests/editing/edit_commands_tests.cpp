#include "editing/adjust_sliders.h"
#include "editing/export_commands.h"
#include "editing/layer_commands.h"
#include "editing/menu_state.h"
#include "editing/page_commands.h"
#include "editing/style_commands.h"
#include "editing/undo_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using graphics::RectF;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class EditCommands : public EditingTest {};

TEST_F(EditCommands, CrystalAddsAGlossLayerAboveInTwoUndoSteps) {
    NewPage(100, 100);
    host.File = Picture("square.png", 90, 90);
    Import(editor);
    host.Tips.clear();
    Crystal(editor);
    ASSERT_EQ(editor.Document.LayerCount(), 3);
    EXPECT_EQ(editor.Document.SelectedLayer, 2);
    const document::IconLayer& gloss = Layer(2);
    EXPECT_EQ(gloss.Rect, (RectF{4, 5, 90, 42}));  // (-1, 0) on a picture at (5, 5)
    EXPECT_EQ(gloss.BaseRect, gloss.Rect);
    EXPECT_EQ(gloss.ImageWidth, 90);
    EXPECT_EQ(gloss.ImageHeight, 42);
    EXPECT_EQ(gloss.Opacity, 1);
    // Visible from (2, 1) on, one pixel to the left as all regions are.
    EXPECT_EQ(gloss.Region.Bounds().X, 4 + 2 - 1);
    EXPECT_EQ(gloss.Region.Bounds().Y, 5 + 1);
    EXPECT_EQ(gloss.Image.GetPixel(40, 1), 0xC6FFFFFF);
    EXPECT_EQ(editor.History.UndoIndex(), 3);
    EXPECT_EQ(editor.Controls.Opacity.Value, 100);
    EXPECT_THAT(host.Tips, ElementsAre(9));
    // 0x20 and 198 of white: (255 x 198 + 0x20 x 57) / 255.
    EXPECT_EQ(editor.Canvas.GetPixel(4 + 40, 5 + 1), 0xFFCDD4DB);

    Undo(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 2);
    Undo(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 2);
    Undo(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 1);
}

TEST_F(EditCommands, CrystalOnAnEmptyLayerLeavesABlankPageLayer) {
    NewPage(30, 20);
    Crystal(editor);
    ASSERT_EQ(editor.Document.LayerCount(), 2);
    EXPECT_EQ(Layer(1).Rect, (RectF{0, 0, 30, 20}));
    EXPECT_EQ(Layer(1).Image.Width(), 30);
    EXPECT_TRUE(Layer(1).Region.IsNull());
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(EditCommands, StylesWaitForAVisibleSelectedLayer) {
    Crystal(editor);
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    OpenStyleMenu(editor);
    EXPECT_FALSE(editor.Controls.m_Crystal.Enabled);
    NewPage(8, 8);
    OpenStyleMenu(editor);
    EXPECT_TRUE(editor.Controls.m_Crystal.Enabled);
    Layer(0).Visible = false;
    OpenStyleMenu(editor);
    EXPECT_FALSE(editor.Controls.m_Crystal.Enabled);
}

TEST_F(EditCommands, AnOpacityDragIsOneUndoStep) {
    OpenFile(Picture("a.png", 4, 4, 0xFFFFFFFF));
    PressOpacity(editor);
    for (const int value : {80, 20, 150, 50})
        ChangeOpacity(editor, value);
    ReleaseOpacity(editor);
    EXPECT_EQ(Layer(0).Opacity, 0.5F);
    EXPECT_EQ(editor.Canvas.GetPixel(0, 0), 0x80FFFFFF);
    EXPECT_EQ(editor.History.UndoIndex(), 1);
    Undo(editor);
    EXPECT_EQ(Layer(0).Opacity, 1);
    EXPECT_EQ(editor.Controls.Opacity.Value, 100);
}

TEST_F(EditCommands, UndoKeepsSliderPositionsForRedo) {
    OpenFile(Picture("a.png", 4, 4));
    AddLayerCommand(editor);
    editor.Controls.Hue.Value = 70;
    Undo(editor);
    EXPECT_EQ(editor.Controls.Hue.Value, 0);
    Redo(editor);
    EXPECT_EQ(Layer(1).Hue, 70);
    EXPECT_EQ(editor.Controls.Hue.Value, 70);
    EXPECT_EQ(editor.Controls.HueValue, "70");
}

TEST_F(EditCommands, SelectingARowShowsThatLayersSliders) {
    OpenFile(Picture("a.png", 4, 4));
    AddLayerCommand(editor);
    Layer(0).Opacity = 0.4F;
    Layer(0).Contrast = 80;
    Layer(0).ScaleValue = -7;
    SelectLayer(editor, 0);
    EXPECT_EQ(editor.Controls.Opacity.Value, 40);
    EXPECT_EQ(editor.Controls.Contrast.Value, 80);
    EXPECT_EQ(editor.Controls.ContrastValue, "0");  // until the slider itself is moved
    EXPECT_EQ(editor.Controls.Scale.Value, 43);
    EXPECT_EQ(editor.Controls.ScaleValue, "-7");
    EXPECT_TRUE(editor.Controls.LayerBar[layer_buttons::SetOrder].Enabled);
    EXPECT_FALSE(editor.Controls.LayerBar[layer_buttons::MergeDown].Enabled);
}

TEST_F(EditCommands, PageSizeAndBackgroundAreNoUndoSteps) {
    NewPage(20, 20);
    ChangePageWidth(editor, 900);
    ChangePageHeight(editor, -5);
    SetPageBackground(editor, 0xFF102030);
    EXPECT_EQ(editor.Document.PageWidth, 512);
    EXPECT_EQ(editor.Document.PageHeight, 1);
    EXPECT_EQ(editor.Canvas.Width(), 512);
    EXPECT_EQ(Layer(0).Rect, (RectF{0, 0, 20, 20}));
    EXPECT_EQ(editor.Document.PageBackground, 0xFF102030);
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    EXPECT_FALSE(editor.Document.Modified);
}

TEST_F(EditCommands, AFullHistoryRefusesTheNextChangeWithAMessage) {
    NewPage(2, 2);
    for (int layers = 2; layers <= 102; ++layers)
        AddLayerCommand(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 102);
    EXPECT_THAT(host.Messages, IsEmpty());
    Undo(editor);
    Redo(editor);
    AddLayerCommand(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 102);
    ASSERT_EQ(host.Messages.size(), 1U);
    EXPECT_THAT(host.Messages[0], HasSubstr("101"));
    Undo(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 101);
}

TEST_F(EditCommands, ExportWritesWhateverTheAnswerToTheOverwriteQuestion) {
    OpenFile(Picture("a.png", 4, 4));
    const formats::ExportFormat& png = formats::kExportFormats[1];
    graphics::WriteFile(folder / "out.png", std::vector<std::uint8_t>(1));
    host.File = folder / "out.png";
    host.ConfirmAnswer = false;
    Export(editor, png);
    EXPECT_THAT(host.Questions, ElementsAre("Warning: Image already exists, overwrite it?"));
    EXPECT_TRUE(
        testing::SamePixels(graphics::LoadImageFromFile(folder / "out.png"), editor.Canvas));
    EXPECT_FALSE(editor.Document.Modified);

    host.File = folder / "none/out.png";
    Export(editor, png);
    EXPECT_THAT(host.Messages, IsEmpty());
    ASSERT_EQ(host.Statuses.size(), 1U);
    EXPECT_THAT(host.Statuses[0], HasSubstr("none/out.png"));
}

}  // namespace
}  // namespace orbelle::editing
