// What a hand on the scene shows before anything is done: previews, frames, marks; and when a drag
// is given up.
#include "editing/scene_input.h"

#include "editing/adjust_sliders.h"
#include "editing/drag_readout.h"
#include "editing/give_up.h"
#include "editing/layer_bar.h"
#include "editing/tips.h"
#include "editing/tool_palette.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "editing_fixture.h"
#include "graphics/rotate_flip.h"

namespace orbelle::editing {
namespace {

using document::FrameShape;
using graphics::PointF;
using graphics::RectF;
using ::testing::AnyOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// At zoom 1 the page of 40 x 30 lies at (80, 60) of the scene.
class SceneInput : public EditingTest {
protected:
    SceneInput() { OpenPage(40, 30); }

    void Use(Tool tool) { editor.Tools.InUse = tool; }

    // A white page under a black of alpha 100.
    bool IsDimmed(int x, int y) {
        const graphics::Argb pixel = *editor.Scene.GetPixel(80 + x, 60 + y);
        EXPECT_TRUE(pixel == 0xFFFFFFFF || pixel == 0xFF9B9B9B) << std::hex << pixel;
        return pixel == 0xFF9B9B9B;
    }
};

// What a press and a drag begin, and what becomes of the tips.
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
        {Tool::FilledEllipse, true, false, 0, 1, false},
        {Tool::ColorPick, false, false, 0, 0, false},
        {Tool::PencilEraser, true, false, 1, 1, true},
        {Tool::BrushEraser, true, false, 1, 1, true},
        {Tool::SelectEllipse, true, true, 0, 0, true},
        {Tool::SelectPolygon, true, true, 0, 0, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.Chosen));
        OpenPage(40, 30);
        PutOnlyLayer(testing::FilledPicture(40, 30, kBlue), 0, 0);
        Use(c.Chosen);
        Press(OnPage(5, 5));
        EXPECT_EQ(IsDragging(), c.Drags);
        EXPECT_TRUE(recorder.Last.ExpireTips);
        EXPECT_EQ(Steps(), c.StepsAtPress);
        Move(OnPage(9, 8));
        EXPECT_FALSE(recorder.Last.ExpireTips);
        Release(OnPage(9, 8));
        EXPECT_FALSE(IsDragging());
        EXPECT_EQ(Steps(), c.StepsAtRelease);
        EXPECT_EQ(recorder.Last.HideTips, c.HidesTips);
        EXPECT_EQ(recorder.Last.Stack, c.StepsAtRelease > 0 && c.Chosen != Tool::Move);

        editor.Selection.Clear();
        SelectNone();
        Press(OnPage(20, 20));
        EXPECT_EQ(IsDragging(), c.DragsWithoutLayer);
        EXPECT_TRUE(recorder.Last.ExpireTips);
        EXPECT_EQ(Steps(), c.StepsAtRelease);
        EXPECT_EQ(editor.Page().HasSelection(), c.Chosen == Tool::Move);
        Release(OnPage(20, 20));

        editor.Page() = {{}, document::kNoLayer, 40, 30};
        editor.PolygonPoints.clear();
        editor.Tools.OpenPopup = Popup::FillBar;
        Press(OnPage(20, 20));
        EXPECT_EQ(editor.Tools.OpenPopup, Popup::None);
        EXPECT_FALSE(IsDragging());
        EXPECT_FALSE(recorder.Last.ExpireTips);
        EXPECT_THAT(editor.PolygonPoints, IsEmpty());
    }
}

