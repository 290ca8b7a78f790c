#include "editing/layer_commands.h"
#include "editing/stack_commands.h"
#include "editing/tools/object_keys.h"
#include "gestures.h"

namespace orbelle::editing {
namespace {

using graphics::PointF;
using graphics::RectF;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SceneInput : public GestureTest {};

TEST_F(SceneInput, APressWithoutLayersOnlyClosesTheFillPopup) {
    OpenPage(40, 30);
    editor.Document.Layers.clear();
    editor.Document.SelectedLayer = document::kNoLayer;
    editor.TipCounter = 7;
    for (int tool = 0; tool <= 12; ++tool) {
        SCOPED_TRACE(tool);
        editor.CurrentTool = static_cast<Tool>(tool);
        editor.Controls.FillBarVisible = true;
        Press(OnScene(90, 70));
        EXPECT_FALSE(editor.Controls.FillBarVisible);
        EXPECT_FALSE(editor.DragActive);
        EXPECT_EQ(editor.TipCounter, 7);
        EXPECT_EQ(editor.MouseDownX, 90);
        ReleaseScene(editor, OnScene(90, 70));
    }
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    EXPECT_THAT(editor.PolygonPoints, IsEmpty());
}

// What a press and a drag begin, and whether the release closes the tips.
TEST_F(SceneInput, StepsOfEachTool) {
    const struct {
        Tool Chosen;
        bool Drags, DragsWithoutLayer;
        int StepsAtPress, StepsAtRelease;
        bool HidesTips;
    } cases[] = {
        {Tool::Move, true, true, 0, 1, true},  // picks what is under the pointer
        {Tool::Pencil, true, false, 0, 1, false},
        {Tool::Line, true, false, 0, 1, false},
        {Tool::Rectangle, true, false, 0, 1, false},
        {Tool::Ellipse, true, false, 0, 1, false},
        {Tool::FilledRectangle, true, false, 0, 1, false},
        {Tool::FilledEllipse, true, false, 0, 1, false},
        {Tool::ColorPick, false, false, 0, 0, false},
        {Tool::PencilEraser, true, false, 1, 1, true},
        {Tool::BrushEraser, true, false, 1, 1, true},
        {Tool::SelectRectangle, true, true, 0, 0, true},
        {Tool::SelectEllipse, true, true, 0, 0, true},
        {Tool::SelectPolygon, true, true, 0, 0, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.Chosen));
        OpenPage(40, 30);
        PutOnlyLayer(testing::FilledPicture(40, 30, kBlue), 0, 0);
        editor.CurrentTool = c.Chosen;
        editor.TipCounter = 0;
        PressAt(5, 5);
        EXPECT_EQ(editor.DragActive, c.Drags);
        EXPECT_EQ(editor.TipCounter, 500);
        EXPECT_EQ(editor.History.UndoIndex(), c.StepsAtPress);
        EXPECT_TRUE(editor.Controls.Opacity.Enabled);
        MoveTo(9, 8);
        ReleaseAt(9, 8);
        EXPECT_FALSE(editor.DragActive);
        EXPECT_EQ(editor.History.UndoIndex(), c.StepsAtRelease);
        EXPECT_EQ(host.HiddenTips, c.HidesTips ? 1 : 0);

        const int steps = editor.History.UndoIndex();
        editor.Selection.Clear();
        editor.Document.SelectedLayer = document::kNoLayer;
        PressAt(20, 20);
        EXPECT_EQ(editor.DragActive, c.DragsWithoutLayer);
        EXPECT_EQ(editor.TipCounter, 500);
        EXPECT_EQ(editor.History.UndoIndex(), steps);
        EXPECT_EQ(editor.Controls.Scale.Enabled, c.Chosen == Tool::Move);
        ReleaseAt(20, 20);
    }
}

TEST_F(SceneInput, AnotherButtonOpensTheMenuAndLeavesTheDragAlone) {
    OpenPage(40, 30);
    PutOnlyLayer(testing::FilledPicture(4, 4, kBlue), 10, 10);
    DragWithoutRelease({{11, 11}, {15, 12}});
    editor.TipCounter = 0;
    Press(OnScene(100, 75, kRightButton));
    EXPECT_THAT(host.LayerMenus, ElementsAre(PointF{100, 75}));
    EXPECT_EQ(editor.TipCounter, 500);
    EXPECT_TRUE(editor.DragActive);
    ReleaseScene(editor, OnScene(101, 75, kRightButton));
    EXPECT_FALSE(editor.DragActive);
    EXPECT_EQ(editor.History.UndoIndex(), 1);
}

// The page of odd width lies half a pixel off: at 79.5 of the scene, which a press takes for 80,
// or at 78.5, taken for 78.
TEST_F(SceneInput, APressTakesThePageForWholeScenePixels) {
    const struct {
        int PageWidth;
        float X;
        bool PressErases, MoveErases;
    } cases[] = {{41, 79.75F, false, true}, {43, 78.25F, true, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.PageWidth);
        OpenPage(c.PageWidth, 30);
        PutOnlyLayer(testing::FilledPicture(c.PageWidth, 30, kBlue), 0, 0);
        editor.CurrentTool = Tool::PencilEraser;
        Press(OnScene(c.X, 60.5F));
        MoveScene(editor, OnScene(c.X, 61.5F));
        EXPECT_EQ(Alpha(0, 0), c.PressErases ? 0 : 255);
        EXPECT_EQ(Alpha(0, 1), c.MoveErases ? 0 : 255);
        ReleaseScene(editor, OnScene(c.X, 61.5F));
    }
}

TEST_F(SceneInput, RepeatedMovesAreDroppedButForThePolygon) {
    OpenPage(40, 30);
    editor.CurrentTool = Tool::Pencil;
    DragWithoutRelease({{2, 2}, {5, 2}, {5, 2}, {6, 2}});
    EXPECT_EQ(editor.PencilPoints.size(), 2U);
    ReleaseAt(6, 2);
    editor.CurrentTool = Tool::SelectPolygon;
    DragWithoutRelease({{2, 2}, {5, 2}, {5, 2}});
    EXPECT_EQ(editor.PolygonPoints.size(), 3U);
}

TEST_F(SceneInput, TheMarkerSnapsToThePagePixelOrShowsTheBrush) {
    // The page lies at (80, 60) at zoom 1, (90, 67.5) at 0.5 and (-100, -75) at 10.
    const struct {
        Tool Chosen;
        int BrushSize;
        double Zoom;
        PointF At;
        RectF Expected;
    } cases[] = {
        {Tool::Line, 9, 1, {90.6F, 70.2F}, {90, 70, 1, 1}},
        {Tool::Line, 9, 10, {47, 40}, {40, 35, 10, 10}},
        {Tool::SelectEllipse, 9, 10, {-207, 40}, {-210, 35, 10, 10}},
        {Tool::BrushEraser, 5, 1, {90.5F, 70.5F}, {88, 68, 5, 5}},
        {Tool::BrushEraser, 5, 0.5, {95.2F, 70}, {94, 69, 2.5F, 2.5F}},  // 2.5 rounds to 2
        {Tool::BrushEraser, 7, 0.5, {95.3F, 70}, {93, 68, 3.5F, 3.5F}},  // 3.5 rounds to 4
        {Tool::BrushEraser, 3, 10, {47, 40}, {25, 20, 30, 30}},
    };
    OpenPage(40, 30);
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.Zoom << " " << c.BrushSize);
        SetZoom(c.Zoom);
        editor.CurrentTool = c.Chosen;
        editor.Controls.BrushSize.Value = c.BrushSize;
        MoveScene(editor, OnScene(c.At.X, c.At.Y));
        EXPECT_TRUE(editor.Overlays.PointerMark.Visible);
        EXPECT_EQ(editor.Overlays.PointerMark.IsOval, c.Chosen == Tool::BrushEraser);
        EXPECT_EQ(editor.Overlays.PointerMark.Rect, c.Expected);
    }
    editor.CurrentTool = Tool::Move;
    MoveScene(editor, OnScene(1, 1));
    EXPECT_EQ(editor.Overlays.PointerMark.Rect, (RectF{25, 20, 30, 30}));
}

