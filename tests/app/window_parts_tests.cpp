// The parts of the main window: what they show of the editor, and what they hand to it.
#include <gtest/gtest.h>

#include <QLabel>
#include <QMouseEvent>

#include "app/bottom_panel.h"
#include "app/color_well.h"
#include "app/main_window.h"
#include "app/right_panel.h"
#include "app/scene_view.h"
#include "app/settings.h"
#include "editing/document_commands.h"
#include "editing/layer_commands.h"
#include "editing/tips.h"
#include "waiting.h"
#include "widgets/layer_list.h"
#include "widgets/number_slider.h"
#include "widgets/track_slider.h"

namespace orbelle::app {
namespace {

using orbelle::testing::WaitUntil;
using widgets::ButtonBar;

class WindowPartsTest : public ::testing::Test {
protected:
    WindowPartsTest() {
        form.resize(1100, 760);
        form.show();
    }

    void NewPage(int width, int height) {
        form.Run([=](editing::Editor& editor) {
            ResetDocument(editor, width, height, true);
            editor.DocumentExists = true;
            editor.Host.ControlsChanged();
        });
        ASSERT_TRUE(WaitUntil([&] { return !form.IsZoomAnimationRunning(); }));
    }

    template <typename Widget>
    Widget& Part(const char* name) {
        auto* part = form.findChild<Widget*>(name);
        if (!part)
            throw std::logic_error(name);
        return *part;
    }

    void Mouse(QWidget& widget, QEvent::Type type, const QPointF& at,
               Qt::MouseButton button = Qt::LeftButton) {
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, at, widget.mapToGlobal(at), moves ? Qt::NoButton : button,
                          type == QEvent::MouseButtonPress ? button : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }

    void ClickBar(const char* name, int button) {
        auto& bar = Part<ButtonBar>(name);
        const QPointF at = bar.ButtonRect(button).center();
        Mouse(bar, QEvent::MouseMove, at);
        Mouse(bar, QEvent::MouseButtonPress, at);
        Mouse(bar, QEvent::MouseButtonRelease, at);
    }

    // Scene pixels of the middle of a page pixel.
    QPointF OnPage(double x, double y) {
        const document::View& view = form.Editor().View;
        return {document::PageOffsetX(form.Editor().Document, view) + (x + 0.5) * view.Zoom,
                document::PageOffsetY(form.Editor().Document, view) + (y + 0.5) * view.Zoom};
    }

    void DragOnPage(QPointF from, QPointF to) {
        auto& scene = *form.findChild<SceneView*>();
        Mouse(scene, QEvent::MouseMove, OnPage(from.x(), from.y()));
        Mouse(scene, QEvent::MouseButtonPress, OnPage(from.x(), from.y()));
        Mouse(scene, QEvent::MouseMove, OnPage(to.x(), to.y()));
        Mouse(scene, QEvent::MouseButtonRelease, OnPage(to.x(), to.y()));
    }