TEST_F(SceneInput, StrokesAreShownHardEdgedFirst) {
    const struct {
        Tool Chosen;
        int LineWidth;
        std::vector<PointF> Points;
        const char* Preview;
    } cases[] = {
        {Tool::Line, 1, {{10, 5}, {14, 7}}, "5: 10; 6: 11-12; 7: 13-14"},
        {Tool::Line, 2, {{2, 4}, {8, 4}}, "3-4: 2-7"},
        {Tool::FilledEllipse, 1, {{2, 2}, {4, 4}}, "2: 2-4; 3: 1-4; 4: 2-4"},
        {Tool::FilledRectangle, 1, {{10, 5}, {20, 20}, {13, 7}}, "4-7: 9-13"},
        {Tool::Pencil, 1, {{1, 1}, {2, 2}, {8, 2}, {8, 4}}, "1: 1; 2: 2-8; 3-4: 8"},
        {Tool::Pencil, 1, {{5, 5}, {5.2F, 5.2F}}, "5: 5"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Preview);
        OpenPage(40, 30);
        Use(c.Chosen);
        editor.Sliders.LineWidth.Value = c.LineWidth;
        DragWithoutRelease(c.Points);
        EXPECT_EQ(Drawn(), c.Preview);
        EXPECT_THAT(testing::PixelsOf(Layer(0).Image), Each(AnyOf(0U, kBlue)));
        EXPECT_EQ(PixelRuns(editor.Canvas), c.Preview);
        EXPECT_EQ(Steps(), 0);
        EXPECT_FALSE(recorder.Last.Stack);
        Do(CancelInput);  // as any command
        EXPECT_EQ(Drawn(), "");
    }
    Use(Tool::FilledRectangle);
    DragWithoutRelease({{10, 5}, {13, 7}});
    EXPECT_EQ(Drawn(), "4-7: 9-13");
    Release(OnPage(13, 7, kShift));  // Shift is read anew
    EXPECT_EQ(Drawn(), "4-8: 9-13");
}

// On a page with an odd and an even side, over its middle, soft and see-through.
TEST_F(SceneInput, MirrorDrawingIsSymmetric) {
    using graphics::RotateFlipType;
    const auto expectSymmetry = [&](const char* when) {
        for (const auto turn : {RotateFlipType::RotateNoneFlipX, RotateFlipType::RotateNoneFlipY}) {
            graphics::Bitmap turned = editor.Canvas;
            ImageRotateFlip(turned, turn);
            EXPECT_TRUE(testing::SamePixels(turned, editor.Canvas)) << when;
        }
    };
    const graphics::Bitmap ground = testing::FilledPicture(41, 30, 0xC0406020);
    editor.Tools.Colors = {0x90C02010, 0xFF1080F0};
    editor.Sliders.LineWidth.Value = 3;
    Do(SetMirror, MirrorAxes{true, true});
    for (const Tool tool :
         {Tool::Pencil, Tool::Line, Tool::Rectangle, Tool::Ellipse, Tool::FilledRectangle,
          Tool::FilledEllipse, Tool::PencilEraser, Tool::BrushEraser}) {
        for (int fill = 0; fill < (tool < Tool::Line || IsEraser(tool) ? 1 : 4); ++fill) {
            SCOPED_TRACE(100 * static_cast<int>(tool) + fill);
            OpenPage(41, 30);
            PutOnlyLayer(ground, 0, 0);
            Use(tool);
            editor.Tools.FillKind = static_cast<FillKind>(fill);
            DragWithoutRelease({{10, 5}, {19, 9}, {24, 17}});
            expectSymmetry("preview");
            Release(OnPage(24, 17));
            expectSymmetry("release");
            EXPECT_FALSE(testing::SamePixels(Layer(0).Image, ground));
            EXPECT_EQ(Steps(), 1);
        }
    }
}

// A preview shows what a release would leave.
TEST_F(SceneInput, ShiftCountsWithoutAMove) {
    Use(Tool::FilledRectangle);
    DragWithoutRelease({{10, 5}, {13, 7}});
    Step(HoldShift, true);
    EXPECT_EQ(Drawn(), "4-8: 9-13");
    EXPECT_EQ(ReadoutOf(editor)->Area, (graphics::RectI{9, 4, 5, 5}));
    Step(HoldShift, false);
    EXPECT_EQ(Drawn(), "4-7: 9-13");
    Release(OnPage(13, 7));
    Step(HoldShift, true);
    EXPECT_EQ(Drawn(), "4-7: 9-13");
    Use(Tool::Pencil);
    DragWithoutRelease({{1, 1}, {2, 1}});
    Step(HoldShift, true);
    EXPECT_EQ(std::get<StrokeDrag>(editor.Drag).Freehand.size(), 2U);
}