TEST_F(SceneInput, AReleaseWithoutADragComposes) {
    OpenPage(40, 30);
    editor.CurrentTool = Tool::BrushEraser;
    Layer(0).Image = testing::FilledPicture(40, 30, kBlue);
    ReleaseAt(1, 1);
    EXPECT_EQ(editor.Canvas.GetPixel(3, 3), kBlue);
    EXPECT_EQ(host.HiddenTips, 0);
    editor.Document.SelectedLayer = document::kNoLayer;
    ReleaseAt(1, 1);
    EXPECT_EQ(host.HiddenTips, 1);
}

TEST_F(SceneInput, ArrowsMoveTheLayerByOnePagePixelAndAnUndoStep) {
    const struct {
        int Key;
        float Dx, Dy;
    } cases[] = {{37, -1, 0}, {38, 0, -1}, {39, 1, 0}, {40, 0, 1}};
    OpenPage(40, 30, 20);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Key);
        OpenPage(40, 30, 20);
        PutOnlyLayer(testing::FilledPicture(4, 4, kBlue), 0, 0);
        KeyDownScene(editor, c.Key);
        KeyDownScene(editor, c.Key);
        EXPECT_EQ(Layer(0).Rect, (RectF{2 * c.Dx, 2 * c.Dy, 4, 4}));
        EXPECT_EQ(Layer(0).Region.Bounds(), (RectF{2 * c.Dx - 1, 2 * c.Dy, 4, 4}));
        EXPECT_EQ(editor.History.UndoIndex(), 2);
        Undo(editor);
        EXPECT_EQ(Layer(0).Rect, (RectF{c.Dx, c.Dy, 4, 4}));
    }
}

