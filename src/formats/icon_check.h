// What is wrong with an icon at the sizes in which it is used.
#pragma once

#include <vector>

#include "document/family.h"
#include "formats/size_pictures.h"
#include "graphics/bitmap.h"
#include "graphics/color.h"

namespace orbelle::formats {

// In the order in which they are told.
enum class Fault {
    Empty,     // no visible pixel
    Contrast,  // filters::OutlineContrast to a ground is below filters::kLeastContrast
    Fringe,    // filters::HasFringe
    Upscaled,  // made from a page with a smaller longer side
    Clipped,   // document::ShowsOutside of the master or of a size's artwork
};

struct Finding {
    int Size = 0;  // of what leaves the program; Clipped: of the page, its longer side
    Fault Kind = Fault::Empty;
    graphics::Argb Ground = 0;  // Contrast: the ground, and the ratio to it
    double Contrast = 0;
    // Contrast and Fringe: the stricter filters::RimContrast and HasLightFringe find it, too. What
    // they do not find is rarely seen by eye; what is shown while somebody draws leaves it out.
    bool IsEvident = true;
    bool operator==(const Finding&) const = default;
};

// Of the picture that the family has for that size.
std::vector<Finding> FindingsAt(int size, const graphics::Bitmap& picture,
                                const document::Family& family);

// Of the pages themselves, whatever is made from them.
std::vector<Finding> FindingsOfPages(const document::Family& family);

// By rising size, then by kind, each once; a size that is Empty has no others.
std::vector<Finding> InOrder(std::vector<Finding> findings);

// All of them, evident or not, at sizes of an icon, and of sets of files where those above the
// master's are enlarged. `flat` is the same family, flattened.
std::vector<Finding> CheckIcon(const document::Family& family, const FlatFamily& flat,
                               const std::vector<int>& iconSizes, const std::vector<int>& setSizes);

}  // namespace orbelle::formats
