// The dialog "Suggest" and its tiles.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QScreen>

#include "app/shared_image.h"
#include "app/suggest_dialog.h"
#include "app/suggestion_tile.h"
#include "support/hands.h"
#include "support/pictures.h"

namespace orbelle::app {
namespace {

using namespace orbelle::testing;
using filters::SizeRecipe;

constexpr QSize kPlenty(9999, 9999);

TEST(SuggestionTileTest, EnlargesUpToEightTimesAsFarAsThereIsRoom) {
    struct Case {
        int Size;
        double Scale;
        QSize Room;
        int Cell, Enlarged;
        QSize Tile;
    };
    // Around the enlargement there are 10 on both sides and below, 26 above; a ground has 10 around
    // the picture, and stands 10 below.
    const Case cases[] = {
        {16, 1, kPlenty, 8, 128, {148, 210}},
        {16, 2, kPlenty, 16, 128, {148, 202}},
        {16, 1.5, kPlenty, 12, 128, {148, 205}},
        {32, 1, kPlenty, 8, 256, {276, 354}},
        {48, 1, {6 * 212, 306}, 4, 192, {212, 306}},
        {48, 1, {6 * 212 - 1, 306}, 3, 144, {164, 258}},
        {48, 1, {6 * 212, 305}, 3, 144, {164, 258}},
        {256, 1, {1280, 800}, 1, 256, {296, 854}},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.Size);
        const TileLayout layout = TileLayout::Fitting(row.Size, 6, 100, row.Scale, row.Room);
        EXPECT_EQ(layout.Cell, row.Cell);
        EXPECT_EQ(layout.Enlarged, row.Enlarged);
        EXPECT_EQ(layout.Tile, row.Tile);
        EXPECT_EQ(layout.AreGroundsStacked, row.Size == 256);
    }
    EXPECT_EQ(TileLayout::Fitting(8, 6, 100, 1, kPlenty).Tile.width(), 120) << "the captions";
}

// Every third pixel is transparent, no two others are equal.
QImage Mosaic(int size) {
    QImage picture(size, size, QImage::Format_ARGB32);
    for (int i = 0; i < size * size; ++i)
        picture.setPixel(i % size, i / size,
                         i % 3 == 0 ? 0 : qRgb(i % size * 13, i / size * 13, 99));
    return picture;
}

TEST(SuggestionTileTest, ShowsHardSquaresAndTruePixelsAtEveryScale) {
    const QImage picture = Mosaic(16);
    for (const double scale : {1.0, 1.5, 2.0}) {
        SCOPED_TRACE(scale);
        const TileLayout layout = TileLayout::Fitting(16, 6, 0, scale, kPlenty);
        SuggestionTile tile("Plain", {}, picture, layout);
        QImage shot(tile.size() * scale, QImage::Format_RGB32);
        shot.setDevicePixelRatio(scale);
        tile.render(&shot);
        const auto expect = [&](const QRect& place, int cell, QRgb ground, QRgb otherGround) {
            const QPointF middle = QRectF(place).center() * scale;
            const int left = qRound(middle.x()) - 8 * cell, top = qRound(middle.y()) - 8 * cell;
            for (int y = 0; y < 16 * cell; ++y)
                for (int x = 0; x < 16 * cell; ++x) {
                    const QRgb pixel = picture.pixel(x / cell, y / cell);
                    const QRgb shown = shot.pixel(left + x, top + y);
                    ASSERT_TRUE(qAlpha(pixel) != 0 ? shown == pixel
                                                   : shown == ground || shown == otherGround)
                        << x << ' ' << y;
                }
        };
        expect(tile.EnlargedPlace(), static_cast<int>(8 * scale), 0xFFFFFFFF, 0xFFE6E6E6);
        expect(tile.LightPlace(), 1, 0xFFFFFFFF, 0xFFFFFFFF);
        expect(tile.DarkPlace(), 1, 0xFF202020, 0xFF202020);
    }
}

class SuggestDialogTest : public ::testing::Test {
protected:
    SuggestDialogTest() { dialog.open(); }

    SuggestionTile& Tile(const QString& name) {
        for (auto* tile : dialog.findChildren<SuggestionTile*>())
            if (tile->text() == name)
                return *tile;
        throw std::logic_error(name.toStdString());
    }

    SuggestDialog dialog{FilledPicture(64, 32, 0xFFC02040), 16, nullptr};
};

TEST_F(SuggestDialogTest, AClickTakesOneThatItShows) {
    const std::pair<const char*, SizeRecipe> tiles[] = {
        {"Plain", SizeRecipe::Plain},      {"Sharper", SizeRecipe::Sharper},
        {"Filled", SizeRecipe::Fill},      {"Filled, outlined", SizeRecipe::FillOutline},
        {"Outlined", SizeRecipe::Outline}, {"Snapped to pixels", SizeRecipe::Snapped}};
    int right = 0;
    for (const auto& [name, recipe] : tiles) {
        dialog.open();
        SuggestionTile& tile = Tile(name);
        const int left = tile.mapTo(&dialog, QPoint()).x();
        EXPECT_GT(left, right);
        right = left + tile.width();
        const auto picture = PixelsOf(ApplyRecipe(recipe, FilledPicture(64, 32, 0xFFC02040), 16));
        const QPointF middle = QRectF(tile.DarkPlace()).center();
        const QImage shot =
            tile.grab({qRound(middle.x()) - 8, qRound(middle.y()) - 8, 16, 16}).toImage();
        for (int i = 0; i < 256; ++i) {
            const graphics::Argb pixel = picture[static_cast<std::size_t>(i)];
            ASSERT_TRUE(graphics::AlphaOf(pixel) != 255 || shot.pixel(i % 16, i / 16) == pixel);
        }
        Click(tile, {5, 5});
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_EQ(dialog.Recipe(), recipe);
    }
}

TEST_F(SuggestDialogTest, KeysGoFromOneToTheNextAndTakeOrGiveUp) {
    EXPECT_EQ(dialog.focusWidget(), &Tile("Plain"));
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left})
        Strike(*dialog.focusWidget(), key);
    ASSERT_EQ(dialog.focusWidget(), &Tile("Filled"));
    Strike(Tile("Filled"), Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.Recipe(), SizeRecipe::Fill);
    dialog.open();
    Strike(*dialog.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST(SuggestDialogRoomTest, LargePicturesScrollWithinTheScreen) {
    SuggestDialog dialog(FilledPicture(300, 300, 0xFFC02040), 256, nullptr);
    dialog.show();
    const QSize room = dialog.screen()->availableSize();
    EXPECT_LT(dialog.width(), room.width());
    EXPECT_LT(dialog.height(), room.height());
    SuggestionTile& last = *dialog.findChildren<SuggestionTile*>().back();
    for (int i = 0; i < 5; ++i)
        Strike(*dialog.focusWidget(), Qt::Key_Right);
    ASSERT_EQ(dialog.focusWidget(), &last);
    EXPECT_GT(last.visibleRegion().boundingRect().width(), last.width() / 2);
}

}  // namespace
}  // namespace orbelle::app
