#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <new>
#include <utility>
#include <vector>

#include "graphics/codecs/image_codecs.h"

namespace orbelle::graphics {
namespace {

[[noreturn]] void ThrowGifError(int code) {
    if (code == D_GIF_ERR_NOT_ENOUGH_MEM)
        throw std::bad_alloc();
    const char* text = GifErrorString(code);
    ThrowDamaged("GIF", text ? text : "unknown error");
}

class GifReader {
public:
    explicit GifReader(const ByteSource& file) : stream_(file) {
        int error = 0;
        gif_ = DGifOpen(this, Read, &error);
        // The library does not tell a lack of memory for the palette from a lack of data.
        if (error == D_GIF_ERR_NO_SCRN_DSCR && !endedEarly_)
            error = D_GIF_ERR_NOT_ENOUGH_MEM;
        if (!gif_)
            ThrowGifError(error);
    }
    GifReader(const GifReader&) = delete;
    GifReader& operator=(const GifReader&) = delete;
    ~GifReader() { DGifCloseFile(gif_, nullptr); }

    Bitmap ReadFirstFrame(PixelBudget& budget) {
        FindFirstFrame();
        const GifImageDesc& frame = gif_->Image;
        CheckDeclaredSize(frame.Width, frame.Height);
        const int width = std::max(gif_->SWidth, frame.Left + frame.Width);
        const int height = std::max(gif_->SHeight, frame.Top + frame.Height);
        budget.Take(width, height);

        const std::array<Argb, 256> palette = Palette();
        std::vector<GifByteType> indexes(frame.Width);
        Bitmap image(width, height);
        const auto readRow = [&](int y) {
            Check(DGifGetLine(gif_, indexes.data(), frame.Width));
            std::transform(indexes.begin(), indexes.end(),
                           image.MutableRow(frame.Top + y) + frame.Left,
                           [&](GifByteType index) { return palette[index]; });
        };
        if (frame.Interlace) {
            for (auto [first, step] : {std::pair{0, 8}, {4, 8}, {2, 4}, {1, 2}}) {
                for (int y = first; y < frame.Height; y += step)
                    readRow(y);
            }
        } else {
            for (int y = 0; y < frame.Height; ++y)
                readRow(y);
        }
        return image;
    }

private:
    static int Read(GifFileType* gif, GifByteType* data, int count) {
        auto* self = static_cast<GifReader*>(gif->UserData);
        const std::size_t taken = self->stream_.Read({data, static_cast<std::size_t>(count)});
        self->endedEarly_ |= taken < static_cast<std::size_t>(count);
        return static_cast<int>(taken);
    }

    void Check(int result) const {
        if (result == GIF_ERROR)
            ThrowGifError(gif_->Error);
    }

    // Stops behind the description of the first frame; on the way notes its transparent index.
    void FindFirstFrame() {
        for (;;) {
            GifRecordType type;
            Check(DGifGetRecordType(gif_, &type));
            if (type == IMAGE_DESC_RECORD_TYPE)
                return Check(DGifGetImageDesc(gif_));
            if (type == TERMINATE_RECORD_TYPE)
                throw ImageError("the GIF file holds no picture");
            int function = 0;
            GifByteType* block = nullptr;
            Check(DGifGetExtension(gif_, &function, &block));
            while (block) {
                if (function == GRAPHICS_EXT_FUNC_CODE)
                    DGifExtensionToGCB(block[0], block + 1, &control_);
                Check(DGifGetExtensionNext(gif_, &block));
            }
        }
    }

    // Indexes that the file gives no colour for are opaque black.
    std::array<Argb, 256> Palette() const {
        std::array<Argb, 256> palette;
        palette.fill(MakeArgb(255, 0, 0, 0));
        const ColorMapObject* map = gif_->Image.ColorMap ? gif_->Image.ColorMap : gif_->SColorMap;
        if (map) {
            std::transform(
                map->Colors, map->Colors + map->ColorCount, palette.begin(),
                [](const GifColorType& c) { return MakeArgb(255, c.Red, c.Green, c.Blue); });
        }
        if (control_.TransparentColor != NO_TRANSPARENT_COLOR)
            palette[control_.TransparentColor] =
                SetAlphaByte(palette[control_.TransparentColor], 0);
        return palette;
    }

    ByteStream stream_;
    bool endedEarly_ = false;
    GifFileType* gif_ = nullptr;
    GraphicsControlBlock control_ = {DISPOSAL_UNSPECIFIED, false, 0, NO_TRANSPARENT_COLOR};
};

}  // namespace

Bitmap DecodeGif(const ByteSource& file, PixelBudget& budget) {
    return GifReader(file).ReadFirstFrame(budget);
}

}  // namespace orbelle::graphics
