// A picture: 32-bit pixels with straight (not premultiplied) alpha, copied on write.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

#include "graphics/color.h"

namespace orbelle::graphics {

enum class PixelFormat {
    Rgb24 = 0x21808,    // no alpha: every pixel reads as alpha 255, also in memory
    Argb32 = 0x26200A,  // straight alpha
};

// Limits of every bitmap, so that a hostile size never takes memory: 16384 pixels a side and
// 48 Mi pixels (192 MiB) in all.
inline constexpr int kMaxBitmapSide = 16384;
inline constexpr std::int64_t kMaxBitmapPixels = std::int64_t{48} << 20;

// True when a bitmap of this size can be made.
bool IsBitmapSizeAllowed(std::int64_t width, std::int64_t height);

// A value: a copy costs a pointer, and the pixels are copied when one of the copies is written.
// A default-made or moved-from Bitmap is empty, the zero handle: it has no pixels and no size, and
// drawing it draws nothing.
// Rows are exactly Width() pixels apart, top row first.
class Bitmap {
public:
    Bitmap() = default;
    Bitmap(const Bitmap&) = default;
    Bitmap(Bitmap&& other) noexcept { Swap(other); }
    Bitmap& operator=(Bitmap other) noexcept {
        Swap(other);
        return *this;
    }
    ~Bitmap() = default;

    // All pixels zero (in Rgb24: opaque black). A size that is not allowed gives an empty bitmap.
    Bitmap(int width, int height, PixelFormat format = PixelFormat::Argb32);

    bool IsEmpty() const { return !pixels_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    PixelFormat Format() const { return format_; }

    // Read access; valid until this object changes. Null when empty.
    const Argb* Pixels() const { return pixels_.get(); }
    const Argb* Row(int y) const { return Pixels() + static_cast<std::size_t>(y) * width_; }

    // Write access; first makes the pixels this object's own. In Rgb24 keep alpha at 255.
    Argb* MutablePixels();
    Argb* MutableRow(int y) { return MutablePixels() + static_cast<std::size_t>(y) * width_; }

    // Outside the bitmap: no value, and nothing changes.
    std::optional<Argb> GetPixel(int x, int y) const;
    bool SetPixel(int x, int y, Argb color);

    // The part (x, y, width, height) in the given format; from 32 to 24 bits the colour bytes stay
    // and alpha is dropped. Empty when any of it lies outside.
    Bitmap CloneArea(int x, int y, int width, int height,
                     PixelFormat format = PixelFormat::Argb32) const;

    // True when both are copies of one another that nobody has written since.
    bool SharesPixelsWith(const Bitmap& other) const {
        return pixels_ == other.pixels_ && format_ == other.format_;
    }

private:
    void Swap(Bitmap& other) noexcept {
        pixels_.swap(other.pixels_);
        std::swap(width_, other.width_);
        std::swap(height_, other.height_);
        std::swap(format_, other.format_);
    }

    std::shared_ptr<Argb[]> pixels_;
    int width_ = 0;
    int height_ = 0;
    PixelFormat format_ = PixelFormat::Argb32;
};

// The pixels of `image`, one to one, in a 32-bit bitmap of the given size: what lies outside the
// source stays zero. At the source's own size this costs a pointer.
Bitmap CopyBitmap(const Bitmap& image, int width, int height);

}  // namespace orbelle::graphics
