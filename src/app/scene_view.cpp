#include "app/scene_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <optional>

#include "app/scene_guides.h"
#include "app/shared_image.h"
#include "document/scene_painter.h"
#include "widgets/artwork.h"
#include "widgets/theme.h"

namespace orbelle::app {
namespace {

// Hot spots of the pointers, as their drawings have them.
constexpr QPoint kMoveSpot(16, 16), kLineSpot(16, 16), kPickSpot(2, 29), kEraseSpot(10, 27);

// Visible on light and dark ground: a dark line beside a white one.
void DrawOutline(QPainter& painter, const QRectF& rect, bool isOval) {
    const QRectF inner = rect.adjusted(0.5, 0.5, -0.5, -0.5);
    for (const auto& [color, outline] :
         {std::pair(QColor(255, 255, 255, 190), inner.adjusted(-1, -1, 1, 1)),
          std::pair(QColor(0, 0, 0, 220), inner)}) {
        painter.setPen(QPen(color, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        if (isOval)
            painter.drawEllipse(outline);
        else
            painter.drawRect(outline);
    }
}

QRectF RectOf(const graphics::RectF& rect) {
    return {rect.X, rect.Y, rect.Width, rect.Height};
}

// Dark and light dashes.
void DrawRubberBand(QPainter& painter, const editing::OverlayLine& line) {
    const QLineF band(line.Start.X, line.Start.Y, line.End.X, line.End.Y);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawLine(band);
    painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
    painter.drawLine(band);
}

void DrawOverlays(QPainter& painter, const editing::Overlays& overlays) {
    const editing::OverlayShape& frame = overlays.SelectionFrame;
    if (frame.Visible && frame.Rect.Width > 0 && frame.Rect.Height > 0) {
        painter.setRenderHint(QPainter::Antialiasing, frame.IsOval);
        DrawOutline(painter, RectOf(frame.Rect), frame.IsOval);
    }
    if (overlays.RubberBand.Visible) {
        painter.setRenderHint(QPainter::Antialiasing);
        DrawRubberBand(painter, overlays.RubberBand);
    }
    if (overlays.PointerMark.Visible) {
        painter.setRenderHint(QPainter::Antialiasing, overlays.PointerMark.IsOval);
        DrawOutline(painter, RectOf(overlays.PointerMark.Rect), overlays.PointerMark.IsOval);
    }
}

editing::Pointer PointerOf(const QMouseEvent& event, Qt::MouseButton button) {
    editing::Pointer pointer;
    pointer.Button = button == Qt::LeftButton ? 1 : 2;
    const Qt::KeyboardModifiers keys =
        event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    pointer.Shift = keys == Qt::ShiftModifier ? 1 : keys == Qt::NoModifier ? 0 : 2;
    // In the middle of its scene pixel, so that it hits what is shown there at every zoom.
    pointer.X = static_cast<float>(std::floor(event.position().x()) + 0.5);
    pointer.Y = static_cast<float>(std::floor(event.position().y()) + 0.5);
    return pointer;
}

// Where Alt and an arrow lead.
std::optional<editing::Direction> HalfStepOf(const QKeyEvent& event) {
    using editing::Direction;
    const Qt::KeyboardModifiers keys =
        event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    if (keys != Qt::AltModifier)
        return std::nullopt;
    switch (event.key()) {
        case Qt::Key_Left:
            return Direction::Left;
        case Qt::Key_Right:
            return Direction::Right;
        case Qt::Key_Up:
            return Direction::Up;
        case Qt::Key_Down:
            return Direction::Down;
        default:
            return std::nullopt;
    }
}

QCursor ToolCursor(const char* artwork, QPoint hotSpot) {
    return QCursor(widgets::Artwork(artwork, {32, 32}, qGuiApp->devicePixelRatio()), hotSpot.x(),
                   hotSpot.y());
}

}  // namespace

SceneView::SceneView(const editing::Editor& editor, QWidget* parent)
    : QWidget(parent), editor_(editor) {
    setAccessibleName("Scene");
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(160, 120);
    setMouseTracking(true);
    ShowCursor();
}

void SceneView::ShowCursor() {
    using editing::Tool;
    static const QCursor move = ToolCursor("cursors/move", kMoveSpot);
    static const QCursor line = ToolCursor("cursors/line", kLineSpot);
    static const QCursor pick = ToolCursor("cursors/pick", kPickSpot);
    static const QCursor erase = ToolCursor("cursors/erase", kEraseSpot);
    const QCursor* cursor = &line;
    switch (editor_.Tools.InUse) {
        case Tool::Move:
            cursor = &move;
            break;
        case Tool::ColorPick:
            cursor = &pick;
            break;
        case Tool::PencilEraser:
        case Tool::BrushEraser:
            cursor = &erase;
            break;
        default:
            break;
    }
    if (this->cursor() != *cursor)
        setCursor(*cursor);
}

void SceneView::ShowWelcome(int strength) {
    welcome_ = strength;
    update();
}

// While the left button holds a drag the others do nothing: a menu would swallow its release.
void SceneView::mousePressEvent(QMouseEvent* event) {
    const bool isLeft = event->button() == Qt::LeftButton;
    if (!isLeft && isHeld_)
        return;
    setFocus();
    isHeld_ = isLeft;
    emit PointerPressed(PointerOf(*event, event->button()));
}

void SceneView::mouseMoveEvent(QMouseEvent* event) {
    const editing::Pointer pointer = PointerOf(*event, Qt::LeftButton);
    // A message box that comes up in a drag takes the release for itself.
    if (isHeld_ && !(event->buttons() & Qt::LeftButton)) {
        isHeld_ = false;
        emit PointerReleased(pointer);
    }
    emit PointerMoved(pointer);
}

void SceneView::mouseReleaseEvent(QMouseEvent* event) {
    const bool isLeft = event->button() == Qt::LeftButton;
    if (!isLeft && isHeld_)
        return;
    isHeld_ = false;
    emit PointerReleased(PointerOf(*event, event->button()));
}

void SceneView::leaveEvent(QEvent*) {
    emit PointerLeft();
}

void SceneView::keyPressEvent(QKeyEvent* event) {
    using editing::SceneKey;
    if (const auto direction = HalfStepOf(*event))
        return emit HalfStepWanted(*direction);
    switch (event->key()) {
        case Qt::Key_Left:
            return emit KeyPressed(SceneKey::Left);
        case Qt::Key_Up:
            return emit KeyPressed(SceneKey::Up);
        case Qt::Key_Right:
            return emit KeyPressed(SceneKey::Right);
        case Qt::Key_Down:
            return emit KeyPressed(SceneKey::Down);
        case Qt::Key_Delete:
            return emit KeyPressed(SceneKey::Delete);
        case Qt::Key_Shift:
            if (isHeld_)
                emit ShiftHeld(!(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)));
            return;
        default:
            QWidget::keyPressEvent(event);
    }
}

void SceneView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Shift && isHeld_)
        emit ShiftHeld(false);
    QWidget::keyReleaseEvent(event);
}

