// The strip of thumbnails from which an image of an icon file is chosen: what stands where.
#pragma once

#include <string>
#include <vector>

#include "formats/icon_reader.h"
#include "graphics/geometry.h"

namespace orbelle::app {

// One cell per image from the left, as high as the strip. All places are strip pixels.
struct IconImageStrip {
    static constexpr int kCellWidth = 100;
    static constexpr int kCellPlateWidth = 99;  // what the white plate covers of a cell

    // Starts with the first image selected, if there is one.
    explicit IconImageStrip(std::vector<formats::IconEntryImage> images);

    std::vector<formats::IconEntryImage> Images;
    int SelectedIndex = -1;  // -1: none

    int Width() const { return kCellWidth * static_cast<int>(Images.size()); }
    // The cell of image `index`, whether there is one or not.
    graphics::RectI Cell(int index, int stripHeight) const;
    // The picture in its cell.
    graphics::RectI Thumbnail(int index, int stripHeight) const;
    std::string Caption(int index) const;  // "48x48"
    // The top left corner of the caption's text.
    graphics::PointF CaptionPlace(int index, int stripHeight) const;

    // Selects the image whose cell holds the point; none when no cell does.
    void Press(int x, int y, int stripHeight);
};

}  // namespace orbelle::app
