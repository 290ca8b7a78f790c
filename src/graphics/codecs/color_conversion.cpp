#include "graphics/codecs/color_conversion.h"

#include <lcms2.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "graphics/color.h"

namespace orbelle::graphics {
namespace {

// A quarter of a microsecond for each colour, but right.
constexpr cmsUInt32Number kSlow = cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE;

// In larger pictures the library goes by a coarser table of its own, which takes it 30 ms to make
// and is up to 20 of 255 off in some dark colours.
constexpr std::int64_t kMostPixelsRight = std::int64_t{1024} * 1024;

// What one step of 8 bits makes of a colour is no other colour.
constexpr int kSameColor = 1;

constexpr double kUsualGamma = 1 / 2.2;
constexpr double kSameGamma = 0.005;

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, CloseProfile>;

struct FreeCurve {
    void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};
using Curve = std::unique_ptr<cmsToneCurve, FreeCurve>;

Curve SrgbCurve() {
    constexpr cmsInt32Number kLinearThenPower = 4;
    constexpr cmsFloat64Number kNumbers[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    return Curve(cmsBuildParametricToneCurve(nullptr, kLinearThenPower, kNumbers));
}

bool AreSrgb(const Chromaticities& primaries) {
    constexpr double kSamePoint = 0.002;
    const auto isSame = [](const double(&a)[2], const double(&b)[2]) {
        return std::abs(a[0] - b[0]) < kSamePoint && std::abs(a[1] - b[1]) < kSamePoint;
    };
    const Chromaticities srgb;
    return isSame(primaries.White, srgb.White) && isSame(primaries.Red, srgb.Red) &&
           isSame(primaries.Green, srgb.Green) && isSame(primaries.Blue, srgb.Blue);
}

// The library's pixels of the file, and its name for what is in them.
cmsUInt32Number FormatOf(FileChannels channels) {
    switch (channels) {
        case FileChannels::Gray:
            return TYPE_GRAY_8;
        case FileChannels::Rgb:
            return TYPE_BGRA_8;
        case FileChannels::Paper:
            return TYPE_CMYK_8_REV;
    }
    return 0;
}

cmsColorSpaceSignature SpaceOf(FileChannels channels) {
    switch (channels) {
        case FileChannels::Gray:
            return cmsSigGrayData;
        case FileChannels::Rgb:
            return cmsSigRgbData;
        case FileChannels::Paper:
            return cmsSigCmykData;
    }
    return {};
}

bool IsSame(Argb a, Argb b) {
    for (int shift = 0; shift < 24; shift += 8) {
        const int difference =
            static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF);
        if (std::abs(difference) > kSameColor)
            return false;
    }
    return true;
}

// All greys, and colours in even steps.
std::vector<Argb> Samples() {
    constexpr unsigned kStep = 17;
    std::vector<Argb> samples;
    for (unsigned grey = 0; grey < 256; ++grey)
        samples.push_back(MakeArgb(0, grey, grey, grey));
    for (unsigned red = 0; red < 256; red += kStep)
        for (unsigned green = 0; green < 256; green += kStep)
            for (unsigned blue = 0; blue < 256; blue += kStep)
                samples.push_back(MakeArgb(0, red, green, blue));
    return samples;
}

bool ChangesColors(const ColorConversion& conversion) {
    return std::ranges::any_of(Samples(), [&](Argb sample) {
        Argb converted = sample;
        conversion.Convert(&converted, 1);
        return !IsSame(sample, converted);
    });
}

std::vector<Argb> GreysOf(void* transform) {
    std::array<std::uint8_t, 256> greys;
    for (unsigned i = 0; i < greys.size(); ++i)
        greys[i] = static_cast<std::uint8_t>(i);
    std::vector<Argb> table(greys.size());
    cmsDoTransform(transform, greys.data(), table.data(),
                   static_cast<cmsUInt32Number>(greys.size()));
    return table;
}

bool AreSame(std::span<const Argb> greys) {
    for (unsigned grey = 0; grey < greys.size(); ++grey)
        if (!IsSame(greys[grey], MakeArgb(0, grey, grey, grey)))
            return false;
    return true;
}

}  // namespace

std::optional<ColorConversion> ColorConversion::From(void* profile, FileChannels channels,
                                                     std::int64_t pixels) {
    if (!profile || cmsGetColorSpace(profile) != SpaceOf(channels))
        return std::nullopt;
    ColorConversion conversion;
    if (auto matrix = MatrixColors::Of(profile)) {
        conversion.matrix_ = std::make_shared<const MatrixColors>(*matrix);
        return ChangesColors(conversion) ? conversion : ColorConversion();
    }
    const bool isSlow = channels == FileChannels::Gray || pixels <= kMostPixelsRight;
    const Profile to(cmsCreate_sRGBProfile());
    std::shared_ptr<void> transform(
        !to ? nullptr
            : cmsCreateTransform(profile, FormatOf(channels), to.get(), TYPE_BGRA_8,
                                 INTENT_RELATIVE_COLORIMETRIC,
                                 cmsFLAGS_BLACKPOINTCOMPENSATION | (isSlow ? kSlow : 0)),
        [](void* made) {
            if (made)
                cmsDeleteTransform(made);
        });
    if (!transform)
        return std::nullopt;
    switch (channels) {
        case FileChannels::Gray:
            if (std::vector<Argb> greys = GreysOf(transform.get()); !AreSame(greys))
                conversion.greys_ = std::move(greys);
            break;
        case FileChannels::Rgb:
            conversion.tables_ = std::make_shared<TableColors>(std::move(transform), isSlow);
            return ChangesColors(conversion) ? conversion : ColorConversion();
        case FileChannels::Paper:
            conversion.tables_ = std::make_shared<TableColors>(std::move(transform), isSlow);
            conversion.isPaper_ = true;
            break;
    }
    return conversion;
}

std::optional<ColorConversion> ColorConversion::OfProfile(std::span<const std::uint8_t> profile,
                                                          FileChannels channels,
                                                          std::int64_t pixels) {
    if (profile.empty() || profile.size() > kMaxProfileBytes)
        return std::nullopt;
    const Profile from(
        cmsOpenProfileFromMem(profile.data(), static_cast<cmsUInt32Number>(profile.size())));
    // Each colour could have to go through any number of steps there. A profile has simpler ones
    // beside them.
    for (const cmsTagSignature steps :
         {cmsSigDToB0Tag, cmsSigDToB1Tag, cmsSigDToB2Tag, cmsSigDToB3Tag})
        if (from)
            cmsWriteTag(from.get(), steps, nullptr);
    return From(from.get(), channels, pixels);
}

ColorConversion ColorConversion::OfGamma(std::optional<double> gamma,
                                         const Chromaticities& primaries, FileChannels channels) {
    const bool isUsualGamma = !gamma || std::abs(*gamma - kUsualGamma) < kSameGamma;
    if (isUsualGamma && AreSrgb(primaries))
        return {};
    const Curve curve = gamma ? Curve(cmsBuildGamma(nullptr, 1 / *gamma)) : SrgbCurve();
    if (!curve)
        return {};
    const auto point = [](const double(&xy)[2]) { return cmsCIExyY{xy[0], xy[1], 1}; };
    const cmsCIExyY white = point(primaries.White);
    if (channels == FileChannels::Gray) {
        const Profile from(cmsCreateGrayProfile(&white, curve.get()));
        return From(from.get(), channels, 0).value_or(ColorConversion());
    }
    const cmsCIExyYTRIPLE corners = {point(primaries.Red), point(primaries.Green),
                                     point(primaries.Blue)};
    cmsToneCurve* const curves[] = {curve.get(), curve.get(), curve.get()};
    const Profile from(cmsCreateRGBProfile(&white, &corners, curves));
    return From(from.get(), channels, 0).value_or(ColorConversion());
}

void ColorConversion::Convert(Argb* pixels, std::int64_t count) const {
    if (!greys_.empty()) {
        for (std::int64_t i = 0; i < count; ++i)
            pixels[i] = (pixels[i] & 0xFF000000) | greys_[pixels[i] & 0xFF];
    } else if (matrix_) {
        matrix_->Convert(pixels, count);
    } else if (tables_) {
        tables_->Convert(pixels, count, isPaper_);
    }
}

}  // namespace orbelle::graphics
