// The pointer on the scene, the wheel over it and the tools.
#include "main_window_fixture.h"

#include <QLabel>
#include <QMenu>
#include <QWheelEvent>
#include <QWindow>

#include "editing/color_wells.h"
#include "editing/page_commands.h"
#include "editing/tips.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "widgets/balloon.h"

namespace orbelle::app {
namespace {

TEST_F(MainWindowTest, CtrlAndTheWheelZoomInWholeSteps) {
    OpenPicture(16, 16);
    window.Run(editing::OriginalSize);
    const auto turn = [&](int delta, Qt::KeyboardModifiers modifiers) {
        QWheelEvent wheel(QPointF(50, 50), Scene().mapToGlobal(QPointF(50, 50)), QPoint(),
                          QPoint(0, delta), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Scene(), &wheel);
        return window.Editor().View.Zoom;
    };
    EXPECT_EQ(turn(120, Qt::NoModifier), 1);
    for (const auto& [delta, zoom] : {std::pair(60, 1), {60, 3}, {240, 7}, {-120, 5}})
        EXPECT_EQ(turn(delta, Qt::ControlModifier), zoom);
}

// Only Windows does such a press again for what lies below, unless the attribute is set.
TEST_F(MainWindowTest, PressOutsideMenusClosesThemAndDoesNothingElse) {
    OpenPicture(32, 32);
    QMenu menu(&window);
    QMenu* inner = menu.addMenu("Inner");
    inner->addAction("Action");
    for (const bool isInnerOpen : {false, true}) {
        menu.popup(window.mapToGlobal(QPoint(50, 30)));
        if (isInnerOpen)
            menu.setActiveAction(inner->menuAction());
        QWidget* top = QApplication::activePopupWidget();
        ASSERT_EQ(top, isInnerOpen ? inner : &menu);
        const auto press = [&](const QPointF& place) {
            QMouseEvent event(QEvent::MouseButtonPress, place, top->mapToGlobal(place),
                              Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(top->windowHandle(), &event);
        };
        press({3, 3});
        EXPECT_FALSE(menu.testAttribute(Qt::WA_NoMouseReplay));
        press(top->mapFromGlobal(Scene().mapToGlobal(QPointF(Scene().rect().center()))));
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_TRUE(menu.testAttribute(Qt::WA_NoMouseReplay)) << "inner menu: " << isInnerOpen;
        menu.setAttribute(Qt::WA_NoMouseReplay, false);
    }
}

TEST_F(MainWindowTest, ToolButtonsChooseAndLatchOneTool) {
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
    for (const bool shown : {false, true, false}) {
        EXPECT_EQ(fills.isVisible(), shown);
        EXPECT_TRUE(tools.IsPressed(8)) << "another click does not release it";
        ClickBar("ToolBox", 8);
    }
}

// A filled rectangle from (4, 4): Shift alone makes its sides equal.
TEST_F(MainWindowTest, ShiftCountsOnlyWhenItIsHeldAlone) {
    NewPage(32, 32);
    window.Run([](editing::Editor& editor) { SetWellColor(editor, 0, 0xFF00A020); });
    ClickBar("ToolBox", 9);
    const std::tuple<const char*, Qt::KeyboardModifiers, bool> cases[] = {
        {"none", Qt::NoModifier, false},
        {"Shift", Qt::ShiftModifier, true},
        {"Shift on the number block", Qt::ShiftModifier | Qt::KeypadModifier, true},
        {"Ctrl", Qt::ControlModifier, false},
        {"Shift and Ctrl", Qt::ShiftModifier | Qt::ControlModifier, false},
        {"Shift and Alt", Qt::ShiftModifier | Qt::AltModifier, false},
    };
    for (const auto& [name, keys, isSquare] : cases) {
        MouseOnPage(QEvent::MouseMove, {4, 4}, Qt::NoButton, Qt::NoButton, keys);
        MouseOnPage(QEvent::MouseButtonPress, {4, 4}, Qt::LeftButton, Qt::LeftButton, keys);
        MouseOnPage(QEvent::MouseMove, {20, 10}, Qt::NoButton, Qt::LeftButton, keys);
        MouseOnPage(QEvent::MouseButtonRelease, {20, 10}, Qt::LeftButton, Qt::NoButton, keys);
        const auto isDrawn = [&](int x, int y) {
            return window.Editor().Canvas.GetPixel(x, y) == 0xFF00A020;
        };
        EXPECT_TRUE(isDrawn(18, 8)) << name;
        EXPECT_EQ(isDrawn(8, 18), isSquare) << name;
        EXPECT_EQ(window.Editor().History.UndoIndex(), 1) << name;
        EXPECT_EQ(Part<QLabel>("PointerPosition").text(), "20, 10") << name;
        window.Run(editing::Undo);
    }
    const auto isSquare = [&] { return window.Editor().Canvas.GetPixel(8, 18) == 0xFF00A020; };
    MouseOnPage(QEvent::MouseMove, {4, 4}, Qt::NoButton, Qt::NoButton, {});
    MouseOnPage(QEvent::MouseButtonPress, {4, 4}, Qt::LeftButton, Qt::LeftButton, {});
    MouseOnPage(QEvent::MouseMove, {20, 10}, Qt::NoButton, Qt::LeftButton, {});
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier);
    QApplication::sendEvent(&Scene(), &down);
    EXPECT_TRUE(isSquare());
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_Shift, Qt::NoModifier);
    QApplication::sendEvent(&Scene(), &up);
    EXPECT_FALSE(isSquare());
}

TEST_F(MainWindowTest, ADragHasOneButton) {
    NewPage(64, 64);
    window.Run([](editing::Editor& editor) {
        editor.Page().Selected().Image = FilledPicture(64, 64, 0xFFF08010);
        editor.Page().Selected().Region = graphics::Region::FromRect({0, 0, 64, 64});
    });
    const auto mouse = [&](QEvent::Type type, QPointF place, Qt::MouseButton button,
                           Qt::MouseButtons held) {
        MouseOnPage(type, place, button, held, Qt::NoModifier);
    };
    const auto x = [&] { return Page().Layers[0].Rect.X; };
    mouse(QEvent::MouseButtonPress, {9, 9}, Qt::LeftButton, Qt::LeftButton);
    mouse(QEvent::MouseMove, {14, 9}, Qt::NoButton, Qt::LeftButton);
    mouse(QEvent::MouseButtonPress, {14, 9}, Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    mouse(QEvent::MouseButtonRelease, {14, 9}, Qt::RightButton, Qt::LeftButton);
    EXPECT_FALSE(window.findChild<QMenu*>("OrderMenu")->isVisible());
    mouse(QEvent::MouseMove, {16, 9}, Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(x(), 7);
    // The release was lost.
    mouse(QEvent::MouseMove, {20, 9}, Qt::NoButton, Qt::NoButton);
    mouse(QEvent::MouseMove, {30, 9}, Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(x(), 7);
    EXPECT_EQ(window.Editor().History.UndoIndex(), 1);
}

TEST_F(MainWindowTest, TheStatusLineFollowsWhatLiesUnderThePointer) {
    NewPage(64, 64);
    MouseOnPage(QEvent::MouseMove, {9, 5}, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    EXPECT_EQ(Part<QLabel>("PointerPosition").text(), "9, 5");
    EXPECT_EQ(Part<QLabel>("PointerColor").text(), "#00000000");
    window.Run([](editing::Editor& editor) {
        editor.Page().Selected().Image = FilledPicture(64, 64, 0xFFF08010);
        editor.Changed.Pixels = true;
    });
    EXPECT_EQ(Part<QLabel>("PointerColor").text(), "#FFF08010");
    const auto chip = [&] { return Part<QWidget>("PointerColorChip").grab().toImage(); };
    EXPECT_EQ(chip().pixel(7, 7), 0xFFF08010);
    window.Run([](editing::Editor& editor) { SetPageSize(editor, 44, 64); });
    EXPECT_EQ(Part<QLabel>("PointerPosition").text(), "-1, 5");
    EXPECT_NE(chip().pixel(7, 7), 0xFFF08010);
}

TEST_F(MainWindowTest, TheStatusLineBeginsWithTheToolsHint) {
    const auto& hint = Part<QLabel>("ToolHint");
    EXPECT_EQ(hint.text(), "");
    NewPage(64, 64);
    QStringList hints;
    for (const editing::Tool tool : {editing::Tool::Move, editing::Tool::FilledEllipse,
                                     editing::Tool::SelectPolygon, editing::Tool::BrushEraser}) {
        window.Run([tool](editing::Editor& editor) { editor.Tools.InUse = tool; });
        hints += hint.text();
        EXPECT_LE(hint.fontMetrics().horizontalAdvance(hint.text()), hint.width() - 8);
        EXPECT_LT(hint.geometry().right(), Part<QLabel>("PointerPosition").x());
    }
    EXPECT_EQ(hints[1], "Drag to draw; Shift: circle");
    EXPECT_EQ(hints.removeDuplicates(), 0);
}

TEST_F(MainWindowTest, TheStatusLineTellsPlaceAndSizeOfADrag) {
    NewPage(64, 64);
    const auto& readout = Part<QLabel>("DragReadout");
    const auto drag = [&](editing::Tool tool) {
        window.Run([tool](editing::Editor& editor) { editor.Tools.InUse = tool; });
        MouseOnPage(QEvent::MouseMove, {9, 9}, Qt::NoButton, Qt::NoButton, {});
        MouseOnPage(QEvent::MouseButtonPress, {9, 9}, Qt::LeftButton, Qt::LeftButton, {});
        MouseOnPage(QEvent::MouseMove, {14, 7}, Qt::NoButton, Qt::LeftButton, {});
        const std::string told = readout.text().toStdString();
        MouseOnPage(QEvent::MouseButtonRelease, {14, 7}, Qt::LeftButton, Qt::NoButton, {});
        EXPECT_EQ(readout.text(), "");
        return told;
    };
    EXPECT_EQ(drag(editing::Tool::SelectEllipse), "6 \u00D7 3 at 9, 7");
    window.Run([](editing::Editor& editor) {
        editor.Selection.Clear();
        editor.Page().Selected().Region = graphics::Region::FromRect({0, 0, 64, 64});
    });
    EXPECT_EQ(drag(editing::Tool::Move), "at 5, -2, moved by 5, -2");
}

TEST_F(MainWindowTest, EscapeGivesUpOneThingAtATime) {
    NewPage(64, 64);
    window.SetTipsEnabled(true);
    window.activateWindow();
    Scene().setFocus();
    QApplication::processEvents();
    auto& balloon = Part<widgets::Balloon>("FirstBalloon");
    window.Run([](editing::Editor& editor) {
        editor.Tools.InUse = editing::Tool::SelectRectangle;
        editor.Selection.AddFrame({2, 3, 4, 5}, document::FrameShape::Rectangle);
    });
    MouseOnPage(QEvent::MouseButtonPress, {9, 9}, Qt::LeftButton, Qt::LeftButton, {});
    MouseOnPage(QEvent::MouseMove, {14, 9}, Qt::NoButton, Qt::LeftButton, {});
    window.RunDuringDrag(
        [](editing::Editor& editor) { editor.Changed.Tip = {editing::tips::Adjusted}; });
    Strike(Scene(), Qt::Key_Escape);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(window.Editor().Drag));
    EXPECT_EQ(window.Editor().Selection.Bounds(), (graphics::RectI{2, 3, 4, 5}));
    EXPECT_TRUE(balloon.isVisible());
    Strike(Scene(), Qt::Key_Escape);
    EXPECT_FALSE(balloon.isVisible());
    EXPECT_TRUE(window.Editor().Selection.Exists());
    Strike(Scene(), Qt::Key_Escape);
    EXPECT_FALSE(window.Editor().Selection.Exists());
}

}  // namespace
}  // namespace orbelle::app
