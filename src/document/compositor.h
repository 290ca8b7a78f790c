// Stage one of showing a document: the visible layers flattened into one picture of the page.
#pragma once

#include <memory>
#include <vector>

#include "document/page.h"
#include "graphics/bitmap.h"
#include "graphics/enums.h"

namespace orbelle::document {

// Remembers what it drew last, so that a change of one layer costs that layer and those above it
// within the area that changed: the box around the pixels that differ when only the picture of an
// unscaled layer did. The result never depends on what was composed before.
class Compositor {
public:
    // Draws the visible layers, bottom first, source-over with their opacity, into `canvas`, which
    // has the page's size afterwards; a page side below 1 is first set to 1. A
    // visible layer whose lower neighbour has ClipNextLayer is cut to that one's plate (whose Path
    // is rebuilt in the page), and so are all layers above it
    // (docs/oddities.md, "Plates cut what follows"). The canvas must not be drawn on by others
    // between two calls.
    void Compose(Page& page, graphics::InterpolationMode interpolation, graphics::Bitmap& canvas);

private:
    // A plate and all that cut before it. Lists share their beginnings, so that hundreds of plates
    // take no more than that many.
    struct Plate {
        graphics::RectF Box;
        std::shared_ptr<const Plate> Before;
    };

    // What one visible layer puts on the page; two equal ones put the same pixels there.
    struct Drawn {
        graphics::Bitmap Image;
        float Opacity = 1;
        graphics::RectI Destination;           // page pixels
        graphics::RectI Source;                // image pixels
        std::shared_ptr<const Plate> CutBy{};  // the last plate that cuts it

        bool DiffersAtMostInImage(const Drawn& other) const;
        bool operator==(const Drawn& other) const;
    };

    // A box around the pixels of the page that look different with `after` in place of `before`.
    static graphics::RectI ChangedArea(const Drawn& before, const Drawn& after,
                                       const graphics::RectI& page);

    static bool AreSame(const Plate* plates, const Plate* others);
    static std::vector<Drawn> ListLayers(Page& page);
    void Draw(graphics::Bitmap& page, const std::vector<Drawn>& layers, std::size_t first,
              std::size_t last, const graphics::RectI& area) const;
    // The same on all cores where that is quicker.
    void DrawInBands(graphics::Bitmap& page, const std::vector<Drawn>& layers, std::size_t first,
                     std::size_t last, const graphics::RectI& area) const;
    void Update(graphics::Bitmap& page, const std::vector<Drawn>& layers);

    std::vector<Drawn> drawn_;
    graphics::InterpolationMode interpolation_ = graphics::InterpolationMode::Default;
    bool isComplete_ = false;  // the last Compose came to its end

    // The layers below the one that changes again and again, flattened.
    std::size_t lastPrefix_ = 0;
    std::vector<Drawn> below_;
    graphics::Bitmap belowPicture_;
};

// Whether two pages are sure to be flattened alike: told by what they are made of, without a look
// at pixels.
bool LookAlike(const Page& page, const Page& other);

// The page as the editor shows it: composed with hard edges, without background.
graphics::Bitmap Flatten(Page page);

}  // namespace orbelle::document
