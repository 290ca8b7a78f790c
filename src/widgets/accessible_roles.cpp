#include "widgets/accessible_roles.h"

#include <QAccessibleWidget>

#include "widgets/balloon.h"
#include "widgets/caption_text.h"

namespace orbelle::widgets {

namespace {

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
    if (auto* tips = qobject_cast<Balloon*>(object))
        return new QAccessibleWidget(tips, QAccessible::AlertMessage);
    if (auto* captions = qobject_cast<CaptionText*>(object))
        return new QAccessibleWidget(captions, QAccessible::StaticText);
    return nullptr;
}

}  // namespace

void InstallAccessibleRoles() {
    QAccessible::installFactory(MakeAccessible);
}

}  // namespace orbelle::widgets
