// The window and its parts: what they show of the editor and hand to it, and how it asks and tells.
#include "app/main_window.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QUrl>
#include <QWheelEvent>
#include <QWindow>
#include <stdexcept>

#include "app/bottom_panel.h"
#include "app/color_well.h"
#include "app/new_icon_dialog.h"
#include "app/save_prompt.h"
#include "app/scene_view.h"
#include "app/settings.h"
#include "document/scene_painter.h"
#include "editing/buttons.h"
#include "editing/clipboard_commands.h"
#include "editing/color_wells.h"
#include "editing/document_commands.h"
#include "editing/layer_commands.h"
#include "editing/page_commands.h"
#include "editing/tips.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "support/hands.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"
#include "waiting.h"
#include "widgets/layer_list.h"
#include "widgets/number_slider.h"
#include "widgets/panel_header.h"
#include "widgets/track_slider.h"

namespace orbelle::app {
namespace {

using namespace orbelle::testing;
using widgets::ButtonBar;

constexpr graphics::Argb kRed = 0xFFC02040;

class MainWindowTest : public ::testing::Test {
protected:
    MainWindowTest() {
        window.resize(1100, 760);
        window.show();
    }

    QString Path(const char* name) const {
        return QString::fromStdString((folder / name).string());
    }
    QString Picture(const char* name, int width, int height) {
        graphics::WriteFile(folder / name, graphics::EncodePng(FilledPicture(width, height, kRed)));
        return Path(name);
    }
    void OpenPicture(int width, int height) {
        window.OpenPath(Picture("picture.png", width, height));
        WaitUntil([&] { return !window.IsZoomAnimationRunning(); });
    }

    void NewPage(int width, int height) {
        window.Run([=](editing::Editor& editor) { NewDocument(editor, width, height); });
        WaitUntil([&] { return !window.IsZoomAnimationRunning(); });
    }

    // The control that has this name, or this name for assistive tools.
    template <typename Widget>
    Widget& Part(const std::string& name) {
        for (Widget* part : window.findChildren<Widget*>())
            if (part->objectName() == name.c_str() || part->accessibleName() == name.c_str())
                return *part;
        throw std::logic_error(name);
    }

    void ClickBar(const char* name, int button) {
        auto& bar = Part<ButtonBar>(name);
        const QPointF at = bar.ButtonRect(button).center();
        SendMouse(bar, QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton);
        Click(bar, at);
    }

    void MouseOnPage(QEvent::Type type, QPointF place, Qt::MouseButton button,
                     Qt::MouseButtons held, Qt::KeyboardModifiers keys) {
        const document::View& view = window.Editor().View;
        const QPointF corner(PageOffsetX(Page(), view), PageOffsetY(Page(), view));
        SendMouse(Scene(), type, corner + (place + QPointF(0.5, 0.5)) * view.Zoom, button, held,
                  keys);
    }

    bool IsTaken(const QMimeData& data) {
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(&Scene(), &enter);
        return enter.isAccepted();
    }
    void Drop(const QMimeData& data) {
        QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Scene(), &drop);
    }

    SceneView& Scene() { return *window.findChild<SceneView*>(); }
    QScrollBar& Bar(Qt::Orientation orientation) {
        for (QScrollBar* bar : Scene().parentWidget()->findChildren<QScrollBar*>())
            if (bar->orientation() == orientation)
                return *bar;
        throw std::logic_error("no such bar");
    }
    const document::Page& Page() const { return window.Editor().Page(); }

    TemporaryFolder folder;
    MainWindow window;
};

TEST_F(MainWindowTest, ShowsTheSceneAndTheFrameAroundTheLayer) {
    EXPECT_EQ(Scene().grab().toImage().pixel(5, 5), document::kSceneColor);
    OpenPicture(100, 60);
    const QImage shown = Scene().grab().toImage();
    EXPECT_EQ(window.windowTitle(), "Varnel Orbelle - Project *");
    EXPECT_EQ(shown.pixel(shown.width() / 2, shown.height() / 2), kRed);
    const auto frame = document::ObjectFrame(Page(), window.Editor().View);
    ASSERT_TRUE(frame);
    const QRgb corner = shown.pixel(frame->X, frame->Y);
    EXPECT_GT(qBlue(corner), qRed(corner) + 60);
    EXPECT_EQ(shown.pixel(frame->X + frame->Width - 1, frame->Y + frame->Height - 1), corner);
    EXPECT_EQ(shown.pixel(frame->X - 1, frame->Y - 1), document::kSceneColor);
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

TEST_F(MainWindowTest, TakesDroppedLocalFilesAndImportsThemInOrder) {
    const QUrl far("https://example.org/far.png");
    QMimeData data;
    data.setText("some text");
    EXPECT_FALSE(IsTaken(data));
    data.setUrls({far});
    EXPECT_FALSE(IsTaken(data));
    data.setUrls({far, QUrl::fromLocalFile(Picture("first.png", 40, 30)),
                  QUrl::fromLocalFile(Picture("second.png", 20, 10))});
    ASSERT_TRUE(IsTaken(data));
    Drop(data);

    ASSERT_TRUE(WaitUntil([&] { return Page().LayerCount() == 2; }));
    EXPECT_EQ(Page().Width, 40);
    EXPECT_EQ(Page().Layers[1].ImageWidth, 20);
}

TEST_F(MainWindowTest, NothingIsDroppedBehindADialog) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(Path("a.png"))});
    bool behind = true;
    AnswerDialog<QMessageBox>([&](QMessageBox& box) {
        behind = IsTaken(data);
        box.accept();
    });
    window.ShowMessage("a question");
    EXPECT_FALSE(behind);
    EXPECT_TRUE(IsTaken(data));
}

