#include "app/settings_store.h"

namespace orbelle::app {

void OpenStore(std::optional<QSettings>& store) {
    // The key itself: of an organization the toolkit would take one below it.
    store.emplace(R"(HKEY_CURRENT_USER\Software\OrbelleWork)", QSettings::NativeFormat);
}

}  // namespace orbelle::app
