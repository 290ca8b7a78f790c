#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <vector>

#include "graphics/codecs/color_conversion.h"
#include "graphics/codecs/image_codecs.h"
#include "graphics/codecs/jpeg_coefficients.h"
#include "graphics/little_endian.h"
// Needs jpeglib.h before it.
#include <jerror.h>

// libjpeg leaves its calls by longjmp when something fails. Functions with a setjmp therefore hold
// no object that would have to be destroyed; they answer false, and their caller throws.

namespace orbelle::graphics {
namespace {

// Several times what encoders write. A progressive file can hold many scans that take few bytes but
// much time each.
constexpr int kMaxScans = 100;

// Pixels times scans: 16 scans of the largest picture.
constexpr std::int64_t kMaxScannedPixels = 16 * kMaxBitmapPixels;

// Enough for the largest picture with three channels at full resolution.
constexpr std::uint64_t kMaxCoefficientBytes = std::uint64_t{320} << 20;

// Several scans are unpacked half as fast as one, arithmetic codes ten times slower. Photographs
// as large as a bitmap can be have less than half of the first.
constexpr std::uint64_t kMaxSeveralScansBytes = std::uint64_t{96} << 20;
constexpr std::uint64_t kMaxArithmeticBytes = std::uint64_t{12} << 20;

// What cameras put before a picture has a few; the library keeps some of it.
constexpr std::uint64_t kMaxHeaderBytes = std::uint64_t{32} << 20;

// A Huffman code takes a bit at least, and no coded unit covers more than 32 x 32 pixels: 8 of them
// to a byte.
constexpr std::int64_t kMaxPixelsPerByte = 8192;

constexpr int kExifMarker = JPEG_APP0 + 1;
constexpr int kProfileMarker = JPEG_APP0 + 2;

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

// How the pixels of a picture that was taken turned or mirrored come to stand upright: each step
// to the right or down in the file is a step in the picture.
struct Placement {
    std::ptrdiff_t Start;
    std::ptrdiff_t StepRight;
    std::ptrdiff_t StepDown;
};

bool IsTurned(int orientation) {
    return orientation >= 5;
}

Placement PlacementOf(int orientation, std::int64_t uprightWidth, std::int64_t uprightHeight) {
    const bool fromRight =
        orientation == 2 || orientation == 3 || orientation == 6 || orientation == 7;
    const bool fromBottom =
        orientation == 3 || orientation == 4 || orientation == 7 || orientation == 8;
    const std::ptrdiff_t across = fromRight ? -1 : 1;
    const std::ptrdiff_t down = fromBottom ? -uprightWidth : uprightWidth;
    return {
        (fromRight ? uprightWidth - 1 : 0) + (fromBottom ? (uprightHeight - 1) * uprightWidth : 0),
        IsTurned(orientation) ? down : across, IsTurned(orientation) ? across : down};
}

// Rows are turned so many at a time: what stands one above the other in the file becomes whole
// lines of the processor's cache.
constexpr int kBandRows = 16;

void PlaceBand(const Argb* band, std::int64_t width, int rows, Argb* to, const Placement& place) {
    for (std::int64_t x = 0; x < width; ++x, to += place.StepRight) {
        for (int y = 0; y < rows; ++y)
            to[y * place.StepDown] = band[y * width + x];
    }
}

// The library finds the base class by client_data.
class JpegReader : JpegCoefficients {
public:
    explicit JpegReader(const ByteSource& file) : stream_(file), fileBytes_(file.Size()) {}
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;
    ~JpegReader() {
        jpeg_destroy_decompress(&jpeg_);
        std::free(profile_);
    }

