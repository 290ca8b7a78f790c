#include "widgets/button_bar_layout.h"

#include <algorithm>

namespace orbelle::widgets {
namespace {

constexpr int kStart = 7;
constexpr int kGap = 8;
constexpr int kGapAfterArrow = 16;
constexpr int kEndMargin = 8;

}  // namespace

ButtonBarLayout LayOutButtonBar(const std::vector<BarButton>& buttons, Qt::Orientation direction,
                                int iconSize, int thickness,
                                const std::function<int(const QString&)>& textWidth) {
    const bool horizontal = direction == Qt::Horizontal;
    ButtonBarLayout layout;
    int p = kStart;
    int end = p;
    bool afterArrow = false;
    for (const BarButton& button : buttons) {
        p += afterArrow ? kGapAfterArrow : kGap;
        afterArrow = horizontal && button.HasArrow;
        if (button.IsSeparator) {
            p += kGap;
            layout.Places.emplace_back();
            layout.SeparatorLines.push_back(p - 2);
            end = std::max(end, p);
            continue;
        }
        const int begin = p - kStart;
        int extent = 0;
        p += iconSize;
        if (!horizontal) {
            // Faces touch and don't overlap: 24 pixels from one to the next with icons of 16.
            extent = iconSize + kGap - 1;
        } else if (button.Caption.isEmpty()) {
            p += 3;
            extent = iconSize + 8 + 1 + (button.HasArrow ? 6 : 0);
        } else {
            const int text = textWidth(button.Caption);
            p += 8 + text + 4;
            extent = text + iconSize + 16 + 2;
        }
        layout.Places.push_back(horizontal ? QRect(begin, 0, extent, thickness - 1)
                                           : QRect(0, begin, thickness - 1, extent));
        layout.SeparatorLines.push_back(0);
        end = std::max(end, begin + extent + 1);
    }
    layout.Length = end + kEndMargin;
    return layout;
}

int ButtonAt(const ButtonBarLayout& layout, const QPoint& point) {
    for (std::size_t i = 0; i < layout.Places.size(); ++i)
        if (layout.Places[i].contains(point))
            return static_cast<int>(i);
    return -1;
}

}  // namespace orbelle::widgets
