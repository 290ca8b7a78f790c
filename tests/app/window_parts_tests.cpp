// The parts of the main window: what they show of the editor, and what they hand to it.
#include <gtest/gtest.h>

#include <QLabel>

#include "app/bottom_panel.h"
#include "app/color_well.h"
#include "app/main_window.h"
#include "app/scene_view.h"
#include "app/settings.h"
#include "editing/color_wells.h"
#include "editing/document_commands.h"
#include "editing/layer_commands.h"
#include "editing/tips.h"
#include "editing/undo_commands.h"
#include "support/hands.h"
#include "waiting.h"
#include "widgets/layer_list.h"
#include "widgets/number_slider.h"
#include "widgets/panel_header.h"
#include "widgets/track_slider.h"

namespace orbelle::app {
namespace {

using namespace orbelle::testing;
using widgets::ButtonBar;

class WindowPartsTest : public ::testing::Test {
protected:
    WindowPartsTest() {
        window.resize(1100, 760);
        window.show();
    }

    void NewPage(int width, int height) {
        window.Run([=](editing::Editor& editor) { NewDocument(editor, width, height); });
        ASSERT_TRUE(WaitUntil([&] { return !window.IsZoomAnimationRunning(); }));
    }

    template <typename Widget>
    Widget& Part(const char* name) {
        auto* part = window.findChild<Widget*>(name);
        if (!part)
            throw std::logic_error(name);
        return *part;
    }

    // The control that assistive tools know by this name.
    template <typename Widget>
    Widget& Named(const char* name) {
        for (Widget* part : window.findChildren<Widget*>())
            if (part->accessibleName() == name)
                return *part;
        throw std::logic_error(name);
    }

    void ClickBar(const char* name, int button) {
        auto& bar = Part<ButtonBar>(name);
        const QPointF at = bar.ButtonRect(button).center();
        SendMouse(bar, QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton);
        Click(bar, at);
    }

    // Scene pixels of the middle of a page pixel.
    QPointF OnPage(QPointF place) {
        const document::Page& page = window.Editor().Page();
        const document::View& view = window.Editor().View;
        return {document::PageOffsetX(page, view) + (place.x() + 0.5) * view.Zoom,
                document::PageOffsetY(page, view) + (place.y() + 0.5) * view.Zoom};
    }

    void DragOnPage(QPointF from, QPointF to, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        auto& scene = *window.findChild<SceneView*>();
        SendMouse(scene, QEvent::MouseMove, OnPage(from), Qt::NoButton, Qt::NoButton, keys);
        SendMouse(scene, QEvent::MouseButtonPress, OnPage(from), Qt::LeftButton, Qt::LeftButton,
                  keys);
        SendMouse(scene, QEvent::MouseMove, OnPage(to), Qt::NoButton, Qt::LeftButton, keys);
        SendMouse(scene, QEvent::MouseButtonRelease, OnPage(to), Qt::LeftButton, Qt::NoButton,
                  keys);
    }

