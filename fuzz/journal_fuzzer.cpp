#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

#include "formats/journal.h"
#include "graphics/checksum.h"
#include "graphics/errors.h"

namespace {

constexpr std::size_t kHeadBytes = 18;
constexpr std::size_t kRecordHeadBytes = 12;

class Source : public orbelle::formats::JournalSource {
public:
    explicit Source(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::uint64_t Size() override { return bytes_.size(); }
    std::vector<std::uint8_t> Read(std::uint64_t from, std::uint64_t count) override {
        if (from > bytes_.size() || count > bytes_.size() - from)
            throw orbelle::Error("past the end");
        const auto part = bytes_.subspan(from, count);
        return {part.begin(), part.end()};
    }

private:
    std::span<const std::uint8_t> bytes_;
};

// Else no changed record would ever be looked into.
void CorrectChecksums(std::vector<std::uint8_t>& journal) {
    for (std::size_t place = kHeadBytes; place + kRecordHeadBytes <= journal.size();) {
        std::uint32_t size = 0;
        std::memcpy(&size, &journal[place + 4], sizeof size);
        const std::size_t content = place + kRecordHeadBytes;
        if (size > journal.size() - content)
            return;
        const std::uint32_t checksum = orbelle::graphics::Crc32({journal.data() + content, size});
        std::memcpy(&journal[place + 8], &checksum, sizeof checksum);
        place = content + size;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::uint8_t> journal(data, data + size);
    CorrectChecksums(journal);
    Source source(journal);
    orbelle::formats::ReadJournal(source);
    return 0;
}
