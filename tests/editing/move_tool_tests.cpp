#include "gestures.h"

namespace orbelle::editing {
namespace {

using document::FrameShape;
using graphics::RectF;

class MoveTool : public GestureTest {
protected:
    // A layer over the whole page, and above it one of four rows with a gap: its pixels stand in
    // the columns 10 to 12 and 15 to 17 of the page, from row 5 on.
    void PutTwoLayers() {
        OpenPage(40, 30);
        PutOnlyLayer(testing::FilledPicture(40, 30, 0xFF808080), 0, 0);
        PutLayer(testing::PictureOf({"###..###", "###..###", "###..###", "###..###"}), 10, 5);
    }
};

// A region lies one pixel to the left of its pixels: 9 to 11 and 14 to 16, and -1 to 38.
TEST_F(MoveTool, PicksTheTopmostVisibleLayerByItsRegion) {
    const struct {
        float X, Y;
        int Expected;
    } cases[] = {{9, 5, 1},   {11, 8, 1},  {12, 6, 0},  {13, 6, 0},  {14, 6, 1},
                 {16, 6, 1},  {17, 6, 0},  {10, 4, 0},  {10, 9, 0},  {-1, 6, 0},
                 {38, 29, 0}, {39, 6, -1}, {-2, 6, -1}, {10, 30, -1}};
    PutTwoLayers();
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.X << ", " << c.Y);
        editor.Document.SelectedLayer = 1;
        PressAt(c.X, c.Y);
        EXPECT_EQ(editor.Document.SelectedLayer, c.Expected);
        EXPECT_EQ(editor.DragActive, c.Expected >= 0);
        EXPECT_EQ(editor.Controls.Opacity.Enabled, c.Expected >= 0);
        ReleaseAt(c.X, c.Y);
    }
    EXPECT_EQ(editor.History.UndoIndex(), 0);
}

TEST_F(MoveTool, HiddenLayersAreNotPicked) {
    PutTwoLayers();
    Layer(1).Visible = false;
    Click(10, 6);
    EXPECT_EQ(editor.Document.SelectedLayer, 0);
    Layer(0).Visible = false;
    Click(39, 6);
    EXPECT_EQ(editor.Document.SelectedLayer, 0);  // no layer was asked
}

TEST_F(MoveTool, APickShowsTheLayersControls) {
    PutTwoLayers();
    Layer(0).Opacity = 0.254F;
    Layer(0).ScaleValue = -20;
    Layer(0).Hue = 33;
    auto& buttons = editor.Controls.LayerBar;
    Click(20, 20);
    EXPECT_EQ(editor.Controls.Opacity.Value, 25);
    EXPECT_EQ(editor.Controls.Scale.Value, 30);
    EXPECT_EQ(editor.Controls.ScaleValue, "-20");
    EXPECT_EQ(editor.Controls.Hue.Value, 33);
    EXPECT_TRUE(buttons[layer_buttons::Remove].Enabled);
    EXPECT_TRUE(buttons[layer_buttons::Hide].Enabled);
    EXPECT_TRUE(buttons[layer_buttons::Hide].Pressed);
    EXPECT_TRUE(buttons[layer_buttons::SetOrder].Enabled);
    EXPECT_FALSE(buttons[layer_buttons::MergeDown].Enabled);
    Click(10, 6);
    EXPECT_TRUE(buttons[layer_buttons::MergeDown].Enabled);
    Click(39, 6);
    for (const int button : {layer_buttons::Remove, layer_buttons::Hide, layer_buttons::SetOrder,
                             layer_buttons::MergeDown})
        EXPECT_FALSE(buttons[static_cast<std::size_t>(button)].Enabled) << button;
}

// The layer stays on whole page pixels, with halves to the even one.
TEST_F(MoveTool, DragsByScenePixelsOverZoom) {
    const struct {
        double Zoom;
        float Start, Dragged, Expected;
    } cases[] = {
        {0.2, 0, 1, 5}, {0.2, 3, -2, -7}, {1, 4, 2.5F, 6}, {1, 5, 2.5F, 8}, {20, 0, 9, 0},
        {20, 0, 10, 0}, {20, 0, 11, 1},   {20, 1, 10, 2},  {20, 3, -10, 2}, {20, 4, -10, 4},
        {20, 0, 29, 1}, {20, 0, 30, 2},   {3, 2, 100, 35},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.Zoom << ": " << c.Start << " by " << c.Dragged);
        OpenPage(40, 30, c.Zoom);
        PutOnlyLayer(testing::FilledPicture(30, 25, kBlue), c.Start, c.Start);
        const Pointer down = OnPage(15, 15);
        Press(down);
        Pointer moved = down;
        moved.X += c.Dragged;
        MoveScene(editor, moved);
        EXPECT_EQ(Layer(0).Rect, (RectF{c.Expected, c.Start, 30, 25}));
        moved.Y += c.Dragged;
        MoveScene(editor, moved);
        EXPECT_EQ(Layer(0).Rect, (RectF{c.Expected, c.Expected, 30, 25}));
        ReleaseScene(editor, moved);
    }
}

