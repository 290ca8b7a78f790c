#include "graphics/rotate_flip.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orbelle::graphics {
namespace {

using Letters = std::vector<std::string>;

Bitmap PictureOfLetters(const Letters& rows) {
    Bitmap picture(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            picture.SetPixel(x, y, static_cast<Argb>(rows[y][x]));
    return picture;
}

Letters LettersOf(const Bitmap& picture) {
    Letters rows(picture.Height(), std::string(picture.Width(), ' '));
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            rows[y][x] = static_cast<char>(*picture.GetPixel(x, y));
    return rows;
}

const struct {
    RotateFlipType Type;
    Letters Result;
} kTurns[] = {
    {RotateFlipType::Rotate90FlipNone, {"da", "eb", "fc"}},
    {RotateFlipType::RotateNoneFlipX, {"cba", "fed"}},
    {RotateFlipType::Rotate90FlipX, {"ad", "be", "cf"}},
    {RotateFlipType::RotateNoneFlipY, {"def", "abc"}},
};

// The letters are colours under alpha 0.
TEST(ImageRotateFlip, MovesEveryPixelAndNoCopyOfThePicture) {
    const Letters before{"abc", "def"};
    for (const auto& turn : kTurns) {
        Bitmap picture = PictureOfLetters(before);
        const Bitmap copy = picture;
        ImageRotateFlip(picture, turn.Type);
        EXPECT_EQ(LettersOf(picture), turn.Result) << int(turn.Type);
        EXPECT_EQ(LettersOf(copy), before) << int(turn.Type);
    }
}

TEST(ImageRotateFlip, TurnsPicturesLargerThanItsSquares) {
    Bitmap picture(37, 50);
    for (int i = 0; i < 37 * 50; ++i)
        picture.SetPixel(i % 37, i / 37, static_cast<Argb>(i));
    ImageRotateFlip(picture, RotateFlipType::Rotate90FlipNone);
    ASSERT_EQ(picture.Width(), 50);
    ASSERT_EQ(picture.Height(), 37);
    for (int y = 0; y < 37; ++y)
        for (int x = 0; x < 50; ++x)
            ASSERT_EQ(picture.GetPixel(x, y), static_cast<Argb>((49 - x) * 37 + y))
                << x << ", " << y;
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
