#include "formats/plain_octree.h"

namespace orbelle::formats {

using graphics::Argb;

PlainOctree::PlainOctree(const graphics::Bitmap& image) {
    for (int y = image.Height() - 1; y >= 0; --y) {
        for (int x = image.Width() - 1; x >= 0; --x) {
            AddColor(1, 1, *image.GetPixel(x, y));
            while (leafCount_ > 256)
                if (!ReduceTree())
                    break;
        }
    }
    BuildPalette(1);
}

int PlainOctree::ChildOf(Argb color, int level) {
    const unsigned mask = 128U >> (level - 1);
    return ((graphics::RedOf(color) & mask) != 0 ? 4 : 0) +
           ((graphics::GreenOf(color) & mask) != 0 ? 2 : 0) +
           ((graphics::BlueOf(color) & mask) != 0 ? 1 : 0);
}

int PlainOctree::GetNode() {
    ++nodeCount_;
    if (freeList_ != 0) {
        const int index = freeList_;
        freeList_ = nodes_[index].Next;
        for (int& child : nodes_[index].Children)
            child = 0;
        return index;
    }
    if (nodeCount_ % 1024 == 0)
        nodes_.resize(nodes_.size() + 1024);
    return nodeCount_;
}

void PlainOctree::FreeNode(int index) {
    nodes_[index].Next = freeList_;
    freeList_ = index;
    nodes_[index].IsLeaf = nodes_[index].InReducibleList = false;
    --nodeCount_;
}

void PlainOctree::AddColor(int node, int level, Argb color) {
    const int number = ChildOf(color, level);
    int child = nodes_[node].Children[number];
    if (child == 0) {
        child = GetNode();
        nodes_[node].Children[number] = child;
        ++nodes_[node].Count;
        Node& made = nodes_[child];
        made.IsLeaf = level == 8;
        made.Count = made.SumBlue = made.SumGreen = made.SumRed = 0;
        made.Next = 0;
    }
    Node& below = nodes_[child];
    if (below.IsLeaf) {
        if (below.Count == 0)
            ++leafCount_;
        ++below.Count;
        below.SumBlue += graphics::BlueOf(color);
        below.SumGreen += graphics::GreenOf(color);
        below.SumRed += graphics::RedOf(color);
        return;
    }
    if (!below.InReducibleList) {
        below.Next = reducible_[level - 1];
        reducible_[level - 1] = child;
        below.InReducibleList = true;
    }
    AddColor(child, level + 1, color);
}

bool PlainOctree::ReduceTree() {
    int i = 8;
    while (i > 0 && reducible_[i - 1] == 0)
        --i;
    if (i == 0)
        return false;
    ++Reductions;
    Node& node = nodes_[reducible_[i - 1]];
    reducible_[i - 1] = node.Next;
    Node total;
    int children = 0;
    for (int& child : node.Children) {
        if (child == 0)
            continue;
        total.Count += nodes_[child].Count;
        total.SumBlue += nodes_[child].SumBlue;
        total.SumGreen += nodes_[child].SumGreen;
        total.SumRed += nodes_[child].SumRed;
        ++children;
        FreeNode(child);
        child = 0;
    }
    leafCount_ -= children - 1;
    node.IsLeaf = true;
    node.Count = total.Count;
    node.SumBlue = total.SumBlue;
    node.SumGreen = total.SumGreen;
    node.SumRed = total.SumRed;
    return true;
}

void PlainOctree::BuildPalette(int index) {
    Node& node = nodes_[index];
    if (!node.IsLeaf) {
        for (int child : node.Children)
            if (child != 0)
                BuildPalette(child);
        return;
    }
    node.PaletteIndex = static_cast<int>(Palette.size());
    Palette.push_back(graphics::MakeARGB(255, static_cast<unsigned>(node.SumRed / node.Count),
                                         static_cast<unsigned>(node.SumGreen / node.Count),
                                         static_cast<unsigned>(node.SumBlue / node.Count)));
}

int PlainOctree::GetPaletteIndex(Argb color) const {
    int node = 1;
    int scan = 0;
    for (int level = 1;; ++level) {
        const int child = nodes_[node].Children[ChildOf(color, level)];
        if (child != 0) {
            node = child;
        } else {
            while (nodes_[node].Children[scan] == 0) {
                if (++scan >= 7)
                    return 0;
            }
            node = nodes_[node].Children[scan];
        }
        if (nodes_[node].IsLeaf)
            return nodes_[node].PaletteIndex;
    }
}

}  // namespace orbelle::formats
