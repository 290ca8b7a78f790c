#include "editing/tool_palette.h"

#include "editing/buttons.h"
#include "editing/color_wells.h"
#include "editing/tips.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using graphics::Argb;
using ::testing::ElementsAre;

class ToolPalette : public EditingTest {
protected:
    ToolPalette() { OpenPage(40, 30); }

    void SelectSomething() {
        editor.Selection.AddFrame({0, 0, 4, 4}, document::FrameShape::Rectangle);
    }
    const ToolSettings& Tools() const { return editor.Tools; }
};

TEST_F(ToolPalette, WhatEachButtonChooses) {
    const struct {
        int Button;
        Tool Chosen;
        bool KeepsSelection;
        int Tip;
    } cases[] = {
        {4, Tool::Pencil, false, 4},         {1, Tool::Move, true, 3},
        {2, Tool::SelectRectangle, true, 4}, {5, Tool::Line, false, 4},
        {6, Tool::Ellipse, false, 4},        {7, Tool::FilledEllipse, false, 4},
        {8, Tool::Rectangle, false, 4},      {9, Tool::FilledRectangle, false, 4},
        {11, Tool::ColorPick, false, -1},    {12, Tool::PencilEraser, false, 4},
    };
    for (const auto choose : {ClickToolButton, ChooseToolByKey}) {
        for (const auto& c : cases) {
            SCOPED_TRACE(c.Button);
            SelectSomething();
            editor.PolygonPoints = {{1, 1}};
            editor.Overlays.RubberBand.Visible = editor.Overlays.PointerMark.Visible = true;
            Do(choose, c.Button);
            EXPECT_EQ(Tools().InUse, c.Chosen);
            EXPECT_EQ(editor.Selection.Exists(), c.KeepsSelection);
            EXPECT_EQ(recorder.LastTip(), c.Tip);
            EXPECT_TRUE(editor.PolygonPoints.empty());
            EXPECT_FALSE(editor.Overlays.RubberBand.Visible);
            EXPECT_EQ(editor.Overlays.PointerMark.Visible, c.Chosen != Tool::Move);
            EXPECT_TRUE(recorder.Last.Scene);
            EXPECT_TRUE(choose != ChooseToolByKey || Tools().OpenPopup == Popup::None);
        }
    }
    for (const Tool tool : {Tool::Line, Tool::Move}) {
        SelectSomething();
        Do(ChooseToolEntry, tool);  // of the menu
        EXPECT_EQ(Tools().InUse, tool);
        EXPECT_TRUE(editor.Selection.Exists());
        EXPECT_EQ(recorder.LastTip(), -1);
    }
    // The menu's entry shows what goes with the tool, too.
    Do(ChooseEraser, Tool::PencilEraser);
    Do(ClickToolButton, 12);
    EXPECT_EQ(editor.Sliders.ColorOpacity.Value, 0);
    Do(ChooseToolEntry, Tool::Pencil);
    EXPECT_EQ(editor.Sliders.ColorOpacity.Value, 100);
    EXPECT_EQ(Tools().OpenPopup, Popup::None);
    Do(MoveScene, OnPage(3, 3));
    Do(ChooseToolEntry, Tool::Move);
    EXPECT_FALSE(editor.Overlays.PointerMark.Visible);

    editor.DocumentExists = false;
    Show();
    Do(ClickToolButton, 4);  // disabled
    Do(ChooseToolEntry, Tool::Pencil);
    EXPECT_EQ(Tools().InUse, Tool::Move);
}

