// Independent pieces of work on all cores, by the name that this folder knows it by.
#pragma once

#include "graphics/parallel.h"

namespace orbelle::formats {

using graphics::ForEachInParallel;

}  // namespace orbelle::formats
