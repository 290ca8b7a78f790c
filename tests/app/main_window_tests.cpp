#include "app/main_window.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QUrl>
#include <QWheelEvent>
#include <QWindow>
#include <stdexcept>

#include "app/scene_view.h"
#include "app/settings.h"
#include "document/scene_painter.h"
#include "editing/view_commands.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"
#include "waiting.h"

namespace orbelle::app {
namespace {

using namespace orbelle::testing;

constexpr graphics::Argb kRed = 0xFFC02040;

class MainWindowTest : public ::testing::Test {
protected:
    MainWindowTest() {
        window.resize(800, 600);
        window.show();
    }

    QString Picture(const char* name, int width, int height) {
        const std::filesystem::path path = folder / name;
        graphics::WriteFile(path, graphics::EncodePng(FilledPicture(width, height, kRed)));
        return QString::fromStdString(path.string());
    }

    void OpenPicture(int width, int height) {
        window.OpenPath(Picture("picture.png", width, height));
        ASSERT_TRUE(WaitUntil([&] { return !window.IsZoomAnimationRunning(); }));
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
    QImage empty = Scene().grab().toImage();
    EXPECT_EQ(empty.pixel(5, 5), document::kSceneColor);

    OpenPicture(100, 60);
    const QImage shown = Scene().grab().toImage();
    EXPECT_EQ(window.windowTitle(), "Varnel Orbelle - Project *");
    EXPECT_EQ(window.Editor().View.SceneWidth, Scene().width());
    EXPECT_EQ(window.Editor().View.SceneHeight, Scene().height());
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
    EXPECT_EQ(bar.maximum(), window.Editor().View.HorizontalScroll.Max);
    EXPECT_EQ(bar.value(), window.Editor().View.HorizontalScroll.Value);

    bar.setValue(bar.maximum());
    EXPECT_EQ(window.Editor().View.HorizontalScroll.Value, bar.maximum());
}

TEST_F(MainWindowTest, TakesDroppedLocalFilesAndImportsThemInOrder) {
    const auto isTaken = [&](const QMimeData& data) {
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(&Scene(), &enter);
        return enter.isAccepted();
    };
    QMimeData data;
    data.setText("some text");
    EXPECT_FALSE(isTaken(data));
    data.setUrls({QUrl("https://example.org/far.png")});
    EXPECT_FALSE(isTaken(data));
    data.setUrls({QUrl("https://example.org/far.png"),
                  QUrl::fromLocalFile(Picture("first.png", 40, 30)),
                  QUrl::fromLocalFile(Picture("second.png", 20, 10))});
    ASSERT_TRUE(isTaken(data));
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Scene(), &drop);

    ASSERT_TRUE(WaitUntil([&] { return Page().LayerCount() == 2; }));
    EXPECT_EQ(Page().Width, 40);
    EXPECT_EQ(Page().Height, 30);
    EXPECT_EQ(Page().Layers[1].ImageWidth, 20);
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
    EXPECT_EQ(turn(60, Qt::ControlModifier), 1);
    EXPECT_EQ(turn(60, Qt::ControlModifier), 3);
    EXPECT_EQ(turn(240, Qt::ControlModifier), 7);
    EXPECT_EQ(turn(-120, Qt::ControlModifier), 5);
}

TEST_F(MainWindowTest, SavesUnderTheNameThatTheDialogGives) {
    OpenPicture(16, 16);
    const QString path = QString::fromStdString((folder / "a[*].volf").string());
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
        window.Run(command);
        return text;
    };
    EXPECT_EQ(told([](editing::Editor&) { throw std::runtime_error("<b>broken</b>"); }),
              "<b>broken</b>");
    EXPECT_EQ(told([](editing::Editor& editor) { editor.Changed.Message = "damaged"; }), "damaged");

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

}  // namespace
}  // namespace orbelle::app
