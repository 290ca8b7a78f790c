// A colour as the text that the user reads and types.
#pragma once

#include <QString>
#include <optional>

#include "graphics/color.h"

namespace orbelle::app {

// #RRGGBB, and #AARRGGBB where alpha counts; in capitals.
QString ColorText(graphics::Argb color, bool hasAlpha);

// Six digits, which take `alpha`, or where alpha counts eight; also three, each of which stands for
// two of the kind. The # may be missing, blanks around it don't matter. No value: none of these.
std::optional<graphics::Argb> ParseColorText(const QString& text, bool hasAlpha, unsigned alpha);

}  // namespace orbelle::app