TEST_F(SceneInput, OtherKeysAndKeysWithoutASelectedLayer) {
    OpenPage(40, 30);
    ASSERT_FALSE(editor.Document.Modified);
    editor.Document.SelectedLayer = document::kNoLayer;
    KeyDownScene(editor, key_codes::Delete);
    EXPECT_THAT(host.Tips, ElementsAre(15));
    EXPECT_FALSE(editor.Document.Modified);
    EXPECT_EQ(editor.Document.LayerCount(), 1);

    editor.Document.SelectedLayer = 0;
    KeyDownScene(editor, 65);
    EXPECT_TRUE(editor.Document.Modified);
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    PutLayer(testing::FilledPicture(4, 4, kBlue), 0, 0);
    KeyDownScene(editor, key_codes::Delete);
    EXPECT_EQ(editor.Document.LayerCount(), 1);
    EXPECT_EQ(editor.Canvas.GetPixel(2, 2), 0U);
    EXPECT_THAT(host.Tips, ElementsAre(15));
}

TEST_F(SceneInput, APressAfterALostReleaseTakesTheOldStrokeBack) {
    OpenPage(40, 30);
    editor.CurrentTool = Tool::FilledRectangle;
    DragWithoutRelease({{10, 5}, {20, 20}});
    Click(3, 3);
    EXPECT_EQ(Drawn(), "2-3: 2-3");
    EXPECT_EQ(editor.History.UndoIndex(), 1);
}

TEST_F(SceneInput, ACommandInMidDragGivesTheDragUp) {
    OpenPage(40, 30);
    PutOnlyLayer(testing::FilledPicture(4, 4, kBlue), 10, 10);
    DragWithoutRelease({{11, 11}, {20, 20}});
    HideLayerCommand(editor);
    EXPECT_FALSE(editor.DragActive);
    EXPECT_EQ(Layer(0).Rect, (RectF{10, 10, 4, 4}));
    MoveTo(25, 25);
    ReleaseAt(25, 25);
    EXPECT_EQ(Layer(0).Rect, (RectF{10, 10, 4, 4}));
    EXPECT_EQ(editor.History.UndoIndex(), 0);

    OpenPage(40, 30);
    editor.CurrentTool = Tool::Pencil;
    DragWithoutRelease({{2, 2}, {5, 2}, {9, 2}});
    EXPECT_EQ(Drawn(), "2: 5-9");
    AddLayerCommand(editor);
    EXPECT_EQ(Drawn(), "");
    ReleaseAt(9, 2);
    EXPECT_EQ(editor.History.UndoIndex(), 1);
    EXPECT_THAT(editor.PencilPoints, IsEmpty());
    EXPECT_TRUE(editor.StrokeBackup.IsEmpty());
    Undo(editor);
    EXPECT_EQ(Drawn(), "");
}

}  // namespace
}  // namespace orbelle::editing
