#include <png.h>

#include <algorithm>
#include <bit>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <optional>

#include "graphics/codecs/image_codecs.h"
#include "graphics/codecs/png_colors.h"
#include "graphics/codecs/png_pixels.h"

// libpng leaves its calls by longjmp when something fails. Functions with a setjmp therefore hold
// no object that would have to be destroyed; they answer false, and their callers throw.

namespace orbelle::graphics {
namespace {

// Deflate turns no byte into more than about this many.
constexpr std::int64_t kMaxDeflateRatio = 1032;

static_assert(std::endian::native == std::endian::little, "libpng reads blue first");

struct Failure {
    char Message[128] = "";
    bool OutOfMemory = false;
};

[[noreturn]] void OnError(png_structp png, png_const_charp message) {
    auto* failure = static_cast<Failure*>(png_get_error_ptr(png));
    std::snprintf(failure->Message, sizeof failure->Message, "%s", message);
    png_longjmp(png, 1);
}

void OnWarning(png_structp, png_const_charp) {}

png_voidp Allocate(png_structp png, png_alloc_size_t size) {
    void* memory = std::malloc(size);
    if (!memory)
        static_cast<Failure*>(png_get_mem_ptr(png))->OutOfMemory = true;
    return memory;
}

void Free(png_structp, png_voidp memory) {
    std::free(memory);
}

class PngReader {
public:
    explicit PngReader(const ByteSource& file) : stream_(file) {
        png_ = png_create_read_struct_2(PNG_LIBPNG_VER_STRING, &failure_, OnError, OnWarning,
                                        &failure_, Allocate, Free);
        info_ = png_ ? png_create_info_struct(png_) : nullptr;
        if (!info_) {
            png_destroy_read_struct(&png_, nullptr, nullptr);
            throw std::bad_alloc();
        }
        png_set_read_fn(png_, this, Read);
    }
    PngReader(const PngReader&) = delete;
    PngReader& operator=(const PngReader&) = delete;
    ~PngReader() { png_destroy_read_struct(&png_, &info_, nullptr); }

    bool ReadHeader() {
        if (setjmp(png_jmpbuf(png_)))
            return false;
        // Of the optional chunks only transparency matters here; skipping others bounds memory.
        // Sizes are ours to judge.
        png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
        png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
        png_read_info(png_, info_);
        return true;
    }

    std::int64_t Width() const { return png_get_image_width(png_, info_); }
    std::int64_t Height() const { return png_get_image_height(png_, info_); }
    FileChannels Channels() const {
        const bool isColored = png_get_color_type(png_, info_) & PNG_COLOR_MASK_COLOR;
        return isColored ? FileChannels::Rgb : FileChannels::Gray;
    }
    std::int64_t BytesInFile() const { return Height() * png_get_rowbytes(png_, info_); }

    // Nothing when the picture is of another kind.
    std::optional<PlainPng> Plain() const {
        const int type = png_get_color_type(png_, info_);
        const bool isPlain = (type == PNG_COLOR_TYPE_RGB || type == PNG_COLOR_TYPE_RGB_ALPHA) &&
                             png_get_bit_depth(png_, info_) == 8 &&
                             png_get_interlace_type(png_, info_) == PNG_INTERLACE_NONE &&
                             png_get_valid(png_, info_, PNG_INFO_tRNS) == 0;
        if (!isPlain)
            return std::nullopt;
        return PlainPng{static_cast<std::size_t>(Width()), static_cast<std::size_t>(Height()),
                        type == PNG_COLOR_TYPE_RGB_ALPHA};
    }

    // Fills Width() x Height() pixels.
    bool ReadPixels(Argb* pixels) {
        if (setjmp(png_jmpbuf(png_)))
            return false;
        png_set_expand(png_);
        png_set_strip_16(png_);
        png_set_gray_to_rgb(png_);
        png_set_bgr(png_);
        png_set_add_alpha(png_, 255, PNG_FILLER_AFTER);
        const int passes = png_set_interlace_handling(png_);
        png_read_update_info(png_, info_);
        for (int pass = 0; pass < passes; ++pass) {
            for (std::int64_t y = 0; y < Height(); ++y)
                png_read_row(png_, reinterpret_cast<png_bytep>(pixels + y * Width()), nullptr);
        }
        return true;
    }

    [[noreturn]] void ThrowProblem() const {
        if (failure_.OutOfMemory)
            throw std::bad_alloc();
        ThrowDamaged("PNG", failure_.Message);
    }

private:
    static void Read(png_structp png, png_bytep data, std::size_t count) {
        auto* self = static_cast<PngReader*>(png_get_io_ptr(png));
        if (self->stream_.Read({data, count}) < count)
            png_error(png, "the data ends too early");
    }

    ByteStream stream_;
    Failure failure_;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
};

}  // namespace

Bitmap DecodePng(const ByteSource& file, PixelBudget& budget, ColorHandling colors) {
    PngReader reader(file);
    if (!reader.ReadHeader())
        reader.ThrowProblem();
    budget.Take(reader.Width(), reader.Height());
    if (reader.BytesInFile() / kMaxDeflateRatio > static_cast<std::int64_t>(file.Size()))
        ThrowDamaged("PNG", "too little data for its size");
    const FileChannels channels = reader.Channels();
    Bitmap image(static_cast<int>(reader.Width()), static_cast<int>(reader.Height()));
    const auto plain = reader.Plain();
    if (!(plain && ReadPlainPixels(file, *plain, image.MutablePixels())) &&
        !reader.ReadPixels(image.MutablePixels()))
        reader.ThrowProblem();
    const std::int64_t pixels = reader.Width() * reader.Height();
    if (colors == ColorHandling::ToSrgb)
        PngColors(file, channels, pixels).Convert(image.MutablePixels(), pixels);
    return image;
}

}  // namespace orbelle::graphics
