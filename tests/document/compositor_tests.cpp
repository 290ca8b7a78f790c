#include "document/compositor.h"

#include <gtest/gtest.h>

#include <random>

#include "document/layer_slots.h"
#include "support/pictures.h"

namespace orbelle::document {
namespace {

using graphics::Bitmap;
using graphics::InterpolationMode;
using testing::FilledPicture;
using testing::SamePixels;

constexpr auto kNearest = InterpolationMode::NearestNeighbor;

Bitmap Composed(Document& document) {
    Compositor compositor;
    graphics::DIBSave canvas;
    compositor.Compose(document, kNearest, canvas);
    return canvas.new_Img;
}

void AddLayer(Document& document, const Bitmap& image) {
    MakeImageLayer(document, document.Layers.emplace_back(), image);
}

Document PageOf(int width, int height) {
    Document document;
    document.PageWidth = width;
    document.PageHeight = height;
    return document;
}

TEST(Compositor, APageWithoutSizeBecomesOnePixel) {
    Document document = PageOf(0, -3);
    const Bitmap page = Composed(document);
    EXPECT_EQ(page.Width(), 1);
    EXPECT_EQ(page.Height(), 1);
    EXPECT_EQ(document.PageWidth, 1);
    EXPECT_EQ(document.PageHeight, 1);
}

TEST(Compositor, BlendsVisibleLayersFromTheBottomWithTheirOpacity) {
    Document document = PageOf(4, 4);
    AddLayer(document, FilledPicture(4, 4, 0xFF000000));
    AddLayer(document, FilledPicture(2, 2, 0xFFFFFFFF));
    document.Layers[1].Opacity = 0.5F;
    AddLayer(document, FilledPicture(4, 4, 0xFFFF0000));
    document.Layers[2].Visible = false;
    const Bitmap page = Composed(document);
    EXPECT_EQ(page.GetPixel(0, 0), 0xFF000000);
    EXPECT_EQ(page.GetPixel(1, 1), 0xFF808080);  // 255 x 0.5 is 128 of 255
    document.Layers[1].Rect.X = -1.9F;           // places are cut toward zero
    EXPECT_EQ(Composed(document).GetPixel(0, 1), 0xFF808080);
    EXPECT_EQ(Composed(document).GetPixel(1, 1), 0xFF000000);
}

TEST(Compositor, APlateCutsAllLayersAboveItAlsoWhenItIsHidden) {
    Document document = PageOf(24, 24);
    AddLayer(document, FilledPicture(24, 24, 0xFF111111));
    document.Layers[0].ClipNextLayer = true;
    document.Layers[0].Visible = false;
    AddLayer(document, FilledPicture(24, 24, 0xFF222222));
    AddLayer(document, FilledPicture(24, 24, 0xFF333333));
    const Bitmap page = Composed(document);
    EXPECT_EQ(page.GetPixel(1, 0), 0U);
    EXPECT_EQ(page.GetPixel(2, 0), 0xFF333333);
    EXPECT_EQ(page.GetPixel(0, 1), 0U);
    EXPECT_EQ(page.GetPixel(0, 2), 0xFF333333);
    EXPECT_FALSE(document.Layers[0].Path.IsNull());

    // A second plate only narrows.
    document.Layers[1].ClipNextLayer = true;
    document.Layers[1].Rect.X = 12;
    const Bitmap narrowed = Composed(document);
    EXPECT_EQ(narrowed.GetPixel(10, 10), 0U);
    EXPECT_EQ(narrowed.GetPixel(20, 10), 0xFF333333);
    EXPECT_EQ(narrowed.GetPixel(23, 1), 0U);
}

class RandomEdits {
public:
    explicit RandomEdits(unsigned seed) : random_(seed) {}

    void Edit(Document& document) {
        const int choice = Below(10);
        if (document.Layers.empty() || choice == 0) {
            AddLayer(document, RandomPicture());
            return;
        }
        IconLayer& layer = document.Layers[static_cast<std::size_t>(Below(document.LayerCount()))];
        if (choice <= 3) {
            layer.Rect.X += static_cast<float>(Below(9) - 4);
        } else if (choice == 4) {
            layer.Image.SetPixel(Below(8), Below(8), random_());
        } else if (choice == 5) {
            layer.Opacity = static_cast<float>(Below(101)) / 100.0F;
        } else if (choice == 6) {
            layer.Visible = !layer.Visible;
        } else if (choice == 7) {
            std::swap(layer, document.Layers.back());
        } else if (choice == 8) {
            layer.ClipNextLayer = !layer.ClipNextLayer;
        } else if (document.LayerCount() > 6) {
            document.Layers.erase(document.Layers.begin() + Below(document.LayerCount()));
        } else {
            document.PageWidth = 10 + Below(20);
        }
    }

private:
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

    Bitmap RandomPicture() {
        Bitmap picture(1 + Below(30), 1 + Below(30));
        for (int y = 0; y < picture.Height(); ++y)
            for (int x = 0; x < picture.Width(); ++x)
                picture.SetPixel(x, y, Below(3) ? random_() : 0);
        return picture;
    }

    std::mt19937 random_;
};

TEST(Compositor, WhatItRemembersNeverShows) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        RandomEdits edits(seed);
        Document document = PageOf(24, 20);
        Compositor compositor;
        graphics::DIBSave canvas;
        for (int step = 0; step < 150; ++step) {
            edits.Edit(document);
            compositor.Compose(document, kNearest, canvas);
            ASSERT_TRUE(SamePixels(canvas.new_Img, Composed(document)))
                << "seed " << seed << ", step " << step;
        }
    }
}

}  // namespace
}  // namespace orbelle::document
