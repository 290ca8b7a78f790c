#include "app/outside_press.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace orbelle::app {

OutsidePress::OutsidePress(QWidget& window) : QObject(&window) {
    qApp->installEventFilter(this);
}

bool OutsidePress::eventFilter(QObject* watched, QEvent* event) {
    const auto* pressed = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::MouseButtonPress || pressed == nullptr ||
        pressed->windowType() != Qt::Popup ||
        pressed->rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint()))
        return false;
    // A menu that a menu has opened closes first, and the last one counts.
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->windowType() == Qt::Popup && window->isVisible())
            window->setAttribute(Qt::WA_NoMouseReplay);
    return false;
}

}  // namespace orbelle::app
