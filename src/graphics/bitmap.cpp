#include "graphics/bitmap.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace orbelle::graphics {
namespace {

std::size_t PixelCount(int width, int height) {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

std::shared_ptr<Argb[]> Own(void* memory) {
    if (!memory)
        throw std::bad_alloc();
    return {static_cast<Argb*>(memory), [](Argb* taken) { std::free(taken); }};
}

// All zero. The system gives large blocks so, and gives their memory only when they are written: a
// picture that is decoded row by row grows with its rows.
std::shared_ptr<Argb[]> BlankPixels(std::size_t count) {
    return Own(std::calloc(count, sizeof(Argb)));
}

std::shared_ptr<Argb[]> CopyPixels(const Argb* pixels, std::size_t count) {
    std::shared_ptr<Argb[]> copy = Own(std::malloc(count * sizeof(Argb)));
    std::copy_n(pixels, count, copy.get());
    return copy;
}

}  // namespace

bool IsBitmapSizeAllowed(std::int64_t width, std::int64_t height) {
    return width >= 1 && height >= 1 && width <= kMaxBitmapSide && height <= kMaxBitmapSide &&
           width * height <= kMaxBitmapPixels;
}

Bitmap::Bitmap(int width, int height, PixelFormat format) {
    if (!IsBitmapSizeAllowed(width, height))
        return;
    pixels_ = BlankPixels(PixelCount(width, height));
    if (format == PixelFormat::Rgb24)
        std::fill_n(pixels_.get(), PixelCount(width, height), MakeArgb(255, 0, 0, 0));
    width_ = width;
    height_ = height;
    format_ = format;
}

Argb* Bitmap::MutablePixels() {
    if (!pixels_)
        return nullptr;
    if (pixels_.use_count() > 1) {
        pixels_ = CopyPixels(pixels_.get(), PixelCount(width_, height_));
    } else {
        // What another thread has read of a copy that it let go of comes before what is written.
        std::atomic_thread_fence(std::memory_order_acquire);
    }
    return pixels_.get();
}

std::optional<Argb> Bitmap::GetPixel(int x, int y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_)
        return std::nullopt;
    return Row(y)[x];
}

bool Bitmap::SetPixel(int x, int y, Argb color) {
    if (x < 0 || y < 0 || x >= width_ || y >= height_)
        return false;
    MutableRow(y)[x] = format_ == PixelFormat::Rgb24 ? SetAlphaByte(color, 255) : color;
    return true;
}

Bitmap Bitmap::CloneArea(int x, int y, int width, int height, PixelFormat format) const {
    if (x < 0 || y < 0 || width < 1 || height < 1 || width > width_ - x || height > height_ - y)
        return {};
    const bool whole = x == 0 && y == 0 && width == width_ && height == height_;
    if (whole && format == format_)
        return *this;
    Bitmap area(width, height, format);
    for (int row = 0; row < height; ++row) {
        const Argb* from = Row(y + row) + x;
        Argb* to = area.MutableRow(row);
        if (format == PixelFormat::Rgb24)
            std::transform(from, from + width, to, [](Argb c) { return SetAlphaByte(c, 255); });
        else
            std::copy_n(from, width, to);
    }
    return area;
}

Bitmap CopyBitmap(const Bitmap& image, int width, int height) {
    if (image.Width() == width && image.Height() == height)
        return image.CloneArea(0, 0, width, height);
    Bitmap copy(width, height);
    const int columns = std::min(copy.Width(), image.Width());
    for (int y = 0; y < std::min(copy.Height(), image.Height()); ++y)
        std::copy_n(image.Row(y), columns, copy.MutableRow(y));
    return copy;
}

}  // namespace orbelle::graphics
