#include <QGuiApplication>
#include <QPalette>

#include "app/desktop_shade.h"

namespace orbelle::app {

bool IsDesktopDark() {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

}  // namespace orbelle::app
