// Colour profiles, made by the library from the published numbers.
#pragma once

#include <lcms2.h>

#include <cstdint>
#include <vector>

namespace orbelle::testing {

namespace detail {

inline std::vector<std::uint8_t> Saved(cmsHPROFILE profile) {
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    std::vector<std::uint8_t> bytes(size);
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsCloseProfile(profile);
    return bytes;
}

// A colour of sRGB's by its inks, but with red and blue exchanged.
inline cmsInt32Number ExchangedInks(const cmsUInt16Number inks[], cmsUInt16Number lab[],
                                    void* toLab) {
    const auto light = [&](int ink) { return (1 - inks[ink] / 65535.0) * (1 - inks[3] / 65535.0); };
    const double color[] = {light(2), light(1), light(0)};
    cmsCIELab found;
    cmsDoTransform(toLab, color, &found, 1);
    cmsFloat2LabEncoded(lab, &found);
    return TRUE;
}

inline cmsInt32Number LabOf(const cmsUInt16Number color[], cmsUInt16Number lab[], void* toLab) {
    cmsDoTransform(toLab, color, lab, 1);
    return TRUE;
}

// Of colours in a table of so many steps each way.
inline std::vector<std::uint8_t> TableProfile(cmsColorSpaceSignature space, unsigned steps,
                                              cmsSAMPLER16 sampler, cmsHTRANSFORM toLab) {
    const cmsUInt32Number channels = cmsChannelsOf(space);
    cmsStage* table = cmsStageAllocCLut16bit(nullptr, steps, channels, 3, nullptr);
    cmsStageSampleCLut16bit(table, sampler, toLab, 0);
    cmsPipeline* pipeline = cmsPipelineAlloc(nullptr, channels, 3);
    cmsPipelineInsertStage(pipeline, cmsAT_END,
                           cmsStageAllocToneCurves(nullptr, channels, nullptr));
    cmsPipelineInsertStage(pipeline, cmsAT_END, table);
    cmsPipelineInsertStage(pipeline, cmsAT_END, cmsStageAllocToneCurves(nullptr, 3, nullptr));
    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 4.3);
    cmsSetDeviceClass(profile, cmsSigOutputClass);
    cmsSetColorSpace(profile, space);
    cmsSetPCS(profile, cmsSigLabData);
    cmsWriteTag(profile, cmsSigAToB0Tag, pipeline);
    cmsPipelineFree(pipeline);
    return Saved(profile);
}

inline cmsHPROFILE AdobeRgb() {
    const cmsCIExyY white = {0.3127, 0.3290, 1};
    const cmsCIExyYTRIPLE corners = {{0.64, 0.33, 1}, {0.21, 0.71, 1}, {0.15, 0.06, 1}};
    cmsToneCurve* curve = cmsBuildGamma(nullptr, 563 / 256.0);
    cmsToneCurve* const curves[] = {curve, curve, curve};
    cmsHPROFILE profile = cmsCreateRGBProfile(&white, &corners, curves);
    cmsFreeToneCurve(curve);
    return profile;
}

}  // namespace detail

inline std::vector<std::uint8_t> AdobeRgbProfile() {
    return detail::Saved(detail::AdobeRgb());
}

// The same as a table that is right at multiples of 17.
inline std::vector<std::uint8_t> AdobeRgbTableProfile() {
    cmsHPROFILE rgb = detail::AdobeRgb(), lab = cmsCreateLab4Profile(nullptr);
    cmsHTRANSFORM toLab = cmsCreateTransform(rgb, TYPE_RGB_16, lab, TYPE_Lab_16,
                                             INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE);
    std::vector<std::uint8_t> profile =
        detail::TableProfile(cmsSigRgbData, 16, detail::LabOf, toLab);
    cmsDeleteTransform(toLab);
    cmsCloseProfile(rgb);
    cmsCloseProfile(lab);
    return profile;
}

inline std::vector<std::uint8_t> SrgbProfile() {
    return detail::Saved(cmsCreate_sRGBProfile());
}

inline std::vector<std::uint8_t> GreyProfile(double gamma) {
    cmsToneCurve* curve = cmsBuildGamma(nullptr, gamma);
    cmsHPROFILE profile = cmsCreateGrayProfile(cmsD50_xyY(), curve);
    cmsFreeToneCurve(curve);
    return detail::Saved(profile);
}

// Of four inks, whose yellow is a light blue; right at inks of nothing or all.
inline std::vector<std::uint8_t> InkProfile() {
    cmsHPROFILE rgb = cmsCreate_sRGBProfile(), lab = cmsCreateLab4Profile(nullptr);
    cmsHTRANSFORM toLab =
        cmsCreateTransform(rgb, TYPE_RGB_DBL, lab, TYPE_Lab_DBL, INTENT_RELATIVE_COLORIMETRIC, 0);
    std::vector<std::uint8_t> profile =
        detail::TableProfile(cmsSigCmykData, 2, detail::ExchangedInks, toLab);
    cmsDeleteTransform(toLab);
    cmsCloseProfile(rgb);
    cmsCloseProfile(lab);
    return profile;
}

}  // namespace orbelle::testing
