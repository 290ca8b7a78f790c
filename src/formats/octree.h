// The colours of a picture, thinned out to 256.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "graphics/color.h"

namespace orbelle::formats {

// A tree with one bit of red, green and blue per level (red the high bit of the child number), so
// that a leaf on level 8 is one exact colour. When a leaf too many appears, the most recently
// made inner node of the deepest level takes in its children, over and over until it fits.
//
// The tree keeps no sums: once a colour was added its way always ends at a leaf, and all pixels
// merged into a leaf are those whose way ends there. So the mean of a palette entry can be taken
// over the pixels that have its index.
//
// Alpha is ignored. Add all colours, then NumberLeaves, then ask.
class Octree {
public:
    static constexpr int kMaxLeaves = 256;

    Octree();

    void AddColor(graphics::Argb color) {
        color |= 0xFF000000;
        const std::uint32_t path = PathOf(color);
        if (covered_[path >> kStartShift])
            return;
        graphics::Argb& seen = seen_[color * 0x9E3779B1U >> kSeenShift];
        if (seen == color)
            return;
        seen = color;
        AddPath(path);
    }

    int LeafCount() const { return leafCount_; }

    // Gives the leaves their palette indexes, depth first, children 0 to 7.
    void NumberLeaves();

    // The palette index of the colour's leaf. A colour that was never added gets that of some leaf
    // or 0.
    std::uint8_t GetPaletteIndex(graphics::Argb color) const {
        const std::uint32_t path = PathOf(color);
        Link node = start_[path >> kStartShift];
        for (int level = kStartLevels; node && !nodes_[node].IsLeaf; ++level)
            node = nodes_[node].Children[ChildNumber(path, level)];
        return node ? nodes_[node].PaletteIndex : IndexOfUnknown(path);
    }

private:
    static constexpr int kLevels = 8;

    // Whatever lies on the first levels is found by a table.
    static constexpr int kStartLevels = 4;
    static constexpr int kStartShift = 3 * (kLevels - kStartLevels);
    static constexpr int kStarts = 1 << 3 * kStartLevels;

    static constexpr int kSeenBits = 11;
    static constexpr int kSeenShift = 32 - kSeenBits;

    // An index into nodes_; 0 means none. 257 leaves on level 8 need at most 2057 nodes.
    using Link = std::uint16_t;
    static constexpr Link kRoot = 1;

    struct Node {
        std::array<Link, 8> Children = {};
        Link Next = 0;  // in the list of reducible or of free nodes
        bool IsLeaf = false;
        std::uint8_t PaletteIndex = 0;
    };

    // The eight child numbers from the root down, three bits each.
    static std::uint32_t PathOf(graphics::Argb color) {
        return kSpread[graphics::RedOf(color)] << 2 | kSpread[graphics::GreenOf(color)] << 1 |
               kSpread[graphics::BlueOf(color)];
    }
    static int ChildNumber(std::uint32_t path, int level) {
        return static_cast<int>(path >> 3 * (kLevels - 1 - level) & 7);
    }

    // Bit i of the index moved to bit 3 i.
    static constexpr auto kSpread = [] {
        std::array<std::uint32_t, 256> spread = {};
        for (unsigned value = 0; value < 256; ++value)
            for (unsigned bit = 0; bit < 8; ++bit)
                spread[value] |= (value >> bit & 1) << 3 * bit;
        return spread;
    }();

    void AddPath(std::uint32_t path);
    int DeepestReducibleLevel() const;
    void ReduceTree();
    Link GetNode();
    void FreeNode(Link index);
    void NumberLeaves(Link index, int level, std::uint32_t path, int& counter);
    std::uint8_t IndexOfUnknown(std::uint32_t path) const;

    std::vector<Node> nodes_;
    Link freeList_ = 0;
    // Per level, the root's being 0, its inner nodes, the most recently made first; never the root.
    std::array<Link, kLevels> reducible_ = {};
    int leafCount_ = 0;

    // Some of what is known to end at a leaf: starts of ways, and colours by hash. This never
    // becomes untrue, for leaves only grow.
    std::array<bool, kStarts> covered_ = {};
    std::array<graphics::Argb, 1 << kSeenBits> seen_ = {};

    // The node where a way is after its first levels, or the leaf where it ended before. Set by
    // NumberLeaves.
    std::array<Link, kStarts> start_ = {};
};

}  // namespace orbelle::formats
