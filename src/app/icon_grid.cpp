#include "app/icon_grid.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "widgets/words.h"

namespace orbelle::app {
namespace {

using graphics::RectI;

constexpr int kPadding = 10;  // around a picture and below its caption
constexpr int kBoxes[] = {128, 96, 64, 48};
constexpr int kLeastColumns = 4;

}  // namespace

IconGrid::IconGrid(std::vector<formats::IconEntryImage> images) : images_(std::move(images)) {
    for (const formats::IconEntryImage& image : images_)
        box_ = std::max({box_, image.Width, image.Height});
    box_ = std::min(box_, kBoxes[0]);
    columns_ = std::clamp(Count(), 1, kLeastColumns);
}

void IconGrid::FitInto(GridSize room, GridSize caption) {
    caption_ = caption;
    const int largest = box_;
    const auto mostColumns = [&] { return std::max(room.Width / CellSize().Width, 1); };
    const auto fits = [&](int columns) {
        columns_ = columns;
        return Size().Height <= room.Height;
    };
    for (const int box : kBoxes) {
        box_ = std::min(box, largest);
        columns_ = mostColumns();
        const int most = std::min(columns_, std::max(Count(), 1));
        // As few columns as make the grid wider than high.
        for (int columns = std::min(kLeastColumns, most); columns <= most; ++columns)
            if (fits(columns) && (columns == most || Size().Width >= Size().Height))
                return;
    }
    columns_ = mostColumns();
}

GridSize IconGrid::CellSize() const {
    return {std::max(box_, caption_.Width) + 2 * kPadding, box_ + caption_.Height + 3 * kPadding};
}

int IconGrid::Rows() const {
    return (Count() + columns_ - 1) / columns_;
}

GridSize IconGrid::Size() const {
    return {columns_ * CellSize().Width, Rows() * CellSize().Height};
}

RectI IconGrid::Cell(int index) const {
    const GridSize cell = CellSize();
    return {index % columns_ * cell.Width, index / columns_ * cell.Height, cell.Width, cell.Height};
}

RectI IconGrid::Thumbnail(int index) const {
    const formats::IconEntryImage& image = images_[static_cast<std::size_t>(index)];
    const RectI cell = Cell(index);
    const auto side = static_cast<float>(box_);
    const graphics::SizeF fit = graphics::FitIntoBox(
        {static_cast<float>(image.Width), static_cast<float>(image.Height)}, {side, side});
    const int width = std::max(graphics::RoundToEven(fit.Width), 1);
    const int height = std::max(graphics::RoundToEven(fit.Height), 1);
    return {cell.X + (cell.Width - width) / 2, cell.Y + kPadding + (box_ - height) / 2, width,
            height};
}

RectI IconGrid::Caption(int index) const {
    const RectI cell = Cell(index);
    return {cell.X, cell.Y + 2 * kPadding + box_, cell.Width, caption_.Height};
}

int IconGrid::CellAt(int x, int y) const {
    const GridSize size = Size();
    if (x < 0 || y < 0 || x >= size.Width || y >= size.Height)
        return -1;
    const int index = y / CellSize().Height * columns_ + x / CellSize().Width;
    return index < Count() ? index : -1;
}

std::string IconGrid::SizeText(int index) const {
    const formats::IconEntryImage& image = images_[static_cast<std::size_t>(index)];
    return std::to_string(image.Width) + " x " + std::to_string(image.Height);
}

std::string IconGrid::DepthText(int index) const {
    const formats::IconEntryImage& image = images_[static_cast<std::size_t>(index)];
    const bool isPng = image.Format == formats::IconEntryFormat::Png;
    return (isPng ? Words::tr("PNG, %1 bit") : Words::tr("%1 bit")).arg(image.Bits).toStdString();
}

int IconGrid::Best() const {
    const auto best =
        std::ranges::max_element(images_, {}, [](const formats::IconEntryImage& image) {
            return std::tuple(std::int64_t{image.Width} * image.Height, image.Bits);
        });
    return best == images_.end() ? -1 : static_cast<int>(best - images_.begin());
}

CellChoice::CellChoice(int count, int current, bool takesSeveral)
    : chosen_(static_cast<std::size_t>(count)),
      current_(current),
      anchor_(current),
      takesSeveral_(takesSeveral) {
    Choose(current, How::Alone);
}

std::vector<int> CellChoice::Chosen() const {
    std::vector<int> all;
    for (int i = 0; i < static_cast<int>(chosen_.size()); ++i)
        if (IsChosen(i))
            all.push_back(i);
    return all;
}

void CellChoice::Choose(int index, How how) {
    if (!Exists(index))
        return;
    current_ = index;
    if (how == How::Toggle && takesSeveral_) {
        chosen_[static_cast<std::size_t>(index)].flip();
        anchor_ = index;
        return;
    }
    if (how != How::Range || !takesSeveral_ || !Exists(anchor_))
        anchor_ = index;
    chosen_.assign(chosen_.size(), false);
    const auto [first, last] = std::minmax(anchor_, index);
    std::fill(chosen_.begin() + first, chosen_.begin() + last + 1, true);
}

void CellChoice::MoveTo(int index) {
    if (Exists(index))
        current_ = index;
}

}  // namespace orbelle::app
