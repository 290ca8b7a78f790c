// Where the buttons of a toolbar stand.
#pragma once

#include <QRect>
#include <Qt>
#include <functional>
#include <vector>

#include "widgets/bar_button.h"

namespace orbelle::widgets {

struct ButtonBarLayout {
    // One for each button, empty for a separator. The face is drawn one pixel wider and higher.
    std::vector<QRect> Places;
    // One for each button: where the second line of a separator stands along the bar; else 0.
    std::vector<int> SeparatorLines;
    int Length = 0;  // of the whole bar
};

// All in logical pixels. `thickness` is the bar's size across its direction, `textWidth` measures a
// caption.
ButtonBarLayout LayOutButtonBar(const std::vector<BarButton>& buttons, Qt::Orientation direction,
                                int iconSize, int thickness,
                                const std::function<int(const QString&)>& textWidth);

// The button at that point, from 0; -1: none. Separators are not hit.
int ButtonAt(const ButtonBarLayout& layout, const QPoint& point);

}  // namespace orbelle::widgets
