// Colours that stay at the edge of a picture from a ground that it was cut out of.
#pragma once

#include "graphics/bitmap.h"

namespace orbelle::filters {

// Whether more than one in twenty pixels of the edge have a foreign colour. The edge are the pixels
// of alpha 1 to 127 with an opaque one (255) above, below, left or right of them; a colour is
// foreign when it differs, in a channel of the straight colour, by more than 64 from every opaque
// pixel that is at most 3 pixels away both across and down.
bool HasFringe(const graphics::Bitmap& picture);

// The same where only colours count that are brighter, by more than 64 in one channel, than every
// such pixel: what is left of a light ground. Dark edges are mostly shadows and outlines.
bool HasLightFringe(const graphics::Bitmap& picture);

}  // namespace orbelle::filters
