// What a page cuts off.
#pragma once

#include "document/page.h"

namespace orbelle::document {

// Whether a visible layer has pixels outside the page that would show on a larger one: those of an
// alpha that its opacity leaves, as far as no plate cuts them away (of which the box counts, not
// the rounding of its corners). Linear in the pixels, whatever the layers' places.
bool ShowsOutside(const Page& page);

}  // namespace orbelle::document
