#include "app/main_window.h"

#include <gtest/gtest.h>

#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QUrl>
#include <QWheelEvent>
#include <QWindow>
#include <stdexcept>

#include "app/save_prompt.h"
#include "app/scene_view.h"
#include "app/settings.h"
#include "document/scene_painter.h"
#include "editing/document_commands.h"
#include "editing/style_commands.h"
#include "editing/view_commands.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"
#include "waiting.h"

namespace orbelle::app {
namespace {

using orbelle::testing::AnswerDialog;
using orbelle::testing::WaitUntil;

constexpr graphics::Argb kRed = 0xFFC02040;

class MFormTest : public ::testing::Test {
protected:
    MFormTest() {
        form.resize(800, 600);
        form.show();
    }

    QString Picture(const char* name, int width, int height) {
        const std::filesystem::path path = folder / name;
        graphics::WriteFile(
            path, graphics::EncodePng(orbelle::testing::FilledPicture(width, height, kRed)));
        return QString::fromStdString(path.string());
    }

    void OpenPicture(int width, int height) {
        form.OpenPath(Picture("picture.png", width, height));
        ASSERT_TRUE(WaitUntil([&] { return !form.IsZoomAnimationRunning(); }));
    }

    SceneView& Scene() { return *form.findChild<SceneView*>(); }
    QScrollBar& Bar(Qt::Orientation orientation) {
        for (QScrollBar* bar : Scene().parentWidget()->findChildren<QScrollBar*>())
            if (bar->orientation() == orientation)
                return *bar;
        throw std::logic_error("no such bar");
    }
    const document::Document& Document() const { return form.Editor().Document; }

    orbelle::testing::TemporaryFolder folder;
    MainWindow form;
};

TEST_F(MFormTest, ShowsTheSceneAndTheFrameAroundTheLayer) {
    QImage empty = Scene().grab().toImage();
    EXPECT_EQ(empty.pixel(5, 5), document::kSceneColor);

    OpenPicture(100, 60);
    const QImage shown = Scene().grab().toImage();
    EXPECT_EQ(form.windowTitle(), "Varnel Orbelle - Project *");
    EXPECT_EQ(form.Editor().View.SceneWidth, Scene().width());
    EXPECT_EQ(form.Editor().View.SceneHeight, Scene().height());
    EXPECT_EQ(shown.pixel(shown.width() / 2, shown.height() / 2), kRed);
    const auto frame = document::ObjectFrame(Document(), form.Editor().View);
    ASSERT_TRUE(frame);
    const QRgb corner = shown.pixel(frame->X, frame->Y);
    EXPECT_GT(qBlue(corner), qRed(corner) + 60);
    EXPECT_EQ(shown.pixel(frame->X + frame->Width - 1, frame->Y + frame->Height - 1), corner);
    EXPECT_EQ(shown.pixel(frame->X - 1, frame->Y - 1), document::kSceneColor);
}

TEST_F(MFormTest, ScrollBarsMirrorTheView) {
    OpenPicture(400, 100);
    EXPECT_FALSE(Bar(Qt::Horizontal).isVisible());
    form.Run(editing::ZoomIn);
    QScrollBar& bar = Bar(Qt::Horizontal);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_FALSE(Bar(Qt::Vertical).isVisible());
    EXPECT_EQ(bar.maximum(), form.Editor().View.HorizontalScroll.Max);
    EXPECT_EQ(bar.value(), form.Editor().View.HorizontalScroll.Value);

    bar.setValue(bar.maximum());
    EXPECT_EQ(form.Editor().View.HorizontalScroll.Value, bar.maximum());
}

TEST_F(MFormTest, ImportsDroppedFilesInOrder) {
    QMimeData data;
    data.setUrls({QUrl("https://example.org/far.png"),
                  QUrl::fromLocalFile(Picture("first.png", 40, 30)),
                  QUrl::fromLocalFile(Picture("second.png", 20, 10))});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Scene(), &enter);
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Scene(), &drop);

    ASSERT_TRUE(WaitUntil([&] { return Document().LayerCount() == 2; }));
    EXPECT_EQ(Document().PageWidth, 40);
    EXPECT_EQ(Document().PageHeight, 30);
    EXPECT_EQ(Document().Layers[1].ImageWidth, 20);
}

