#include "document/layer_slots.h"

#include <string>

#include "filters/create_region.h"
#include "graphics/errors.h"

namespace orbelle::document {

IconLayer& OpenLayerSlot(Page& page, SlotCopySize size) {
    if (page.LayerCount() >= kMaxMadeLayers)
        throw Error("A document can't have more than " + std::to_string(kMaxMadeLayers) +
                    " layers.");
    if (!page.HasSelection()) {
        page.SelectedLayer = page.LayerCount();
        return page.Layers.emplace_back();
    }
    const auto selected = page.Layers.begin() + page.SelectedLayer;
    page.Layers.insert(selected + 1, *selected);
    ++page.SelectedLayer;
    page.Selected().Name.clear();
    for (int i = page.SelectedLayer; i < page.LayerCount(); ++i) {
        IconLayer& layer = page.Layers[static_cast<std::size_t>(i)];
        const bool fromRect = size == SlotCopySize::Rect;
        const graphics::Bitmap copy = CopyBitmap(
            layer.Image, fromRect ? graphics::RoundToEven(layer.Rect.Width) : layer.ImageWidth,
            fromRect ? graphics::RoundToEven(layer.Rect.Height) : layer.ImageHeight);
        if (!copy.IsEmpty())
            layer.Image = copy;
    }
    return page.Selected();
}

void MakeImageLayer(const Page& page, IconLayer& layer, const graphics::Bitmap& image) {
    graphics::Region region = layer.Region;
    layer = {};
    layer.Image = CopyBitmap(image, image.Width(), image.Height());
    layer.ImageWidth = image.Width();
    layer.ImageHeight = image.Height();
    const int left = (page.Width - image.Width()) / 2, top = (page.Height - image.Height()) / 2;
    layer.Rect = {static_cast<float>(left), static_cast<float>(top),
                  static_cast<float>(image.Width()), static_cast<float>(image.Height())};
    layer.BaseRect = layer.Rect;
    filters::RebuildRegion(region, image, {layer.Rect.X, layer.Rect.Y});
    layer.Region = region;
}

Page MakePicturePage(const graphics::Bitmap& picture) {
    Page page;
    page.Width = picture.Width();
    page.Height = picture.Height();
    MakeImageLayer(page, page.Layers.emplace_back(), picture);
    page.SelectedLayer = 0;
    return page;
}

void MakeEmptyLayer(const Page& page, IconLayer& layer, float width, float height) {
    layer.Rect = {0, 0, width, height};
    layer.BaseRect = layer.Rect;
    layer.ImageWidth = graphics::RoundToEven(width);
    layer.ImageHeight = graphics::RoundToEven(height);
    layer.Opacity = 1;
    layer.Visible = true;
    layer.ScaleValue = 0;
    layer.Path = {};
    layer.ClipNextLayer = false;
    layer.Image = graphics::Bitmap(page.Width, page.Height);
    layer.Region = {};
    ResetLayerAdjust(layer);
}

}  // namespace orbelle::document