// Shapes lie one pixel to the upper left and are one pixel larger.
TEST_F(SceneInput, ADragIsReadOutInPagePixelsUntilItsRelease) {
    const struct {
        Tool Chosen;
        Held Keys;
        DragReadout Expected;
    } cases[] = {
        {Tool::Move, {}, {{12, 1, 20, 10}, true, 7, -2}},
        {Tool::Line, {}, {{9, 4, 8, 3}}},
        {Tool::Rectangle, {}, {{8, 3, 9, 4}}},
        {Tool::FilledEllipse, kShift, {{8, 3, 9, 9}}},
        {Tool::SelectRectangle, {}, {{9, 4, 8, 3}}},
    };
    for (const double zoom : {0.2, 1.0, 3.0}) {
        for (const auto& c : cases) {
            SCOPED_TRACE(::testing::Message() << static_cast<int>(c.Chosen) << " at " << zoom);
            OpenPage(40, 30, zoom);
            PutOnlyLayer(testing::FilledPicture(20, 10, kBlue), 5, 3);
            Use(c.Chosen);
            EXPECT_FALSE(ReadoutOf(editor));
            DragWithoutRelease({{9, 6}, {3, 3}, {16, 4}}, c.Keys);
            EXPECT_EQ(ReadoutOf(editor), c.Expected);
            Release(OnPage(16, 4, c.Keys));
            EXPECT_FALSE(ReadoutOf(editor));
        }
    }
    Use(Tool::Pencil);
    DragWithoutRelease({{9, 6}, {16, 4}});
    EXPECT_FALSE(ReadoutOf(editor));
}

// The layer stays on whole page pixels, with halves to the even one.
TEST_F(SceneInput, LayersMoveByScenePixelsOverZoom) {
    const struct {
        double Zoom;
        int Start;
        float Dragged, Expected;
    } cases[] = {
        {0.2, 0, 1, 5}, {0.2, 3, -2, -7}, {1, 4, 2.5F, 6}, {1, 5, 2.5F, 8}, {20, 0, 9, 0},
        {20, 0, 10, 0}, {20, 0, 11, 1},   {20, 1, 10, 2},  {20, 3, -10, 2}, {20, 4, -10, 4},
        {20, 0, 29, 1}, {20, 0, 30, 2},   {3, 2, 100, 35},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.Zoom << ": " << c.Start << " by " << c.Dragged);
        OpenPage(40, 30, c.Zoom);
        PutOnlyLayer(testing::FilledPicture(30, 25, kBlue), c.Start, c.Start);
        Pointer pointer = OnPage(15, 15);
        Press(pointer);
        pointer.X += c.Dragged;
        Move(pointer);
        EXPECT_EQ(Layer(0).Rect, (RectF{c.Expected, static_cast<float>(c.Start), 30, 25}));
        pointer.Y += c.Dragged;
        Move(pointer);
        EXPECT_EQ(Layer(0).Rect, (RectF{c.Expected, c.Expected, 30, 25}));
        EXPECT_EQ(Layer(0).Region.Bounds().X, c.Start - 1);  // until the release
    }
}

TEST_F(SceneInput, FramesOfASelection) {
    const struct {
        PointF From, To;
        RectF Frame;  // on the scene
    } cases[] = {{{5, 4}, {9, 8}, {85, 64, 5, 5}},
                 {{9, 8}, {5, 4}, {85, 64, 5, 5}},
                 {{5, 4}, {-9, 4}, {80, 64, 6, 1}},
                 {{-9, 35}, {2, 1}, {80, 61, 3, 29}},
                 {{5, 4}, {70, 60}, {85, 64, 35, 26}}};
    for (const auto& c : cases) {
        for (const Tool tool : {Tool::SelectRectangle, Tool::SelectEllipse}) {
            Use(tool);
            editor.Tools.OpenPopup = Popup::SelectionBar;
            DragWithoutRelease({c.From, c.To});
            EXPECT_EQ(editor.Tools.OpenPopup, Popup::None);
            EXPECT_EQ(editor.Overlays.SelectionFrame,
                      (OverlayShape{true, tool == Tool::SelectEllipse, c.Frame}));
            EXPECT_FALSE(editor.Selection.Exists());
            Release(OnPage(c.To.X, c.To.Y));
            EXPECT_TRUE(editor.Selection.Exists());
            EXPECT_EQ(editor.Overlays.SelectionFrame, OverlayShape());
            EXPECT_TRUE(recorder.Last.Scene && recorder.Last.Overlays);
        }
    }
    Use(Tool::SelectRectangle);
    Drag({{1, 1}, {2, 2}}, {1, 3});  // two keys are not Shift
    EXPECT_EQ(PixelRuns(editor.Selection.Region().Rects()), "1-2: 1-2");
    SetZoom(4);  // the page lies at (20, 15)
    Press(OnScene(20 + 6, 15 + 5));
    Move(OnScene(20 + 13, 15 + 10));
    EXPECT_EQ(editor.Overlays.SelectionFrame.Rect, (RectF{24, 19, 12, 8}));
}