    MainWindow window;
};

TEST_F(WindowPartsTest, ToolButtonsChooseAndLatchOneTool) {
    auto& tools = Part<ButtonBar>("ToolBox");
    ClickBar("ToolBox", 5);
    EXPECT_FALSE(tools.IsPressed(5)) << "there is no document yet";
    NewPage(32, 32);
    ClickBar("ToolBox", 8);
    EXPECT_EQ(window.Editor().Tools.InUse, editing::Tool::Rectangle);
    EXPECT_TRUE(tools.IsPressed(8));
    EXPECT_FALSE(tools.IsPressed(1));
    auto& fills = Part<ButtonBar>("FillBar");
    EXPECT_TRUE(fills.isVisible());
    EXPECT_EQ(fills.mapTo(window.centralWidget(), QPoint()).x(),
              tools.mapTo(window.centralWidget(), QPoint()).x() + tools.width() + 1);
    ClickBar("FillBar", 2);
    EXPECT_EQ(window.Editor().Tools.FillKind, editing::FillKind::HorizontalGradient);
    EXPECT_FALSE(fills.isVisible());
    ClickBar("ToolBox", 8);
    EXPECT_TRUE(fills.isVisible());
    EXPECT_TRUE(tools.IsPressed(8)) << "a second click does not release it";
    ClickBar("ToolBox", 8);
    EXPECT_FALSE(fills.isVisible());
}

// A filled rectangle from (4, 4): Shift alone makes its sides equal.
TEST_F(WindowPartsTest, ShiftCountsOnlyWhenItIsHeldAlone) {
    NewPage(32, 32);
    window.Run([](editing::Editor& editor) { SetWellColor(editor, 0, 0xFF00A020); });
    ClickBar("ToolBox", 9);
    const struct {
        const char* Name;
        Qt::KeyboardModifiers Keys;
        bool IsSquare;
    } cases[] = {
        {"none", Qt::NoModifier, false},
        {"Shift", Qt::ShiftModifier, true},
        {"Shift on the number block", Qt::ShiftModifier | Qt::KeypadModifier, true},
        {"Ctrl", Qt::ControlModifier, false},
        {"Shift and Ctrl", Qt::ShiftModifier | Qt::ControlModifier, false},
        {"Shift and Alt", Qt::ShiftModifier | Qt::AltModifier, false},
    };
    for (const auto& [name, keys, isSquare] : cases) {
        DragOnPage({4, 4}, {20, 10}, keys);
        const auto isDrawn = [&](int x, int y) {
            return window.Editor().Canvas.GetPixel(x, y) == 0xFF00A020;
        };
        EXPECT_TRUE(isDrawn(18, 8)) << name;
        EXPECT_EQ(isDrawn(8, 18), isSquare) << name;
        EXPECT_EQ(window.Editor().History.UndoIndex(), 1) << name;
        EXPECT_EQ(Part<QLabel>("PointerPosition").text(), "20, 10") << name;
        window.Run(editing::Undo);
    }
}

TEST_F(WindowPartsTest, TheLayerListFollowsAndSelects) {
    NewPage(32, 32);
    window.Run([](editing::Editor& editor) { AddEmptyLayer(editor, 32, 32); });
    auto& list = Part<widgets::LayerList>("Layers");
    ASSERT_TRUE(WaitUntil([&] { return list.Count() == 2; }));
    EXPECT_EQ(list.SelectedIndex(), 1);
    Press(*list.viewport(), {20, 60});
    EXPECT_EQ(window.Editor().Page().SelectedLayer, 0);
}

TEST_F(WindowPartsTest, SlidersMirrorTheEditor) {
    EXPECT_FALSE(Part<widgets::NumberSlider>("PageWidth").isEnabled());
    NewPage(48, 32);
    EXPECT_EQ(Part<widgets::NumberSlider>("PageWidth").Value(), 48);
    EXPECT_EQ(Part<widgets::NumberSlider>("PageHeight").Value(), 32);
    ClickBar("ToolBox", 5);
    EXPECT_TRUE(Part<widgets::NumberSlider>("LineWidth").isEnabled());
    ClickBar("ToolBox", 4);
    EXPECT_FALSE(Part<widgets::NumberSlider>("LineWidth").isEnabled());
}

// An adjustment counts from where it changes nothing.
TEST_F(WindowPartsTest, SlidersOfTheRightPanelAreLabelled) {
    NewPage(32, 32);
    const struct {
        const char* Slider;
        const char* Neutral;
        Qt::Key Key;
        const char* Stepped;
    } cases[] = {
        {"Opacity", "100%", Qt::Key_Left, "99%"}, {"Hue", "0", Qt::Key_Right, "1"},
        {"Saturation", "0", Qt::Key_Right, "1"},  {"Brightness", "0", Qt::Key_Left, "-1"},
        {"Contrast", "0", Qt::Key_Right, "1"},
    };
    for (const auto& [name, neutral, key, stepped] : cases) {
        auto& slider = Named<widgets::TrackSlider>(name);
        const auto& label = Part<QLabel>((std::string(name) + "Value").c_str());
        EXPECT_EQ(label.text(), neutral) << name;
        Strike(slider, key);
        EXPECT_EQ(label.text(), stepped) << name;
        EXPECT_TRUE(window.Editor().History.UndoIndex() > 0) << name;
    }
    window.Run(editing::Undo);
    EXPECT_EQ(Part<QLabel>("ContrastValue").text(), "0");
}

TEST_F(WindowPartsTest, ColourWellsTakeTurns) {
    window.Run([](editing::Editor& editor) {
        SetWellColor(editor, 0, 0xFFFF0000);
        SetWellColor(editor, 1, 0x800000FF);
    });
    Press(Part<ColorWell>("ForeColorOLE1"), {10, 10});
    EXPECT_EQ(window.Editor().Tools.ActiveColor, 1);
    EXPECT_EQ(Part<widgets::TrackSlider>("ColorOpacity").value(), 50);
}

TEST_F(WindowPartsTest, TipsShowOnlyWhenTheyAreOnAndCloseAtAPress) {
    NewPage(64, 64);
    auto& balloon = Part<widgets::Balloon>("FirstBalloon");
    const auto change = [&] {
        window.Run([](editing::Editor& editor) { editor.Changed.Tip = {editing::tips::Adjusted}; });
    };
    change();
    EXPECT_FALSE(balloon.isVisible());
    window.SetTipsEnabled(true);
    change();
    EXPECT_TRUE(balloon.isVisible());
    EXPECT_EQ(balloon.pos().x(), 230);
    EXPECT_GT(balloon.pos().y(), Part<ButtonBar>("MainBar").geometry().bottom());

    Press(*window.findChild<SceneView*>(), {5, 5});
    EXPECT_TRUE(WaitUntil([&] { return !balloon.isVisible(); }));
}

TEST_F(WindowPartsTest, TheBrushPanelSlidesIn) {
    NewPage(64, 64);
    Part<BottomPanel>("BottomTips").SetOpen(true);
    auto& panel = Part<QWidget>("BrushPanel");
    EXPECT_FALSE(panel.isVisible());
    ClickBar("ToolBox", 12);
    ClickBar("EraserBar", 1);
    EXPECT_TRUE(WaitUntil([&] { return panel.isVisible() && panel.y() == 0; }));
    ClickBar("ToolBox", 4);
    EXPECT_TRUE(WaitUntil([&] { return !panel.isVisible(); }));
}

// As another hand may have left them; what the program itself stores comes back in the real window.
TEST_F(WindowPartsTest, IncompleteSettingsAreRead) {
    {
        Settings settings;
        settings.setValue("ForeColor0", "255,0,64,128");
        settings.setValue("ForeColor1", "255,7");
        settings.setValue("CtlScroll23", 33);
        settings.remove("CtlScroll22");
        settings.setValue("CtlTitle2", 0);
        settings.setValue("CtlTitle6", -1);
    }
    window.RestoreSettings();
    EXPECT_EQ(window.Editor().Tools.Colors[0], 0xFF004080);
    EXPECT_EQ(window.Editor().Tools.Colors[1], 0xFF070000) << "what is missing is 0";
    EXPECT_EQ(window.Editor().Sliders.BrushSize.Value, 33);
    EXPECT_EQ(window.Editor().Sliders.BrushOpacity.Value, 1) << "0 is out of range";
    EXPECT_TRUE(Part<widgets::PanelHeader>("ColorPanel").IsClosed());
    EXPECT_FALSE(Part<widgets::PanelHeader>("LayerPanel").IsClosed());
}

}  // namespace
}  // namespace orbelle::app
