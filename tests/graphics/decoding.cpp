#include "graphics/decoding.h"

#include <gtest/gtest.h>

#include "graphics/codecs/image_files.h"

namespace orbelle::graphics {

std::string ProblemOf(const FileBytes& file) {
    try {
        DecodeImage(file);
    } catch (const ImageError& error) {
        return error.what();
    }
    return "";
}

void ExpectCutsToThrow(const FileBytes& file, std::size_t firstWhole) {
    const std::vector<Argb> whole = PixelsOf(DecodeImage(file));
    for (std::size_t size = 0; size < file.size(); ++size) {
        const FileBytes cut(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
        if (ProblemOf(cut).empty()) {
            EXPECT_GE(size, firstWhole);
            EXPECT_EQ(PixelsOf(DecodeImage(cut)), whole) << size << " bytes";
        }
    }
}

void ExpectToSurviveDamage(const FileBytes& file) {
    for (std::size_t at = 0; at < file.size(); ++at) {
        for (std::uint8_t change : {0x01, 0x80, 0xFF}) {
            FileBytes damaged = file;
            damaged[at] ^= change;
            EXPECT_NO_THROW(ProblemOf(damaged)) << "byte " << at << " ^ " << int{change};
        }
    }
}

}  // namespace orbelle::graphics
