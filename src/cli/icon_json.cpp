#include "cli/icon_json.h"

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

}  // namespace orbelle::cli
