#include <webp/decode.h>
#include <webp/demux.h>

#include <array>
#include <memory>
#include <new>
#include <vector>

#include "graphics/codecs/color_conversion.h"
#include "graphics/codecs/image_codecs.h"

namespace orbelle::graphics {
namespace {

// The library wants the file as one piece. Photographs as large as a bitmap can be have less than
// half of it.
constexpr std::uint64_t kMaxBytes = std::uint64_t{96} << 20;

struct DeleteDemuxer {
    void operator()(WebPDemuxer* demuxer) const { WebPDemuxDelete(demuxer); }
};
using Demuxer = std::unique_ptr<WebPDemuxer, DeleteDemuxer>;

std::vector<std::uint8_t> WholeOf(const ByteSource& file) {
    if (file.Size() > kMaxBytes)
        throw ImageError("the WebP picture is too large: " + std::to_string(file.Size() >> 20) +
                         " MiB, more than " + std::to_string(kMaxBytes >> 20));
    std::vector<std::uint8_t> bytes(file.Size());
    bytes.resize(file.ReadAt(0, bytes));
    return bytes;
}

// The record lives as long as the demuxer whose bytes it shows.
class FirstFrame {
public:
    explicit FirstFrame(const WebPDemuxer& demuxer) {
        if (!WebPDemuxGetFrame(&demuxer, 1, &frame_))
            ThrowDamaged("WebP", "it has no picture");
    }
    FirstFrame(const FirstFrame&) = delete;
    FirstFrame& operator=(const FirstFrame&) = delete;
    ~FirstFrame() { WebPDemuxReleaseIterator(&frame_); }

    // Onto a canvas, where the file has checked that it lies.
    void Decode(Bitmap& canvas) const {
        WebPDecoderConfig config;
        if (!WebPInitDecoderConfig(&config))
            ThrowDamaged("WebP", "the library is of another version");
        const std::size_t stride = static_cast<std::size_t>(canvas.Width()) * sizeof(Argb);
        const std::size_t start = static_cast<std::size_t>(frame_.y_offset) * stride +
                                  static_cast<std::size_t>(frame_.x_offset) * sizeof(Argb);
        const std::size_t bytes = static_cast<std::size_t>(canvas.Height()) * stride;
        config.output.colorspace = MODE_BGRA;
        config.output.is_external_memory = 1;
        config.output.u.RGBA.rgba = reinterpret_cast<std::uint8_t*>(canvas.MutablePixels()) + start;
        config.output.u.RGBA.stride = static_cast<int>(stride);
        config.output.u.RGBA.size = bytes - start;
        const VP8StatusCode status =
            WebPDecode(frame_.fragment.bytes, frame_.fragment.size, &config);
        if (status == VP8_STATUS_OUT_OF_MEMORY)
            throw std::bad_alloc();
        if (status != VP8_STATUS_OK)
            ThrowDamaged("WebP", "its pixels can't be decoded");
    }

private:
    WebPIterator frame_ = {};
};

ColorConversion ColorsOf(const WebPDemuxer& demuxer, std::int64_t pixels) {
    WebPChunkIterator chunk = {};
    if (!WebPDemuxGetChunk(&demuxer, "ICCP", 1, &chunk))
        return {};
    auto conversion = ColorConversion::OfProfile({chunk.chunk.bytes, chunk.chunk.size},
                                                 FileChannels::Rgb, pixels);
    WebPDemuxReleaseChunkIterator(&chunk);
    return std::move(conversion).value_or(ColorConversion());
}

}  // namespace

Bitmap DecodeWebp(const ByteSource& file, PixelBudget& budget) {
    const std::vector<std::uint8_t> bytes = WholeOf(file);
    const WebPData data = {bytes.data(), bytes.size()};
    WebPDemuxState state = WEBP_DEMUX_PARSE_ERROR;
    // Of an animation that is cut short the first frame may be there.
    const Demuxer demuxer(WebPDemuxPartial(&data, &state));
    if (!demuxer || state < WEBP_DEMUX_PARSED_HEADER)
        ThrowDamaged("WebP", "its parts don't fit together");
    const std::int64_t width = WebPDemuxGetI(demuxer.get(), WEBP_FF_CANVAS_WIDTH);
    const std::int64_t height = WebPDemuxGetI(demuxer.get(), WEBP_FF_CANVAS_HEIGHT);
    budget.Take(width, height);
    const FirstFrame frame(*demuxer);
    Bitmap image(static_cast<int>(width), static_cast<int>(height));
    frame.Decode(image);
    ColorsOf(*demuxer, width * height).Convert(image.MutablePixels(), width * height);
    return image;
}

}  // namespace orbelle::graphics