void SceneView::ShowPixelGrid(bool shown) {
    isPixelGridShown_ = shown;
    update();
}

void SceneView::DrawGuides(QPainter& painter, const QRect& seen) const {
    const PageSight page{document::PageOnScene(editor_.Canvas, editor_.View),
                         editor_.Canvas.Width(), editor_.Canvas.Height()};
    if (isPixelGridShown_ && editor_.View.Zoom >= kGridZoom)
        DrawPixelGrid(painter, page, seen);
    DrawMirrorAxes(painter, page, editor_.Tools.Mirror);
}

void SceneView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const graphics::Bitmap& scene = editor_.Scene;
    if (scene.Width() < width() || scene.Height() < height())
        painter.fillRect(rect(), QColor::fromRgb(document::kSceneColor));
    if (scene.IsEmpty() || welcome_ >= 0) {
        DrawWelcome(painter);
        return;
    }
    // The painter scales without smoothing, so at 200 % a scene pixel is a hard 2 x 2 square.
    painter.drawImage(0, 0, SharedImage(scene, QImage::Format_RGB32));
    DrawGuides(painter, event->rect());

    const auto frame = document::ObjectFrame(editor_.Page(), editor_.View);
    if (frame && !editor_.Selection.Exists()) {
        painter.setPen(
            QPen(widgets::CurrentTheme().Accent, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(
            QRectF(frame->X + 0.5, frame->Y + 0.5, frame->Width - 1, frame->Height - 1));
    }
    painter.setBrush(Qt::NoBrush);
    DrawOverlays(painter, editor_.Overlays);
}

void SceneView::DrawWelcome(QPainter& painter) const {
    if (welcome_ < 0)
        return;
    painter.fillRect(rect(), QColor::fromRgb(document::kSceneColor));
    const int left = (width() - 280) / 2, top = (height() - 80) / 2;
    // The picture is there or it is not; only the texts fade.
    const double picture = std::round(std::round(welcome_ * 10.0 / kWelcomeStrongest) / 10);
    painter.setOpacity(picture);
    painter.drawPixmap(left - 60, top - 30,
                       widgets::Artwork("board", {40, 40}, devicePixelRatioF()));
    painter.setOpacity(1);
    QFont head = widgets::ChromeFont(11);
    head.setBold(true);
    painter.setFont(head);
    painter.setPen(QColor(255, 255, 255, welcome_));
    painter.drawText(QRect(left, top - 30, 350, 28), Qt::AlignLeft | Qt::AlignTop,
                     "Welcome to Use Orbelle!");
    painter.setFont(widgets::ChromeFont(10));
    painter.setPen(QColor(200, 200, 200, welcome_));
    painter.drawText(
        QRect(left, top, 350, 200), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
        "To be familiar with using the Orbelle quickly, we recommend you to try each function or "
        "tool, then our artificial intelligence help system will guide you how to use each "
        "function or tool. - Varnel Software\"");
}

void SceneView::resizeEvent(QResizeEvent*) {
    emit Resized(std::max(width(), 1), std::max(height(), 1));
}

void SceneView::wheelEvent(QWheelEvent* event) {
    event->accept();
    if (!(event->modifiers() & Qt::ControlModifier)) {
        const QPoint delta = event->angleDelta();
        emit Scrolled(event->modifiers() & Qt::ShiftModifier ? delta.transposed() : delta);
        return;
    }
    // Fine wheels and touch pads tell fractions of a step.
    wheelDelta_ += event->angleDelta().y();
    for (; wheelDelta_ >= QWheelEvent::DefaultDeltasPerStep;
         wheelDelta_ -= QWheelEvent::DefaultDeltasPerStep)
        emit ZoomInWanted(event->position());
    for (; wheelDelta_ <= -QWheelEvent::DefaultDeltasPerStep;
         wheelDelta_ += QWheelEvent::DefaultDeltasPerStep)
        emit ZoomOutWanted(event->position());
}

}  // namespace orbelle::app