TEST_F(ToolPalette, PopupsOpenWithTheirButtonAndCloseWithTheSecondClick) {
    const struct {
        int Button;
        Popup Opened;
    } clicks[] = {{5, Popup::FillBar},    {5, Popup::None},         {5, Popup::FillBar},
                  {9, Popup::FillBar},    {2, Popup::SelectionBar}, {2, Popup::None},
                  {12, Popup::EraserBar}, {12, Popup::None},        {6, Popup::FillBar},
                  {4, Popup::None},       {8, Popup::FillBar},      {11, Popup::None},
                  {7, Popup::FillBar},    {1, Popup::None},         {5, Popup::FillBar}};
    for (const auto& c : clicks) {
        Do(ClickToolButton, c.Button);
        EXPECT_EQ(Tools().OpenPopup, c.Opened) << &c - clicks;
    }
    Do(ChooseFill, FillKind::VerticalGradient);
    EXPECT_EQ(Tools().FillKind, FillKind::VerticalGradient);
    EXPECT_EQ(Tools().OpenPopup, Popup::None);
}

TEST_F(ToolPalette, KindsOfSelectionsAndErasersAreRemembered) {
    const struct {
        Tool Chosen;
        bool Frame, Oval;
    } cases[] = {{Tool::SelectPolygon, false, false},
                 {Tool::SelectEllipse, true, true},
                 {Tool::SelectRectangle, true, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.Chosen));
        Do(ClickToolButton, 2);
        editor.Selection = {};
        Do(ChooseSelection, c.Chosen);
        EXPECT_EQ(Tools().OpenPopup, Popup::None);
        EXPECT_FALSE(editor.Selection.Region().IsNull());  // begun, without a shape
        EXPECT_FALSE(editor.Selection.Exists());
        Do(ClickToolButton, 1);
        EXPECT_FALSE(editor.Overlays.SelectionFrame.Visible);
        Do(ClickToolButton, 2);
        EXPECT_EQ(Tools().InUse, c.Chosen);
        EXPECT_EQ(editor.Overlays.SelectionFrame, (OverlayShape{c.Frame, c.Oval, {}}));
    }
    SelectSomething();
    Do(ChooseSelection, Tool::SelectEllipse);
    EXPECT_TRUE(editor.Selection.Exists());

    // The pencil eraser shows an opacity of 0; the colour keeps its own.
    editor.Tools.Colors[0] = 0x80336699;
    const struct {
        Command Run;
        Tool InUse;
        int OpacityShown;
    } steps[] = {{[](Editor& e) { ClickToolButton(e, 12); }, Tool::PencilEraser, 0},
                 {[](Editor& e) { ChooseEraser(e, Tool::BrushEraser); }, Tool::BrushEraser, 0},
                 {[](Editor& e) { ClickToolButton(e, 4); }, Tool::Pencil, 50},
                 {[](Editor& e) { ClickToolButton(e, 12); }, Tool::BrushEraser, 50},
                 {[](Editor& e) { ChooseEraser(e, Tool::PencilEraser); }, Tool::PencilEraser, 50}};
    for (const auto& step : steps) {
        Do(step.Run);
        EXPECT_EQ(Tools().InUse, step.InUse);
        EXPECT_EQ(editor.Overlays.PointerMark.IsOval, step.InUse == Tool::BrushEraser);
        EXPECT_EQ(editor.Sliders.ColorOpacity.Value, step.OpacityShown);
        EXPECT_EQ(recorder.LastTip(), tips::OtherTool);
    }
    EXPECT_EQ(Tools().Colors[0], 0x80336699U);
    EXPECT_EQ(Tools().OpenPopup, Popup::None);
}

TEST_F(ToolPalette, OptionsStopAtTheEndsOfTheirSliders) {
    const struct {
        void (*Change)(Editor&, int);
        const Slider& Shown;
        int Most;
    } cases[] = {{ChangeLineWidth, editor.Sliders.LineWidth, 255},
                 {ChangeBrushSize, editor.Sliders.BrushSize, 100},
                 {ChangeBrushOpacity, editor.Sliders.BrushOpacity, 100}};
    for (const auto& c : cases) {
        for (const auto& [value, shown] : {std::pair{7, 7}, {0, 1}, {9999, c.Most}}) {
            Do(c.Change, value);
            EXPECT_EQ(c.Shown.Value, shown);
            EXPECT_TRUE(recorder.Last.Controls);
        }
    }
}

