#include "document/layer_slots.h"

#include <gmock/gmock.h>

#include "support/pictures.h"

namespace orbelle::document {
namespace {

using graphics::RectF;
using graphics::RectI;
using ::testing::ElementsAre;
using testing::FilledPicture;

Document StackOf(std::initializer_list<int> hues) {
    Document document;
    document.PageWidth = 20;
    document.PageHeight = 10;
    for (const int hue : hues) {
        IconLayer layer;
        MakeImageLayer(document, layer, FilledPicture(4, 4, 0xFF000000));
        layer.Hue = hue;
        document.Layers.push_back(layer);
    }
    return document;
}

std::vector<int> Hues(const Document& document) {
    std::vector<int> hues;
    for (const IconLayer& layer : document.Layers)
        hues.push_back(layer.Hue);
    return hues;
}

TEST(LayerSlots, ANewLayerGoesAboveTheSelectedOneOrOnTop) {
    Document document = StackOf({1, 2, 3});
    document.SelectedLayer = 0;
    OpenLayerSlot(document, SlotCopySize::Image).Hue = 9;
    EXPECT_THAT(Hues(document), ElementsAre(1, 9, 2, 3));
    EXPECT_EQ(document.SelectedLayer, 1);
    document.SelectedLayer = kNoLayer;
    OpenLayerSlot(document, SlotCopySize::Image).Hue = 8;
    EXPECT_THAT(Hues(document), ElementsAre(1, 9, 2, 3, 8));
    EXPECT_EQ(document.SelectedLayer, 4);
}

TEST(LayerSlots, LayersThatMoveUpAreCopiedInTheSizeThatTheCommandNames) {
    for (const auto& [size, expected] :
         {std::pair{SlotCopySize::Image, 4}, {SlotCopySize::Rect, 6}}) {
        Document document = StackOf({1, 2});
        document.SelectedLayer = 0;
        document.Layers[1].Rect.Width = document.Layers[1].Rect.Height = 6.4F;
        OpenLayerSlot(document, size);
        EXPECT_EQ(document.Layers[2].Image.Width(), expected);
        EXPECT_EQ(document.Layers[2].Image.GetPixel(3, 3), 0xFF000000);
    }
}

TEST(LayerSlots, ALayerOfNoSizeKeepsItsPictureWhenItMovesUp) {
    Document document = StackOf({1, 2});
    document.SelectedLayer = 0;
    document.Layers[1].Rect = {0, 0, 0, 0};
    OpenLayerSlot(document, SlotCopySize::Rect);
    EXPECT_EQ(document.Layers[2].Image.Width(), 4);
}

TEST(LayerSlots, APictureIsCentredWithTruncatedOffsets) {
    Document document;
    document.PageWidth = 20;
    document.PageHeight = 10;
    for (const auto& [size, rect] : std::vector<std::pair<RectI, RectF>>{
             {{0, 0, 5, 4}, {7, 3, 5, 4}}, {{0, 0, 25, 15}, {-2, -2, 25, 15}}}) {
        IconLayer layer;
        MakeImageLayer(document, layer, FilledPicture(size.Width, size.Height, 0xFF000000));
        EXPECT_EQ(layer.Rect, rect);
        EXPECT_EQ(layer.BaseRect, rect);
        EXPECT_EQ(layer.ImageWidth, size.Width);
        EXPECT_EQ(layer.Region.Bounds(), (RectF{rect.X - 1, rect.Y, rect.Width, rect.Height}));
    }
}

TEST(LayerSlots, AnEmptyLayerHasThePagesPictureAndTheRegionOfTheSlot) {
    Document document = StackOf({7});
    document.SelectedLayer = 0;
    IconLayer& layer = OpenLayerSlot(document, SlotCopySize::Rect);
    layer.Path = graphics::Path(graphics::FillMode::Alternate);
    layer.ClipNextLayer = true;
    layer.Visible = false;
    MakeEmptyLayer(document, layer, 3, 2.5F);
    EXPECT_EQ(layer.Image.Width(), 20);
    EXPECT_EQ(layer.Image.Height(), 10);
    EXPECT_EQ(layer.Rect, (RectF{0, 0, 3, 2.5F}));
    EXPECT_EQ(layer.ImageWidth, 3);
    EXPECT_EQ(layer.ImageHeight, 2);
    EXPECT_EQ(layer.Region.Bounds(), document.Layers[0].Region.Bounds());
    EXPECT_TRUE(layer.Path.IsNull());
    EXPECT_FALSE(layer.ClipNextLayer);
    EXPECT_TRUE(layer.Visible);
    EXPECT_EQ(layer.Hue, 0);
    EXPECT_EQ(layer.Saturation, 40);
}

}  // namespace
}  // namespace orbelle::document
