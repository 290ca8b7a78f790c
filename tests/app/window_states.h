// Everything that the program shows, to be looked at and measured.
#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace orbelle::app {

// Goes through the states of the main window, its menus and pop-ups, and all dialogs. Each is shown
// and at rest when `look` is called with its name ("dialog-new"). `samples` is the folder of the
// sample documents.
void ForEachWindowState(const QString& samples,
                        const std::function<void(const QString& name, QWidget& shown)>& look);

}  // namespace orbelle::app
