#include "app/scene_view.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "document/scene_painter.h"

namespace orbelle::app {
namespace {

constexpr QColor kFrameColor(58, 150, 255);

QStringList LocalFiles(const QMimeData& data) {
    QStringList files;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            files += url.toLocalFile();
    return files;
}

}  // namespace

SceneView::SceneView(const editing::Editor& editor, QWidget* parent)
    : QWidget(parent), editor_(editor) {
    setAccessibleName("Scene");
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(160, 120);
}

void SceneView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const graphics::Bitmap& scene = editor_.Scene;
    if (scene.Width() < width() || scene.Height() < height())
        painter.fillRect(rect(), QColor::fromRgb(document::kSceneColor));
    if (scene.IsEmpty())
        return;
    // The painter scales without smoothing, so at 200 % a scene pixel is a hard 2 x 2 square.
    const QImage image(reinterpret_cast<const uchar*>(scene.Pixels()), scene.Width(),
                       scene.Height(), scene.Width() * qsizetype{4}, QImage::Format_RGB32);
    painter.drawImage(0, 0, image);

    if (editor_.Filters.SelectionOK())
        return;
    if (const auto frame = document::ObjectFrame(editor_.Document, editor_.View)) {
        painter.setPen(QPen(kFrameColor, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(
            QRectF(frame->X + 0.5, frame->Y + 0.5, frame->Width - 1, frame->Height - 1));
    }
}

void SceneView::resizeEvent(QResizeEvent*) {
    emit Resized(std::max(width(), 1), std::max(height(), 1));
}

void SceneView::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) {
        event->ignore();
        return;
    }
    event->accept();
    // Fine wheels and touch pads tell fractions of a step.
    wheelDelta_ += event->angleDelta().y();
    for (; wheelDelta_ >= QWheelEvent::DefaultDeltasPerStep;
         wheelDelta_ -= QWheelEvent::DefaultDeltasPerStep)
        emit ZoomInWanted();
    for (; wheelDelta_ <= -QWheelEvent::DefaultDeltasPerStep;
         wheelDelta_ += QWheelEvent::DefaultDeltasPerStep)
        emit ZoomOutWanted();
}

void SceneView::dragEnterEvent(QDragEnterEvent* event) {
    if (!LocalFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void SceneView::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    emit FilesDropped(LocalFiles(*event->mimeData()));
}

}  // namespace orbelle::app
