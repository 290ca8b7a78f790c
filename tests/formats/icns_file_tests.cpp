#include "formats/icns_file.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>

namespace orbelle::formats {
namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(IcnsFile, StandsByteForByte) {
    std::vector<Bytes> pngs(10);
    pngs[0] = {'a'};
    pngs[2] = Bytes(300, 'b');
    const std::string heads[] = {{"icp4\0\0\0\x09", 8},   {"ic11\0\0\0\x08", 8},
                                 {"icp5\0\0\x01\x34", 8}, {"ic12\0\0\0\x08", 8},
                                 {"ic07\0\0\0\x08", 8},   {"ic13\0\0\0\x08", 8},
                                 {"ic08\0\0\0\x08", 8},   {"ic14\0\0\0\x08", 8},
                                 {"ic09\0\0\0\x08", 8},   {"ic10\0\0\0\x08", 8}};
    // 8 + 88 of the table + 10 heads of 8 + 301
    std::string expected("icns\0\0\x01\xDDTOC \0\0\0\x58", 16);
    for (const std::string& head : heads)
        expected += head;
    for (std::size_t i = 0; i < pngs.size(); ++i)
        expected += heads[i] + std::string(pngs[i].begin(), pngs[i].end());
    const Bytes file = EncodeIcns(pngs);
    EXPECT_EQ(std::string(file.begin(), file.end()), expected);

    pngs.pop_back();
    EXPECT_THROW(EncodeIcns(pngs), std::invalid_argument);
}

}  // namespace
}  // namespace orbelle::formats
