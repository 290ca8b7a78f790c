// What is dropped on the main window.
#pragma once

#include <QObject>
#include <functional>

#include "app/offered_data.h"

class QDropEvent;
class QWidget;

namespace orbelle::app {

struct Drop {
    OfferedFiles Files;
    std::optional<OfferedPicture> Picture;  // where there is no file
    bool Opens = false;                     // Ctrl was held: not to become layers
};

// Takes drops on the window and on all that lies in it, but for what a dialog blocks. The pointer
// shows a link where the drop opens, and a copy where it becomes a layer. Nothing is ever moved:
// the other program would delete its own.
class DropTarget : public QObject {
    Q_OBJECT

public:
    // `isEmpty`: there is no document, and whatever is dropped opens.
    DropTarget(QWidget& window, std::function<bool()> isEmpty);

signals:
    void Dropped(const Drop& drop);
    // Something that would be taken has come over the window; it has left or been dropped.
    void Hovers(bool isThere);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Answer(QDropEvent& event);

    std::function<bool()> isEmpty_;
    // What hovers over the window.
    bool isWanted_ = false;
    bool hasDocument_ = false;
};

}  // namespace orbelle::app
