// The document as text for other programs.
#pragma once

#include <string>

#include "editing/editor.h"

namespace orbelle::cli {

// One JSON object on one line, without a line end: page, path, state of the history, layers from
// the bottom up. Numbers as they stand in the document; floats in the shortest form that reads back
// as the same float, without a fraction where they have none.
std::string DescribeDocument(const editing::Editor& editor);

}  // namespace orbelle::cli
