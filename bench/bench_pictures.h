// Pictures for benchmarks, the same in every run.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "document/document.h"
#include "document/layer_slots.h"
#include "document/selection.h"
#include "graphics/bitmap.h"

namespace orbelle::bench {

enum class Content {
    Opaque,           // a coloured gradient, alpha 255
    HalfTransparent,  // alphas 1 to 254
    MostlyEmpty,      // a disc over a tenth of the picture
    Busy,             // every other pixel transparent
    Icon,             // a disc with a soft edge on transparent ground
};

inline unsigned NextRandom(unsigned& state) {
    state = state * 1664525U + 1013904223U;
    return state >> 8;
}

inline graphics::Bitmap MakePicture(Content content, int size) {
    graphics::Bitmap picture(size, size);
    unsigned state = 1;
    const auto disc = [&](int x, int y, double radius) {
        const double distance = std::hypot(x - size / 2.0, y - size / 2.0);
        return static_cast<unsigned>(std::clamp((radius - distance) * 128, 0.0, 255.0));
    };
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const graphics::Argb color =
                graphics::MakeArgb(0, static_cast<unsigned>(x * 255 / size),
                                   static_cast<unsigned>(y * 255 / size), (x * y / 7) & 0xFF);
            unsigned alpha = 255;
            if (content == Content::HalfTransparent)
                alpha = 1 + NextRandom(state) % 254;
            else if (content == Content::MostlyEmpty)
                alpha = disc(x, y, size * 0.18);
            else if (content == Content::Busy)
                alpha = (x + y) % 2 * 255U;
            else if (content == Content::Icon)
                alpha = disc(x, y, size * 0.45);
            picture.SetPixel(x, y, alpha ? graphics::SetAlphaByte(color, alpha) : 0);
        }
    }
    return picture;
}

// A page of `size` with as many layers of the content, opacity `opacity`.
inline document::Document MakeDocument(Content content, int size, int layers, float opacity = 1) {
    document::Document document;
    document::Page& page = document.Master;
    page.Width = page.Height = size;
    for (int i = 0; i < layers; ++i) {
        document::IconLayer& layer = page.Layers.emplace_back();
        document::MakeImageLayer(page, layer, MakePicture(content, size));
        layer.Opacity = opacity;
    }
    page.SelectedLayer = layers - 1;
    return document;
}

// As many overlapping ellipses over a page of 512 x 512.
inline document::Selection SelectionOfEllipses(int count) {
    document::Selection selection;
    for (int i = 0; i < count; ++i) {
        const auto x = static_cast<float>(i * 37 % 400), y = static_cast<float>(i * 61 % 400);
        selection.AddFrame({x, y, 100, 90}, document::FrameShape::Ellipse);
    }
    return selection;
}

}  // namespace orbelle::bench
