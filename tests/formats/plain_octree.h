// The palette and the indexes by the plainest form of the octree: a record per node with its sums,
// recursion, no memory of earlier colours.
#pragma once

#include <cstdint>
#include <vector>

#include "graphics/bitmap.h"

namespace orbelle::formats {

class PlainOctree {
public:
    explicit PlainOctree(const graphics::Bitmap& image);

    int GetPaletteIndex(graphics::Argb color) const;

    std::vector<graphics::Argb> Palette;
    int Reductions = 0;

private:
    struct Node {
        bool IsLeaf = false;
        bool InReducibleList = false;
        std::int64_t Count = 0, SumBlue = 0, SumGreen = 0, SumRed = 0;
        int Children[8] = {};
        int Next = 0;
        int PaletteIndex = 0;
    };

    static int ChildOf(graphics::Argb color, int level);
    int GetNode();
    void FreeNode(int index);
    void AddColor(int node, int level, graphics::Argb color);
    bool ReduceTree();
    void BuildPalette(int node);

    std::vector<Node> nodes_ = std::vector<Node>(1025);
    int nodeCount_ = 1;
    int freeList_ = 0;
    int reducible_[8] = {};
    int leafCount_ = 0;
};

}  // namespace orbelle::formats
