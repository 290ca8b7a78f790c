// Keys of the window for what has no menu entry.
#pragma once

#include <QKeySequence>
#include <QList>
#include <vector>

#include "app/main_window.h"

namespace orbelle::app {

struct Shortcut {
    QString Caption;
    QList<QKeySequence> Keys;
    MainWindow::EditorCommand Command;
};

std::vector<Shortcut> WindowShortcuts();

}  // namespace orbelle::app
