// The images of an icon file as text for other programs.
#pragma once

#include <string>
#include <vector>

#include "formats/icon_reader.h"

namespace orbelle::cli {

// One JSON array on one line, without a line end: an object for each entry of the file, in its
// order.
std::string DescribeEntries(const std::vector<formats::IconEntryImage>& entries);

}  // namespace orbelle::cli
