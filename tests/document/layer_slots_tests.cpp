#include "document/layer_slots.h"

#include <gmock/gmock.h>

#include "support/pictures.h"

namespace orbelle::document {
namespace {

using graphics::RectF;
using graphics::RectI;
using ::testing::ElementsAre;
using testing::FilledPicture;

Page StackOf(std::initializer_list<int> hues) {
    Page page;
    page.Width = 20;
    page.Height = 10;
    for (const int hue : hues) {
        IconLayer layer;
        MakeImageLayer(page, layer, FilledPicture(4, 4, 0xFF000000));
        layer.Hue = hue;
        page.Layers.push_back(layer);
    }
    return page;
}

std::vector<int> Hues(const Page& page) {
    std::vector<int> hues;
    for (const IconLayer& layer : page.Layers)
        hues.push_back(layer.Hue);
    return hues;
}

TEST(LayerSlots, ANewLayerGoesAboveTheSelectedOneOrOnTop) {
    Page page = StackOf({1, 2, 3});
    page.SelectedLayer = 0;
    OpenLayerSlot(page, SlotCopySize::Image).Hue = 9;
    EXPECT_THAT(Hues(page), ElementsAre(1, 9, 2, 3));
    EXPECT_EQ(page.SelectedLayer, 1);
    page.SelectedLayer = kNoLayer;
    OpenLayerSlot(page, SlotCopySize::Image).Hue = 8;
    EXPECT_THAT(Hues(page), ElementsAre(1, 9, 2, 3, 8));
    EXPECT_EQ(page.SelectedLayer, 4);
}

TEST(LayerSlots, LayersThatMoveUpAreCopiedInTheSizeThatTheCommandNames) {
    for (const auto& [size, expected] :
         {std::pair{SlotCopySize::Image, 4}, {SlotCopySize::Rect, 6}}) {
        Page page = StackOf({1, 2});
        page.SelectedLayer = 0;
        page.Layers[1].Rect.Width = page.Layers[1].Rect.Height = 6.4F;
        OpenLayerSlot(page, size);
        EXPECT_EQ(page.Layers[2].Image.Width(), expected);
        EXPECT_EQ(page.Layers[2].Image.GetPixel(3, 3), 0xFF000000);
    }
}

TEST(LayerSlots, ALayerOfNoSizeKeepsItsPictureWhenItMovesUp) {
    Page page = StackOf({1, 2});
    page.SelectedLayer = 0;
    page.Layers[1].Rect = {0, 0, 0, 0};
    OpenLayerSlot(page, SlotCopySize::Rect);
    EXPECT_EQ(page.Layers[2].Image.Width(), 4);
}

TEST(LayerSlots, APictureIsCentredWithTruncatedOffsets) {
    Page page;
    page.Width = 20;
    page.Height = 10;
    for (const auto& [size, rect] : std::vector<std::pair<RectI, RectF>>{
             {{0, 0, 5, 4}, {7, 3, 5, 4}}, {{0, 0, 25, 15}, {-2, -2, 25, 15}}}) {
        IconLayer layer;
        MakeImageLayer(page, layer, FilledPicture(size.Width, size.Height, 0xFF000000));
        EXPECT_EQ(layer.Rect, rect);
        EXPECT_EQ(layer.BaseRect, rect);
        EXPECT_EQ(layer.ImageWidth, size.Width);
        EXPECT_EQ(layer.Region.Bounds(), (RectF{rect.X - 1, rect.Y, rect.Width, rect.Height}));
    }
}

TEST(LayerSlots, AnEmptyLayerHasThePagesPictureAndTheRegionOfTheSlot) {
    Page page = StackOf({7});
    page.SelectedLayer = 0;
    IconLayer& layer = OpenLayerSlot(page, SlotCopySize::Rect);
    layer.Path = graphics::Path(graphics::FillMode::Alternate);
    layer.ClipNextLayer = true;
    layer.Visible = false;
    MakeEmptyLayer(page, layer, 3, 2.5F);
    EXPECT_EQ(layer.Image.Width(), 20);
    EXPECT_EQ(layer.Image.Height(), 10);
    EXPECT_EQ(layer.Rect, (RectF{0, 0, 3, 2.5F}));
    EXPECT_EQ(layer.ImageWidth, 3);
    EXPECT_EQ(layer.ImageHeight, 2);
    EXPECT_EQ(layer.Region.Bounds(), page.Layers[0].Region.Bounds());
    EXPECT_TRUE(layer.Path.IsNull());
    EXPECT_FALSE(layer.ClipNextLayer);
    EXPECT_TRUE(layer.Visible);
    EXPECT_EQ(layer.Hue, 0);
    EXPECT_EQ(layer.Saturation, 40);
}

}  // namespace
}  // namespace orbelle::document
