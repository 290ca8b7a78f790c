#include "gestures.h"

namespace orbelle::editing {
namespace {

using document::FrameShape;
using graphics::PointF;
using graphics::RectF;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// At zoom 1 the page of 40 x 30 lies at (80, 60) of the scene.
class SelectionTools : public GestureTest {
protected:
    SelectionTools() {
        OpenPage(40, 30);
        editor.Document.PageBackground = 0xFFFFFFFF;
        editor.CurrentTool = Tool::SelectRectangle;
    }

    std::string Selected() { return PixelRuns(editor.Selection.Region().Rects()); }
    bool IsSelection() { return editor.Selection.Exists(); }

    // A white page under a black of alpha 100.
    bool IsDimmed(int x, int y) {
        const graphics::Argb pixel = *editor.Scene.GetPixel(80 + x, 60 + y);
        EXPECT_TRUE(pixel == 0xFFFFFFFF || pixel == 0xFF9B9B9B) << std::hex << pixel;
        return pixel == 0xFF9B9B9B;
    }
};

// The end of a drag has 1 added: a drag to the left or up begins one pixel further, and leaves out
// the pixel of the press.
TEST_F(SelectionTools, FramesOfDragsInAllDirections) {
    const struct {
        PointF From, To;
        RectF Frame;  // on the scene
        const char* Expected;
    } cases[] = {
        {{5, 4}, {9, 8}, {85, 64, 5, 5}, "4-8: 5-9"},
        {{9, 8}, {5, 4}, {86, 65, 3, 3}, "5-7: 6-8"},
        {{5, 8}, {9, 4}, {85, 65, 5, 3}, "5-7: 5-9"},
        {{9, 4}, {5, 8}, {86, 64, 3, 5}, "4-8: 6-8"},
        {{5, 4}, {-9, 4}, {81, 64, 4, 1}, "4: 1-4"},
        {{-9, -9}, {2, 1}, {80, 60, 3, 2}, "0-1: 0-2"},
        // A press on the right edge of the page is on its column 40.
        {{70, 4}, {30, 5}, {111, 64, 9, 2}, "4-5: 31-39"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Expected);
        DragWithoutRelease({c.From, c.To});
        EXPECT_TRUE(editor.Overlays.SelectionFrame.Visible);
        EXPECT_FALSE(editor.Overlays.SelectionFrame.IsOval);
        EXPECT_EQ(editor.Overlays.SelectionFrame.Rect, c.Frame);
        EXPECT_FALSE(IsSelection());
        ReleaseAt(c.To.X, c.To.Y);
        EXPECT_EQ(Selected(), c.Expected);
        EXPECT_TRUE(IsSelection());
        EXPECT_FALSE(editor.Overlays.SelectionFrame.Visible);
        EXPECT_EQ(editor.Overlays.SelectionFrame.Rect, RectF{});
    }
    EXPECT_EQ(editor.History.UndoIndex(), 0);
}

TEST_F(SelectionTools, FramesEndWithThePage) {
    Drag({{5, 4}, {70, 60}});
    EXPECT_EQ(Selected(), "4-29: 5-39");
    EXPECT_EQ(editor.Selection.Bounds(), (graphics::RectI{5, 4, 35, 26}));
}

TEST_F(SelectionTools, FramesSnapToPagePixelsAtAnyZoom) {
    SetZoom(4);  // the page lies at (20, 15)
    Press(OnScene(20 + 6, 15 + 5));
    MoveScene(editor, OnScene(20 + 13, 15 + 10));
    EXPECT_EQ(editor.Overlays.SelectionFrame.Rect, (RectF{24, 19, 12, 8}));
    ReleaseScene(editor, OnScene(20 + 13, 15 + 10));
    EXPECT_EQ(Selected(), "1-2: 1-3");
}

// Below the page a press begins as far from its top as the page is wide.
TEST_F(SelectionTools, APressBesideThePageBeginsOnItsEdge) {
    const struct {
        PointF Press, Expected;  // on the scene
    } cases[] = {{{70, 70}, {80, 70}},    {{130, 70}, {120, 70}},  {{100, 50}, {100, 60}},
                 {{100, 95}, {100, 100}}, {{100, 90}, {100, 100}}, {{100, 89}, {100, 89}}};
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.Press.X << ", " << c.Press.Y);
        Press(OnScene(c.Press.X, c.Press.Y));
        EXPECT_EQ((PointF{editor.MouseDownX, editor.MouseDownY}), c.Expected);
        ReleaseScene(editor, OnScene(c.Press.X, c.Press.Y));
    }
    Drag({{5, 35}, {9, 8}});
    EXPECT_EQ(Selected(), "9-39: 5-9");
}

TEST_F(SelectionTools, ShiftUnitesAndAClickClears) {
    Drag({{5, 4}, {9, 8}});
    Drag({{10, 4}, {12, 8}}, kShift);
    EXPECT_EQ(Selected(), "4-8: 5-12");
    Drag({{20, 10}, {22, 12}}, kShift);
    EXPECT_EQ(Selected(), "4-8: 5-12; 10-12: 20-22");
    Drag({{1, 1}, {2, 2}}, {1, 3});  // two keys are not Shift
    EXPECT_EQ(Selected(), "1-2: 1-2");
    Click(20, 20, kShift);
    EXPECT_FALSE(IsSelection());
    Drag({{1, 1}, {2, 2}});
    Click(1, 1);
    EXPECT_FALSE(IsSelection());
}

TEST_F(SelectionTools, EllipsesFillTheFrame) {
    editor.CurrentTool = Tool::SelectEllipse;
    editor.Controls.SelectionBarVisible = true;
    DragWithoutRelease({{1, 1}, {10, 8}});
    EXPECT_FALSE(editor.Controls.SelectionBarVisible);
    EXPECT_TRUE(editor.Overlays.SelectionFrame.IsOval);
    ReleaseAt(10, 8);
    EXPECT_EQ(Selected(), "2: 3-9; 3-4: 2-10; 5: 1-10; 6-7: 2-10; 8: 3-9");
}