TEST_F(SceneInput, AllOfThePageButTheSelectionIsDimmed) {
    editor.Document.Background = 0xFFFFFFFF;
    Use(Tool::SelectRectangle);
    Drag({{5, 4}, {9, 8}});
    EXPECT_FALSE(IsDimmed(5, 4) || IsDimmed(9, 8));
    EXPECT_TRUE(IsDimmed(4, 4) && IsDimmed(5, 3) && IsDimmed(10, 8) && IsDimmed(9, 9));
    for (void (*button)(Editor&) : {PressRemoveLayer, PressHideLayer, PressMergeDown}) {
        editor.Selection.AddFrame({0, 0, 2, 2}, FrameShape::Rectangle);
        SelectNone();
        EXPECT_TRUE(IsDimmed(20, 20));
        Do(button);  // ends the selection and shows that, though there is nothing else to do
        EXPECT_FALSE(editor.Selection.Exists());
        EXPECT_FALSE(IsDimmed(20, 20));
    }
}

TEST_F(SceneInput, AnOpenPolygonHasARubberBandAndAnOutline) {
    editor.Document.Background = 0xFFFFFFFF;
    editor.Selection.AddFrame({0, 0, 4, 4}, FrameShape::Rectangle);
    Use(Tool::SelectPolygon);
    editor.Overlays.SelectionFrame.Visible = true;
    Move(OnPage(3, 3));
    EXPECT_FALSE(editor.Overlays.RubberBand.Visible);
    Click(5, 5, kShift);
    EXPECT_FALSE(editor.Overlays.SelectionFrame.Visible);
    Move(OnPage(9, 7));
    EXPECT_EQ(editor.Overlays.RubberBand, (OverlayLine{true, {85, 65}, {89.5F, 67.5F}}));
    Click(15, 5, kShift);
    Click(15, 12, kShift);
    EXPECT_THAT(editor.PolygonPoints, ElementsAre(PointF{5, 5}, PointF{15, 5}, PointF{15, 12}));
    EXPECT_EQ(editor.Scene.GetPixel(90, 65), 0xFF000000);
    EXPECT_EQ(editor.Scene.GetPixel(95, 70), 0xFF000000);
    EXPECT_FALSE(IsDimmed(30, 20));
    Press(OnPage(30, 20, {2, 1}));
    EXPECT_FALSE(recorder.Last.LayerMenu);
    EXPECT_THAT(editor.PolygonPoints, IsEmpty());
    EXPECT_FALSE(editor.Overlays.RubberBand.Visible);
    EXPECT_TRUE(IsDimmed(30, 20));
    EXPECT_FALSE(IsDimmed(10, 5) || IsDimmed(2, 2));

    Click(5, 5, kShift);
    Do(CancelInput);
    EXPECT_THAT(editor.PolygonPoints, IsEmpty());
    EXPECT_TRUE(IsDimmed(30, 20));
}

TEST_F(SceneInput, APolygonDragAddsThePointersPixels) {
    Use(Tool::SelectPolygon);
    Drag({{20, 20}, {25, 25}, {10, 12}, {10, 12}, {30, 15}});
    EXPECT_THAT(editor.PolygonPoints, ElementsAre(PointF{20, 20}, PointF{25, 25}, PointF{10, 12},
                                                  PointF{10, 12}, PointF{30, 15}));
    Drag({{60, 20}, {-9, 22}});  // brought onto the page
    EXPECT_EQ(editor.PolygonPoints[5], (PointF{40, 20}));
    EXPECT_EQ(editor.PolygonPoints[6], (PointF{0, 22}));
}