TEST_F(MainWindowTest, ManyFilesAreToldInOneBoxAndCanBeCancelled) {
    auto* data = new QMimeData;
    data->setUrls(QList<QUrl>(200000, QUrl("file:///none%FF.png")));
    QGuiApplication::clipboard()->setMimeData(data);
    AnswerDialog<QProgressDialog>([](QProgressDialog& progress) { progress.cancel(); });
    QString told;
    AnswerDialog<QMessageBox>([&](QMessageBox& box) {
        told = box.text();
        box.accept();
    });
    window.Paste();
    const QStringList lines = told.split('\n');
    ASSERT_EQ(lines.size(), 13);
    EXPECT_EQ(lines[0], "Cancelled: 0 of 200,000 files were imported.");
    EXPECT_TRUE(lines[1].endsWith(" of 200,000 files could not be imported:"));
    EXPECT_TRUE(window.IsFree());
}

TEST_F(MainWindowTest, AnOfferedPictureThatIsTooLargeIsTold) {
    NewPage(16, 16);
    const auto told = [&](QMimeData* data, bool dropped) {
        QString text;
        AnswerDialog<QMessageBox>([&](QMessageBox& box) {
            text = box.text();
            box.accept();
        });
        if (dropped) {
            EXPECT_TRUE(IsTaken(*data));
            Drop(*data);
            delete data;
        } else {
            QGuiApplication::clipboard()->setMimeData(data);
            window.Run(editing::PasteFromClipboard);
        }
        WaitUntil([&] { return !text.isEmpty(); });
        return text;
    };
    const auto wide = [] {
        auto* data = new QMimeData;
        data->setImageData(QImage(16385, 1, QImage::Format_RGB32));
        return data;
    };
    EXPECT_TRUE(told(wide(), false).contains("16385 x 1"));
    EXPECT_TRUE(told(wide(), true).contains("16385 x 1"));
    // As another program offers it: a PNG that claims 20,000 x 20,000 pixels.
    auto* png = new QMimeData;
    png->setImageData(QImage(1, 1, QImage::Format_RGB32));
    png->setData("image/png", QByteArray::fromHex("89504e470d0a1a0a0000000d49484452"
                                                  "00004e2000004e200806000000e3704639"
                                                  "000000004944415435af061e"));
    EXPECT_TRUE(told(png, true).contains("20000 x 20000"));
    EXPECT_EQ(Page().LayerCount(), 1);
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

TEST_F(MainWindowTest, CtrlAndTheWheelZoomInWholeSteps) {
    OpenPicture(16, 16);
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
            EXPECT_EQ(box.icon(), QMessageBox::Information);
            EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Cancel));
            box.button(ok ? QMessageBox::Ok : QMessageBox::Cancel)->click();
        });
        EXPECT_EQ(window.Confirm("Image already exists, overwrite it?", "Warning"), ok);
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
    EXPECT_EQ(Part<QLabel>("BrightnessValue").text(), "3");
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
    window.Run([](editing::Editor& editor) { SetPageSize(editor, 44, 64); });
    EXPECT_EQ(Part<QLabel>("PointerPosition").text(), "-1, 5");
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
        const auto& label = Part<QLabel>(name + "Value");
        EXPECT_EQ(label.text(), neutral) << name;
        Strike(Part<widgets::TrackSlider>(name), key);
        EXPECT_EQ(label.text(), stepped) << name;
        EXPECT_TRUE(window.Editor().History.UndoIndex() > 0) << name;
    }
    window.Run(editing::Undo);
    EXPECT_EQ(Part<QLabel>("ContrastValue").text(), "0");
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

TEST_F(MainWindowTest, TipsShowOnlyWhenTheyAreOnAndCloseAtAPress) {
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

    Press(Scene(), {5, 5});
    EXPECT_TRUE(WaitUntil([&] { return !balloon.isVisible(); }));
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
