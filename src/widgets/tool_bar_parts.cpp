// What the toolbar tells assistive tools: its parts are the buttons without the separators.
#include "widgets/tool_bar.h"

namespace orbelle::widgets {

int ToolBarvs::PartOf(int index) const {
    if (index < 0 || buttons_[index].IsSeparator())
        return -1;
    int part = 0;
    for (int i = 0; i < index; ++i)
        part += buttons_[i].IsSeparator() ? 0 : 1;
    return part;
}

int ToolBarvs::ButtonOfPart(int part) const {
    for (int i = 0; i < ButtonCounts(); ++i)
        if (PartOf(i) == part)
            return i;
    return -1;
}

int ToolBarvs::PartCount() const {
    int count = 0;
    for (const ToolButton& button : buttons_)
        count += button.IsSeparator() ? 0 : 1;
    return count;
}

QString ToolBarvs::PartName(int part) const {
    const ToolButton& button = buttons_[ButtonOfPart(part)];
    return button.ToolTip.isEmpty() ? button.Caption : button.ToolTip;
}

QRect ToolBarvs::PartPlace(int part) const {
    return layout_.Places[ButtonOfPart(part)];
}

QAccessible::Role ToolBarvs::PartRole(int part) const {
    return buttons_[ButtonOfPart(part)].HasMenu() ? QAccessible::ButtonMenu : QAccessible::Button;
}

QAccessible::State ToolBarvs::PartState(int part) const {
    const ToolButton& button = buttons_[ButtonOfPart(part)];
    QAccessible::State state;
    state.disabled = !button.Enabled || !isEnabled();
    state.checkable = button.ButtonType == 1;
    state.checked = state.checkable && button.IsPressed;
    state.pressed = button.IsPressed;
    state.hasPopup = button.HasMenu();
    return state;
}

int ToolBarvs::FocusedPart() const {
    return PartOf(focusIndex_);
}

void ToolBarvs::PressPart(int part) {
    const int index = ButtonOfPart(part);
    if (CanPress(index) && isEnabled())
        Press(index);
}

}  // namespace orbelle::widgets
