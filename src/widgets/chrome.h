// The looks that the controls share.
#pragma once

#include <QColor>
#include <QFont>

namespace orbelle::widgets {

inline constexpr QColor kChromeColor(245, 246, 247);
inline constexpr QColor kTextColor(64, 64, 64);
inline constexpr QColor kHairlineColor(220, 220, 220);
inline constexpr QColor kEdgeColor(180, 180, 180);
inline constexpr QColor kAccentColor(58, 150, 255);

// Verdana, or what the system has nearest to it.
inline QFont ChromeFont(double points) {
    QFont font(QStringList{"Verdana", "DejaVu Sans"});
    font.setPointSizeF(points);
    return font;
}

}  // namespace orbelle::widgets
