#include <QtGlobal>

#include "app/starter_console.h"

namespace orbelle::app {

void UseConsoleOfStarter() {}

void TellStarter(const QString& problem) {
    qCritical("orbelle: %s", qUtf8Printable(problem));
}

}  // namespace orbelle::app
