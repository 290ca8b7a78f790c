// The end of a session arrives by the toolkit's session manager, and a program with a window has no
// console that could interrupt it.
#include "app/ending_signals.h"

namespace orbelle::app {

EndingSignals::EndingSignals(QObject* parent) : QObject(parent) {}

EndingSignals::~EndingSignals() = default;

}  // namespace orbelle::app
