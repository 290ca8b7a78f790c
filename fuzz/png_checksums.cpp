// Mutations for inputs with PNG pictures in them: the usual ones, after which the checksums of all
// chunks are made right again. Otherwise almost every mutation would end at a checksum.
#include <zlib.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

constexpr std::string_view kSignature = "\x89PNG\r\n\x1A\n";
constexpr std::size_t kNumberBytes = 4;  // of a chunk's length, name or checksum

std::uint32_t ReadNumber(std::span<const std::uint8_t> bytes) {
    return std::uint32_t{bytes[0]} << 24 | bytes[1] << 16 | bytes[2] << 8 | bytes[3];
}

void WriteNumber(std::span<std::uint8_t> bytes, std::uint32_t number) {
    for (int i = 0; i < 4; ++i)
        bytes[i] = static_cast<std::uint8_t>(number >> (24 - 8 * i));
}

// `chunks` reaches to the end of the input, so that its tail may be anything.
void RepairChunks(std::span<std::uint8_t> chunks) {
    while (chunks.size() >= 3 * kNumberBytes) {
        const std::size_t length = ReadNumber(chunks);
        if (length > chunks.size() - 3 * kNumberBytes)
            return;
        const auto named = chunks.subspan(kNumberBytes, kNumberBytes + length);
        const auto sum = crc32(0, named.data(), static_cast<uInt>(named.size()));
        chunks = chunks.subspan(kNumberBytes + named.size());
        WriteNumber(chunks, static_cast<std::uint32_t>(sum));
        chunks = chunks.subspan(kNumberBytes);
    }
}

void RepairPictures(std::span<std::uint8_t> input) {
    const auto matches = [](std::uint8_t byte, char c) {
        return byte == static_cast<std::uint8_t>(c);
    };
    auto from = input.begin();
    while (true) {
        from = std::search(from, input.end(), kSignature.begin(), kSignature.end(), matches);
        if (from == input.end())
            return;
        from += kSignature.size();
        RepairChunks({from, input.end()});
    }
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int) {
    const std::size_t mutated = LLVMFuzzerMutate(data, size, maxSize);
    RepairPictures({data, mutated});
    return mutated;
}
