// A main window of the tests' own, and hands on its parts.
#pragma once

#include <gtest/gtest.h>

#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>
#include <stdexcept>

#include "app/main_window.h"
#include "app/scene_view.h"
#include "document/scene_painter.h"
#include "editing/document_commands.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "support/hands.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"
#include "waiting.h"
#include "widgets/button_bar.h"

namespace orbelle::app {

using namespace orbelle::testing;
using widgets::ButtonBar;

inline constexpr graphics::Argb kRed = 0xFFC02040;

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
        QApplication::processEvents();
    }

    void NewPage(int width, int height) {
        window.Run([=](editing::Editor& editor) { NewDocument(editor, width, height); });
        QApplication::processEvents();
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

    // What would be done with a drop; IgnoreAction: it is not taken.
    Qt::DropAction Hover(const QMimeData& data, Qt::KeyboardModifiers keys = Qt::NoModifier,
                         Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction |
                                                   Qt::LinkAction) {
        QDragEnterEvent enter(QPoint(50, 50), offered, &data, Qt::LeftButton, keys);
        enter.ignore();
        QApplication::sendEvent(&Scene(), &enter);
        return enter.isAccepted() ? enter.dropAction() : Qt::IgnoreAction;
    }
    bool IsTaken(const QMimeData& data) { return Hover(data) != Qt::IgnoreAction; }
    void Drop(const QMimeData& data, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, keys);
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

}  // namespace orbelle::app
