// A folder whose files are told with their names.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "graphics/file_io.h"
#include "graphics/staged_files.h"
#include "support/temporary_folder.h"

namespace orbelle::graphics {

class StagedFilesTest : public ::testing::Test {
protected:
    // "NAME: TEXT" of all files, "NAME/" of folders, sorted.
    std::vector<std::string> All() const {
        std::vector<std::string> all;
        for (const std::filesystem::directory_entry& entry :
             std::filesystem::recursive_directory_iterator(folder.Path())) {
            const std::string name =
                entry.path().lexically_relative(folder.Path()).generic_string();
            if (entry.is_directory()) {
                all.push_back(name + "/");
                continue;
            }
            const std::vector<std::uint8_t> bytes = ReadFile(entry.path());
            all.push_back(name + ": " + std::string(bytes.begin(), bytes.end()));
        }
        std::ranges::sort(all);
        return all;
    }
    void Write(const std::string& name, const std::string& text) const {
        WriteFile(folder / name, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    }
    static void StageAll(StagedFiles& files, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            files.Stage(i, std::vector<std::uint8_t>{'n', 'e', 'w'});
    }

    testing::TemporaryFolder folder;
    const std::vector<std::filesystem::path> paths = {folder / "a", folder / "in/side/b",
                                                      folder / "c"};
};

}  // namespace orbelle::graphics
