// One image layer of the page, an icon object.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "graphics/bitmap.h"
#include "graphics/geometry.h"
#include "graphics/path.h"
#include "graphics/region.h"

namespace orbelle::document {

// The places of the adjustment sliders, 0 to 100, at which they change nothing.
inline constexpr int kNeutralHue = 0;
inline constexpr int kNeutralSaturation = 40;
inline constexpr int kNeutralBrightness = 50;
inline constexpr int kNeutralContrast = 50;

// A plain record. Copying it is cheap: pictures, regions and paths share their contents until one
// of the copies is written.
struct IconLayer {
    float Opacity = 1;         // 0 to 1
    graphics::Bitmap Image;    // straight alpha; empty: draws nothing
    graphics::Region Region;   // the visible pixels in page pixels; null: none
    graphics::RectF Rect;      // place and size on the page, page pixels
    graphics::RectF BaseRect;  // Rect when made or last scaled; only the file has a use for it
    int ScaleValue = 0;        // -50 to 50: the scale slider shows it + 50
    int ImageWidth = 0;        // the part of Image that is drawn, from its top left corner
    int ImageHeight = 0;

    // Last positions of the adjustment sliders, 0 to 100; the pixels do not depend on them.
    int Hue = kNeutralHue;
    int Contrast = kNeutralContrast;
    int Brightness = kNeutralBrightness;
    int Saturation = kNeutralSaturation;

    bool Visible = true;
    graphics::Path Path;         // outline of a plate; null until a style makes one
    bool ClipNextLayer = false;  // the layer above is cut to this one's plate when composed

    std::string Name;  // that the user gave it, UTF-8; empty: it goes by its place
};

// The longest name of a layer, bytes.
inline constexpr std::size_t kMaxLayerName = 200;

// The name as a layer may have it: one line of UTF-8 without blanks around it, cut to what fits.
// What is no UTF-8, and what does not show, is left out.
std::string CleanLayerName(std::string_view name);

// Where a picture with this place is drawn: every number cut toward zero, as far as 1e9 either way;
// not-a-number gives 0. A document may hold any number.
graphics::RectI DrawnArea(const graphics::RectF& rect);

// Rect, ImageWidth and ImageHeight take a place on the page, page pixels.
void PlaceAt(IconLayer& layer, const graphics::RectI& area);

// Puts the four adjustment fields at their neutral places.
void ResetLayerAdjust(IconLayer& layer);

}  // namespace orbelle::document