    MainWindow form;
};

TEST_F(WindowPartsTest, ToolButtonsChooseAndLatchOneTool) {
    auto& tools = Part<ButtonBar>("ToolBox");
    ClickBar("ToolBox", 5);
    EXPECT_FALSE(tools.IsPressed(5));  // there is no document yet
    NewPage(32, 32);
    ClickBar("ToolBox", 8);
    EXPECT_EQ(form.Editor().CurrentTool, editing::Tool::Rectangle);
    EXPECT_TRUE(tools.IsPressed(8));
    EXPECT_FALSE(tools.IsPressed(1));
    auto& fills = Part<ButtonBar>("FillBar");
    EXPECT_TRUE(fills.isVisible());
    EXPECT_EQ(fills.mapTo(form.centralWidget(), QPoint()).x(),
              tools.mapTo(form.centralWidget(), QPoint()).x() + tools.width() + 1);
    ClickBar("FillBar", 2);
    EXPECT_EQ(form.Editor().FillKind, editing::FillKind::HorizontalGradient);
    EXPECT_FALSE(fills.isVisible());
    ClickBar("ToolBox", 8);
    EXPECT_TRUE(fills.isVisible());
    EXPECT_TRUE(tools.IsPressed(8));
    ClickBar("ToolBox", 8);
    EXPECT_FALSE(fills.isVisible());
}

TEST_F(WindowPartsTest, TheMouseDrawsOnTheScene) {
    NewPage(32, 32);
    form.Run([](editing::Editor& editor) { editor.Colors[0] = 0xFF00A020; });
    ClickBar("ToolBox", 9);
    DragOnPage({5, 5}, {8, 9});
    EXPECT_EQ(form.Editor().Canvas.GetPixel(4, 4), 0xFF00A020);
    EXPECT_EQ(form.Editor().Canvas.GetPixel(8, 9), 0xFF00A020);
    EXPECT_EQ(form.Editor().Canvas.GetPixel(9, 9), 0u);
    EXPECT_EQ(form.Editor().History.UndoIndex(), 1);
    EXPECT_EQ(Part<QLabel>("PointerPosition").text(), "8, 9");
    EXPECT_EQ(Part<QLabel>("PointerColor").text(), "#FF00A020");
}

TEST_F(WindowPartsTest, TheLayerListFollowsAndSelects) {
    NewPage(32, 32);
    form.Run(editing::AddLayerCommand);
    auto& list = Part<widgets::LayerList>("LayerPanel");
    ASSERT_TRUE(WaitUntil([&] { return list.Count() == 2; }));
    EXPECT_EQ(list.SelectedIndex(), 1);
    Mouse(*list.viewport(), QEvent::MouseButtonPress, {20, 60});
    EXPECT_EQ(form.Editor().Document.SelectedLayer, 0);
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

TEST_F(WindowPartsTest, ColourWellsTakeTurns) {
    form.Run([](editing::Editor& editor) { editor.Colors = {0xFFFF0000, 0x800000FF}; });
    form.ControlsChanged();
    Mouse(Part<ColorWell>("ForeColorOLE1"), QEvent::MouseButtonPress, {10, 10});
    EXPECT_EQ(form.Editor().ActiveColor, 1);
    EXPECT_EQ(Part<widgets::TrackSlider>("ColorOpacity").value(), 50);
}

TEST_F(WindowPartsTest, TipsShowOnlyWhenTheyAreOnAndCloseAtAPress) {
    NewPage(64, 64);
    auto& balloon = Part<widgets::Balloon>("FirstBalloon");
    form.ShowTips(editing::tips::Adjusted, false);
    EXPECT_FALSE(balloon.isVisible());
    form.SetTipsEnabled(true);
    form.ShowTips(editing::tips::Adjusted, false);
    EXPECT_TRUE(balloon.isVisible());
    EXPECT_EQ(balloon.pos().x(), 230);
    EXPECT_GT(balloon.pos().y(), Part<ButtonBar>("MainBar").geometry().bottom());

    auto& scene = *form.findChild<SceneView*>();
    Mouse(scene, QEvent::MouseButtonPress, {5, 5});
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

TEST_F(WindowPartsTest, SettingsComeBack) {
    {
        Settings settings;
        settings.setValue("ForeColor0", "255,0,64,128");
        settings.setValue("ForeColor1", "255,7");
        settings.setValue("CtlScroll23", 33);
        settings.remove("CtlScroll22");
        settings.setValue("TipsControl", 1);
        settings.setValue("isQuick", -1);
        settings.setValue("CtlTitle2", 0);
        settings.setValue("CtlTitle6", -1);
    }
    form.RestoreSettings();
    EXPECT_EQ(form.Editor().Colors[0], 0xFF004080);
    EXPECT_EQ(form.Editor().Colors[1], 0xFF070000);  // what is missing is 0
    EXPECT_EQ(form.Editor().Controls.BrushSize.Value, 33);
    EXPECT_EQ(form.Editor().Controls.BrushOpacityText, "1%");
    EXPECT_TRUE(form.TipsEnabled());
    EXPECT_FALSE(Part<widgets::PanelHeader>("CtlTitle4").IsClosed());
    EXPECT_TRUE(Part<widgets::PanelHeader>("CtlTitle2").IsClosed());
    EXPECT_FALSE(Part<widgets::PanelHeader>("CtlTitle6").IsClosed());
    form.SetTipsEnabled(false);
    form.StoreSettings();
    const Settings settings;
    EXPECT_EQ(settings.value("TipsControl").toInt(), 0);
    EXPECT_EQ(settings.value("CtlTitle6").toInt(), -1);
    EXPECT_EQ(settings.value("ForeColor1").toStringList().join(','), "255,7,0,0");
}

}  // namespace
}  // namespace orbelle::app
