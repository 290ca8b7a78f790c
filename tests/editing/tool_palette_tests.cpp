#include "editing/tool_palette.h"

#include "editing/color_wells.h"
#include "editing/page_commands.h"
#include "gestures.h"

namespace orbelle::editing {
namespace {

using document::FrameShape;
using graphics::Argb;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ToolPalette : public GestureTest {
protected:
    ToolPalette() { OpenPage(40, 30); }

    void SelectSomething() { editor.Selection.AddFrame(4, 4, 0, 0, FrameShape::Rectangle); }

    template <std::size_t kCount>
    static std::vector<int> Pressed(const std::array<Button, kCount>& buttons) {
        std::vector<int> pressed;
        for (std::size_t i = 0; i < kCount; ++i) {
            if (buttons[i].Pressed)
                pressed.push_back(static_cast<int>(i));
        }
        return pressed;
    }
};

TEST_F(ToolPalette, WhatEachButtonChooses) {
    const struct {
        int Button;
        Tool Chosen;
        bool HasLineWidth, HasColorOpacity, KeepsSelection;
        std::vector<int> Tips;
    } cases[] = {
        {4, Tool::Pencil, false, true, false, {4}},
        {1, Tool::Move, false, false, true, {3}},
        {2, Tool::SelectRectangle, false, false, true, {4}},
        {5, Tool::Line, true, true, false, {4}},
        {6, Tool::Ellipse, true, true, false, {4}},
        {7, Tool::FilledEllipse, false, true, false, {4}},
        {8, Tool::Rectangle, true, true, false, {4}},
        {9, Tool::FilledRectangle, false, true, false, {4}},
        {11, Tool::ColorPick, false, true, false, {}},
        {12, Tool::PencilEraser, false, false, false, {4}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Button);
        SelectSomething();
        host.Tips.clear();
        editor.Controls.LineWidth.Enabled = !c.HasLineWidth;
        editor.Controls.ColorOpacity.Enabled = !c.HasColorOpacity;
        ClickToolButton(editor, c.Button);
        EXPECT_EQ(editor.CurrentTool, c.Chosen);
        EXPECT_EQ(editor.Controls.LineWidth.Enabled, c.HasLineWidth);
        EXPECT_EQ(editor.Controls.ColorOpacity.Enabled, c.HasColorOpacity);
        EXPECT_EQ(editor.Selection.Exists(), c.KeepsSelection);
        EXPECT_EQ(host.Tips, c.Tips);
        EXPECT_THAT(Pressed(editor.Controls.ToolBox), ElementsAre(c.Button));
    }
    ClickToolButton(editor, 3);  // a gap between buttons
    EXPECT_EQ(editor.CurrentTool, Tool::PencilEraser);
}

TEST_F(ToolPalette, PopupsOpenWithTheirButtonAndCloseWithTheSecondClick) {
    const struct {
        int Button;
        bool Fill, Selection, Eraser;
    } clicks[] = {{5, true, false, false},  {5, false, false, false},  {5, true, false, false},
                  {9, true, false, false},  {2, false, true, false},   {2, false, false, false},
                  {12, false, false, true}, {12, false, false, false}, {6, true, false, false},
                  {4, false, false, false}, {8, true, false, false},   {11, false, false, false},
                  {7, true, false, false},  {1, false, false, false}};
    const Controls& controls = editor.Controls;
    for (const auto& c : clicks) {
        SCOPED_TRACE(&c - clicks);
        ClickToolButton(editor, c.Button);
        EXPECT_EQ(controls.FillBarVisible, c.Fill);
        EXPECT_EQ(controls.SelectionBarVisible, c.Selection);
        EXPECT_EQ(controls.EraserBarVisible, c.Eraser);
    }
    ClickToolButton(editor, 5);
    PressAt(1, 1);
    EXPECT_FALSE(controls.FillBarVisible);
}

TEST_F(ToolPalette, FillAndSelectionKindsAreRemembered) {
    ClickToolButton(editor, 5);
    ChooseFill(editor, FillKind::VerticalGradient);
    EXPECT_EQ(editor.FillKind, FillKind::VerticalGradient);
    EXPECT_THAT(Pressed(editor.Controls.FillBar), ElementsAre(3));
    EXPECT_FALSE(editor.Controls.FillBarVisible);

    const struct {
        int Button;
        Tool Chosen;
        bool Frame, Oval;
    } cases[] = {{3, Tool::SelectPolygon, false, false},
                 {2, Tool::SelectEllipse, true, true},
                 {1, Tool::SelectRectangle, true, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Button);
        ClickToolButton(editor, 2);
        editor.Selection.Region = {};
        ChooseSelection(editor, c.Button);
        EXPECT_FALSE(editor.Controls.SelectionBarVisible);
        EXPECT_FALSE(editor.Selection.Region().IsNull());  // begun, without a shape
        EXPECT_FALSE(editor.Selection.Exists());
        ClickToolButton(editor, 1);
        EXPECT_FALSE(editor.Overlays.SelectionFrame.Visible);
        ClickToolButton(editor, 2);
        EXPECT_EQ(editor.CurrentTool, c.Chosen);
        EXPECT_THAT(Pressed(editor.Controls.SelectionBar), ElementsAre(c.Button));
        EXPECT_EQ(editor.Overlays.SelectionFrame.Visible, c.Frame);
        EXPECT_EQ(editor.Overlays.SelectionFrame.IsOval, c.Oval);
    }
    SelectSomething();
    ChooseSelection(editor, 2);
    EXPECT_TRUE(editor.Selection.Exists());
}

TEST_F(ToolPalette, TheBrushHasAPanelThatSlidesWithTheEraserButton) {
    editor.Colors[0] = 0x80336699;
    ClickToolButton(editor, 12);
    EXPECT_EQ(editor.CurrentTool, Tool::PencilEraser);
    EXPECT_FALSE(editor.Controls.BrushPanelOpen);
    EXPECT_EQ(host.BrushPanelSlides, 1);
    EXPECT_EQ(editor.Controls.ColorOpacity.Value, 0);
    EXPECT_EQ(editor.Colors[0], 0x80336699U);

    host.Tips.clear();
    ChooseEraser(editor, 1);
    EXPECT_EQ(editor.CurrentTool, Tool::BrushEraser);
    EXPECT_TRUE(editor.Controls.BrushPanelOpen);
    EXPECT_TRUE(editor.Overlays.PointerMark.IsOval);
    EXPECT_FALSE(editor.Controls.EraserBarVisible);
    EXPECT_THAT(Pressed(editor.Controls.EraserBar), ElementsAre(1));
    EXPECT_THAT(host.Tips, ElementsAre(4));
    EXPECT_EQ(host.BrushPanelSlides, 2);

    ClickToolButton(editor, 4);
    EXPECT_FALSE(editor.Controls.BrushPanelOpen);
    EXPECT_FALSE(editor.Overlays.PointerMark.IsOval);
    EXPECT_EQ(host.BrushPanelSlides, 3);
    EXPECT_EQ(editor.Controls.ColorOpacity.Value, 50);
    ClickToolButton(editor, 1);
    EXPECT_EQ(host.BrushPanelSlides, 3);

    editor.TipCounter = 0;
    ClickToolButton(editor, 12);
    EXPECT_EQ(editor.CurrentTool, Tool::BrushEraser);
    EXPECT_TRUE(editor.Controls.BrushPanelOpen);
    EXPECT_TRUE(editor.Overlays.PointerMark.IsOval);
    EXPECT_EQ(editor.TipCounter, 500);
    EXPECT_EQ(editor.Controls.ColorOpacity.Value, 50);
    EXPECT_EQ(host.BrushPanelSlides, 4);
    ChooseEraser(editor, 2);
    EXPECT_EQ(editor.CurrentTool, Tool::PencilEraser);
    EXPECT_FALSE(editor.Controls.BrushPanelOpen);
    EXPECT_FALSE(editor.Overlays.PointerMark.IsOval);
    EXPECT_EQ(host.BrushPanelSlides, 5);
}

TEST_F(ToolPalette, MenuEntriesLeaveTheToolColumnAlone) {
    Controls& controls = editor.Controls;
    const struct {
        Tool Chosen;
        MenuEntry& Entry;
        bool HasLineWidth, HasColorOpacity;
    } cases[] = {{Tool::Pencil, controls.m_Pencil, false, true},
                 {Tool::Line, controls.m_Line, true, true},
                 {Tool::Ellipse, controls.m_Ellipse, true, true},
                 {Tool::Rectangle, controls.m_Rectangle, true, true},
                 {Tool::Move, controls.m_Selection, false, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.Chosen));
        ChooseToolEntry(editor, c.Chosen);
        EXPECT_EQ(editor.CurrentTool, c.Chosen);
        EXPECT_TRUE(c.Entry.Checked);
        const int checked = controls.m_Selection.Checked + controls.m_Pencil.Checked +
                            controls.m_Line.Checked + controls.m_Ellipse.Checked +
                            controls.m_Rectangle.Checked;
        EXPECT_EQ(checked, 1);
        EXPECT_EQ(controls.LineWidth.Enabled, c.HasLineWidth);
        EXPECT_EQ(controls.ColorOpacity.Enabled, c.HasColorOpacity);
        EXPECT_THAT(Pressed(controls.ToolBox), ElementsAre(1));
    }
}

class ColorWells : public ToolPalette {};

TEST_F(ColorWells, OpacityIsAlphaInSteps) {
    const struct {
        int Opacity;
        unsigned Alpha;
    } opacities[] = {{100, 255}, {0, 0}, {1, 3}, {10, 26}, {33, 84}, {99, 252}};
    editor.ActiveColor = 1;
    for (const auto& c : opacities) {
        ChangeColorOpacity(editor, c.Opacity);
        EXPECT_EQ(graphics::AlphaOf(editor.Colors[1]), c.Alpha) << c.Opacity;
    }
    EXPECT_EQ(editor.Colors[1] & 0xFFFFFF, 0xC08040U);
    EXPECT_EQ(editor.Colors[0], kBlue);

    const struct {
        Argb Color;
        int Opacity;
    } alphas[] = {{0xFF000000, 100}, {0, 0}, {0x01000000, 0}, {0x02000000, 1}, {0x80000000, 50}};
    for (const auto& c : alphas) {
        editor.Colors[0] = c.Color;
        UseColorWell(editor, 0);
        EXPECT_EQ(editor.Controls.ColorOpacity.Value, c.Opacity) << c.Color;
        UseColorWell(editor, 1);
    }
    EXPECT_EQ(editor.ActiveColor, 1);
}

TEST_F(ColorWells, ADoubleClickAsksForAColour) {
    UseColorWell(editor, 1);
    ChangeColorOpacity(editor, 20);
    AskWellColor(editor, 1);  // cancelled
    EXPECT_EQ(editor.Colors[1], 0x33C08040U);
    host.Color = 0xFF010203;
    AskWellColor(editor, 1);
    EXPECT_EQ(editor.Colors[1], 0x33010203U);
    host.Color.reset();
    AskWellColor(editor, 0);
    EXPECT_EQ(editor.ActiveColor, 0);
    EXPECT_EQ(editor.Colors[0], kBlue);
}

TEST_F(ColorWells, ExchangeKeepsTheWellInUse) {
    UseColorWell(editor, 1);
    ExchangeColor(editor);
    EXPECT_EQ(editor.ActiveColor, 1);
    EXPECT_THAT(editor.Colors, ElementsAre(0xFFC08040, kBlue));
}

// The page of 40 x 30 at zoom 2 lies at (60, 45) of the scene; the pointer is rounded to whole
// scene pixels, ties to even.
TEST_F(ColorWells, ThePickTakesThePageAsComposed) {
    PutLayer(testing::FilledPicture(1, 30, 0x80112233), 0, 0);
    PutLayer(testing::FilledPicture(1, 30, 0xFFFF0000), 1, 0);
    PutLayer(testing::FilledPicture(2, 30, 0xFF0000FF), 0, 0).Visible = false;
    SetZoom(2);
    editor.CurrentTool = Tool::ColorPick;
    editor.ActiveColor = 1;
    const struct {
        float X;
        Argb Expected;
        int Opacity;
    } cases[] = {{60, 0x80112233, 50},
                 {61.4F, 0x80112233, 50},
                 {61.5F, 0xFFFF0000, 100},
                 {63, 0xFFFF0000, 100},
                 {64, 0, 0},
                 {63.4F, 0xFFFF0000, 100},
                 {20, 0, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.X);
        Press(OnScene(c.X, 50));
        EXPECT_EQ(editor.Colors[1], c.Expected);
        EXPECT_EQ(editor.Controls.ColorOpacity.Value, c.Opacity);
        EXPECT_FALSE(editor.DragActive);
        ReleaseScene(editor, OnScene(c.X, 50));
    }
    EXPECT_EQ(editor.Colors[0], kBlue);
    EXPECT_EQ(editor.History.UndoIndex(), 0);
}

TEST_F(ColorWells, ThePageColourIsOpaqueOrNone) {
    AskPageBackground(editor);  // cancelled
    EXPECT_EQ(editor.Document.PageBackground, 0U);
    host.Color = 0x00102030;
    AskPageBackground(editor);
    EXPECT_EQ(editor.Document.PageBackground, 0xFF102030U);
    EXPECT_EQ(editor.Scene.GetPixel(100, 75), 0xFF102030U);
    SetPageBackground(editor, 0);
    EXPECT_EQ(editor.Document.PageBackground, 0U);
    EXPECT_NE(editor.Scene.GetPixel(100, 75), 0xFF102030U);
    EXPECT_FALSE(editor.Document.Modified);
}

}  // namespace
}  // namespace orbelle::editing
