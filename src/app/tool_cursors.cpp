#include "app/tool_cursors.h"

#include <QGuiApplication>
#include <QPixmap>

#include "widgets/artwork.h"

namespace orbelle::app {
namespace {

// Hot spots of the pointers, as their drawings have them.
constexpr QPoint kMoveSpot(16, 16), kLineSpot(16, 16), kPickSpot(2, 29), kEraseSpot(10, 27);

QCursor Drawn(const char* artwork, QPoint hotSpot) {
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap pointer = widgets::Artwork(artwork, {32, 32}, ratio);
    // X11 takes the pointer's pixels as they are, and would take the hot spot for one of them.
    if (QGuiApplication::platformName() == "xcb") {
        pointer.setDevicePixelRatio(1);
        hotSpot *= ratio;
    }
    return QCursor(pointer, hotSpot.x(), hotSpot.y());
}

}  // namespace

const QCursor& CursorOf(editing::Tool tool) {
    using editing::Tool;
    static const QCursor move = Drawn("cursors/move", kMoveSpot);
    static const QCursor line = Drawn("cursors/line", kLineSpot);
    static const QCursor pick = Drawn("cursors/pick", kPickSpot);
    static const QCursor erase = Drawn("cursors/erase", kEraseSpot);
    switch (tool) {
        case Tool::Move:
            return move;
        case Tool::ColorPick:
            return pick;
        case Tool::PencilEraser:
        case Tool::BrushEraser:
            return erase;
        default:
            return line;
    }
}

}  // namespace orbelle::app
