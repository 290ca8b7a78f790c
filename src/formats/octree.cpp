#include "formats/octree.h"

#include <algorithm>

namespace orbelle::formats {

Octree::Octree() : nodes_(kRoot + 1) {}

void Octree::AddPath(std::uint32_t path) {
    Link node = kRoot;
    int level = 0;
    while (const Link child = nodes_[node].Children[ChildNumber(path, level)]) {
        node = child;
        ++level;
        if (nodes_[node].IsLeaf) {
            if (level <= kStartLevels)
                covered_[path >> kStartShift] = true;
            return;
        }
    }
    // In a full tree all that would be made below the deepest reducible level would be the first to
    // be taken back, one child at a time.
    const int leafLevel =
        leafCount_ < kMaxLeaves ? kLevels : std::max(level + 1, DeepestReducibleLevel());
    for (; level < leafLevel; ++level) {
        const Link child = GetNode();
        nodes_[node].Children[ChildNumber(path, level)] = child;
        if (level + 1 < leafLevel) {
            nodes_[child].Next = reducible_[level + 1];
            reducible_[level + 1] = child;
        }
        node = child;
    }
    nodes_[node].IsLeaf = true;
    ++leafCount_;
    while (leafCount_ > kMaxLeaves)
        ReduceTree();
}

// With more leaves than the root has children there always is one.
int Octree::DeepestReducibleLevel() const {
    int level = kLevels - 1;
    while (reducible_[level] == 0)
        --level;
    return level;
}

void Octree::ReduceTree() {
    Link& head = reducible_[DeepestReducibleLevel()];
    Node& node = nodes_[head];
    head = node.Next;
    for (Link& child : node.Children) {
        if (child) {
            FreeNode(child);
            child = 0;
            --leafCount_;
        }
    }
    node.IsLeaf = true;
    ++leafCount_;
}

Octree::Link Octree::GetNode() {
    if (freeList_ == 0) {
        nodes_.emplace_back();
        return static_cast<Link>(nodes_.size() - 1);
    }
    const Link index = freeList_;
    freeList_ = nodes_[index].Next;
    nodes_[index] = {};
    return index;
}

void Octree::FreeNode(Link index) {
    nodes_[index].Next = freeList_;
    freeList_ = index;
}

void Octree::NumberLeaves() {
    int counter = 0;
    NumberLeaves(kRoot, 0, 0, counter);
}

// `path` holds the child numbers of the way to the node and zeros behind them.
void Octree::NumberLeaves(Link index, int level, std::uint32_t path, int& counter) {
    Node& node = nodes_[index];
    if (level == kStartLevels || (level < kStartLevels && node.IsLeaf))
        std::fill_n(&start_[path >> kStartShift], 1 << 3 * (kStartLevels - level), index);
    if (node.IsLeaf) {
        node.PaletteIndex = static_cast<std::uint8_t>(counter++);
        return;
    }
    for (unsigned number = 0; number < 8; ++number) {
        if (node.Children[number])
            NumberLeaves(node.Children[number], level + 1,
                         path | number << 3 * (kLevels - 1 - level), counter);
    }
}

// Where the way has no node it goes on with the next child there is. The search does not begin anew
// on the next level, and never takes the last child (docs/oddities.md, "Colours unknown to a GIF").
std::uint8_t Octree::IndexOfUnknown(std::uint32_t path) const {
    constexpr std::size_t kLastChild = 7;
    Link node = kRoot;
    std::size_t scan = 0;
    for (int level = 0; !nodes_[node].IsLeaf; ++level) {
        const auto& children = nodes_[node].Children;
        Link child = children[ChildNumber(path, level)];
        if (!child) {
            while (scan < kLastChild && !children[scan])
                ++scan;
            if (scan == kLastChild)
                return 0;
            child = children[scan];
        }
        node = child;
    }
    return nodes_[node].PaletteIndex;
}

}  // namespace orbelle::formats
