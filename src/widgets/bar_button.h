// A button of a toolbar as a record.
#pragma once

#include <QString>

namespace orbelle::widgets {

struct BarButton {
    QString Caption = {};  // beside the picture; vertical bars show none
    QString ToolTip = {};
    QString Artwork = {};      // the name of a drawing
    bool Latches = false;      // each click turns its pressed state
    bool HasPopup = false;     // more to choose from opens; marked in the corner of the face
    bool IsSeparator = false;  // a line in place of a button
    bool IsSpring = false;     // room in place of a button, as much as the bar has left
    int RoomBeside = 0;        // for what stands between the button and the next one

    bool IsGap() const { return IsSeparator || IsSpring; }
};

}  // namespace orbelle::widgets
