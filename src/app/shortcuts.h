// Keys of the window for what has no menu entry.
#pragma once

#include <QKeySequence>
#include <QList>
#include <vector>

#include "editing/run.h"

namespace orbelle::app {

struct Shortcut {
    QString Caption;
    QList<QKeySequence> Keys;
    editing::Command Command;
};

std::vector<Shortcut> WindowShortcuts();

}  // namespace orbelle::app
