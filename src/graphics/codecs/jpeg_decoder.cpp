#include <array>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <new>
// The library's headers use std::size_t and FILE without including them.
#include <jpeglib.h>
// Needs jpeglib.h before it.
#include <jerror.h>

#include "graphics/codecs/image_codecs.h"
#include "graphics/little_endian.h"
#include "graphics/rotate_flip.h"

// libjpeg leaves its calls by longjmp when something fails. Functions with a setjmp therefore hold
// no object that would have to be destroyed; they answer false, and their caller throws.

namespace orbelle::graphics {
namespace {

// Several times what encoders write. A progressive file can hold many scans that take few bytes but
// much time each.
constexpr int kMaxScans = 100;

// Pixels times scans: 16 scans of the largest picture.
constexpr std::int64_t kMaxScannedPixels = 16 * kMaxBitmapPixels;

// A Huffman code takes a bit at least, and no coded unit covers more than 32 x 32 pixels: 8 of them
// to a byte.
constexpr std::int64_t kMaxPixelsPerByte = 8192;

// The numbers of an EXIF block, in the byte order that it names.
class ExifBlock {
public:
    explicit ExifBlock(std::span<const std::uint8_t> tiff)
        : tiff_(tiff), bigEndian_(!tiff.empty() && tiff[0] == 'M') {}

    // 1 to 8; 1 (upright) when the block holds none.
    int Orientation() const {
        constexpr unsigned kOrientationTag = 0x112;
        constexpr std::size_t kEntryBytes = 12;
        const std::size_t directory = Long(4);
        const unsigned entries = Short(directory);
        for (unsigned i = 0; i < entries; ++i) {
            const std::size_t entry = directory + 2 + i * kEntryBytes;
            const unsigned value = Short(entry + 8);
            if (Short(entry) == kOrientationTag && value >= 1 && value <= 8)
                return static_cast<int>(value);
        }
        return 1;
    }

private:
    unsigned Short(std::size_t at) const {
        const unsigned number = NumberAt<std::uint16_t>(tiff_, at);
        return bigEndian_ ? (number << 8 | number >> 8) & 0xFFFF : number;
    }
    std::size_t Long(std::size_t at) const {
        return bigEndian_ ? std::size_t{Short(at)} << 16 | Short(at + 2)
                          : std::size_t{Short(at + 2)} << 16 | Short(at);
    }

    std::span<const std::uint8_t> tiff_;
    bool bigEndian_;
};

class JpegReader {
public:
    explicit JpegReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;
    ~JpegReader() { jpeg_destroy_decompress(&jpeg_); }

    bool ReadHeader() {
        if (setjmp(jump_))
            return false;
        jpeg_.err = jpeg_std_error(&errors_);
        jpeg_.client_data = this;
        errors_.error_exit = OnError;
        errors_.emit_message = OnMessage;
        jpeg_create_decompress(&jpeg_);
        progress_.progress_monitor = OnProgress;
        jpeg_.progress = &progress_;
        jpeg_mem_src(&jpeg_, bytes_.data(), static_cast<unsigned long>(bytes_.size()));
        jpeg_save_markers(&jpeg_, JPEG_APP0 + 1, 0xFFFF);
        jpeg_read_header(&jpeg_, TRUE);
        return true;
    }

    std::int64_t Width() const { return jpeg_.image_width; }
    std::int64_t Height() const { return jpeg_.image_height; }

    bool HasTooLittleData() const {
        return !jpeg_.arith_code &&
               Width() * Height() / kMaxPixelsPerByte > static_cast<std::int64_t>(bytes_.size());
    }

    int Orientation() const {
        constexpr std::array<std::uint8_t, 6> kExif = {'E', 'x', 'i', 'f', 0, 0};
        for (const jpeg_marker_struct* marker = jpeg_.marker_list; marker; marker = marker->next) {
            if (marker->data_length > kExif.size() &&
                std::memcmp(marker->data, kExif.data(), kExif.size()) == 0)
                return ExifBlock(std::span(marker->data, marker->data_length).subspan(kExif.size()))
                    .Orientation();
        }
        return 1;
    }

