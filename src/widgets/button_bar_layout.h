// Where the buttons of a toolbar stand.
#pragma once

#include <QRect>
#include <QSize>
#include <Qt>
#include <functional>
#include <vector>

#include "widgets/bar_button.h"
#include "widgets/theme.h"

namespace orbelle::widgets {

// Logical pixels.
struct ButtonBarMetrics {
    Qt::Orientation Direction = Qt::Horizontal;
    int IconSize = 16;
    QSize FaceSize{24, 24};
    int Margin = kTightSpace;  // around the faces
    int Gap = 2;               // between two faces
};

struct ButtonBarLayout {
    // The faces, one for each button, empty for a separator and a spring.
    std::vector<QRect> Places;
    // One for each button: the line of a separator; else empty.
    std::vector<QRect> Lines;
    int Length = 0;  // of the whole bar, with no room left
};

// All in logical pixels. `size` is the bar's; `textWidth` measures a caption.
ButtonBarLayout LayOutButtonBar(const std::vector<BarButton>& buttons,
                                const ButtonBarMetrics& metrics, const QSize& size,
                                const std::function<int(const QString&)>& textWidth);

// The button at that point, from 0; -1: none.
int ButtonAt(const ButtonBarLayout& layout, const QPoint& point);

}  // namespace orbelle::widgets
