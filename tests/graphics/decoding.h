// What the tests of the decoders share.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "graphics/bitmap.h"
#include "support/pictures.h"

namespace orbelle::graphics {

using testing::PixelsOf;
using FileBytes = std::vector<std::uint8_t>;

// The message of the ImageError that decoding throws; empty when it succeeds.
std::string ProblemOf(const FileBytes& file);

// The file cut off at every byte either throws ImageError or still gives the whole picture; at
// `firstWhole` bytes and above it may do the latter, below it throws.
void ExpectCutsToThrow(const FileBytes& file, std::size_t firstWhole);

// With any one byte changed, decoding gives a picture or throws ImageError.
void ExpectToSurviveDamage(const FileBytes& file);

}  // namespace orbelle::graphics