    bool ReadHeader() {
        if (setjmp(jump_))
            return false;
        jpeg_.err = jpeg_std_error(&errors_);
        jpeg_.client_data = static_cast<JpegCoefficients*>(this);
        errors_.error_exit = OnError;
        errors_.emit_message = OnMessage;
        jpeg_create_decompress(&jpeg_);
        Serve(jpeg_);
        progress_.progress_monitor = OnProgress;
        jpeg_.progress = &progress_;
        input_.init_source = [](j_decompress_ptr) {};
        input_.fill_input_buffer = OnInputNeeded;
        input_.skip_input_data = OnSkip;
        input_.resync_to_restart = jpeg_resync_to_restart;
        input_.term_source = [](j_decompress_ptr) {};
        jpeg_.src = &input_;
        for (const int marker : {kExifMarker, kProfileMarker})
            jpeg_save_markers(&jpeg_, marker, 0xFFFF);
        jpeg_read_header(&jpeg_, TRUE);
        for (const int marker : {kExifMarker, kProfileMarker})
            jpeg_save_markers(&jpeg_, marker, 0);
        jpeg_read_icc_profile(&jpeg_, &profile_, &profileBytes_);
        headerIsRead_ = true;
        return true;
    }

    std::int64_t Width() const { return jpeg_.image_width; }
    std::int64_t Height() const { return jpeg_.image_height; }

    bool HasTooLittleData() const {
        return !jpeg_.arith_code &&
               Width() * Height() / kMaxPixelsPerByte > static_cast<std::int64_t>(fileBytes_);
    }

