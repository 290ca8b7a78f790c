// From the colours that a picture file states its pixels in to sRGB, which all of ours are in.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "graphics/bitmap.h"
#include "graphics/codecs/matrix_colors.h"
#include "graphics/codecs/table_colors.h"

namespace orbelle::graphics {

// What the pixels of a file are made of.
enum class FileChannels {
    Gray,   // as pixels with three equal channels
    Rgb,    // as pixels
    Paper,  // 255 less the inks cyan, magenta, yellow and black: cyan stands in the lowest byte
};

// Where white and the primary colours stand in the CIE diagram: x, y of each.
struct Chromaticities {
    double White[2] = {0.3127, 0.3290};
    double Red[2] = {0.64, 0.33};
    double Green[2] = {0.30, 0.60};
    double Blue[2] = {0.15, 0.06};
};

class ColorConversion {
public:
    // Leaves every pixel as it is.
    ColorConversion() = default;

    // By an ICC profile: relative colorimetric with black point compensation. One of sRGB changes
    // nothing. None when the profile is damaged, too large, or of other channels. For a picture of
    // so many pixels: in a large one tables are gone by roughly.
    static std::optional<ColorConversion> OfProfile(std::span<const std::uint8_t> profile,
                                                    FileChannels channels, std::int64_t pixels);

    // Of samples that are light to the power of `gamma`; nothing: that follow sRGB's curve. The
    // reciprocal of 2.2 with sRGB's primary colours is what sRGB writes itself as, and changes
    // nothing.
    static ColorConversion OfGamma(std::optional<double> gamma, const Chromaticities& primaries,
                                   FileChannels channels);

    bool ChangesNothing() const { return !tables_ && !matrix_ && greys_.empty(); }

    // Alpha stays as it is; of paper it becomes 255. Not for two threads at a time, nor for two
    // copies.
    void Convert(Argb* pixels, std::int64_t count) const;

private:
    static std::optional<ColorConversion> From(void* profile, FileChannels channels,
                                               std::int64_t pixels);

    std::shared_ptr<TableColors> tables_;
    std::shared_ptr<const MatrixColors> matrix_;
    std::vector<Argb> greys_;  // what the 256 become, alpha 0
    bool isPaper_ = false;
};

// No profile that pictures come with is larger.
inline constexpr std::size_t kMaxProfileBytes = std::size_t{8} << 20;

}  // namespace orbelle::graphics
