#include "graphics/byte_source.h"

#include <gmock/gmock.h>

#include <numeric>
#include <thread>

#include "graphics/file_io.h"
#include "support/temporary_folder.h"

namespace orbelle::graphics {
namespace {

using ::testing::ElementsAre;
using FileBytes = std::vector<std::uint8_t>;

FileBytes ReadAt(const ByteSource& source, std::uint64_t place, std::size_t count) {
    FileBytes bytes(count);
    bytes.resize(source.ReadAt(place, bytes));
    return bytes;
}

TEST(ByteSource, GivesWhatIsThere) {
    const testing::TemporaryFolder folder;
    const FileBytes bytes = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    WriteFile(folder / "a", bytes);
    const MemorySource memory(bytes);
    const FileSource file(folder / "a");
    for (const ByteSource* source : std::initializer_list<const ByteSource*>{&memory, &file}) {
        EXPECT_EQ(source->Size(), 10U);
        EXPECT_THAT(ReadAt(*source, 8, 5), ElementsAre(8, 9));
        EXPECT_THAT(ReadAt(*source, 2, 3), ElementsAre(2, 3, 4));
        for (const std::uint64_t beyond : {std::uint64_t{10}, UINT64_MAX})
            EXPECT_THAT(ReadAt(*source, beyond, 5), ElementsAre());
        EXPECT_EQ(source->NumberAt<std::uint32_t>(2), 0x05040302U);
        EXPECT_EQ(source->NumberAt<std::uint32_t>(8), 0x0908U);

        const PartOfSource part(*source, 3, 4);
        EXPECT_EQ(part.Size(), 4U);
        EXPECT_THAT(ReadAt(part, 1, 9), ElementsAre(4, 5, 6));
        EXPECT_EQ(PartOfSource(*source, 8, UINT64_MAX).Size(), 2U);
        EXPECT_EQ(PartOfSource(*source, UINT64_MAX, UINT64_MAX).Size(), 0U);
    }
    file.RequireWasRead();
}

TEST(ByteSource, AStreamGoesThroughLargeFilesByPieces) {
    const testing::TemporaryFolder folder;
    FileBytes bytes(300000);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
    WriteFile(folder / "a", bytes);
    const FileSource file(folder / "a");
    ByteStream stream(file);
    FileBytes read(100000);
    EXPECT_EQ(stream.Read(read), 100000U);
    EXPECT_EQ(read, FileBytes(bytes.begin(), bytes.begin() + 100000));
    stream.Skip(100001);
    std::uint8_t next = 0;
    EXPECT_EQ(stream.Read({&next, 1}), 1U);
    EXPECT_EQ(next, bytes[200001]);
    std::size_t left = 0;
    while (true) {
        const auto piece = stream.NextPiece();
        if (piece.empty())
            break;
        EXPECT_EQ(piece[0], bytes[200002 + left]);
        left += piece.size();
    }
    EXPECT_EQ(left, 300000U - 200002);
    EXPECT_EQ(stream.Read(read), 0U);
}

TEST(ByteSource, ThreadsReadAtOnce) {
    const testing::TemporaryFolder folder;
    FileBytes bytes(1 << 20);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(i / 4096);
    WriteFile(folder / "a", bytes);
    const FileSource file(folder / "a");
    const auto readAll = [&](std::uint64_t first) {
        for (std::uint64_t place = first; place < bytes.size(); place += 8192)
            EXPECT_EQ(ReadAt(file, place, 4096), FileBytes(4096, bytes[place]));
    };
    const std::jthread other(readAll, 4096);
    readAll(0);
}

}  // namespace
}  // namespace orbelle::graphics
