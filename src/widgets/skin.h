// The faces of toolbar buttons.
#pragma once

#include <QPainter>
#include <QPixmap>

namespace orbelle::widgets {

// Draws a skin of 26 x 40 pixels in nine parts with corners of 4 x 4. The face is one pixel wider
// and higher than `place`. Its pixels stay hard; it fills a `place` of at least 8 x 8 only.
void DrawSkin(QPainter& painter, const QPixmap& skin, const QRect& place);

}  // namespace orbelle::widgets
