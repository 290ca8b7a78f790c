// What the toolbar tells assistive tools: its parts are the buttons without the gaps between
// groups.
#include <algorithm>
#include <iterator>

#include "widgets/button_bar.h"

namespace orbelle::widgets {

int ButtonBar::PartOf(int index) const {
    if (index < 0 || buttons_[index].IsGap())
        return -1;
    int part = 0;
    for (int i = 0; i < index; ++i)
        part += buttons_[i].IsGap() ? 0 : 1;
    return part;
}

int ButtonBar::ButtonOfPart(int part) const {
    for (int i = 0; i < Count(); ++i)
        if (PartOf(i) == part)
            return i;
    return -1;
}

int ButtonBar::PartCount() const {
    int count = 0;
    for (const BarButton& button : buttons_)
        count += button.IsGap() ? 0 : 1;
    return count;
}

QString ButtonBar::PartName(int part) const {
    const BarButton& button = buttons_[ButtonOfPart(part)];
    return button.ToolTip.isEmpty() ? button.Caption : button.ToolTip;
}

QString ButtonBar::PartValue(int part) const {
    return states_[ButtonOfPart(part)].Choice;
}

QRect ButtonBar::PartPlace(int part) const {
    return layout_.Places[ButtonOfPart(part)];
}

QAccessible::Role ButtonBar::PartRole(int part) const {
    return buttons_[ButtonOfPart(part)].HasPopup ? QAccessible::ButtonMenu : QAccessible::Button;
}

QAccessible::State ButtonBar::PartState(int part) const {
    const int index = ButtonOfPart(part);
    QAccessible::State state;
    state.disabled = !states_[index].Enabled || !isEnabled();
    state.checkable = buttons_[index].Latches;
    state.pressed = states_[index].Pressed;
    state.checked = state.checkable && state.pressed;
    state.hasPopup = buttons_[index].HasPopup;
    return state;
}

int ButtonBar::FocusedPart() const {
    return PartOf(focusIndex_);
}

std::vector<QWidget*> ButtonBar::WidgetsBeside() const {
    std::vector<QWidget*> widgets;
    std::ranges::copy_if(beside_, std::back_inserter(widgets), [](QWidget* w) { return w; });
    return widgets;
}

void ButtonBar::PressPart(int part) {
    const int index = ButtonOfPart(part);
    if (CanPress(index) && isEnabled())
        Press(index);
}

}  // namespace orbelle::widgets
