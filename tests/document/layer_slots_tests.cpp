#include "document/layer_slots.h"

#include <gtest/gtest.h>

#include "graphics/errors.h"
#include "support/pictures.h"

namespace orbelle::document {
namespace {

using graphics::RectF;

void AddSquare(Page& page, int side) {
    MakeImageLayer(page, page.Layers.emplace_back(),
                   testing::FilledPicture(side, side, 0xFF000000));
}

// Two squares of 4 x 4 on a page of 20 x 10; the lower one is selected.
Page TwoSquares() {
    Page page;
    page.Width = 20;
    page.Height = 10;
    AddSquare(page, 4);
    AddSquare(page, 4);
    page.SelectedLayer = 0;
    return page;
}

TEST(LayerSlots, LayersThatMoveUpAreCopiedInTheSizeThatTheCommandNames) {
    const struct {
        SlotCopySize Size;
        float RectSide;
        int Copied;
    } cases[] = {
        {SlotCopySize::Image, 6.4F, 4},
        {SlotCopySize::Rect, 6.4F, 6},
        {SlotCopySize::Rect, 0, 4},  // a size that no picture has
    };
    for (const auto& [size, side, copied] : cases) {
        Page page = TwoSquares();
        page.Layers[1].Rect = {0, 0, side, side};
        OpenLayerSlot(page, size);
        EXPECT_EQ(page.SelectedLayer, 1);
        EXPECT_EQ(page.Layers[2].Image.Width(), copied);
        EXPECT_EQ(page.Layers[2].Image.GetPixel(3, 3), 0xFF000000);
    }
}

TEST(LayerSlots, ThereIsRoomFor101Layers) {
    Page page = TwoSquares();
    while (page.LayerCount() < 101)
        OpenLayerSlot(page, SlotCopySize::Image);
    for (const int layers : {101, 300}) {
        page.Layers.resize(static_cast<std::size_t>(layers));
        EXPECT_THROW(OpenLayerSlot(page, SlotCopySize::Image), Error);
        EXPECT_EQ(page.LayerCount(), layers);
    }
}

TEST(LayerSlots, APictureIsCentredWithTruncatedOffsets) {
    Page page = TwoSquares();
    for (const RectF& rect : {RectF{7, 2, 5, 5}, {2, -2, 15, 15}}) {
        AddSquare(page, static_cast<int>(rect.Width));
        const IconLayer& layer = page.Layers.back();
        EXPECT_EQ(layer.Rect, rect);
        EXPECT_EQ(layer.BaseRect, rect);
        EXPECT_EQ(layer.ImageWidth, static_cast<int>(rect.Width));
        EXPECT_EQ(layer.Region.Bounds(), (RectF{rect.X - 1, rect.Y, rect.Width, rect.Height}));
    }
}

TEST(LayerSlots, AnEmptyLayerHasThePagesPictureAndNoRegion) {
    Page page = TwoSquares();
    page.Layers[0].Hue = 7;
    IconLayer& layer = OpenLayerSlot(page, SlotCopySize::Rect);
    layer.Path = graphics::Path(graphics::FillMode::Alternate);
    layer.ClipNextLayer = true;
    layer.Visible = false;
    MakeEmptyLayer(page, layer, 3, 2.5F);
    EXPECT_TRUE(testing::SamePixels(layer.Image, graphics::Bitmap(20, 10)));
    EXPECT_EQ(layer.Rect, (RectF{0, 0, 3, 2.5F}));
    EXPECT_EQ(std::pair(layer.ImageWidth, layer.ImageHeight), std::pair(3, 2));
    EXPECT_TRUE(layer.Region.IsNull());
    EXPECT_TRUE(layer.Path.IsNull());
    EXPECT_FALSE(layer.ClipNextLayer);
    EXPECT_TRUE(layer.Visible);
    EXPECT_EQ(std::pair(layer.Hue, layer.Saturation), std::pair(0, 40));
}

}  // namespace
}  // namespace orbelle::document
