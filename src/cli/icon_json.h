// The images of an icon file, and what is wrong with an icon, as text for other programs.
#pragma once

#include <string>
#include <vector>

#include "formats/icon_check.h"
#include "formats/icon_reader.h"

namespace orbelle::cli {

// One JSON array on one line, without a line end: an object for each entry of the file, in its
// order.
std::string DescribeEntries(const std::vector<formats::IconEntryImage>& entries);

// One JSON object on one line, without a line end; a contrast has two decimals.
std::string DescribeFinding(const formats::Finding& finding);

}  // namespace orbelle::cli