TEST_F(MoveTool, ADragIsOneUndoStepAndMovesTheRegionAtTheRelease) {
    OpenPage(40, 30);
    PutOnlyLayer(testing::FilledPicture(4, 3, kBlue), 10, 5);
    DragWithoutRelease({{11, 6}, {14, 8}, {16, 9}});
    EXPECT_EQ(Layer(0).Region.Bounds(), (RectF{9, 5, 4, 3}));
    EXPECT_EQ(editor.Canvas.GetPixel(15, 8), kBlue);
    EXPECT_EQ(editor.Canvas.GetPixel(10, 5), 0U);
    ReleaseAt(16, 9);
    EXPECT_EQ(Layer(0).Rect, (RectF{15, 8, 4, 3}));
    EXPECT_EQ(Layer(0).Region.Bounds(), (RectF{14, 8, 4, 3}));
    EXPECT_EQ(editor.History.UndoIndex(), 1);
    EXPECT_TRUE(editor.Document.Modified);
    Undo(editor);
    EXPECT_EQ(Layer(0).Rect, (RectF{10, 5, 4, 3}));
    EXPECT_EQ(Layer(0).Region.Bounds(), (RectF{9, 5, 4, 3}));
    Redo(editor);
    EXPECT_EQ(Layer(0).Rect, (RectF{15, 8, 4, 3}));
}

TEST_F(MoveTool, ADragBackToItsStartIsNoUndoStep) {
    OpenPage(40, 30);
    PutOnlyLayer(testing::FilledPicture(4, 3, kBlue), 10, 5);
    Drag({{11, 6}, {20, 20}, {11, 6}});
    EXPECT_EQ(Layer(0).Rect, (RectF{10, 5, 4, 3}));
    EXPECT_EQ(editor.History.UndoIndex(), 0);
}

TEST_F(MoveTool, APressFloatsTheSelectionIntoALayerOfItsOwn) {
    OpenPage(20, 10);
    PutOnlyLayer(testing::FilledPicture(20, 10, kBlue), 0, 0).Opacity = 0.5F;
    editor.Selection.AddFrame(8, 6, 3, 2, FrameShape::Rectangle);
    PressAt(5, 4);
    ASSERT_EQ(editor.Document.LayerCount(), 2);
    EXPECT_EQ(editor.Document.SelectedLayer, 1);
    EXPECT_EQ(editor.History.UndoIndex(), 2);
    EXPECT_FALSE(editor.Selection.Exists());
    EXPECT_EQ(Drawn(0), "0-1: 0-19; 2-5: 0-2 8-19; 6-9: 0-19");
    EXPECT_EQ(Drawn(1), "0-3: 0-4");
    EXPECT_EQ(Layer(1).Rect, (RectF{3, 2, 5, 4}));
    EXPECT_EQ(Layer(1).Opacity, 0.5F);
    EXPECT_EQ(editor.Controls.Opacity.Value, 50);
    EXPECT_TRUE(editor.Controls.LayerBar[layer_buttons::MergeDown].Enabled);

    MoveTo(7, 5);
    ReleaseAt(7, 5);
    EXPECT_EQ(Layer(1).Rect, (RectF{5, 3, 5, 4}));
    EXPECT_EQ(Layer(1).Region.Bounds(), (RectF{4, 3, 5, 4}));
    EXPECT_EQ(editor.History.UndoIndex(), 3);
    for (int i = 0; i < 3; ++i)
        Undo(editor);
    ASSERT_EQ(editor.Document.LayerCount(), 1);
    EXPECT_EQ(Drawn(0), "0-9: 0-19");
}

// The layer lies at (2, 1): what is cut out of it is where the selection is on the page.
TEST_F(MoveTool, AFloatedSelectionIsTakenFromWhereTheLayerLies) {
    OpenPage(20, 10);
    PutOnlyLayer(testing::FilledPicture(10, 6, kBlue), 2, 1);
    editor.Selection.AddFrame(8, 5, 0, 3, FrameShape::Rectangle);
    PressAt(19, 9);  // beside both layers, which are left where they are
    ASSERT_EQ(editor.Document.LayerCount(), 2);
    EXPECT_EQ(editor.Document.SelectedLayer, -1);
    EXPECT_EQ(Drawn(0), "0-1: 0-9; 2-3: 6-9; 4-5: 0-9");
    EXPECT_EQ(Drawn(1), "0-1: 2-7");
    EXPECT_EQ(Layer(1).Rect, (RectF{0, 3, 8, 2}));
}

}  // namespace
}  // namespace orbelle::editing
