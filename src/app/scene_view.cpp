#include "app/scene_view.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <optional>

#include "app/scene_guides.h"
#include "app/scene_marks.h"
#include "app/shared_image.h"
#include "app/tool_cursors.h"
#include "document/scene_painter.h"
#include "widgets/artwork.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kWalkMilliseconds = 120;

// `place` is the event's, in scene pixels.
editing::Pointer PointerOf(const QMouseEvent& event, const QPointF& place, Qt::MouseButton button) {
    editing::Pointer pointer;
    pointer.Button = button == Qt::LeftButton ? 1 : 2;
    const Qt::KeyboardModifiers keys =
        event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    pointer.Shift = keys == Qt::ShiftModifier ? 1 : keys == Qt::NoModifier ? 0 : 2;
    // In the middle of its scene pixel, so that it hits what is shown there at every zoom.
    pointer.X = static_cast<float>(std::floor(place.x()) + 0.5);
    pointer.Y = static_cast<float>(std::floor(place.y()) + 0.5);
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

}  // namespace

SceneView::SceneView(const editing::Editor& editor, QWidget* parent)
    : QWidget(parent), editor_(editor) {
    setAccessibleName(Words::tr("Scene"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(160, 120);
    setMouseTracking(true);
    ShowCursor();
    walk_.setInterval(kWalkMilliseconds);
    connect(&walk_, &QTimer::timeout, this, &SceneView::Walk);
}

double SceneView::Scale() const {
    return devicePixelRatioF();
}

// Where the toolkit begins the widget between two pixels of the screen, the scene begins on the
// nearest one.
QPointF SceneView::Shift() const {
    const QPointF corner = QPointF(mapTo(window(), QPoint())) * Scale();
    return corner - QPointF(std::round(corner.x()), std::round(corner.y()));
}

QPointF SceneView::ToScene(const QPointF& place) const {
    return place * Scale() + Shift();
}

QRectF SceneView::FromScene(const QRectF& rect) const {
    return {(rect.topLeft() - Shift()) / Scale(), rect.size() / Scale()};
}

void SceneView::FollowSelection() {
    if (editor_.Selection.Exists() && editor_.PolygonPoints.empty())
        edge_.Follow(editor_.Selection.Region(), editor_.Page().Width, editor_.Page().Height);
    else
        edge_.Clear();
    if (edge_.IsEmpty() || !widgets::IsMotionWanted())
        walk_.stop();
    else if (!walk_.isActive())
        walk_.start();
}

void SceneView::Walk() {
    if (!isActiveWindow() || !isVisible())
        return;
    ++step_;
    update();
}

void SceneView::ShowCursor() {
    const QCursor& cursor = CursorOf(editor_.Tools.InUse);
    if (this->cursor() != cursor)
        setCursor(cursor);
}

void SceneView::ShowWelcome(int strength) {
    const bool hasBegun = welcome_ >= 0, goesOn = strength >= 0;
    welcome_ = strength;
    if (hasBegun && goesOn)
        update(WelcomePlace());  // what stands around it need not be painted at every step
    else
        update();
}

QRect SceneView::WelcomePlace() const {
    using widgets::WidthFor;
    return {(width() - WidthFor(280)) / 2 - 60, (height() - WidthFor(80)) / 2 - WidthFor(30),
            60 + WidthFor(350), WidthFor(30 + 200)};
}

// While the left button holds a drag the others do nothing: a menu would swallow its release.
void SceneView::mousePressEvent(QMouseEvent* event) {
    const bool isLeft = event->button() == Qt::LeftButton;
    if (!isLeft && isHeld_)
        return;
    setFocus();
    isHeld_ = isLeft;
    emit PointerPressed(PointerOf(*event, ToScene(event->position()), event->button()));
}

void SceneView::mouseMoveEvent(QMouseEvent* event) {
    const editing::Pointer pointer = PointerOf(*event, ToScene(event->position()), Qt::LeftButton);
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
    emit PointerReleased(PointerOf(*event, ToScene(event->position()), event->button()));
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
    edge_.Draw(painter, page, LineWidth(), step_);
}

int SceneView::LineWidth() const {
    return std::max(static_cast<int>(Scale()), 1);
}

// From here on the painter works in scene pixels, which are whole pixels of the screen.
void SceneView::PaintInScenePixels(QPainter& painter) const {
    painter.scale(1 / Scale(), 1 / Scale());
    const QTransform toScreen = painter.deviceTransform();
    if (std::abs(toScreen.m11() - 1) > 1e-6)
        return;  // a picture of the window at another scale
    const QTransform snapped =
        QTransform::fromTranslate(std::round(toScreen.dx()), std::round(toScreen.dy()));
    painter.setTransform(snapped * toScreen.inverted() * painter.transform());
}

void SceneView::paintEvent(QPaintEvent* event) {
    if (shownScale_ != Scale())
        QTimer::singleShot(0, this, &SceneView::TellSize);
    QPainter painter(this);
    const graphics::Bitmap& scene = editor_.Scene;
    if (scene.IsEmpty() || welcome_ >= 0) {
        painter.fillRect(rect(), widgets::SceneColor());
        DrawWelcome(painter);
        return;
    }
    const QRectF seen(ToScene(event->rect().topLeft()), event->rect().size() * Scale());
    PaintInScenePixels(painter);
    if (scene.Width() < seen.right() || scene.Height() < seen.bottom())
        painter.fillRect(seen.toAlignedRect(), widgets::SceneColor());
    painter.drawImage(0, 0, SharedImage(scene, QImage::Format_RGB32));
    DrawGuides(painter, seen.toAlignedRect());
    const auto frame = document::ObjectFrame(editor_.Page(), editor_.View);
    if (frame && !editor_.Selection.Exists())
        DrawLayerFrame(painter, *frame, LineWidth());
    DrawOverlays(painter, editor_.Overlays, LineWidth());
}

void SceneView::DrawWelcome(QPainter& painter) const {
    if (welcome_ < 0)
        return;
    const QRect place = WelcomePlace();
    const QRect words =
        place.adjusted(60, 0, 0, 0) & rect().adjusted(0, 0, -widgets::kWideSpace, 0);
    // The picture is there or it is not; only the texts fade.
    const double picture = std::round(std::round(welcome_ * 10.0 / kWelcomeStrongest) / 10);
    painter.setOpacity(picture);
    painter.drawPixmap(place.topLeft(), widgets::Artwork("board", {40, 40}, devicePixelRatioF()));
    painter.setOpacity(1);
    QFont head = widgets::ChromeFont(11);
    head.setBold(true);
    painter.setFont(head);
    painter.setPen(QColor(255, 255, 255, welcome_));
    painter.drawText(words, Qt::AlignLeft | Qt::AlignTop, Words::tr("Welcome to Use Orbelle!"));
    painter.setFont(widgets::ChromeFont(10));
    painter.setPen(QColor(200, 200, 200, welcome_));
    painter.drawText(
        words.adjusted(0, widgets::WidthFor(30), 0, 0),
        Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
        Words::tr("To be familiar with using the Orbelle quickly, we recommend you to try each "
                  "function or tool, then our artificial intelligence help system will guide you "
                  "how to use each function or tool. - Varnel Software\""));
}

void SceneView::resizeEvent(QResizeEvent*) {
    TellSize();
}

// A part of a pixel at the end counts as one.
void SceneView::TellSize() {
    constexpr double kNothing = 1e-6;
    shownScale_ = Scale();
    const auto pixels = [this](int side) {
        return std::max(static_cast<int>(std::ceil(side * Scale() - kNothing)), 1);
    };
    emit Resized(pixels(width()), pixels(height()));
}

void SceneView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        emit LooksChanged();
    QWidget::changeEvent(event);
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
        emit ZoomInWanted(ToScene(event->position()));
    for (; wheelDelta_ <= -QWheelEvent::DefaultDeltasPerStep;
         wheelDelta_ += QWheelEvent::DefaultDeltasPerStep)
        emit ZoomOutWanted(ToScene(event->position()));
}

}  // namespace orbelle::app
