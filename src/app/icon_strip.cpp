#include "app/icon_strip.h"

#include <utility>

namespace orbelle::app {
namespace {

using graphics::RoundToEven;

constexpr int kThumbnailTop = 10;
constexpr int kThumbnailMargins = 40;  // above and below together, the caption included
constexpr int kCaptionHeight = 20;
constexpr int kCaptionLeft = 25;
constexpr int kWideCaptionLeft = 18;  // from three digits on
constexpr int kWideCaptionFrom = 100;

}  // namespace

IconImageStrip::IconImageStrip(std::vector<formats::IconEntryImage> images)
    : Images(std::move(images)), SelectedIndex(Images.empty() ? -1 : 0) {}

graphics::RectI IconImageStrip::Cell(int index, int stripHeight) const {
    return {index * kCellWidth, 0, kCellWidth, stripHeight};
}

graphics::RectI IconImageStrip::Thumbnail(int index, int stripHeight) const {
    const formats::IconEntryImage& image = Images[static_cast<std::size_t>(index)];
    const graphics::SizeF box{kCellWidth, static_cast<float>(stripHeight - kThumbnailMargins)};
    const graphics::RectF fit = CenterInBox(
        FitIntoBox({static_cast<float>(image.Width), static_cast<float>(image.Height)}, box), box);
    return {RoundToEven(fit.X + static_cast<float>(Cell(index, stripHeight).X)),
            RoundToEven(fit.Y + kThumbnailTop), RoundToEven(fit.Width), RoundToEven(fit.Height)};
}

std::string IconImageStrip::Caption(int index) const {
    const formats::IconEntryImage& image = Images[static_cast<std::size_t>(index)];
    return std::to_string(image.Width) + "x" + std::to_string(image.Height);
}

graphics::PointF IconImageStrip::CaptionPlace(int index, int stripHeight) const {
    const bool wide = Images[static_cast<std::size_t>(index)].Width >= kWideCaptionFrom;
    const int left = Cell(index, stripHeight).X + (wide ? kWideCaptionLeft : kCaptionLeft);
    return {static_cast<float>(left), static_cast<float>(stripHeight - kCaptionHeight)};
}

void IconImageStrip::Press(int x, int y, int stripHeight) {
    const bool inStrip = x >= 0 && x < Width() && y >= 0 && y < stripHeight;
    SelectedIndex = inStrip ? x / kCellWidth : -1;
}

}  // namespace orbelle::app
