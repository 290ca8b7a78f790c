#include "support/system.h"

#include "graphics/path_text.h"

namespace orbelle::testing {

Environment EnvironmentIn(const std::filesystem::path& folder) {
    return {{"HOME", graphics::Utf8Of(folder)},
            {"XDG_CACHE_HOME", graphics::Utf8Of(folder / u8"cache")},
            {"XDG_STATE_HOME", graphics::Utf8Of(folder / u8"state")}};
}

int RunProgram(const ProgramCall& call) {
    return RunningProgram(call).Wait();
}

}  // namespace orbelle::testing
