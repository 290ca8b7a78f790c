// Where settings stand on this system.
#pragma once

#include <QSettings>
#include <optional>

namespace orbelle::app {

// Left empty where nothing can be remembered.
void OpenStore(std::optional<QSettings>& store);

}  // namespace orbelle::app
