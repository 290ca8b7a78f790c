// A button of a toolbar as a record.
#pragma once

#include <QString>

namespace orbelle::widgets {

struct BarButton {
    QString Caption = {};  // beside the picture; vertical bars show none
    QString ToolTip = {};
    QString Artwork = {};      // the name of a drawing
    bool Latches = false;      // each click turns its pressed state
    bool HasArrow = false;     // of a drop-down; vertical bars show none
    bool IsSeparator = false;  // two lines in place of a button
};

}  // namespace orbelle::widgets
