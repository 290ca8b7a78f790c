#include <QStandardPaths>

#include "app/hand_over_place.h"

namespace orbelle::app {

// In a folder that only the user can write to.
HandOverPlace FindHandOverPlace() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        return {};
    const QString server = folder + "/orbelle-main-window";
    return {server, server + ".lock"};
}

void LetOthersToFront() {}

}  // namespace orbelle::app
