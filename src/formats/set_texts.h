// The text files of icon sets, as their platforms lay them down.
#pragma once

#include <string>
#include <string_view>

#include "graphics/color.h"

namespace orbelle::formats {

// For ios/AppIcon.appiconset, the form with a single size.
std::string AppIconContents();

// For web pages. The name is any bytes; those that are not UTF-8 are replaced. The colour's alpha
// is not looked at.
std::string WebManifest(std::string_view name, graphics::Argb ground);
std::string WebHead();

// For Android's adaptive icons.
std::string AdaptiveIcon();
std::string AdaptiveBackground(graphics::Argb ground);

// Between double quotes in JSON.
std::string EscapedForJson(std::string_view text);

}  // namespace orbelle::formats