    // Throws ImageError for what would take too much memory or time.
    void RequireBearable() {
        const auto require = [](const char* what, std::uint64_t bytes, std::uint64_t most) {
            if (bytes > most)
                throw ImageError("the JPEG picture is too large: " + std::to_string(bytes >> 20) +
                                 " MiB " + what + ", more than " + std::to_string(most >> 20));
        };
        if (jpeg_.arith_code)
            require("of arithmetic coding", fileBytes_, kMaxArithmeticBytes);
        if (!jpeg_has_multiple_scans(&jpeg_))
            return;
        require("in several scans", fileBytes_, kMaxSeveralScansBytes);
        // What stands in memory before the first pixel is made.
        std::uint64_t blocks = 0;
        for (int i = 0; i < jpeg_.num_components; ++i)
            blocks += std::uint64_t{jpeg_.comp_info[i].width_in_blocks} *
                      jpeg_.comp_info[i].height_in_blocks;
        require("to put its scans together", blocks * sizeof(JBLOCK), kMaxCoefficientBytes);
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

    // Put together from its parts; empty when there is none.
    std::span<const std::uint8_t> Profile() const { return {profile_, profileBytes_}; }

    FileChannels Channels() const {
        if (HasInks())
            return FileChannels::Paper;
        return jpeg_.jpeg_color_space == JCS_GRAYSCALE ? FileChannels::Gray : FileChannels::Rgb;
    }

    // Fills Width() x Height() pixels: row by row without a band, else by way of the band, which
    // has room for kBandRows rows.
    bool ReadPixels(Argb* pixels, Argb* band, const Placement& place,
                    const ColorConversion& conversion) {
        if (setjmp(jump_))
            return false;
        const bool inks = HasInks();
        jpeg_.out_color_space = inks ? JCS_CMYK : JCS_EXT_BGRA;
        jpeg_start_decompress(&jpeg_);
        while (jpeg_.output_scanline < jpeg_.output_height) {
            const std::int64_t y = jpeg_.output_scanline;
            const std::int64_t rowInBand = y % kBandRows;
            Argb* row = band ? band + rowInBand * Width() : pixels + y * Width();
            auto* bytes = reinterpret_cast<JSAMPROW>(row);
            jpeg_read_scanlines(&jpeg_, &bytes, 1);
            if (inks)
                TurnToPaper(row);
            if (inks && conversion.ChangesNothing())
                MixPaper(row);
            conversion.Convert(row, Width());
            if (band && (rowInBand == kBandRows - 1 || y == Height() - 1))
                PlaceBand(band, Width(), static_cast<int>(rowInBand) + 1,
                          pixels + place.Start + (y - rowInBand) * place.StepDown, place);
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
        return static_cast<JpegReader*>(static_cast<JpegCoefficients*>(jpeg->client_data));
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

    static boolean OnInputNeeded(j_decompress_ptr jpeg) {
        JpegReader* self = Self(reinterpret_cast<j_common_ptr>(jpeg));
        const std::span<const std::uint8_t> piece = self->stream_.NextPiece();
        if (piece.empty())
            WARNMS(jpeg, JWRN_JPEG_EOF);  // which we make an error
        self->headerBytes_ += self->headerIsRead_ ? 0 : piece.size();
        if (self->headerBytes_ > kMaxHeaderBytes)
            self->Fail("its header is too long");
        self->input_.next_input_byte = piece.data();
        self->input_.bytes_in_buffer = piece.size();
        return TRUE;
    }

    static void OnSkip(j_decompress_ptr jpeg, long count) {
        JpegReader* self = Self(reinterpret_cast<j_common_ptr>(jpeg));
        jpeg_source_mgr& input = self->input_;
        const std::size_t here =
            std::min(input.bytes_in_buffer, static_cast<std::size_t>(std::max(count, 0L)));
        input.next_input_byte += here;
        input.bytes_in_buffer -= here;
        self->stream_.Skip(static_cast<std::uint64_t>(std::max(count, 0L)) - here);
    }

    static void OnProgress(j_common_ptr jpeg) {
        JpegReader* self = Self(jpeg);
        const int scans = self->jpeg_.input_scan_number;
        if (scans <= kMaxScans && scans * self->Width() * self->Height() <= kMaxScannedPixels)
            return;
        self->Fail("it has too many scans for its size");
    }

    [[noreturn]] void Fail(const char* problem) {
        std::snprintf(message_, sizeof message_, "%s", problem);
        std::longjmp(jump_, 1);
    }

    bool HasInks() const {
        return jpeg_.jpeg_color_space == JCS_CMYK || jpeg_.jpeg_color_space == JCS_YCCK;
    }

    // Files that name Adobe as their maker hold paper (255 - ink) instead of ink.
    void TurnToPaper(Argb* row) const {
        if (jpeg_.saw_Adobe_marker)
            return;
        for (std::int64_t x = 0; x < Width(); ++x)
            row[x] = ~row[x];
    }

    // Cyan, magenta, yellow and black bytes become opaque pixels in place.
    void MixPaper(Argb* row) const {
        for (std::int64_t x = 0; x < Width(); ++x) {
            const Argb paper = row[x];
            const unsigned black = paper >> 24;
            const auto mix = [black](unsigned c) { return (c * black + 127) / 255; };
            row[x] =
                MakeArgb(255, mix(paper & 0xFF), mix(paper >> 8 & 0xFF), mix(paper >> 16 & 0xFF));
        }
    }

    ByteStream stream_;
    std::uint64_t fileBytes_;
    std::uint64_t headerBytes_ = 0;  // that were read so far
    bool headerIsRead_ = false;
    JOCTET* profile_ = nullptr;
    unsigned profileBytes_ = 0;
    jpeg_source_mgr input_ = {};
    jpeg_decompress_struct jpeg_ = {};
    jpeg_error_mgr errors_ = {};
    jpeg_progress_mgr progress_ = {};
    std::jmp_buf jump_;
    char message_[JMSG_LENGTH_MAX] = "";
    bool outOfMemory_ = false;
};

}  // namespace

Bitmap DecodeJpeg(const ByteSource& file, PixelBudget& budget, ColorHandling colors) {
    JpegReader reader(file);
    if (!reader.ReadHeader())
        reader.ThrowProblem();
    budget.Take(reader.Width(), reader.Height());
    if (reader.HasTooLittleData())
        ThrowDamaged("JPEG", "too little data for its size");
    reader.RequireBearable();
    const int orientation = reader.Orientation();
    auto width = static_cast<int>(reader.Width()), height = static_cast<int>(reader.Height());
    if (IsTurned(orientation))
        std::swap(width, height);
    Bitmap image(width, height);
    std::vector<Argb> band;
    if (orientation != 1)
        band.resize(static_cast<std::size_t>(reader.Width()) * kBandRows);
    ColorConversion conversion;
    if (colors == ColorHandling::ToSrgb)
        conversion = ColorConversion::OfProfile(reader.Profile(), reader.Channels(),
                                                reader.Width() * reader.Height())
                         .value_or(ColorConversion());
    if (!reader.ReadPixels(image.MutablePixels(), band.empty() ? nullptr : band.data(),
                           PlacementOf(orientation, width, height), conversion))
        reader.ThrowProblem();
    return image;
}

}  // namespace orbelle::graphics
