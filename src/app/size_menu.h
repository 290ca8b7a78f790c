// What the user does with a size of the icon in the strip "Sizes".
#pragma once

#include <QPoint>
#include <vector>

#include "app/window_actions.h"

class QWidget;

namespace orbelle::app {

// A click on its cell: the page of that size comes in force, after it was made if there was none;
// of the one in force, the master.
void ClickSize(const WindowContext& context, int size);

// Its menu, shown at that place of the screen; it copies to any other of `sizes`.
void PopUpSizeMenu(const WindowContext& context, int size, const std::vector<int>& sizes,
                   QWidget& parent, const QPoint& at);

}  // namespace orbelle::app
