#include "editing/tool_palette.h"
#include "gestures.h"

namespace orbelle::editing {
namespace {

using graphics::Argb;
using graphics::RectF;
using ::testing::Each;
using ::testing::ElementsAre;

constexpr int kEdgeTolerance = 12;  // of 255, on smooth edges

class DrawingTools : public GestureTest {
protected:
    DrawingTools() { OpenPage(40, 30); }

    void Use(Tool tool, int lineWidth = 1, FillKind fill = FillKind::Solid) {
        editor.CurrentTool = tool;
        editor.Controls.LineWidth.Value = lineWidth;
        editor.FillKind = fill;
    }

    // Of the alphas from (x, y) on.
    void ExpectAlphas(int x, int y, const std::vector<int>& expected) {
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_NEAR(Alpha(x + static_cast<int>(i), y), expected[i], kEdgeTolerance)
                << x + static_cast<int>(i) << ", " << y;
    }

    std::vector<int> AlphasInUse() {
        std::vector<int> alphas;
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < 40; ++x)
                alphas.push_back(Alpha(x, y));
        return alphas;
    }

    // The red of a row or column of opaque pixels; -1 where nothing was painted.
    std::vector<int> Reds(int x, int y, int dx, int dy, int count) {
        std::vector<int> reds;
        for (int i = 0; i < count; ++i) {
            const Argb pixel = *Layer(0).Image.GetPixel(x + i * dx, y + i * dy);
            reds.push_back(pixel == 0 ? -1 : static_cast<int>(graphics::RedOf(pixel)));
        }
        return reds;
    }
};

// What is hard-edged in the preview and for good. A box is one pixel larger, up and to the left,
// than the drag; the pencil's line begins at the first move, not at the press.
TEST_F(DrawingTools, HardEdgedShapes) {
    const struct {
        const char* What;
        Tool Chosen;
        int LineWidth;
        std::vector<graphics::PointF> Points;
        Held Keys;
        const char* Expected;
    } cases[] = {
        {"click", Tool::FilledRectangle, 1, {{10, 5}}, {}, "4-5: 9-10"},
        {"drag", Tool::FilledRectangle, 1, {{10, 5}, {13, 7}}, {}, "4-7: 9-13"},
        {"drag back", Tool::FilledRectangle, 1, {{13, 7}, {10, 5}}, {}, "4-7: 9-13"},
        {"square", Tool::FilledRectangle, 1, {{10, 5}, {13, 7}}, kShift, "4-8: 9-13"},
        {"square back", Tool::FilledRectangle, 1, {{13, 7}, {10, 5}}, kShift, "4-8: 9-13"},
        {"high square", Tool::FilledRectangle, 1, {{13, 5}, {12, 8}}, kShift, "4-8: 11-15"},
        {"two keys", Tool::FilledRectangle, 1, {{10, 5}, {13, 7}}, {1, 3}, "4-7: 9-13"},
        {"beyond the edge", Tool::FilledRectangle, 1, {{38, 28}, {50, 50}}, {}, "27-29: 37-39"},
        {"click", Tool::Rectangle, 1, {{10, 5}}, {}, "4-5: 9-10"},
        {"drag", Tool::Rectangle, 1, {{10, 5}, {13, 7}}, {}, "4: 9-13; 5-6: 9 13; 7: 9-13"},
        {"3", Tool::Rectangle, 3, {{14, 9}, {10, 5}}, {}, "3-5: 8-15; 6-7: 8-10 13-15; 8-10: 8-15"},
        {"click", Tool::Pencil, 9, {{20, 17}}, {}, "17: 20"},
        {"one move", Tool::Pencil, 1, {{2, 2}, {8, 2}}, {}, ""},
        {"path", Tool::Pencil, 1, {{1, 1}, {2, 2}, {8, 2}, {8, 4}}, {}, "2: 2-8; 3-4: 8"},
        {"resting", Tool::Pencil, 1, {{5, 5}, {5.2F, 5.2F}}, {}, ""},
        {"no extent", Tool::Line, 1, {{5, 5}, {5.2F, 5}}, {}, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << static_cast<int>(c.Chosen) << " " << c.What);
        OpenPage(40, 30);
        Use(c.Chosen, c.LineWidth);
        DragWithoutRelease(c.Points, c.Keys);
        EXPECT_EQ(editor.History.UndoIndex(), 0);
        EXPECT_EQ(Drawn(), c.Points.size() > 1 ? c.Expected : "");
        ReleaseAt(c.Points.back().X, c.Points.back().Y, c.Keys);
        EXPECT_EQ(Drawn(), c.Expected);
        EXPECT_EQ(editor.History.UndoIndex(), 1);
        Undo(editor);
        EXPECT_EQ(Drawn(), "");
    }
}

TEST_F(DrawingTools, LinesAreSmoothOnlyForGood) {
    Use(Tool::Line);
    DragWithoutRelease({{10, 5}, {14, 7}});
    EXPECT_EQ(Drawn(), "5: 10; 6: 11-12; 7: 13-14");
    EXPECT_EQ(Alpha(10, 5), 255);
    ReleaseAt(14, 7);
    ExpectAlphas(9, 5, {0, 119, 143, 25, 0});
    ExpectAlphas(9, 6, {0, 25, 143, 237, 143, 25, 0});
    ExpectAlphas(11, 7, {0, 25, 143, 119, 0});
}

TEST_F(DrawingTools, WideLines) {
    Use(Tool::Line, 2);
    DragWithoutRelease({{2, 4}, {8, 4}});
    EXPECT_EQ(Drawn(), "3-4: 2-7");
    ReleaseAt(8, 4, kShift);  // Shift means nothing to a line
    ExpectAlphas(1, 3, {0, 64, 128, 128, 128, 128, 128, 64, 0});
    ExpectAlphas(1, 4, {0, 128, 255, 255, 255, 255, 255, 128, 0});
    ExpectAlphas(1, 5, {0, 64, 128, 128, 128, 128, 128, 64, 0});
}

// The ellipse of the box (1, 1, 4, 4).
TEST_F(DrawingTools, EllipsesAreSmoothOnlyForGood) {
    Use(Tool::FilledEllipse);
    DragWithoutRelease({{2, 2}, {4, 4}});
    EXPECT_EQ(Drawn(), "2: 2-4; 3: 1-4; 4: 2-4");
    ReleaseAt(4, 4);
    ExpectAlphas(1, 1, {0, 54, 122, 54, 0});
    ExpectAlphas(1, 2, {54, 251, 255, 251, 54});
    ExpectAlphas(1, 3, {122, 255, 255, 255, 122});

    OpenPage(40, 30);
    Use(Tool::Ellipse);
    DragWithoutRelease({{2, 2}, {5, 5}});
    EXPECT_THAT(AlphasInUse(), Each(::testing::AnyOf(0, 255)));
    EXPECT_NE(Drawn(), "");
    ReleaseAt(5, 5);
    ExpectAlphas(1, 1, {35, 196, 251, 196, 35});
    ExpectAlphas(1, 2, {196, 116, 7, 116, 196});
    ExpectAlphas(1, 3, {251, 7, 0, 7, 251});
}

TEST_F(DrawingTools, ShiftIsReadAnewAtTheRelease) {
    Use(Tool::FilledRectangle);
    DragWithoutRelease({{10, 5}, {13, 7}});
    EXPECT_EQ(Drawn(), "4-7: 9-13");
    ReleaseAt(13, 7, kShift);
    EXPECT_EQ(Drawn(), "4-8: 9-13");
}

TEST_F(DrawingTools, SolidShapesTakeTheColourInUseWithItsAlpha) {
    editor.Colors = {0xFF112233, 0x80445566};
    editor.ActiveColor = 1;
    Use(Tool::FilledRectangle);
    Click(10, 5);
    EXPECT_EQ(Layer(0).Image.GetPixel(9, 4), 0x80445566U);
    Use(Tool::Pencil, 1, FillKind::VerticalGradient);  // means nothing to the pencil
    Drag({{20, 5}, {20, 5.2F}, {25, 5}, {25, 9}});
    EXPECT_EQ(Layer(0).Image.GetPixel(25, 5), 0x80445566U);  // a joint is no darker
    editor.ActiveColor = 0;
    Click(2, 2);
    EXPECT_EQ(Layer(0).Image.GetPixel(2, 2), 0xFF112233U);
}

// From black to a red of 200, over the drag's length from one pixel before the press on, and back.
TEST_F(DrawingTools, GradientsRunFromThePressWhicheverColourIsInUse) {
    constexpr FillKind kAcross = FillKind::HorizontalGradient, kDown = FillKind::VerticalGradient;
    const struct {
        Tool Chosen;
        FillKind Fill;
        graphics::PointF From, To;
        std::array<int, 6> Expected;  // along the gradient from (9, 4) on; -1: not painted
    } cases[] = {
        {Tool::FilledRectangle, kAcross, {10, 5}, {14, 7}, {0, 50, 100, 150, 200, 150}},
        {Tool::FilledRectangle, kAcross, {14, 7}, {10, 5}, {200, 150, 100, 50, 0, 50}},
        {Tool::FilledRectangle, kDown, {10, 5}, {14, 7}, {0, 100, 200, 100, -1, -1}},
        {Tool::FilledRectangle, kDown, {14, 7}, {10, 5}, {200, 100, 0, 100, -1, -1}},
        {Tool::Rectangle, kAcross, {10, 5}, {14, 7}, {0, 50, 100, 150, 200, 150}},
        {Tool::Line, kAcross, {9, 4}, {13, 4}, {50, 100, 150, 200, 150, -1}},
        {Tool::Line, kDown, {9, 4}, {9, 8}, {50, 100, 150, 200, 150, -1}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        OpenPage(40, 30);
        editor.Colors = {0xFF000000, 0xFFC80000};
        editor.ActiveColor = 1;
        Use(c.Chosen, 1, c.Fill);
        DragWithoutRelease({c.From, c.To});
        const bool across = c.Fill == kAcross;
        const std::vector<int> reds = Reds(9, 4, across, !across, 6);
        for (std::size_t i = 0; i < 6; ++i)
            EXPECT_NEAR(reds[i], c.Expected[i], 2) << i;
        ReleaseAt(c.To.X, c.To.Y);
    }
}

// The gradient's ellipse is that of the drag, two pixels smaller than the shape: beyond it nothing
// is painted.
TEST_F(DrawingTools, ARadialGradientRunsFromTheMiddle) {
    editor.Colors = {0xFF000000, 0xFFC80000};
    Use(Tool::FilledEllipse, 1, FillKind::RadialGradient);
    DragWithoutRelease({{10, 10}, {18, 18}});  // (9, 9, 8, 8) around (13, 13)
    constexpr int kExpected[] = {150, 100, 50, 0, 50, 100, 150};
    const std::vector<int> row = Reds(10, 13, 1, 0, 7), column = Reds(13, 10, 0, 1, 7);
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_NEAR(row[i], kExpected[i], 3) << i;
        EXPECT_NEAR(column[i], kExpected[i], 3) << i;
    }
    EXPECT_EQ(Alpha(18, 13), 0);
    EXPECT_EQ(Alpha(13, 18), 0);
    ReleaseAt(18, 18);
}

TEST_F(DrawingTools, AGradientWithoutExtentDrawsNothing) {
    const struct {
        FillKind Fill;
        Tool Chosen;
        graphics::PointF To;
    } cases[] = {
        {FillKind::HorizontalGradient, Tool::FilledRectangle, {10, 9}},
        {FillKind::HorizontalGradient, Tool::Line, {10, 9}},
        {FillKind::VerticalGradient, Tool::Rectangle, {15, 5}},
        {FillKind::RadialGradient, Tool::FilledRectangle, {15, 5}},
        {FillKind::RadialGradient, Tool::FilledEllipse, {10, 5}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        OpenPage(40, 30);
        Use(c.Chosen, 1, c.Fill);
        Drag({{10, 5}, c.To});
        EXPECT_EQ(Drawn(), "");
        EXPECT_EQ(editor.History.UndoIndex(), 1);
    }
}

// A layer of 10 x 10 at (7, 3), at any zoom: its pixels, and a region that does not follow it.
TEST_F(DrawingTools, DrawsInLayerPixelsAndLeavesTheRegionAtTheCorner) {
    for (const double zoom : {0.5, 1.0, 3.0}) {
        SCOPED_TRACE(zoom);
        OpenPage(40, 30, zoom);
        PutOnlyLayer(testing::FilledPicture(10, 10, 0), 7, 3);
        Layer(0).Visible = false;
        Use(Tool::FilledRectangle);
        Drag({{9, 5}, {11, 6}});
        EXPECT_EQ(Drawn(), "1-3: 1-4");
        EXPECT_EQ(Layer(0).Region.Bounds(), (RectF{0, 1, 4, 3}));
        EXPECT_EQ(Layer(0).Rect, (RectF{7, 3, 10, 10}));
        Drag({{9, 5}, {35, 28}});
        EXPECT_EQ(Drawn(), "1-9: 1-9");
    }
}

TEST_F(DrawingTools, UndoBringsBackThePictureBeforeTheStroke) {
    PutOnlyLayer(testing::PictureOf({"#..", "...", "..#"}), 0, 0);
    Use(Tool::Line, 3);
    Drag({{0, 0}, {2, 1}, {2, 2}});
    EXPECT_NE(Drawn(), "0: 0; 2: 2");
    EXPECT_TRUE(editor.StrokeBackup.IsEmpty());
    Undo(editor);
    EXPECT_EQ(Drawn(), "0: 0; 2: 2");
}

}  // namespace
}  // namespace orbelle::editing
