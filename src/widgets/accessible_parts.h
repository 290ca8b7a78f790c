// Lets assistive tools see the parts that a self-painted control consists of.
#pragma once

#include <QAccessible>
#include <QRect>
#include <QString>
#include <vector>

class QWidget;

namespace orbelle::widgets {

// What such a control tells of its parts, numbered from 0.
class AccessibleParts {
public:
    virtual QAccessible::Role WholeRole() const = 0;
    virtual int PartCount() const = 0;
    virtual QString PartName(int part) const = 0;
    virtual QString PartValue(int part) const = 0;
    virtual QRect PartPlace(int part) const = 0;  // in the control's logical pixels
    virtual QAccessible::Role PartRole(int part) const = 0;
    virtual QAccessible::State PartState(int part) const = 0;
    virtual int FocusedPart() const = 0;  // -1: none
    // What stands on the control and can be reached for itself; it follows the parts.
    virtual std::vector<QWidget*> WidgetsBeside() const { return {}; }
    // Does what a press with the mouse does.
    virtual void PressPart(int part) = 0;

protected:
    ~AccessibleParts() = default;
};

// From then on controls with parts show them. Calling it again is harmless.
void ShowPartsToAssistiveTools();

// Tells assistive tools that a part has the focus now, or has a new name or state.
void AnnounceFocus(QWidget& control, int part);
void AnnounceName(QWidget& control, int part);
void AnnounceState(QWidget& control, int part, QAccessible::State changed);

}  // namespace orbelle::widgets
