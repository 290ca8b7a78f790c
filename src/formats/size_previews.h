// What an icon looks like at its sizes, while it is being edited.
#pragma once

#include <optional>
#include <vector>

#include "document/family.h"
#include "formats/icon_check.h"
#include "graphics/bitmap.h"

namespace orbelle::formats {

struct SizePreview {
    int Size = 0;
    graphics::Bitmap Picture;  // as an export would hold it
    std::vector<Finding> Findings;
};

// What CheckIcon finds, and is evident, at those of the sizes that have a preview.
std::vector<Finding> EvidentFindings(const std::vector<SizePreview>& previews,
                                     const std::vector<int>& sizes, const document::Family& family);

// Keeps what it made last, so that a change of a page costs only the pictures that come from it:
// those of the master, or the one of a size that has artwork of its own.
class SizePreviews {
public:
    // In the order of `sizes`. `current` is the page in force, flattened.
    std::vector<SizePreview> Make(const document::Family& family, const graphics::Bitmap& current,
                                  const std::vector<int>& sizes);

private:
    struct Made {
        std::optional<document::Page> Artwork;  // that it was made from; none: the master
        SizePreview Preview;
    };
    const Made* Find(int size, const document::Page* artwork) const;

    document::Page master_;
    std::vector<Made> made_;
};

}  // namespace orbelle::formats
