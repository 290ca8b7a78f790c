#include "graphics/codecs/inflate.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <new>

namespace orbelle::graphics {
namespace {

constexpr std::size_t kPieceBytes = std::size_t{64} << 10;
constexpr int kZlibOrGzip = 32;  // beside the size of the window: told by the stream's first bytes

class Inflater {
public:
    explicit Inflater(const ByteSource& stream) : input_(stream) {
        if (inflateInit2(&zlib_, MAX_WBITS + kZlibOrGzip) != Z_OK)
            throw std::bad_alloc();
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() { inflateEnd(&zlib_); }

    // Whether that was all of it, and whole.
    bool Read(std::vector<std::uint8_t>& to, std::size_t maxBytes) {
        std::array<std::uint8_t, kPieceBytes> piece;  // NOLINT: filled by the library
        while (to.size() < maxBytes) {
            if (zlib_.avail_in == 0) {
                const auto bytes = input_.NextPiece();
                zlib_.next_in = const_cast<Bytef*>(bytes.data());
                zlib_.avail_in = static_cast<uInt>(bytes.size());
            }
            zlib_.next_out = piece.data();
            const std::size_t room = std::min(piece.size(), maxBytes - to.size());
            zlib_.avail_out = static_cast<uInt>(room);
            const int result = inflate(&zlib_, Z_NO_FLUSH);
            to.insert(to.end(), piece.data(), zlib_.next_out);
            if (result != Z_OK)
                return result == Z_STREAM_END;
        }
        return false;
    }

private:
    ByteStream input_;
    z_stream zlib_ = {};
};

}  // namespace

std::optional<std::vector<std::uint8_t>> Inflate(const ByteSource& stream, std::size_t maxBytes) {
    std::vector<std::uint8_t> contents;
    // The stream's end is seen with the byte after the last.
    if (!Inflater(stream).Read(contents, maxBytes + 1) || contents.size() > maxBytes)
        return std::nullopt;
    return contents;
}

std::vector<std::uint8_t> InflateStart(const ByteSource& stream, std::size_t maxBytes) {
    std::vector<std::uint8_t> contents;
    Inflater(stream).Read(contents, maxBytes);
    return contents;
}

}  // namespace orbelle::graphics
