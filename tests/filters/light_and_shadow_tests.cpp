#include "filters/light_and_shadow.h"

#include <gmock/gmock.h>

#include "support/pictures.h"

namespace orbelle::filters {
namespace {

using graphics::Bitmap;
using graphics::MakeArgb;
using testing::AlphaRow;
using ::testing::ElementsAre;
using testing::FilledPicture;

TEST(Reflection, FadesTowardTheTopAndFindsTheFoot) {
    Bitmap picture = FilledPicture(2, 5, 0xFF112233);
    picture.SetPixel(0, 4, 0x95112233);  // 149: not solid
    picture.SetPixel(1, 4, 0);
    const ReflectionPicture result = Reflection(picture);
    EXPECT_EQ(result.Margin, 1);
    EXPECT_EQ(result.Image.GetPixel(0, 0), 0x00112233U);
    EXPECT_EQ(result.Image.GetPixel(0, 1), MakeArgb(51, 0x11, 0x22, 0x33));
    EXPECT_EQ(result.Image.GetPixel(0, 3), MakeArgb(153, 0x11, 0x22, 0x33));
    EXPECT_EQ(result.Image.GetPixel(0, 4), MakeArgb(149 * 4 / 5, 0x11, 0x22, 0x33));
    EXPECT_EQ(Reflection(Bitmap(3, 7)).Margin, 6);
    EXPECT_EQ(Reflection(FilledPicture(1, 1, 0xFFFFFFFF)).Margin, 0);
}

TEST(GradientBlack, IsBlackAndFadesTowardTheTop) {
    const Bitmap result = GradientBlack(FilledPicture(1, 100, 0xFF80A0C0));
    EXPECT_EQ(result.GetPixel(0, 0), 0U);
    EXPECT_EQ(result.GetPixel(0, 50), 0x7F000000U);
    EXPECT_EQ(result.GetPixel(0, 99), 0xFC000000U);
}

TEST(Shadow, CountsTheCentreTwice) {
    Bitmap picture(5, 5);
    picture.SetPixel(2, 2, 0xFFFF0000);
    const Bitmap result = Shadow(picture, 1);
    EXPECT_EQ(result.Width(), 7);
    EXPECT_THAT(AlphaRow(result, 2), ElementsAre(0, 25, 51, 25, 0, 0, 0));
    EXPECT_THAT(AlphaRow(result, 1), ElementsAre(0, 25, 25, 25, 0, 0, 0));
    EXPECT_THAT(AlphaRow(result, 4), ElementsAre(0, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(result.GetPixel(2, 2), 0x33000000U);
}

// A corner's square has four pixels, an edge's six; the picture stays at the top left.
TEST(Shadow, SquaresAreCutAtTheBorder) {
    const Bitmap result = Shadow(FilledPicture(3, 3, 0xFFFFFFFF), 1);
    EXPECT_THAT(AlphaRow(result, 0), ElementsAre(255, 255, 182, 72, 0));
    EXPECT_THAT(AlphaRow(result, 4), ElementsAre(0, 0, 0, 0, 0));
    EXPECT_THAT(AlphaRow(result, 3), ElementsAre(72, 76, 51, 25, 0));
    EXPECT_EQ(Shadow(Bitmap(), 1).Width(), 2);
}

}  // namespace
}  // namespace orbelle::filters