// Where the page's corner has a fraction, too: the middle of a page pixel is that pixel for the eye
// and for every tool.
TEST_F(SceneInput, WhatIsSeenIsWhatIsHit) {
    const struct {
        int Width, Height, Scroll;
        double Zoom;
        PointF Corner;
        int X, Y;
    } cases[] = {{9, 35, 5, 1, {95, 57}, 4, 10},       // of 95.5 and 57.5
                 {9, 35, 5, 3, {86, 22}, 8, 34},       // of 86.5 and 22.5
                 {9, 35, 3, 3, {51, 13}, 0, 0},        // of 51.9 and 13.5
                 {41, 31, 7, 7, {-60, -46}, 20, 20},   // of -60.9 and -46.9
                 {41, 31, 5, 0.6, {87, 65}, 40, 30}};  // of 87.7 and 65.7
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.Width << " at " << c.Zoom << ", " << c.Scroll);
        OpenPage(c.Width, c.Height);
        editor.View.HorizontalScroll = editor.View.VerticalScroll = {c.Scroll, 10, true};
        graphics::Bitmap picture(c.Width, c.Height);
        for (int y = 0; y < c.Height; ++y)
            for (int x = 0; x < c.Width; ++x)
                picture.SetPixel(x, y, 0xFF000000U | static_cast<unsigned>(y << 8 | x));
        PutOnlyLayer(picture, 0, 0);
        SetZoom(c.Zoom);
        const graphics::Argb color = *picture.GetPixel(c.X, c.Y);
        const auto zoom = static_cast<float>(c.Zoom);
        const float x = c.Corner.X + (static_cast<float>(c.X) + 0.5F) * zoom;
        const float y = c.Corner.Y + (static_cast<float>(c.Y) + 0.5F) * zoom;
        if (c.Zoom >= 1) {
            EXPECT_EQ(editor.Scene.GetPixel(static_cast<int>(x), static_cast<int>(y)), color);
        }
        Use(Tool::ColorPick);
        Press(OnScene(x, y));
        EXPECT_EQ(editor.Tools.Colors[0], color);
        EXPECT_EQ(editor.Overlays.PointerMark.Rect.X, c.Corner.X + static_cast<float>(c.X) * zoom);
        Use(Tool::PencilEraser);
        Press(OnScene(x, y));
        Release(OnScene(x, y));
        picture.SetPixel(c.X, c.Y, *Layer(0).Image.GetPixel(c.X, c.Y));
        EXPECT_EQ(graphics::AlphaOf(*Layer(0).Image.GetPixel(c.X, c.Y)), 0U);
        EXPECT_TRUE(testing::SamePixels(Layer(0).Image, picture));
    }
}

TEST_F(SceneInput, TheMarkerSnapsToThePagePixelOrShowsTheBrush) {
    // The page lies at (80, 60) at zoom 1, (90, 67) at 0.5 and (-100, -75) at 10.
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
    for (const auto& c : cases) {
        SetZoom(c.Zoom);
        Use(c.Chosen);
        editor.Sliders.BrushSize.Value = c.BrushSize;
        Move(OnScene(c.At.X, c.At.Y));
        EXPECT_EQ(editor.Overlays.PointerMark,
                  (OverlayShape{true, c.Chosen == Tool::BrushEraser, c.Expected}))
            << c.Zoom << " " << c.BrushSize;
    }
    Use(Tool::Move);
    Move(OnScene(1, 1));
    EXPECT_EQ(editor.Overlays.PointerMark.Rect, (RectF{25, 20, 30, 30}));
    Do(LeaveScene);
    EXPECT_FALSE(editor.Overlays.PointerMark.Visible);
}

TEST_F(SceneInput, AnotherButtonOpensTheMenuAndAnyEndsADrag) {
    PutOnlyLayer(testing::FilledPicture(4, 4, kBlue), 10, 10);
    DragWithoutRelease({{11, 11}, {15, 12}});
    Step(PressScene, OnScene(100, 75, kRightButton));
    EXPECT_EQ(recorder.Last.LayerMenu, (PointF{100, 75}));
    EXPECT_TRUE(recorder.Last.ExpireTips);
    EXPECT_TRUE(IsDragging());
    Release(OnScene(101, 75, kRightButton));
    EXPECT_FALSE(IsDragging());
    EXPECT_EQ(Steps(), 1);
}

