// SVG documents among the files that pictures come from.
#include <gtest/gtest.h>

#include <string>

#include "formats/pictures_of_file.h"
#include "graphics/file_io.h"
#include "support/temporary_folder.h"

namespace orbelle::formats {
namespace {

TEST(PicturesOfFile, ADrawingIsOfTheSizeThatIsAskedFor) {
    const testing::TemporaryFolder folder;
    const std::string drawing = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 2 1'/>";
    graphics::WriteFile(folder / "a.svg",
                        {reinterpret_cast<const std::uint8_t*>(drawing.data()), drawing.size()});
    const auto pictures = PicturesOfFile(folder / "a.svg", 64);
    ASSERT_EQ(pictures.size(), 1U);
    EXPECT_EQ(pictures[0].Width(), 64);
    EXPECT_EQ(pictures[0].Height(), 32);
}

}  // namespace
}  // namespace orbelle::formats
