#include "filters/radial_light.h"

#include <gmock/gmock.h>

#include "support/pictures.h"

namespace orbelle::filters {
namespace {

using graphics::Bitmap;
using graphics::MakeArgb;
using testing::FilledPicture;
using testing::SamePixels;

// The body is an opaque square of 10 at (2, 3). Its region lies a pixel further left, so the light
// starts from (1, 3), reaches 10 and is brightest at (1 + 3, 3 + 3).
class RadialLightTest : public ::testing::Test {
protected:
    RadialLightTest() {
        for (int y = 3; y < 13; ++y)
            for (int x = 2; x < 12; ++x)
                Picture.SetPixel(x, y, MakeArgb(255, 100, 101, 250));
    }

    Bitmap Picture = FilledPicture(20, 20, MakeArgb(149, 100, 101, 250));
};

TEST_F(RadialLightTest, FadesWithTheDistanceAndRoundsTiesToEven) {
    EXPECT_EQ(ThreeDStyle(Picture, kStrongLight), (RadialLight{1, 3, 10}));
    EXPECT_EQ(Picture.GetPixel(4, 6), MakeArgb(255, 125, 126, 255));
    EXPECT_EQ(Picture.GetPixel(5, 6), MakeArgb(255, 122, 124, 255));   // 1 away: 22.5 more
    EXPECT_EQ(Picture.GetPixel(7, 10), MakeArgb(255, 112, 114, 255));  // 5 away: 12.5 more
    EXPECT_EQ(Picture.GetPixel(5, 7), MakeArgb(255, 121, 122, 255));   // sqrt(2) away: 21.46 more
}

TEST_F(RadialLightTest, EndsAtTheSquareAroundItsCornerAndLightsWhatIsOutsideTheBody) {
    const Bitmap before = Picture;
    ThreeDStyle(Picture, kGentleLight);
    // 7 away: 4.5 more; 4 away: 9 more.
    EXPECT_EQ(Picture.GetPixel(11, 6), MakeArgb(255, 104, 106, 254));
    EXPECT_EQ(Picture.GetPixel(4, 13), MakeArgb(149, 104, 106, 254));
    EXPECT_EQ(Picture.GetPixel(0, 6), MakeArgb(149, 109, 110, 255));
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(Picture.GetPixel(12, i), before.GetPixel(12, i));
        EXPECT_EQ(Picture.GetPixel(i, 14), before.GetPixel(i, 14));
    }
}

TEST(RadialLight, ThereIsNoneWithoutABodyOrOnePixelWide) {
    for (const auto& [before, light] : {std::pair{FilledPicture(9, 9, 0x95646464), RadialLight{}},
                                        {Bitmap(), RadialLight{}},
                                        {FilledPicture(1, 9, 0xFF646464), RadialLight{-1, 0, 9}}}) {
        Bitmap after = before;
        EXPECT_EQ(ThreeDStyle(after, kStrongLight), light);
        EXPECT_TRUE(SamePixels(after, before));
    }
}

}  // namespace
}  // namespace orbelle::filters
