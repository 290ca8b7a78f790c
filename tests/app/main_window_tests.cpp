// What the window shows of the editor, how it asks and tells, and what it remembers.
#include "main_window_fixture.h"

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QWindow>

#include "app/bottom_panel.h"
#include "app/color_dialog.h"
#include "app/color_well.h"
#include "app/new_icon_dialog.h"
#include "app/save_prompt.h"
#include "app/settings.h"
#include "app/suggest_dialog.h"
#include "editing/layer_commands.h"
#include "editing/view_commands.h"
#include "widgets/panel_header.h"
#include "widgets/theme.h"

namespace orbelle::app {
namespace {

TEST_F(MainWindowTest, ShowsTheSceneAndTheFrameAroundTheLayer) {
    const QRgb ground = widgets::SceneColor().rgb();
    EXPECT_EQ(Scene().grab().toImage().pixel(5, 5), ground);
    OpenPicture(100, 60);
    const QImage shown = Scene().grab().toImage();
    EXPECT_EQ(window.windowTitle(), "Varnel Orbelle - Project *");
    EXPECT_EQ(shown.pixel(shown.width() / 2, shown.height() / 2), kRed);
    const auto frame = document::ObjectFrame(Page(), window.Editor().View);
    ASSERT_TRUE(frame);
    // A light line between two dark ones, on all sides.
    const QPoint first(frame->X, frame->Y),
        last(first.x() + frame->Width - 1, first.y() + frame->Height - 1);
    for (const auto& [place, out] : {std::pair(first, QPoint(-1, -1)), {last, QPoint(1, 1)}}) {
        EXPECT_EQ(shown.pixel(place), 0xFFFFFFFF);
        EXPECT_LT(qGray(shown.pixel(place + out)), 60);
        EXPECT_LT(qGray(shown.pixel(place - out)), 60);
    }
    EXPECT_EQ(shown.pixel(first - QPoint(2, 2)), ground);
    widgets::SetShade(widgets::Shade::Dark);
    QEvent change(QEvent::PaletteChange);
    QApplication::sendEvent(&Scene(), &change);
    EXPECT_NE(widgets::SceneColor().rgb(), ground);
    EXPECT_EQ(Scene().grab().toImage().pixel(5, 5), widgets::SceneColor().rgb());
    widgets::SetShade(widgets::Shade::Light);
}

TEST_F(MainWindowTest, TheDashesOfASelectionLieAroundIt) {
    OpenPicture(100, 60);
    const QImage before = Scene().grab().toImage();
    window.Run([](editing::Editor& editor) {
        editor.Selection.AddFrame({20, 20, 10, 10}, document::FrameShape::Rectangle);
        editor.Changed.Scene = true;
    });
    const QImage shown = Scene().grab().toImage();
    const document::View& view = window.Editor().View;
    const int zoom = static_cast<int>(view.Zoom);
    const int left = PageOffsetX(Page(), view) + 20 * zoom;
    const int top = PageOffsetY(Page(), view) + 20 * zoom;
    int dark = 0, light = 0;
    for (int x = left; x < left + 10 * zoom; ++x) {
        dark += shown.pixel(x, top - 1) == 0xFF000000;
        light += shown.pixel(x, top - 1) == 0xFFFFFFFF;
    }
    EXPECT_EQ(dark + light, 10 * zoom);
    EXPECT_NEAR(dark, light, 4);
    EXPECT_EQ(shown.pixel(left, top), before.pixel(left, top)) << "what is selected is not covered";
}

TEST_F(MainWindowTest, ScrollBarsMirrorTheView) {
    OpenPicture(400, 100);
    EXPECT_FALSE(Bar(Qt::Horizontal).isVisible());
    window.Run(editing::ZoomIn);
    QScrollBar& bar = Bar(Qt::Horizontal);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_FALSE(Bar(Qt::Vertical).isVisible());
    const document::View& view = window.Editor().View;
    EXPECT_EQ(bar.maximum(), view.HorizontalScroll.Max);
    EXPECT_EQ(bar.value(), view.HorizontalScroll.Value);
    bar.setValue(bar.maximum());
    EXPECT_EQ(view.HorizontalScroll.Value, bar.maximum());
}

TEST_F(MainWindowTest, TheEndOfASessionAsksWhereItMay) {
    OpenPicture(16, 16);
    const auto yes = [] { return true; };
    EXPECT_TRUE(window.MayEndSession(yes)) << "there is nothing to save";
    window.Run([](editing::Editor& editor) { AddEmptyLayer(editor, 16, 16); });
    EXPECT_TRUE(window.MayEndSession([] { return false; }));
    for (const SavePromptAnswer answer : {SavePromptAnswer::Cancel, SavePromptAnswer::No}) {
        AnswerDialog<SavePrompt>([&](SavePrompt& prompt) {
            const auto buttons = prompt.findChildren<QPushButton*>();
            buttons[2 - static_cast<int>(answer)]->click();
        });
        EXPECT_EQ(window.MayEndSession(yes), answer == SavePromptAnswer::No);
    }
    bool whileAsked = true;
    AnswerDialog<QMessageBox>([&](QMessageBox& box) {
        whileAsked = window.MayEndSession(yes);
        box.accept();
    });
    window.ShowMessage("a question");
    EXPECT_FALSE(whileAsked) << "no second question over the first";

    EXPECT_TRUE(window.MayEndSession([] { return false; }));
    AnswerDialog<SavePrompt>([](SavePrompt& prompt) { prompt.reject(); });
    window.CloseWindow();
    EXPECT_TRUE(window.isVisible()) << "the user is asked, should the session go on";
    EXPECT_TRUE(window.MayEndSession([] { return false; }));
    EXPECT_TRUE(window.close());
}

TEST_F(MainWindowTest, SavesUnderTheNameThatTheDialogGives) {
    OpenPicture(16, 16);
    const QString path = Path("a[*].volf");
    AnswerDialog<QFileDialog>([&](QFileDialog& files) {
        EXPECT_EQ(files.windowTitle(), "Open File...");
        EXPECT_EQ(files.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(files.nameFilters(), QStringList("Varnel Orbelle File(*.VOLF) (*.volf)"));
        files.selectFile(path);
        static_cast<QDialog&>(files).accept();
    });
    window.findChild<QAction*>("Save")->trigger();
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_EQ(window.windowHandle()->title(), "a[*].volf - Varnel Orbelle");
    EXPECT_EQ(Settings().value("LastFolder").toString().toStdString(), folder.Path().string());
}

TEST_F(MainWindowTest, AWellsKeysOpenTheColorDialog) {
    auto& well = Part<ColorWell>("ForeColorOLE1");
    const auto choose = [&](const char* color) {
        AnswerDialog<ColorDialog>([color](ColorDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Background Color");
            auto& text = *dialog.findChild<QLineEdit*>("ColorText");
            for (const char* digit = color; *digit; ++digit)
                Strike(text, Qt::Key(*digit), QString(*digit));
            Strike(text, *color ? Qt::Key_Return : Qt::Key_Escape);
        });
        Strike(well, Qt::Key_Return);
        return window.Editor().Tools.Colors[1];
    };
    EXPECT_EQ(choose("40FF0000"), 0x40FF0000);
    EXPECT_EQ(choose(""), 0x40FF0000);
    EXPECT_EQ(window.Editor().Tools.ActiveColor, 1);
}

TEST_F(MainWindowTest, TellsAFailureAndWhatACommandHasToSay) {
    const auto told = [&](const editing::Command& command) {
        QString text;
        AnswerDialog<QMessageBox>([&](QMessageBox& box) {
            text = box.text();
            EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "the pointer is the usual one";
            box.accept();
        });
        window.RunBusy(command);
        return text;
    };
    EXPECT_EQ(told([](editing::Editor&) { throw std::runtime_error("<b>broken</b>"); }),
              "<b>broken</b>");
    EXPECT_EQ(told([](editing::Editor& editor) { editor.Changed.Message = "damaged"; }), "damaged");

    const auto isBusy = [] { return QGuiApplication::overrideCursor() != nullptr; };
    window.Run([&](editing::Editor&) { EXPECT_FALSE(isBusy()) << "it would flicker"; });
    window.RunBusy([&](editing::Editor&) { EXPECT_TRUE(isBusy()); });
    EXPECT_FALSE(isBusy());

    window.ShowStatus("Cannot write it.");
    EXPECT_EQ(window.statusBar()->currentMessage(), "Cannot write it.");
    EXPECT_TRUE(window.Run([](editing::Editor&) {})) << "nothing is told twice";
    EXPECT_EQ(window.statusBar()->currentMessage(), "") << "until the next command";
}

TEST_F(MainWindowTest, ConfirmIsCancelledByDefault) {
    for (const bool ok : {true, false}) {
        AnswerDialog<QMessageBox>([ok](QMessageBox& box) {
            EXPECT_FALSE(box.iconPixmap().isNull());
            EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Cancel));
            box.button(ok ? QMessageBox::Ok : QMessageBox::Cancel)->click();
        });
        EXPECT_EQ(window.Confirm("Image already exists, overwrite it?", "Warning"), ok);
    }
}

TEST_F(MainWindowTest, ASuggestionIsTakenOrNot) {
    using Recipe = std::optional<filters::SizeRecipe>;
    for (const Recipe taken : {Recipe(filters::SizeRecipe::Sharper), Recipe()}) {
        AnswerDialog<SuggestDialog>([&](SuggestDialog& dialog) {
            if (taken)
                dialog.findChildren<QPushButton*>()[1]->click();
            else
                dialog.reject();
        });
        EXPECT_EQ(window.ChooseRecipe(FilledPicture(64, 64, kRed), 16), taken);
    }
}

TEST_F(MainWindowTest, TheBrushPanelSlidesIn) {
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

// Also at its smallest, whatever the panels add to that, and at the end of the screen.
TEST_F(MainWindowTest, ComesBackToWhereItStood) {
    const QRect screen = window.screen()->availableGeometry();
    for (const bool open : {true, false}) {
        Settings().clear();
        window.RestoreSettings();
        Part<BottomPanel>("BottomTips").SetOpen(open);
        QApplication::processEvents();
        window.resize(1, 1);
        window.move(screen.bottomRight() - window.rect().bottomRight());
        QApplication::processEvents();
        const QRect stood = window.geometry();
        window.StoreSettings();
        MainWindow next;
        next.RestoreSettings();
        next.show();
        QApplication::processEvents();
        EXPECT_EQ(next.geometry(), stood) << open;
    }
}

TEST_F(MainWindowTest, ASecondStartWithoutAFileRaisesTheWindow) {
    for (const Qt::WindowStates before : {Qt::WindowNoState, Qt::WindowMaximized}) {
        window.setWindowState(before | Qt::WindowMinimized);
        EXPECT_TRUE(window.isMinimized());
        window.TakeHandOver({});
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(window.windowState() & ~Qt::WindowActive, before);
        EXPECT_TRUE(WaitUntil([&] { return window.isActiveWindow(); }));
    }
}

TEST_F(MainWindowTest, AFirstStartFindsAStartingSetWhichIsWrittenOnce) {
    Settings().clear();
    window.RestoreSettings();
    const editing::Editor& editor = window.Editor();
    EXPECT_EQ(editor.Tools.Colors[0], 0xFF000000);
    EXPECT_EQ(editor.Tools.Colors[1], 0xFFFFFFFF);
    EXPECT_EQ(editor.Sliders.BrushSize.Value, 10);
    EXPECT_EQ(editor.Sliders.BrushOpacity.Value, 100);
    EXPECT_TRUE(window.TipsEnabled());
    for (const auto& [panel, closed] : {std::pair("OpacityPanel", false),
                                        {"ColorPanel", false},
                                        {"LayerPanel", false},
                                        {"Properties", false},
                                        {"SizePanel", true},
                                        {"FilterPanel", true}})
        EXPECT_EQ(Part<widgets::PanelHeader>(panel).IsClosed(), closed) << panel;
    EXPECT_EQ(NewIconDialog().Size().Width, 256);
    EXPECT_EQ(NewIconDialog().Size().Height, 256);

    Settings().clear();
    Settings().setValue("Height", 5);
    window.RestoreSettings();
    EXPECT_EQ(NewIconDialog().Size().Width, 0) << "there are settings";
    EXPECT_FALSE(window.TipsEnabled());
}

// As another hand may have left them; what the program itself stores comes back in the real window.
TEST_F(MainWindowTest, IncompleteSettingsAreRead) {
    {
        Settings settings;
        settings.clear();
        settings.setValue("ForeColor0", "255,0,64,128");
        settings.setValue("ForeColor1", "255,7");
        settings.setValue("CtlScroll23", 33);
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
