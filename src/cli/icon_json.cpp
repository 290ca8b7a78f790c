#include "cli/icon_json.h"

#include <cstdio>
#include <nlohmann/json.hpp>

namespace orbelle::cli {
namespace {

using Json = nlohmann::ordered_json;

const char* NameOf(formats::IconEntryFormat format) {
    switch (format) {
        case formats::IconEntryFormat::Bitmap:
            return "bmp";
        case formats::IconEntryFormat::Png:
            return "png";
        case formats::IconEntryFormat::Bad:
            break;
    }
    return "bad";
}

const char* NameOf(formats::Fault kind) {
    switch (kind) {
        case formats::Fault::Empty:
            return "empty";
        case formats::Fault::Contrast:
            return "contrast";
        case formats::Fault::Fringe:
            return "fringe";
        case formats::Fault::Upscaled:
            return "upscaled";
        case formats::Fault::Clipped:
            break;
    }
    return "clipped";
}

}  // namespace

std::string DescribeEntries(const std::vector<formats::IconEntryImage>& entries) {
    Json all = Json::array();
    for (const formats::IconEntryImage& entry : entries) {
        Json hotspot;
        if (entry.Hotspot)
            hotspot = Json::array({entry.Hotspot->X, entry.Hotspot->Y});
        all.push_back({{"width", entry.Width},
                       {"height", entry.Height},
                       {"bits", entry.Bits},
                       {"format", NameOf(entry.Format)},
                       {"bytes", entry.Bytes},
                       {"hotspot", std::move(hotspot)}});
    }
    return all.dump();
}

std::string DescribeFinding(const formats::Finding& finding) {
    char text[80];
    std::snprintf(text, sizeof text, R"({"size":%d,"kind":"%s")", finding.Size,
                  NameOf(finding.Kind));
    std::string object = text;
    if (finding.Kind == formats::Fault::Contrast) {
        const graphics::Argb color = finding.Ground & 0xFFFFFF;
        std::snprintf(text, sizeof text, R"(,"ground":"#%06X","value":%.2f)", color,
                      finding.Contrast);
        object += text;
    }
    return object + "}";
}

}  // namespace orbelle::cli
