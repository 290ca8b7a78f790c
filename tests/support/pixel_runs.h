// Pictures and regions in a notation that fits on a line.
#pragma once

#include <string>
#include <vector>

#include "graphics/bitmap.h"
#include "graphics/geometry.h"

namespace orbelle {

// The runs of pixels that aren't 0, as "ROW: FIRST-LAST FIRST-LAST; ROW: ...", both ends included;
// rows that are alike are joined: "1: 3; 2-4: 1-5 8". Empty for a blank picture.
inline std::string PixelRuns(const graphics::Bitmap& bitmap) {
    const auto range = [](int first, int last) {
        return first == last ? std::to_string(first)
                             : std::to_string(first) + "-" + std::to_string(last);
    };
    std::vector<std::string> rows(bitmap.Height());
    for (int y = 0; y < bitmap.Height(); ++y) {
        for (int x = 0; x < bitmap.Width(); ++x) {
            const int first = x;
            while (x < bitmap.Width() && bitmap.Row(y)[x] != 0)
                ++x;
            if (x > first)
                rows[y].append(" ").append(range(first, x - 1));
        }
    }
    std::string text;
    for (int y = 0; y < bitmap.Height(); ++y) {
        const int first = y;
        while (y + 1 < bitmap.Height() && rows[y + 1] == rows[first])
            ++y;
        if (!rows[first].empty())
            text.append(text.empty() ? "" : "; ").append(range(first, y) + ":" + rows[first]);
    }
    return text;
}

// The same of rectangles that lie in (0, 0) to (63, 63).
inline std::string PixelRuns(const std::vector<graphics::RectI>& rects) {
    graphics::Bitmap bitmap(64, 64);
    for (const graphics::RectI& rect : rects) {
        for (int y = rect.Y; y < rect.Y + rect.Height; ++y) {
            for (int x = rect.X; x < rect.X + rect.Width; ++x)
                bitmap.SetPixel(x, y, 1);
        }
    }
    return PixelRuns(bitmap);
}

}  // namespace orbelle
