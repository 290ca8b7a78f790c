// Colours by a profile of tables.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "graphics/color.h"

namespace orbelle::graphics {

class TableColors {
public:
    // A transform of the library that takes a pixel's four bytes and gives those of another. Where
    // it `isSlow` what was seen is kept, for pictures repeat their colours: not for two threads at
    // a time.
    TableColors(std::shared_ptr<void> transform, bool isSlow);

    // Alpha stays; where it is a channel of the file (`isPaper`) it counts and becomes 255.
    void Convert(Argb* pixels, std::int64_t count, bool isPaper);

private:
    struct Known {
        Argb From;
        Argb To;
    };

    Argb Transformed(Argb pixel) const;

    std::shared_ptr<void> transform_;
    std::vector<Known> known_;  // none: the transform is fast
};

}  // namespace orbelle::graphics
