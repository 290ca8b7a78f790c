#include "graphics/path_text.h"

#include <gtest/gtest.h>

#include "graphics/file_io.h"
#include "support/temporary_folder.h"

namespace orbelle::graphics {
namespace {

TEST(PathText, NamesOfEveryScriptComeThroughWhole) {
    const testing::TemporaryFolder folder;
    const std::pair<std::string, std::filesystem::path> names[] = {
        {"b\u00FCro \u2713.volf", u8"b\u00FCro \u2713.volf"},
        {"u\u0308", u8"u\u0308"},  // two characters, and no other spelling of the first
        {"\u03B1\u05D0\u4E2D", u8"\u03B1\u05D0\u4E2D"},
        {"\U0001F600", u8"\U0001F600"},
        {"", u8""},
    };
    for (const auto& [text, path] : names) {
        EXPECT_EQ(PathOfUtf8(text), path);
        EXPECT_EQ(Utf8Of(path), text);
        if (text.empty())
            continue;
        WriteFile(folder / text, {});
        const std::filesystem::directory_iterator found(folder.Path());
        EXPECT_EQ(Utf8Of(found->path().filename()), text);
        std::filesystem::remove(folder / text);
    }
}

}  // namespace
}  // namespace orbelle::graphics
