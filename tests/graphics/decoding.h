// What the tests of the decoders share.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "graphics/codecs/image_files.h"
#include "support/pictures.h"

namespace orbelle::graphics {

using testing::PixelsOf;
using FileBytes = std::vector<std::uint8_t>;

// The message of the ImageError that decoding throws; empty when it succeeds.
inline std::string ProblemOf(const FileBytes& file) {
    try {
        DecodeImage(file);
    } catch (const ImageError& error) {
        return error.what();
    }
    return "";
}

// The file cut off at every byte either throws ImageError or still gives the whole picture; at
// `firstWhole` bytes and above it may do the latter, below it throws.
inline void ExpectCutsToThrow(const FileBytes& file, std::size_t firstWhole) {
    const std::vector<Argb> whole = PixelsOf(DecodeImage(file));
    for (std::size_t size = 0; size < file.size(); ++size) {
        const FileBytes cut(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
        if (ProblemOf(cut).empty()) {
            EXPECT_GE(size, firstWhole);
            EXPECT_EQ(PixelsOf(DecodeImage(cut)), whole) << size << " bytes";
        }
    }
}

// With any one byte changed, decoding gives a picture or throws ImageError.
inline void ExpectToSurviveDamage(const FileBytes& file) {
    for (std::size_t at = 0; at < file.size(); ++at) {
        for (std::uint8_t change : {0x01, 0x80, 0xFF}) {
            FileBytes damaged = file;
            damaged[at] ^= change;
            EXPECT_NO_THROW(ProblemOf(damaged)) << "byte " << at << " ^ " << int{change};
        }
    }
}

}  // namespace orbelle::graphics