TEST_F(MFormTest, TakesADragOnlyWithLocalFiles) {
    const auto accepted = [&](const QMimeData& data) {
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(&Scene(), &enter);
        return enter.isAccepted();
    };
    QMimeData data;
    data.setText("some text");
    EXPECT_FALSE(accepted(data));
    data.setUrls({QUrl("https://example.org/far.png")});
    EXPECT_FALSE(accepted(data));
    data.setUrls({QUrl::fromLocalFile("/near.png")});
    EXPECT_TRUE(accepted(data));
}

TEST_F(MFormTest, CtrlAndTheWheelZoomInWholeSteps) {
    OpenPicture(16, 16);
    const auto turn = [&](int delta, Qt::KeyboardModifiers modifiers) {
        QWheelEvent wheel(QPointF(50, 50), Scene().mapToGlobal(QPointF(50, 50)), QPoint(),
                          QPoint(0, delta), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Scene(), &wheel);
        return form.Editor().View.Zoom;
    };
    EXPECT_EQ(turn(120, Qt::NoModifier), 1);
    EXPECT_EQ(turn(60, Qt::ControlModifier), 1);
    EXPECT_EQ(turn(60, Qt::ControlModifier), 3);
    EXPECT_EQ(turn(240, Qt::ControlModifier), 7);
    EXPECT_EQ(turn(-120, Qt::ControlModifier), 5);
}

TEST_F(MFormTest, SavesUnderTheNameThatTheDialogGives) {
    OpenPicture(16, 16);
    const QString path = QString::fromStdString((folder / "a[*].volf").string());
    AnswerDialog<QFileDialog>([&](QFileDialog& files) {
        EXPECT_EQ(files.windowTitle(), "Open File...");
        EXPECT_EQ(files.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(files.nameFilters(), QStringList("Varnel Orbelle File(*.VOLF) (*.volf)"));
        files.selectFile(path);
        static_cast<QDialog&>(files).accept();
    });
    form.Run(editing::Save);
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_EQ(form.windowHandle()->title(), "a[*].volf - Varnel Orbelle");
    EXPECT_EQ(Settings().value("LastFolder").toString().toStdString(), folder.Path().string());
}

TEST_F(MFormTest, TellsWhatACommandThrows) {
    QString text;
    AnswerDialog<QMessageBox>([&](QMessageBox& box) {
        text = box.text();
        // Under a dialog the pointer is the usual one, and the busy one comes back.
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        box.accept();
    });
    form.SetBusyPointer(true);
    form.Run([](editing::Editor&) { throw std::runtime_error("<b>broken</b>"); });
    EXPECT_EQ(text, "<b>broken</b>");
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    form.SetBusyPointer(false);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(MFormTest, AStatusStandsUntilTheNextCommand) {
    EXPECT_EQ(form.statusBar()->currentMessage(), "");
    form.ShowStatus("Cannot write it.");
    EXPECT_EQ(form.statusBar()->currentMessage(), "Cannot write it.");
    form.Run([](editing::Editor&) {});
    EXPECT_EQ(form.statusBar()->currentMessage(), "");
}

TEST_F(MFormTest, ConfirmIsCancelledByDefault) {
    const auto answer = [&](Qt::Key key) {
        AnswerDialog<QMessageBox>([key](QMessageBox& box) {
            EXPECT_EQ(box.icon(), QMessageBox::Information);
            EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Cancel));
            box.button(key == Qt::Key_Return ? QMessageBox::Ok : QMessageBox::Cancel)->click();
        });
        return form.Confirm("Image already exists, overwrite it?", "Warning");
    };
    EXPECT_TRUE(answer(Qt::Key_Return));
    EXPECT_FALSE(answer(Qt::Key_Escape));
}

TEST_F(MFormTest, ClosingAChangedDocumentAsks) {
    OpenPicture(16, 16);
    form.Run(editing::Crystal);
    const auto closeWith = [&](const char* caption) {
        AnswerDialog<SavePrompt>([caption](SavePrompt& prompt) {
            EXPECT_EQ(prompt.windowTitle(), "Save Icon Document? ");
            for (QPushButton* button : prompt.findChildren<QPushButton*>())
                if (button->text() == caption)
                    button->click();
        });
        form.close();
        return !form.isVisible();
    };
    EXPECT_FALSE(closeWith("&Cancel"));
    Settings().remove("MainWidth");
    EXPECT_TRUE(closeWith("&No"));
    EXPECT_EQ(Settings().value("MainWidth").toInt(), 800);
}

}  // namespace
}  // namespace orbelle::app
