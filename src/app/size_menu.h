// What the user does with a size of the icon in the strip "Sizes".
#pragma once

#include <QPoint>
#include <vector>

#include "app/window_actions.h"
#include "formats/icon_check.h"

class QWidget;

namespace orbelle::app {

// A click on its cell: the page of that size comes in force, after it was made if there was none;
// of the one in force, the master.
void ClickSize(const WindowContext& context, int size);

// Goes to the page that a finding is about, as a click does: the master where it is the one that is
// clipped, and for sizes that can have no artwork.
void GoToFinding(const WindowContext& context, const formats::Finding& finding);

// Its menu, shown at that place of the screen; it copies to any other of `sizes`.
void PopUpSizeMenu(const WindowContext& context, int size, const std::vector<int>& sizes,
                   QWidget& parent, const QPoint& at);

}  // namespace orbelle::app
