// What the tool in use does with a drag or a click, for the line at the bottom.
#pragma once

#include <QString>

#include "editing/tool.h"

namespace orbelle::app {

QString HintOf(editing::Tool tool);

}  // namespace orbelle::app