TEST_F(ToolPalette, OpacityIsAlphaInSteps) {
    editor.Tools.ActiveColor = 1;
    for (const auto& [opacity, alpha] :
         {std::pair{100, 255U}, {0, 0U}, {1, 3U}, {10, 26U}, {33, 84U}, {99, 252U}}) {
        Do(ChangeColorOpacity, opacity);
        EXPECT_EQ(Tools().Colors[1], graphics::SetAlphaByte(0xC08040, alpha)) << opacity;
    }
    EXPECT_EQ(Tools().Colors[0], kBlue);
    for (const auto& [alpha, opacity] :
         {std::pair{255U, 100}, {0U, 0}, {1U, 0}, {2U, 1}, {128U, 50}}) {
        editor.Tools.Colors[0] = graphics::SetAlphaByte(0, alpha);
        Do(UseColorWell, 0);
        EXPECT_EQ(editor.Sliders.ColorOpacity.Value, opacity) << alpha;
        Do(UseColorWell, 1);
    }
    EXPECT_EQ(Tools().ActiveColor, 1);
}

TEST_F(ToolPalette, ChosenAndExchangedColours) {
    Do(UseColorWell, 1);
    Do(ChangeColorOpacity, 20);
    const std::pair<Argb, Argb> toChoose[] = {
        {0x33010203, 0x33010203}, {0x80010203, 0x7F010203},  // 50 %
        {0x00010203, 0xFF010203}, {0x01010203, 0xFF010203},  // chosen to be seen
        {0x02010203, 0x03010203}, {0xFF010203, 0xFF010203}};
    for (const auto& [present, start] : toChoose)
        EXPECT_EQ(ColorToChoose(present), start) << present;
    Do(ChooseWellColor, 0, Argb{0x33040506});
    EXPECT_EQ(Tools().Colors[0], 0x33040506U);
    EXPECT_EQ(Tools().ActiveColor, 0) << "in use";
    EXPECT_EQ(editor.Sliders.ColorOpacity.Value, 20);
    Do(SetWellColor, 1, Argb{0x80FFFFFF});
    EXPECT_EQ(editor.Sliders.ColorOpacity.Value, 20);
    Do(ExchangeColor);
    EXPECT_EQ(Tools().ActiveColor, 0);
    EXPECT_THAT(Tools().Colors, ElementsAre(0x80FFFFFFU, 0x33040506U));
    EXPECT_EQ(editor.Sliders.ColorOpacity.Value, 50);
}

// The page of 40 x 30 at zoom 2 lies at (60, 45) of the scene.
TEST_F(ToolPalette, ThePickTakesThePixelUnderThePointer) {
    PutLayer(testing::FilledPicture(1, 30, 0x80112233), 0, 0);
    PutLayer(testing::FilledPicture(1, 30, 0xFFFF0000), 1, 0);
    PutLayer(testing::FilledPicture(2, 30, 0xFF0000FF), 0, 0).Visible = false;
    SetZoom(2);
    editor.Tools.InUse = Tool::ColorPick;
    Do(UseColorWell, 1);
    const struct {
        float X, Y;
        Argb Expected;
    } cases[] = {{60, 50, 0x80112233}, {61.9F, 50, 0x80112233}, {62, 50, 0xFFFF0000},
                 {63, 50, 0xFFFF0000}, {63.9F, 50, 0xFFFF0000}, {64, 50, 0},
                 {199.9F, 50, 0},      {60, 50, 0x80112233},    {200, 50, 0x80112233},
                 {-1, 50, 0x80112233}, {60, 150, 0x80112233},   {60, -1, 0x80112233}};
    for (const auto& c : cases) {
        Press(OnScene(c.X, c.Y));
        EXPECT_EQ(Tools().Colors[1], c.Expected) << c.X << ", " << c.Y;
    }
    EXPECT_EQ(Tools().Colors[0], kBlue);
    EXPECT_EQ(editor.Sliders.ColorOpacity.Value, 50);
}

}  // namespace
}  // namespace orbelle::editing
