// The looks that the controls and windows share.
#pragma once

#include <QColor>
#include <QFont>

class QPainter;
class QPointF;
class QRect;

namespace orbelle::widgets {

inline constexpr QColor kChromeColor(245, 246, 247);
inline constexpr QColor kTextColor(64, 64, 64);
inline constexpr QColor kPaleTextColor(168, 172, 176);
inline constexpr QColor kHairlineColor(220, 220, 220);
inline constexpr QColor kEdgeColor(180, 180, 180);
inline constexpr QColor kAccentColor(58, 150, 255);
inline constexpr QColor kTipColor(255, 253, 240);
inline constexpr QColor kTipEdgeColor(200, 190, 150);

// Verdana, or what the system has nearest to it.
QFont ChromeFont(double points);

// Squares of 5 x 5 pixels, every other one, the first in the top left corner.
void DrawChecker(QPainter& painter, const QRect& place, const QColor& color);

// A mark that points down, 8 x 4 pixels, in the painter's pen.
void DrawChevron(QPainter& painter, const QPointF& middle);

// The line that a slider's thumb runs along, between `left` and `right` with `filled` of it lit;
// all in pixels, centred in `height`.
void DrawGroove(QPainter& painter, int left, int right, int height, double filled);

}  // namespace orbelle::widgets