TEST_F(SelectionTools, AllOfThePageButTheSelectionIsDimmed) {
    EXPECT_EQ(*editor.Scene.GetPixel(90, 70), *editor.Scene.GetPixel(100, 80));
    Drag({{5, 4}, {9, 8}});
    for (const auto& [x, y, dimmed] : {std::tuple{5, 4, false},
                                       {9, 8, false},
                                       {4, 4, true},
                                       {5, 3, true},
                                       {10, 8, true},
                                       {9, 9, true},
                                       {39, 29, true}})
        EXPECT_EQ(IsDimmed(x, y), dimmed) << x << ", " << y;
    Click(1, 1);
    EXPECT_FALSE(IsDimmed(20, 20));
}

// The triangle's rows run from 5 + (y - 5) x 10 / 7 to the column before 15.
TEST_F(SelectionTools, APolygonIsClickedAndClosedByTheOtherButton) {
    editor.CurrentTool = Tool::SelectPolygon;
    editor.Overlays.SelectionFrame.Visible = true;
    MoveTo(3, 3);
    EXPECT_FALSE(editor.Overlays.RubberBand.Visible);
    Click(5, 5);
    EXPECT_FALSE(editor.Overlays.SelectionFrame.Visible);
    MoveTo(9, 7);
    EXPECT_TRUE(editor.Overlays.RubberBand.Visible);
    EXPECT_EQ(editor.Overlays.RubberBand.Start, (PointF{85, 65}));
    EXPECT_EQ(editor.Overlays.RubberBand.End, (PointF{89.5F, 67.5F}));
    Click(15, 5);
    Click(15, 12);
    EXPECT_THAT(editor.PolygonPoints, ElementsAre(PointF{5, 5}, PointF{15, 5}, PointF{15, 12}));
    EXPECT_FALSE(IsSelection());
    Press(OnPage(30, 20, kRightButton));
    EXPECT_EQ(Selected(), "5: 5-14; 6: 7-14; 7: 8-14; 8: 10-14; 9: 11-14; 10: 13-14; 11: 14");
    EXPECT_FALSE(editor.Overlays.RubberBand.Visible);
    EXPECT_THAT(editor.PolygonPoints, IsEmpty());
    EXPECT_THAT(host.LayerMenus, IsEmpty());
    EXPECT_FALSE(IsDimmed(12, 7));
    EXPECT_TRUE(IsDimmed(6, 10));
    EXPECT_EQ(editor.History.UndoIndex(), 0);
}

// Each point of a drag is the upper left corner of the box between press and pointer.
TEST_F(SelectionTools, APolygonDragAddsPointsToTheLeftAndUpOnly) {
    editor.CurrentTool = Tool::SelectPolygon;
    Drag({{20, 20}, {25, 25}, {10, 12}, {30, 15}});
    EXPECT_THAT(editor.PolygonPoints,
                ElementsAre(PointF{20, 20}, PointF{20, 20}, PointF{10, 12}, PointF{20, 15}));
    Drag({{60, 20}, {-9, 22}});  // brought onto the page
    EXPECT_EQ(editor.PolygonPoints[4], (PointF{40, 20}));
    EXPECT_EQ(editor.PolygonPoints[5], (PointF{0, 20}));
}

TEST_F(SelectionTools, AnOpenPolygonShowsItsOutlineInPlaceOfTheMask) {
    editor.Selection.AddFrame(4, 4, 0, 0, FrameShape::Rectangle);
    editor.CurrentTool = Tool::SelectPolygon;
    for (const PointF& point : {PointF{5, 5}, {15, 5}, {15, 12}})
        Click(point.X, point.Y, kShift);
    EXPECT_EQ(editor.Scene.GetPixel(90, 65), 0xFF000000);
    EXPECT_EQ(editor.Scene.GetPixel(95, 70), 0xFF000000);
    EXPECT_FALSE(IsDimmed(30, 20));
    Press(OnPage(30, 20, {2, 1}));
    EXPECT_TRUE(IsDimmed(30, 20));
    EXPECT_FALSE(IsDimmed(10, 5));
    EXPECT_FALSE(IsDimmed(2, 2));
}

TEST_F(SelectionTools, PolygonsBeginAnewOrUnite) {
    editor.CurrentTool = Tool::SelectPolygon;
    for (const bool unite : {true, false}) {
        editor.Selection.Start();
        editor.Selection.AddFrame(4, 4, 0, 0, FrameShape::Rectangle);
        for (const PointF& point : {PointF{5, 5}, {8, 5}, {8, 8}, {5, 8}})
            Click(point.X, point.Y, unite ? kShift : Held{});
        Press(OnPage(1, 1, kRightButton));
        EXPECT_EQ(Selected(), unite ? "0-3: 0-3; 5-7: 5-7" : "5-7: 5-7");
    }
}

TEST_F(SelectionTools, APolygonOfOneClickSelectsNothingAndNoPolygonChangesNothing) {
    editor.CurrentTool = Tool::SelectPolygon;
    editor.Selection.AddFrame(4, 4, 0, 0, FrameShape::Rectangle);
    Press(OnPage(1, 1, kRightButton));
    EXPECT_EQ(Selected(), "0-3: 0-3");
    Click(5, 5);
    Press(OnPage(1, 1, kRightButton));
    EXPECT_TRUE(IsSelection());
    EXPECT_EQ(Selected(), "");
    EXPECT_TRUE(IsDimmed(2, 2));
}

}  // namespace
}  // namespace orbelle::editing
