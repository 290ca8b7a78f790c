#include "app/drop_target.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace orbelle::app {
namespace {

// By the names: what comes of it is told by what the files hold.
bool HasDocument(const OfferedFiles& files) {
    return std::ranges::any_of(files.Local, [](const QByteArray& file) {
        return QByteArrayView(file)
                   .last(std::min<qsizetype>(file.size(), 5))
                   .compare(".volf", Qt::CaseInsensitive) == 0;
    });
}

bool IsCtrlHeld(const QDropEvent& event) {
    return event.modifiers() & Qt::ControlModifier;
}

}  // namespace

DropTarget::DropTarget(QWidget& window, std::function<bool()> isEmpty)
    : QObject(&window), isEmpty_(std::move(isEmpty)) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

// False: not taken.
bool DropTarget::Answer(QDropEvent& event) {
    // The toolkit lets drops through to a window that a dialog blocks.
    const bool isTaken = isWanted_ && !QApplication::activeModalWidget();
    const bool opens = isEmpty_() || hasDocument_ || IsCtrlHeld(event);
    const Qt::DropActions offered = event.possibleActions() & (Qt::CopyAction | Qt::LinkAction);
    event.setAccepted(isTaken && offered);
    if (event.isAccepted()) {
        const Qt::DropAction wanted = opens ? Qt::LinkAction : Qt::CopyAction;
        const Qt::DropAction other = opens ? Qt::CopyAction : Qt::LinkAction;
        event.setDropAction(offered & wanted ? wanted : other);
    }
    emit Hovers(event.isAccepted() && event.type() != QEvent::Drop);
    return event.isAccepted();
}

bool DropTarget::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::DragEnter: {
            auto& enter = *static_cast<QDropEvent*>(event);
            const OfferedFiles files = FilesIn(*enter.mimeData());
            isWanted_ = !files.IsEmpty() || OffersPicture(*enter.mimeData());
            hasDocument_ = HasDocument(files);
            Answer(enter);
            return true;
        }
        case QEvent::DragLeave:
            emit Hovers(false);
            return true;
        case QEvent::DragMove:
            Answer(*static_cast<QDropEvent*>(event));
            return true;
        case QEvent::Drop: {
            auto& drop = *static_cast<QDropEvent*>(event);
            if (!Answer(drop))
                return true;
            Drop taken{FilesIn(*drop.mimeData()), {}, IsCtrlHeld(drop)};
            // A picture from a web page comes with its address.
            if (taken.Files.Local.isEmpty() && OffersPicture(*drop.mimeData())) {
                QGuiApplication::setOverrideCursor(Qt::WaitCursor);
                taken.Picture = ReadOffered(*drop.mimeData());
                QGuiApplication::restoreOverrideCursor();
            }
            emit Dropped(taken);
            return true;
        }
        default:
            return QObject::eventFilter(watched, event);
    }
}

}  // namespace orbelle::app
