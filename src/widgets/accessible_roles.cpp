#include "widgets/accessible_roles.h"

#include <QAccessibleWidget>

#include "widgets/ctl_captions.h"
#include "widgets/ctl_tips.h"

namespace orbelle::widgets {

namespace {

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
    if (auto* tips = qobject_cast<CtlTips*>(object))
        return new QAccessibleWidget(tips, QAccessible::AlertMessage);
    if (auto* captions = qobject_cast<CtlCaptions*>(object))
        return new QAccessibleWidget(captions, QAccessible::StaticText);
    return nullptr;
}

}  // namespace

void InstallAccessibleRoles() {
    QAccessible::installFactory(MakeAccessible);
}

}  // namespace orbelle::widgets
