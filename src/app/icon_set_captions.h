// What the platforms of icon sets are called.
#pragma once

#include <string>

#include "formats/icon_sets.h"

namespace orbelle::app {

// In the order of formats::IconSet; & stands before the letter that chooses one.
inline constexpr const char* kIconSetCaptions[] = {"&Windows", "&macOS",   "&Linux",
                                                   "We&b",     "&Android", "i&OS"};
static_assert(std::size(kIconSetCaptions) == std::size(formats::kIconSetNames));

inline std::string NameOf(formats::IconSet set) {
    std::string name = kIconSetCaptions[static_cast<std::size_t>(set)];
    std::erase(name, '&');
    return name;
}

}  // namespace orbelle::app
