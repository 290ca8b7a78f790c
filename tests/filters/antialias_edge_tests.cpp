#include "filters/antialias_edge.h"

#include <gmock/gmock.h>

#include "support/pictures.h"
#include "support/random_pictures.h"

namespace orbelle::filters {
namespace {

using testing::AlphaRow;
using ::testing::ElementsAre;
using testing::PictureOf;

graphics::Bitmap Softened(const std::vector<std::string>& rows) {
    graphics::Bitmap picture = PictureOf(rows);
    AntialiasEdge(picture);
    return picture;
}

TEST(AntialiasEdge, FillsANotchInEachOfTheFourDirections) {
    EXPECT_THAT(AlphaRow(Softened({"....#", ".####"}), 0), ElementsAre(0, 63, 85, 127, 255));
    EXPECT_THAT(AlphaRow(Softened({"#....", "####."}), 0), ElementsAre(255, 127, 85, 63, 0));
    EXPECT_THAT(AlphaRow(Softened({".####", "....#"}), 1), ElementsAre(0, 63, 85, 127, 255));
    EXPECT_THAT(AlphaRow(Softened({"####.", "#...."}), 1), ElementsAre(255, 127, 85, 63, 0));
}

TEST(AntialiasEdge, TheRampTakesTheColorOfTheCornerPixel) {
    graphics::Bitmap picture = PictureOf({"....#", ".####"});
    picture.SetPixel(4, 0, 0x80102030);
    AntialiasEdge(picture);
    EXPECT_EQ(picture.GetPixel(3, 0), graphics::MakeArgb(128 / 2, 0x10, 0x20, 0x30));
    EXPECT_EQ(picture.GetPixel(2, 0), graphics::MakeArgb(128 / 3, 0x10, 0x20, 0x30));
}

TEST(AntialiasEdge, ANotchThatReachesTheBorderDependsOnItsDirection) {
    // Open to the right, with the step below: given up.
    EXPECT_THAT(AlphaRow(Softened({"#...", "####"}), 0), ElementsAre(255, 0, 0, 0));
    // Open to the left, with the step above: goes on from where the last notch ended, column 0.
    EXPECT_THAT(AlphaRow(Softened({"####", "...#", "...."}), 1), ElementsAre(0, 85, 127, 255));
}

TEST(AntialiasEdge, LeavesClosedAndOnePixelNotchesAlone) {
    for (const auto& rows : std::vector<std::vector<std::string>>{
             {"#..#", "####"}, {"..#", "..#"}, {"###", "###"}, {"..##", "..##", "..##"}}) {
        EXPECT_TRUE(testing::SamePixels(Softened(rows), PictureOf(rows))) << rows[0];
    }
}

TEST(AntialiasEdge, NeverChangesAPixelThatIsNotTransparent) {
    std::mt19937 random(1);
    for (const auto& [width, height] : testing::SizesToTry(random)) {
        const graphics::Bitmap before = testing::RandomPicture(random, width, height);
        graphics::Bitmap after = before;
        AntialiasEdge(after);
        for (int i = 0; i < width * height; ++i) {
            const graphics::Argb old = before.Pixels()[i];
            ASSERT_EQ(graphics::AlphaOf(old) != 0 ? after.Pixels()[i] : old, old);
        }
    }
}

}  // namespace
}  // namespace orbelle::filters
