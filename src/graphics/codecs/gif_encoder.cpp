#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "graphics/codecs/image_files.h"

namespace orbelle::graphics {
namespace {

constexpr int kPaletteEntries = 256;
constexpr int kBitsPerChannel = 8;

class GifWriter {
public:
    GifWriter() {
        int error = 0;
        gif_ = EGifOpen(this, Append, &error);
        if (!gif_)
            ThrowGifError(error);
        // The library would otherwise choose the oldest version that does.
        EGifSetGifVersion(gif_, true);
    }
    GifWriter(const GifWriter&) = delete;
    GifWriter& operator=(const GifWriter&) = delete;
    ~GifWriter() {
        if (gif_)
            EGifCloseFile(gif_, nullptr);
    }

    void WriteHeader(const IndexedBitmap& image) {
        std::array<GifColorType, kPaletteEntries> colors;
        std::ranges::transform(image.Palette, colors.begin(), [](Argb color) {
            return GifColorType{static_cast<GifByteType>(RedOf(color)),
                                static_cast<GifByteType>(GreenOf(color)),
                                static_cast<GifByteType>(BlueOf(color))};
        });
        const std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)> map(
            GifMakeMapObject(kPaletteEntries, colors.data()), GifFreeMapObject);
        if (!map)
            ThrowGifError(E_GIF_ERR_NOT_ENOUGH_MEM);
        Check(EGifPutScreenDesc(gif_, image.Width, image.Height, kBitsPerChannel, 0, map.get()));
    }

    void WriteTransparentIndex(int index) {
        const GraphicsControlBlock control = {DISPOSAL_UNSPECIFIED, false, 0, index};
        std::array<GifByteType, 4> block;
        EGifGCBToExtension(&control, block.data());
        Check(EGifPutExtension(gif_, GRAPHICS_EXT_FUNC_CODE, block.size(), block.data()));
    }

    void WriteFrame(const IndexedBitmap& image) {
        Check(EGifPutImageDesc(gif_, 0, 0, image.Width, image.Height, false, nullptr));
        // The library writes into the line that it is given.
        std::vector<GifByteType> line(image.Width);
        for (auto from = image.Indexes.begin(); from != image.Indexes.end(); from += image.Width) {
            std::copy_n(from, image.Width, line.begin());
            Check(EGifPutLine(gif_, line.data(), image.Width));
        }
    }

    std::vector<std::uint8_t> Finish() {
        int error = 0;
        const int result = EGifCloseFile(std::exchange(gif_, nullptr), &error);
        // The library overlooks some of the writes that fail.
        if (result == GIF_ERROR || outOfMemory_)
            ThrowGifError(error);
        return std::move(bytes_);
    }

private:
    // Called from C, so no exception may leave it; a short count counts as a failed write.
    static int Append(GifFileType* gif, const GifByteType* data, int count) {
        auto* self = static_cast<GifWriter*>(gif->UserData);
        try {
            self->bytes_.insert(self->bytes_.end(), data, data + count);
        } catch (const std::bad_alloc&) {
            self->outOfMemory_ = true;
            return 0;
        }
        return count;
    }

    [[noreturn]] void ThrowGifError(int code) const {
        if (outOfMemory_ || code == E_GIF_ERR_NOT_ENOUGH_MEM)
            throw std::bad_alloc();
        const char* text = GifErrorString(code);
        throw ImageError(std::string("the GIF picture can't be written: ") +
                         (text ? text : "unknown error"));
    }

    void Check(int result) const {
        if (result == GIF_ERROR)
            ThrowGifError(gif_->Error);
    }

    std::vector<std::uint8_t> bytes_;
    bool outOfMemory_ = false;
    GifFileType* gif_ = nullptr;
};

}  // namespace

std::vector<std::uint8_t> EncodeGif(const IndexedBitmap& image) {
    if (image.Indexes.empty())
        return {};
    if (!IsBitmapSizeAllowed(image.Width, image.Height) ||
        image.Indexes.size() != static_cast<std::size_t>(image.Width) * image.Height)
        throw std::invalid_argument("the picture's size and its indexes do not agree");
    GifWriter writer;
    writer.WriteHeader(image);
    const auto clear =
        std::ranges::find_if(image.Palette, [](Argb color) { return AlphaOf(color) == 0; });
    const auto index = clear - image.Palette.begin();
    if (clear != image.Palette.end() &&
        std::ranges::find(image.Indexes, static_cast<std::uint8_t>(index)) != image.Indexes.end())
        writer.WriteTransparentIndex(static_cast<int>(index));
    writer.WriteFrame(image);
    return writer.Finish();
}

}  // namespace orbelle::graphics
