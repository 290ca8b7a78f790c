// The verb that compares two files.
#pragma once

#include "cli/verb_table.h"

namespace orbelle::cli {

Action ReadDiff(Words& words);

}  // namespace orbelle::cli
