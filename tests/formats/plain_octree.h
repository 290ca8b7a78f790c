// The palette and the indexes by the plainest form of the octree: nodes that own their children,
// sums in the leaves, no memory of earlier colours.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <ranges>
#include <vector>

#include "graphics/bitmap.h"

namespace orbelle::formats {

class PlainOctree {
public:
    explicit PlainOctree(const graphics::Bitmap& image) {
        for (int y = image.Height() - 1; y >= 0; --y) {
            for (int x = image.Width() - 1; x >= 0; --x) {
                Add(*image.GetPixel(x, y));
                while (leafCount_ > 256)
                    ReduceTree();
            }
        }
        BuildPalette(root_);
    }

    int GetPaletteIndex(graphics::Argb color) const {
        const Node* node = &root_;
        std::size_t scan = 0;
        for (int level = 0; !node->IsLeaf; ++level) {
            const Node* child = node->Children[ChildOf(color, level)].get();
            while (!child) {
                if (node->Children[scan])
                    child = node->Children[scan].get();
                else if (++scan == 7)
                    return 0;
            }
            node = child;
        }
        return node->PaletteIndex;
    }

    std::vector<graphics::Argb> Palette;
    int Reductions = 0;

private:
    struct Node {
        std::array<std::unique_ptr<Node>, 8> Children;
        bool IsLeaf = false;
        std::array<std::int64_t, 4> Sums = {};  // of pixels, red, green and blue
        int PaletteIndex = 0;
    };

    static std::size_t ChildOf(graphics::Argb color, int level) {
        const auto bit = [level](unsigned channel) { return channel >> (7 - level) & 1; };
        return bit(graphics::RedOf(color)) * 4 + bit(graphics::GreenOf(color)) * 2 +
               bit(graphics::BlueOf(color));
    }

    void Add(graphics::Argb color) {
        Node* node = &root_;
        for (int level = 0; !node->IsLeaf; ++level) {
            std::unique_ptr<Node>& child = node->Children[ChildOf(color, level)];
            if (!child) {
                child = std::make_unique<Node>();
                child->IsLeaf = level == 7;
                if (child->IsLeaf)
                    ++leafCount_;
                else
                    reducible_[level].push_back(child.get());
            }
            node = child.get();
        }
        const unsigned parts[] = {1, graphics::RedOf(color), graphics::GreenOf(color),
                                  graphics::BlueOf(color)};
        for (std::size_t i = 0; i < 4; ++i)
            node->Sums[i] += parts[i];
    }

    // The deepest inner node that was made last swallows its children.
    void ReduceTree() {
        auto& deepest = *std::ranges::find_if(std::views::reverse(reducible_),
                                              [](const auto& nodes) { return !nodes.empty(); });
        Node& node = *deepest.back();
        deepest.pop_back();
        for (std::unique_ptr<Node>& child : node.Children) {
            if (!child)
                continue;
            for (std::size_t i = 0; i < 4; ++i)
                node.Sums[i] += child->Sums[i];
            child.reset();
            --leafCount_;
        }
        node.IsLeaf = true;
        ++leafCount_;
        ++Reductions;
    }

    void BuildPalette(Node& node) {
        if (node.IsLeaf) {
            const auto mean = [&](int i) {
                return static_cast<unsigned>(node.Sums[i] / node.Sums[0]);
            };
            node.PaletteIndex = static_cast<int>(Palette.size());
            Palette.push_back(graphics::MakeArgb(255, mean(1), mean(2), mean(3)));
        }
        for (const std::unique_ptr<Node>& child : node.Children)
            if (child)
                BuildPalette(*child);
    }

    Node root_;
    std::array<std::vector<Node*>, 7> reducible_;
    int leafCount_ = 0;
};

}  // namespace orbelle::formats
