#include "document/layer_slots.h"

#include <string>

#include "filters/create_region.h"
#include "graphics/errors.h"

namespace orbelle::document {

IconLayer& OpenLayerSlot(Document& document, SlotCopySize size) {
    if (document.LayerCount() >= kMaxLayers)
        throw Error("A document holds at most " + std::to_string(kMaxLayers) + " layers.");
    if (!document.HasSelection()) {
        document.SelectedLayer = document.LayerCount();
        return document.Layers.emplace_back();
    }
    const auto selected = document.Layers.begin() + document.SelectedLayer;
    document.Layers.insert(selected + 1, *selected);
    ++document.SelectedLayer;
    for (int i = document.SelectedLayer; i < document.LayerCount(); ++i) {
        IconLayer& layer = document.Layers[static_cast<std::size_t>(i)];
        const bool fromRect = size == SlotCopySize::Rect;
        const graphics::Bitmap copy = CopyBitmap(
            layer.Image, fromRect ? graphics::RoundToEven(layer.Rect.Width) : layer.ImageWidth,
            fromRect ? graphics::RoundToEven(layer.Rect.Height) : layer.ImageHeight);
        if (!copy.IsEmpty())
            layer.Image = copy;
    }
    return document.Selected();
}

void MakeImageLayer(const Document& document, IconLayer& layer, const graphics::Bitmap& image) {
    graphics::Region region = layer.Region;
    filters::CreateRegion(image, region, filters::kVisibleAlpha);
    layer = {};
    layer.Image = CopyBitmap(image, image.Width(), image.Height());
    layer.ImageWidth = image.Width();
    layer.ImageHeight = image.Height();
    layer.Rect = {static_cast<float>((document.PageWidth - image.Width()) / 2),
                  static_cast<float>((document.PageHeight - image.Height()) / 2),
                  static_cast<float>(image.Width()), static_cast<float>(image.Height())};
    layer.BaseRect = layer.Rect;
    layer.Region = region;
    layer.Region.Translate(layer.Rect.X, layer.Rect.Y);
}

void MakeEmptyLayer(const Document& document, IconLayer& layer, float width, float height) {
    layer.Rect = {0, 0, width, height};
    layer.BaseRect = layer.Rect;
    layer.ImageWidth = graphics::RoundToEven(width);
    layer.ImageHeight = graphics::RoundToEven(height);
    layer.Opacity = 1;
    layer.Visible = true;
    layer.ScaleValue = 0;
    layer.Path = {};
    layer.ClipNextLayer = false;
    layer.Image = graphics::Bitmap(document.PageWidth, document.PageHeight);
    ResetLayerAdjust(layer);
}

}  // namespace orbelle::document
