// The panels: the layer list, sliders, number fields and colour wells.
#include "main_window_fixture.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QWheelEvent>

#include "app/color_well.h"
#include "editing/buttons.h"
#include "editing/color_wells.h"
#include "editing/layer_commands.h"
#include "editing/tool_palette.h"
#include "editing/undo_commands.h"
#include "widgets/layer_list.h"
#include "widgets/number_slider.h"
#include "widgets/panel_header.h"
#include "widgets/track_slider.h"
#include "widgets/value_field.h"

namespace orbelle::app {
namespace {

TEST_F(MainWindowTest, TheLayerListFollowsAndSelects) {
    NewPage(32, 32);
    window.Run([](editing::Editor& editor) { AddEmptyLayer(editor, 32, 32); });
    auto& list = Part<widgets::LayerList>("Layers");
    ASSERT_TRUE(WaitUntil([&] { return list.Count() == 2; }));
    EXPECT_EQ(list.SelectedIndex(), 1);
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    Part<widgets::NumberSlider>("PageWidth").setFocus();
    Press(*list.viewport(), {20, 60});
    EXPECT_EQ(window.Editor().Page().SelectedLayer, 0);
    EXPECT_EQ(QApplication::focusWidget(), &Scene()) << "Delete and the arrows are its keys";
    Part<widgets::NumberSlider>("PageWidth").setFocus();
    Strike(*QApplication::focusWidget(), Qt::Key_Return, "\r");
    EXPECT_EQ(QApplication::focusWidget(), &Scene());
}

TEST_F(MainWindowTest, RowsOfTheLayerListAreHiddenMovedAndNamed) {
    NewPage(32, 32);
    window.Run([](editing::Editor& editor) { AddEmptyLayer(editor, 32, 32); });
    auto& list = Part<widgets::LayerList>("Layers");
    ASSERT_TRUE(WaitUntil([&] { return list.Count() == 2; }));
    Press(*list.viewport(), {double(list.viewport()->width() - 12), 60});
    EXPECT_FALSE(Page().Layers[0].Visible);
    EXPECT_EQ(Page().SelectedLayer, 1);
    Press(*list.viewport(), {60, 20});
    DragTo(*list.viewport(), {60, 50});
    DragTo(*list.viewport(), {60, 78});
    Release(*list.viewport(), {60, 78});
    EXPECT_FALSE(Page().Layers[1].Visible) << "the other one has moved up";
    EXPECT_EQ(window.Editor().History.UndoName(), "Set Order");
    emit list.Renamed(0, " Sky ");
    ASSERT_TRUE(WaitUntil([&] { return list.PartName(1) == "Sky"; }));
    window.Run(editing::Undo);
    ASSERT_TRUE(WaitUntil([&] { return list.PartName(1) == "Icon 1"; }));
}

// One drag of the opacity slider by each of its hands.
TEST_F(MainWindowTest, ANumberBesideASliderIsOneStep) {
    NewPage(32, 32);
    auto& slider = Part<widgets::TrackSlider>("Opacity");
    auto& field = Part<widgets::ValueField>("OpacityValue");
    const auto opacity = [&] { return Page().Selected().Opacity; };
    field.setFocus();
    field.selectAll();
    for (const char* letter : {"4", "0"})
        Strike(field, Qt::Key_unknown, letter);
    EXPECT_EQ(opacity(), 1) << "not digit by digit";
    Strike(field, Qt::Key_Return, "\r");
    EXPECT_EQ(opacity(), 0.4F);
    EXPECT_EQ(field.text(), "40%");
    EXPECT_EQ(window.Editor().History.UndoIndex(), 1);
    Click(slider, {double(slider.width() / 2), 10});
    SendMouse(slider, QEvent::MouseButtonDblClick, {double(slider.width() / 2), 10}, Qt::LeftButton,
              Qt::LeftButton);
    Release(slider, {double(slider.width() / 2), 10});
    EXPECT_EQ(opacity(), 1);
    EXPECT_EQ(window.Editor().History.UndoIndex(), 2);
    window.Run(editing::Undo);
    EXPECT_EQ(opacity(), 0.4F);
}

TEST_F(MainWindowTest, ASmallWindowOpensOnePanelAtATime) {
    const auto open = [&] {
        std::string names;
        for (const char* name :
             {"OpacityPanel", "ColorPanel", "SizePanel", "FilterPanel", "LayerPanel"})
            if (!Part<widgets::PanelHeader>(name).IsClosed())
                names += std::string(name, 1);
        return names;
    };
    const auto click = [&](const char* name) { Part<widgets::PanelHeader>(name).click(); };
    ASSERT_EQ(open(), "OCSFL");
    click("FilterPanel");
    window.resize(1000, 540);
    QApplication::processEvents();
    EXPECT_EQ(open(), "O");
    click("ColorPanel");
    EXPECT_EQ(open(), "C");
    click("ColorPanel");
    EXPECT_EQ(open(), "");
    click("LayerPanel");
    EXPECT_EQ(open(), "L");
    window.resize(1000, 700);
    QApplication::processEvents();
    EXPECT_EQ(open(), "OSL") << "as it was wanted";
}

// However the wheel comes back, the picture does; Escape leaves no step.
TEST_F(MainWindowTest, ARunOfTheWheelIsOneDragFromOneSnapshot) {
    NewPage(4, 4);
    window.Run([](editing::Editor& editor) {
        editor.Page().Selected().Image = FilledPicture(4, 4, 0xFFF08010);
        editor.Changed.Pixels = true;
    });
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    auto& slider = Part<widgets::TrackSlider>("Brightness");
    const auto turn = [&](std::initializer_list<int> angles) {
        for (const int angle : angles) {
            QWheelEvent wheel({9, 9}, slider.mapToGlobal(QPointF(9, 9)), {}, {0, angle},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&slider, &wheel);
        }
    };
    const auto color = [&] { return *Page().Selected().Image.GetPixel(1, 1); };
    slider.setFocus();
    turn({120, 120, 120});
    EXPECT_EQ(Part<widgets::ValueField>("BrightnessValue").text(), "3");
    EXPECT_NE(color(), 0xFFF08010);
    turn({-120, -120, -120});
    EXPECT_EQ(color(), 0xFFF08010);
    Scene().setFocus();
    EXPECT_EQ(window.Editor().History.UndoIndex(), 1);
    window.Run(editing::Undo);
    slider.setFocus();
    turn({-120, -120});
    Strike(slider, Qt::Key_Escape);
    EXPECT_EQ(color(), 0xFFF08010);
    EXPECT_EQ(slider.value(), 50);
    EXPECT_EQ(window.Editor().History.UndoIndex(), 0);
    EXPECT_EQ(window.Editor().History.RedoCount(), 1);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(window.Editor().Drag));
}

TEST_F(MainWindowTest, SlidersMirrorTheEditor) {
    auto& width = Part<widgets::NumberSlider>("PageWidth");
    EXPECT_FALSE(width.isEnabled());
    NewPage(48, 32);
    EXPECT_TRUE(width.isEnabled());
    EXPECT_EQ(width.Value(), 48);
    EXPECT_EQ(Part<widgets::NumberSlider>("PageHeight").Value(), 32);
    for (const auto& [tool, enabled] : {std::pair(5, true), {4, false}}) {
        ClickBar("ToolBox", tool);
        EXPECT_EQ(Part<widgets::NumberSlider>("LineWidth").isEnabled(), enabled);
    }
}

// Typed, spun or dragged; what is typed counts before any other command, and for the question
// whether changes are to be saved.
TEST_F(MainWindowTest, EachNumberOfAPageSliderIsOneStep) {
    NewPage(48, 32);
    auto& width = Part<widgets::NumberSlider>("PageWidth");
    auto& field = *width.findChild<QLineEdit*>();
    const auto type = [&](const char* text) {
        field.selectAll();
        for (const char* letter = text; *letter; ++letter)
            Strike(field, Qt::Key_unknown, QString(*letter));
    };
    const auto steps = [&] { return window.Editor().History.UndoIndex(); };
    type("128");
    EXPECT_EQ(Page().Width, 48) << "not digit by digit";
    EXPECT_EQ(steps(), 0);
    Strike(field, Qt::Key_Return, "\r");
    EXPECT_EQ(Page().Width, 128);
    EXPECT_TRUE(window.Editor().Document.Modified);
    EXPECT_EQ(steps(), 1);
    type("60");
    ClickBar("ToolBox", 5);
    EXPECT_EQ(Page().Width, 60);
    EXPECT_EQ(steps(), 2);
    ClickBar("MainBar", editing::main_buttons::Undo);
    EXPECT_EQ(width.Value(), 128);
    type("128");
    Strike(field, Qt::Key_Return, "\r");
    EXPECT_EQ(window.Editor().History.RedoCount(), 1) << "nothing was changed";
    Strike(field, Qt::Key_Up);
    Strike(field, Qt::Key_Up);
    EXPECT_EQ(Page().Width, 130);
    ClickBar("ToolBox", 4);
    EXPECT_EQ(steps(), 2);

    NewPage(48, 32);  // so that nothing is to be saved
    OpenPicture(600, 20);
    type("9999");
    Strike(field, Qt::Key_Return, "\r");
    EXPECT_EQ(field.text(), "600");
    NewPage(48, 32);
    type("600");
    Strike(field, Qt::Key_Return, "\r");
    EXPECT_EQ(Page().Width, 512);
}

TEST_F(MainWindowTest, ASliderWhosePressIsRefusedShowsItsOldValue) {
    NewPage(48, 32);
    window.Run([](editing::Editor& editor) {
        while (editor.History.UndoIndex() < document::UndoHistory::kMaxSnapshots)
            editor.History.PushSnapshot(editor.Document, "Step");
    });
    int told = 0;
    const auto refused = [&](const std::function<void()>& gesture) {
        AnswerDialog<QMessageBox>([&](QMessageBox& box) {
            ++told;
            EXPECT_TRUE(box.text().startsWith("The undo history is full"));
            box.accept();
        });
        gesture();
    };
    auto& opacity = Part<widgets::TrackSlider>("Opacity");
    refused([&] {
        Press(opacity, {20, 10});
        DragTo(opacity, {40, 10});
        DragTo(opacity, {50, 10});
        Release(opacity, {50, 10});
    });
    EXPECT_EQ(opacity.value(), 100);
    refused([&] { Strike(opacity, Qt::Key_Left); });
    EXPECT_EQ(opacity.value(), 100);
    auto& width = Part<widgets::NumberSlider>("PageWidth");
    auto& field = *width.findChild<QLineEdit*>();
    refused([&] {
        for (const char* letter : {"7", "8"})
            Strike(field, Qt::Key_unknown, letter);
        Strike(field, Qt::Key_Return, "\r");
    });
    EXPECT_EQ(width.Value(), 48);
    EXPECT_EQ(field.text(), "48");
    refused([&] { Press(width, {65, 6}); });
    EXPECT_EQ(width.Value(), 48);
    EXPECT_EQ(told, 4);
    window.Run(editing::Undo);
    Strike(opacity, Qt::Key_Left);
    EXPECT_EQ(window.Editor().Page().Selected().Opacity, 0.99F);
}

// An adjustment counts from where it changes nothing.
TEST_F(MainWindowTest, SlidersOfTheRightPanelAreLabelled) {
    NewPage(32, 32);
    const std::tuple<std::string, const char*, Qt::Key, const char*> cases[] = {
        {"Opacity", "100%", Qt::Key_Left, "99%"}, {"Hue", "0", Qt::Key_Right, "1"},
        {"Saturation", "0", Qt::Key_Right, "1"},  {"Brightness", "0", Qt::Key_Left, "-1"},
        {"Contrast", "0", Qt::Key_Right, "1"},    {"Scale", "0", Qt::Key_Left, "-1"},
    };
    for (const auto& [name, neutral, key, stepped] : cases) {
        const auto& label = Part<widgets::ValueField>(name + "Value");
        EXPECT_EQ(label.text(), neutral) << name;
        Strike(Part<widgets::TrackSlider>(name), key);
        EXPECT_EQ(label.text(), stepped) << name;
        EXPECT_TRUE(window.Editor().History.UndoIndex() > 0) << name;
    }
    window.Run(editing::Undo);
    EXPECT_EQ(Part<widgets::ValueField>("ContrastValue").text(), "0");
}

TEST_F(MainWindowTest, ColourWellsTakeTurns) {
    window.Run([](editing::Editor& editor) {
        SetWellColor(editor, 0, 0xFFFF0000);
        SetWellColor(editor, 1, 0x800000FF);
    });
    Press(Part<ColorWell>("ForeColorOLE1"), {10, 10});
    EXPECT_EQ(window.Editor().Tools.ActiveColor, 1);
    EXPECT_EQ(Part<widgets::TrackSlider>("ColorOpacity").value(), 50);
}

TEST_F(MainWindowTest, OpacitiesAndTheBrushAreTypedOrResetByADoubleClick) {
    NewPage(32, 32);
    window.Run([](editing::Editor& editor) {
        SetWellColor(editor, 0, 0xFFFF0000);
        ChooseToolEntry(editor, editing::Tool::Pencil);
    });
    const auto type = [this](const char* name, const QString& number) {
        auto& field = Part<widgets::ValueField>(name);
        field.setFocus();
        field.selectAll();
        for (const QChar digit : number)
            Strike(field, Qt::Key(digit.unicode()), digit);
        Strike(field, Qt::Key_Return);
        return field.text();
    };
    EXPECT_EQ(type("ColorOpacityValue", "40"), "40%");
    EXPECT_EQ(window.Editor().Tools.Colors[0], 0x66FF0000);
    auto& track = Part<widgets::TrackSlider>("ColorOpacity");
    SendMouse(track, QEvent::MouseButtonDblClick, {50, 10}, Qt::LeftButton, Qt::LeftButton);
    Release(track, {50, 10});
    EXPECT_EQ(window.Editor().Tools.Colors[0], 0xFFFF0000);

    window.Run(
        [](editing::Editor& editor) { ChooseToolEntry(editor, editing::Tool::BrushEraser); });
    EXPECT_EQ(type("BrushSizeValue", "250"), "100") << "the largest";
    EXPECT_EQ(type("BrushOpacityValue", "0"), "1%") << "the least";
    EXPECT_EQ(window.Editor().Sliders.BrushSize.Value, 100);
    EXPECT_EQ(window.Editor().Sliders.BrushOpacity.Value, 1);
}

}  // namespace
}  // namespace orbelle::app
