// Files in a folder that holds the user's state folder, too.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "graphics/file_io.h"
#include "support/temporary_folder.h"

namespace orbelle::graphics {

using FileBytes = std::vector<std::uint8_t>;

inline const FileBytes kOld = {'o', 'l', 'd'};
inline const FileBytes kNew = {'n', 'e', 'w', 0, 255};

class FileIo : public ::testing::Test {
protected:
    FileIo() { testing::SetEnvironment(testing::EnvironmentIn(folder_.Path())); }

    // Those kept of what is written in place.
    std::size_t Copies() const { return FilesIn(folder_ / "state/orbelle/saves"); }
    std::size_t FilesInFolder() const { return FilesIn(folder_.Path()); }

    const testing::TemporaryFolder folder_;

private:
    static std::size_t FilesIn(const std::filesystem::path& folder) {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder),
                                                      std::filesystem::directory_iterator()));
    }
};

}  // namespace orbelle::graphics
