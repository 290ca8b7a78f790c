// The pixel of a pointer that points.
#pragma once

namespace orbelle::formats {

struct Hotspot {
    int X = 0;
    int Y = 0;
    bool operator==(const Hotspot&) const = default;
};

}  // namespace orbelle::formats