TEST_F(SceneInput, WithoutADragOrALayer) {
    Layer(0).Image = testing::FilledPicture(40, 30, kBlue);
    Release(OnPage(1, 1));
    EXPECT_EQ(editor.Canvas.GetPixel(3, 3), kBlue);
    EXPECT_FALSE(recorder.Last.HideTips);
    SelectNone();
    Release(OnPage(1, 1));
    EXPECT_TRUE(recorder.Last.HideTips);
    Do(KeyDownScene, SceneKey::Left);
    EXPECT_EQ(recorder.LastTip(), tips::NothingToMove);
    Do(KeyDownScene, SceneKey::Delete);  // as the menu's disabled entry
    EXPECT_EQ(recorder.LastTip(), -1);
    EXPECT_FALSE(editor.Document.Modified);
}

TEST_F(SceneInput, ACommandInMidDragGivesTheDragUp) {
    PutOnlyLayer(testing::FilledPicture(4, 4, kBlue), 10, 10);
    DragWithoutRelease({{11, 11}, {20, 20}});
    EXPECT_EQ(editor.Canvas.GetPixel(20, 20), kBlue);
    Step(ZoomIn);  // may come in between
    EXPECT_EQ(Layer(0).Rect.X, 19);
    Do([](Editor&) {});
    EXPECT_FALSE(IsDragging());
    EXPECT_EQ(editor.Canvas.GetPixel(10, 10), kBlue);
    Move(OnPage(25, 25));
    Release(OnPage(25, 25));
    EXPECT_EQ(Layer(0).Rect, (RectF{10, 10, 4, 4}));
    EXPECT_EQ(Steps(), 0);

    OpenPage(40, 30);
    Use(Tool::Pencil);
    DragWithoutRelease({{2, 2}, {5, 2}, {9, 2}});
    EXPECT_EQ(Drawn(), "2: 2-9");
    Do(PressAddLayer);
    EXPECT_EQ(Drawn(), "");
    Release(OnPage(9, 2));
    EXPECT_EQ(Steps(), 1);
    Do(Undo);
    EXPECT_EQ(Drawn(), "");
    Drag({{20, 20}, {21, 20}, {25, 20}});  // begins anew
    EXPECT_EQ(Drawn(), "20: 20-25");

    // A press after a release that got lost.
    OpenPage(40, 30);
    Use(Tool::FilledRectangle);
    DragWithoutRelease({{10, 5}, {20, 20}});
    Click(3, 3);
    EXPECT_EQ(Drawn(), "2-3: 2-3");
    EXPECT_EQ(Steps(), 1);

    Use(Tool::SelectRectangle);
    DragWithoutRelease({{10, 5}, {20, 20}});
    Do([](Editor&) {});
    EXPECT_EQ(editor.Overlays.SelectionFrame, OverlayShape());
}

TEST_F(SceneInput, AStepThatFailsGivesTheDragUp) {
    PutOnlyLayer(testing::FilledPicture(4, 4, kBlue), 10, 10);
    const auto fail = [this](const Command& first) {
        const Outcome outcome = RunDuringDrag(editor, [&](Editor& e) {
            first(e);
            throw Error("no");
        });
        EXPECT_EQ(outcome.Problem(), "no");
        EXPECT_FALSE(IsDragging());
    };
    DragWithoutRelease({{11, 11}, {20, 20}});
    fail([&](Editor& e) { ReleaseScene(e, OnPage(21, 21)); });
    EXPECT_EQ(Layer(0).Rect, (RectF{10, 10, 4, 4}));
    EXPECT_EQ(Layer(0).Region.Bounds().X, 9);
    EXPECT_EQ(editor.Canvas.GetPixel(10, 10), kBlue);
    Use(Tool::FilledRectangle);
    const graphics::Bitmap before = Layer(0).Image;
    for (const auto event : {MoveScene, ReleaseScene}) {
        DragWithoutRelease({{10, 10}, {12, 12}});
        fail([&](Editor& e) { event(e, OnPage(13, 13)); });
        EXPECT_TRUE(Layer(0).Image.SharesPixelsWith(before));
        EXPECT_EQ(Steps(), 0);
    }
    // The undo step of a slider was taken at the press.
    Do(PressOpacity);
    Step(ChangeOpacity, 30);
    fail([](Editor& e) { ChangeOpacity(e, 20); });
    Step(ChangeOpacity, 10);
    EXPECT_EQ(Layer(0).Opacity, 0.3F);
    EXPECT_EQ(Steps(), 1);
}

}  // namespace
}  // namespace orbelle::editing
