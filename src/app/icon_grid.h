// The cells from which images of an icon file are chosen: what stands where, and which are chosen.
#pragma once

#include <string>
#include <vector>

#include "formats/icon_reader.h"
#include "graphics/geometry.h"

namespace orbelle::app {

struct GridSize {
    int Width = 0;
    int Height = 0;
};

// Rows of equal cells, each with a picture over a caption of two lines. Places are grid pixels.
class IconGrid {
public:
    explicit IconGrid(std::vector<formats::IconEntryImage> images);

    // Arranges the cells so that all are in sight in `room`, with the largest pictures for which
    // that can be; where it can't, the grid is as wide as the room and longer than it. `caption`:
    // the size of the two lines.
    void FitInto(GridSize room, GridSize caption);

    const std::vector<formats::IconEntryImage>& Images() const { return images_; }
    int Count() const { return static_cast<int>(images_.size()); }
    int Columns() const { return columns_; }
    GridSize Size() const;
    graphics::RectI Cell(int index) const;
    // The picture in its cell: shrunk where it has to be, never enlarged.
    graphics::RectI Thumbnail(int index) const;
    graphics::RectI Caption(int index) const;
    // -1: beside all cells.
    int CellAt(int x, int y) const;

    std::string SizeText(int index) const;   // "48 x 48"
    std::string DepthText(int index) const;  // "32 bit", "PNG, 32 bit"

    // The largest, then the one with most bits, then the first; -1: there is none.
    int Best() const;

private:
    GridSize CellSize() const;
    int Rows() const;

    std::vector<formats::IconEntryImage> images_;
    GridSize caption_;
    int box_ = 0;  // a picture's room, pixels a side
    int columns_ = 1;
};

// Which cells are chosen, as in a list of files: one after a plain press or key, more with Ctrl and
// Shift where several may be.
class CellChoice {
public:
    // What is to be done with a cell: it alone, added or taken away, or all from the last of these
    // to it.
    enum class How { Alone, Toggle, Range };

    // With the current one chosen; -1: none is.
    CellChoice(int count, int current, bool takesSeveral);

    int Current() const { return current_; }  // the one that keys start from
    bool IsChosen(int index) const { return chosen_[static_cast<std::size_t>(index)]; }
    // In rising order.
    std::vector<int> Chosen() const;

    // Does nothing when there is no such cell.
    void Choose(int index, How how);
    // Makes it the current one without choosing it.
    void MoveTo(int index);

private:
    bool Exists(int index) const { return index >= 0 && index < static_cast<int>(chosen_.size()); }

    std::vector<bool> chosen_;
    int current_;
    int anchor_;
    bool takesSeveral_;
};

}  // namespace orbelle::app
