// A button of a toolbar as a record, and the string that it is configured by.
#pragma once

#include <QString>
#include <vector>

namespace orbelle::widgets {

// One entry of a button's drop-down menu; the owner reads it and acts on it.
struct ButtonMenu {
    int Index = 0;
    QString OriginalCaption;
    QString Captions;
    bool Enables = true;
    bool Visible = true;
};

struct BarButton {
    int Index = 0;
    QString Kind;  // "Y" a button, "1" a separator
    QString Caption;
    QString ExtraFlag;
    QString ToolTip;
    int ButtonType = 0;  // 1: latching, each click turns its press state
    bool Enabled = true;
    int MenuCount = 0;  // above 0: has a drop-down arrow, even before its entries are added
    std::vector<ButtonMenu> Menus;
    bool IsPressed = false;

    bool IsSeparator() const { return Kind == "1"; }
    bool HasMenu() const { return MenuCount > 0; }
};

// Reads eight fields with commas: number, kind, caption, extra flag, tip, type, enabled (-1 or 0),
// count of menu entries. Fields that are missing are empty or 0, further ones are passed over. A
// latching button starts pressed.
BarButton ParseBarButton(const QString& fields);

}  // namespace orbelle::widgets