    // Fills Width() x Height() pixels.
    bool ReadPixels(Argb* pixels) {
        if (setjmp(jump_))
            return false;
        const bool inks = jpeg_.jpeg_color_space == JCS_CMYK || jpeg_.jpeg_color_space == JCS_YCCK;
        jpeg_.out_color_space = inks ? JCS_CMYK : JCS_EXT_BGRA;
        jpeg_start_decompress(&jpeg_);
        while (jpeg_.output_scanline < jpeg_.output_height) {
            Argb* row = pixels + jpeg_.output_scanline * Width();
            auto* bytes = reinterpret_cast<JSAMPROW>(row);
            jpeg_read_scanlines(&jpeg_, &bytes, 1);
            if (inks)
                ConvertInks(row);
        }
        return true;
    }

    [[noreturn]] void ThrowProblem() const {
        if (outOfMemory_)
            throw std::bad_alloc();
        ThrowDamaged("JPEG", message_);
    }

private:
    static JpegReader* Self(j_common_ptr jpeg) {
        return static_cast<JpegReader*>(jpeg->client_data);
    }

    [[noreturn]] static void OnError(j_common_ptr jpeg) {
        JpegReader* self = Self(jpeg);
        self->outOfMemory_ = jpeg->err->msg_code == JERR_OUT_OF_MEMORY;
        jpeg->err->format_message(jpeg, self->message_);
        std::longjmp(self->jump_, 1);
    }

    // The library would fill up what is missing with grey. Other oddities are left to it.
    static void OnMessage(j_common_ptr jpeg, int level) {
        const int code = jpeg->err->msg_code;
        if (level < 0 && (code == JWRN_JPEG_EOF || code == JWRN_HIT_MARKER))
            OnError(jpeg);
    }

    static void OnProgress(j_common_ptr jpeg) {
        JpegReader* self = Self(jpeg);
        const int scans = self->jpeg_.input_scan_number;
        if (scans <= kMaxScans && scans * self->Width() * self->Height() <= kMaxScannedPixels)
            return;
        std::snprintf(self->message_, sizeof self->message_, "it has too many scans for its size");
        std::longjmp(self->jump_, 1);
    }

    // Cyan, magenta, yellow and black bytes become opaque pixels in place.
    void ConvertInks(Argb* row) const {
        // Files that name Adobe as their maker hold paper (255 - ink) instead of ink.
        const Argb flip = jpeg_.saw_Adobe_marker ? 0 : 0xFFFFFFFF;
        for (std::int64_t x = 0; x < Width(); ++x) {
            const Argb paper = row[x] ^ flip;
            const unsigned black = paper >> 24;
            const auto mix = [black](unsigned c) { return (c * black + 127) / 255; };
            row[x] =
                MakeArgb(255, mix(paper & 0xFF), mix(paper >> 8 & 0xFF), mix(paper >> 16 & 0xFF));
        }
    }

    std::span<const std::uint8_t> bytes_;
    jpeg_decompress_struct jpeg_ = {};
    jpeg_error_mgr errors_ = {};
    jpeg_progress_mgr progress_ = {};
    std::jmp_buf jump_;
    char message_[JMSG_LENGTH_MAX] = "";
    bool outOfMemory_ = false;
};

void TurnUpright(Bitmap& image, int orientation) {
    if (orientation == 6 || orientation == 7)
        ImageRotateFlip(image, RotateFlipType::Rotate90FlipNone);
    if (orientation == 5 || orientation == 8)
        ImageRotateFlip(image, RotateFlipType::Rotate90FlipX);
    if (orientation == 2 || orientation == 3)
        ImageRotateFlip(image, RotateFlipType::RotateNoneFlipX);
    if (orientation == 3 || orientation == 4 || orientation == 7 || orientation == 8)
        ImageRotateFlip(image, RotateFlipType::RotateNoneFlipY);
}

}  // namespace

Bitmap DecodeJpeg(std::span<const std::uint8_t> bytes) {
    JpegReader reader(bytes);
    if (!reader.ReadHeader())
        reader.ThrowProblem();
    CheckDeclaredSize(reader.Width(), reader.Height());
    if (reader.HasTooLittleData())
        ThrowDamaged("JPEG", "too little data for its size");
    Bitmap image(static_cast<int>(reader.Width()), static_cast<int>(reader.Height()));
    if (!reader.ReadPixels(image.MutablePixels()))
        reader.ThrowProblem();
    TurnUpright(image, reader.Orientation());
    return image;
}

}  // namespace orbelle::graphics
