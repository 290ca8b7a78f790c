#include "app/settings_store.h"

#include <QStandardPaths>

#include "app/file_names.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

constexpr char kOrganization[] = "OrbelleWork";  // names the file, too

// To open a pipe would wait for somebody to write to it; what is no file must not be replaced by
// one. `name` of a file in the user's folder of settings.
bool IsFileOrFree(const QString& name) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    std::error_code unreachable;
    const fs::file_status status = fs::status(PathOf(folder + '/' + name), unreachable);
    return !fs::exists(status) || fs::is_regular_file(status);
}

}  // namespace

void OpenStore(std::optional<QSettings>& store) {
    if (IsFileOrFree(kOrganization + QString(".conf")) &&
        IsFileOrFree(kOrganization + QString(".conf.lock")))
        store.emplace(QString(kOrganization));
}

}  // namespace orbelle::app
