#include "graphics/codecs/matrix_colors.h"

#include <lcms2.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "graphics/color.h"

namespace orbelle::graphics {
namespace {

using Matrix = std::array<std::array<double, 3>, 3>;

// The library's XYZ at its white, D50, to the light of sRGB: the inverse of sRGB's primary colours
// there (Bradford).
constexpr Matrix kToSrgb = {{{3.1338561, -1.6168667, -0.4906146},
                             {-0.9787684, 1.9161415, 0.0334540},
                             {0.0719453, -0.2289914, 1.4052427}}};

// Fine enough for the dark end of the curve, where a step of 8 bits is a three thousandth.
constexpr int kLightSteps = 65536;

double LightOf(double sample) {
    return sample <= 0.04045 ? sample / 12.92 : std::pow((sample + 0.055) / 1.055, 2.4);
}

// The sample of sRGB for each step of light. Filled from the light between two samples on, which
// takes far fewer powers than steps.
std::vector<std::uint8_t> MakeSamples() {
    std::vector<std::uint8_t> samples(kLightSteps);
    int from = 0;
    for (int sample = 0; sample < 256; ++sample) {
        const double end = LightOf((sample + 0.5) / 255) * (kLightSteps - 1);
        const int to = sample == 255 ? kLightSteps : static_cast<int>(std::ceil(end));
        std::fill(samples.begin() + from, samples.begin() + to, static_cast<std::uint8_t>(sample));
        from = to;
    }
    return samples;
}

const std::uint8_t* Samples() {
    static const std::vector<std::uint8_t> samples = MakeSamples();
    return samples.data();
}

// What the library would rather go by.
bool HasTable(void* profile) {
    return std::ranges::any_of(std::array{cmsSigAToB0Tag, cmsSigAToB1Tag, cmsSigAToB2Tag},
                               [=](cmsTagSignature tag) { return cmsIsTag(profile, tag); });
}

}  // namespace

std::optional<MatrixColors> MatrixColors::Of(void* profile) {
    constexpr cmsTagSignature kCurves[] = {cmsSigRedTRCTag, cmsSigGreenTRCTag, cmsSigBlueTRCTag};
    constexpr cmsTagSignature kCorners[] = {cmsSigRedColorantTag, cmsSigGreenColorantTag,
                                            cmsSigBlueColorantTag};
    if (cmsGetColorSpace(profile) != cmsSigRgbData || cmsGetPCS(profile) != cmsSigXYZData ||
        HasTable(profile))
        return std::nullopt;
    MatrixColors colors;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const auto* curve = static_cast<cmsToneCurve*>(cmsReadTag(profile, kCurves[channel]));
        const auto* corner = static_cast<cmsCIEXYZ*>(cmsReadTag(profile, kCorners[channel]));
        if (!curve || !corner)
            return std::nullopt;
        for (std::size_t sample = 0; sample < 256; ++sample) {
            const float light = cmsEvalToneCurveFloat(curve, static_cast<float>(sample) / 255);
            // Written so that not-a-number fails.
            if (!(std::abs(light) < 1000))
                return std::nullopt;
            colors.light_[channel][sample] = light;
        }
        for (std::size_t i = 0; i < 3; ++i) {
            const double number =
                kToSrgb[i][0] * corner->X + kToSrgb[i][1] * corner->Y + kToSrgb[i][2] * corner->Z;
            if (!(std::abs(number) < 1000))
                return std::nullopt;
            colors.matrix_[i][channel] = static_cast<float>(number);
        }
    }
    return colors;
}

void MatrixColors::Convert(Argb* pixels, std::int64_t count) const {
    const std::uint8_t* samples = Samples();
    for (std::int64_t i = 0; i < count; ++i) {
        const Argb pixel = pixels[i];
        const float red = light_[0][RedOf(pixel)], green = light_[1][GreenOf(pixel)],
                    blue = light_[2][BlueOf(pixel)];
        const auto sample = [&](const std::array<float, 3>& row) {
            const float light = row[0] * red + row[1] * green + row[2] * blue;
            return unsigned{samples[static_cast<int>(
                std::clamp(light, 0.0f, 1.0f) * (kLightSteps - 1) + 0.5f)]};
        };
        pixels[i] = (pixel & 0xFF000000) |
                    MakeArgb(0, sample(matrix_[0]), sample(matrix_[1]), sample(matrix_[2]));
    }
}

}  // namespace orbelle::graphics
