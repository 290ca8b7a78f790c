#include "graphics/rotate_flip.h"

#include <gtest/gtest.h>

#include <numeric>
#include <string>

namespace orbelle::graphics {
namespace {

// One character a pixel, rows apart by '/'.
std::string LettersOf(const Bitmap& picture) {
    std::string letters;
    for (int y = 0; y < picture.Height(); ++y) {
        letters += y > 0 ? "/" : "";
        for (int x = 0; x < picture.Width(); ++x)
            letters += static_cast<char>(*picture.GetPixel(x, y));
    }
    return letters;
}

const struct {
    RotateFlipType Type;
    const char* Result;
} kTurns[] = {
    {RotateFlipType::Rotate90FlipNone, "da/eb/fc"},
    {RotateFlipType::RotateNoneFlipX, "cba/fed"},
    {RotateFlipType::Rotate90FlipX, "ad/be/cf"},
    {RotateFlipType::RotateNoneFlipY, "def/abc"},
};

// The letters are colours under alpha 0.
TEST(ImageRotateFlip, MovesEveryPixelAndNoCopyOfThePicture) {
    Bitmap copy(3, 2);
    std::iota(copy.MutablePixels(), copy.MutablePixels() + 6, Argb{'a'});
    for (const auto& turn : kTurns) {
        Bitmap picture = copy;
        ImageRotateFlip(picture, turn.Type);
        EXPECT_EQ(LettersOf(picture), turn.Result) << int(turn.Type);
        EXPECT_EQ(LettersOf(copy), "abc/def") << int(turn.Type);
    }
}

TEST(ImageRotateFlip, TurnsPicturesLargerThanItsSquares) {
    Bitmap picture(37, 50);
    std::iota(picture.MutablePixels(), picture.MutablePixels() + 37 * 50, Argb{0});
    ImageRotateFlip(picture, RotateFlipType::Rotate90FlipNone);
    ASSERT_EQ(std::pair(picture.Width(), picture.Height()), std::pair(50, 37));
    for (int i = 0; i < 37 * 50; ++i)
        ASSERT_EQ(picture.GetPixel(49 - i / 37, i % 37), static_cast<Argb>(i));
}

TEST(ImageRotateFlip, KeepsTheFormatAndTheEmptyBitmap) {
    for (const auto& turn : kTurns) {
        Bitmap opaque(3, 2, PixelFormat::Rgb24), empty;
        ImageRotateFlip(opaque, turn.Type);
        EXPECT_EQ(opaque.Format(), PixelFormat::Rgb24);
        EXPECT_EQ(opaque.GetPixel(1, 1), 0xFF000000U);
        ImageRotateFlip(empty, turn.Type);
        EXPECT_TRUE(empty.IsEmpty());
    }
}

}  // namespace
}  // namespace orbelle::graphics
