// What a control without input is to assistive tools.
#pragma once

#include <QAccessibleWidget>

namespace orbelle::widgets {

// Gives all controls of that class the role. Calling it again is harmless.
template <typename Control, QAccessible::Role kRole>
void InstallAccessibleRole() {
    QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
        auto* control = qobject_cast<Control*>(object);
        return control ? new QAccessibleWidget(control, kRole) : nullptr;
    });
}

}  // namespace orbelle::widgets
