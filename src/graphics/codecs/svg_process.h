// What is agreed with orbelle-svg (entry/svg_main.cpp), which draws SVG documents in a process of
// its own: there a document that takes forever can be ended.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace orbelle::graphics {

// Of the processor; what waits for something else is ended after a while as well.
inline constexpr int kMaxSvgSeconds = 5;

// What comes back first. Width x Height pixels follow, row by row, 32-bit premultiplied alpha.
struct SvgReply {
    std::int32_t OwnWidth = 0;  // as the document has it, rounded
    std::int32_t OwnHeight = 0;
    std::int32_t Width = 0;  // as it was drawn; 0 when only the size was asked for
    std::int32_t Height = 0;
};

struct DrawnSvg {
    SvgReply Reply;
    std::vector<std::uint32_t> Pixels;
};

// Throws ImageError when the document can't be drawn, or not within the limits.
DrawnSvg DrawSvgElsewhere(std::span<const std::uint8_t> document, int side);

}  // namespace orbelle::graphics
