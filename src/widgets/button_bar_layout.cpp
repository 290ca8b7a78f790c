#include "widgets/button_bar_layout.h"

#include <algorithm>

namespace orbelle::widgets {
namespace {

constexpr int kLineRoom = 2;  // on either side of a separator, beside the gap

// The layout with `left` pixels for the springs.
ButtonBarLayout Place(const std::vector<BarButton>& buttons, const ButtonBarMetrics& metrics,
                      int across, int left, const std::function<int(const QString&)>& textWidth) {
    const bool horizontal = metrics.Direction == Qt::Horizontal;
    const QSize face = metrics.FaceSize;
    const int acrossMargin = (across - (horizontal ? face.height() : face.width())) / 2;
    ButtonBarLayout layout;
    int p = metrics.Margin;
    bool followsFace = false;
    for (const BarButton& button : buttons) {
        QRect& place = layout.Places.emplace_back();
        QRect& line = layout.Lines.emplace_back();
        if (button.IsSpring) {
            p += left;
        } else if (button.IsSeparator) {
            p += metrics.Gap + kLineRoom;
            line = horizontal ? QRect(p, acrossMargin, 1, face.height())
                              : QRect(acrossMargin, p, face.width(), 1);
            p += 1 + metrics.Gap + kLineRoom;
        } else {
            p += followsFace ? metrics.Gap : 0;
            QSize size = face;
            if (horizontal && !button.Caption.isEmpty())
                size.setWidth((face.width() + metrics.IconSize) / 2 + kTightSpace +
                              textWidth(button.Caption) + kSpace);
            place = QRect(horizontal ? QPoint(p, acrossMargin) : QPoint(acrossMargin, p), size);
            p += horizontal ? size.width() : size.height();
            if (button.RoomBeside > 0)
                p += metrics.Gap + button.RoomBeside;
        }
        followsFace = !button.IsGap();
    }
    layout.Length = p + metrics.Margin;
    return layout;
}

}  // namespace

ButtonBarLayout LayOutButtonBar(const std::vector<BarButton>& buttons,
                                const ButtonBarMetrics& metrics, const QSize& size,
                                const std::function<int(const QString&)>& textWidth) {
    const bool horizontal = metrics.Direction == Qt::Horizontal;
    const int across = horizontal ? size.height() : size.width();
    const int along = horizontal ? size.width() : size.height();
    ButtonBarLayout layout = Place(buttons, metrics, across, 0, textWidth);
    const int length = layout.Length;
    const auto springs = static_cast<int>(std::ranges::count_if(buttons, &BarButton::IsSpring));
    if (springs > 0 && along > length)
        layout = Place(buttons, metrics, across, (along - length) / springs, textWidth);
    layout.Length = length;
    return layout;
}

int ButtonAt(const ButtonBarLayout& layout, const QPoint& point) {
    for (std::size_t i = 0; i < layout.Places.size(); ++i)
        if (layout.Places[i].contains(point))
            return static_cast<int>(i);
    return -1;
}

}  // namespace orbelle::widgets
