#include "document/compositor.h"

#include <gtest/gtest.h>

#include <random>

#include "document/layer_slots.h"
#include "support/pictures.h"

namespace orbelle::document {
namespace {

using graphics::Bitmap;
using graphics::InterpolationMode;
using graphics::RectI;
using testing::FilledPicture;
using testing::SamePixels;

constexpr auto kNearest = InterpolationMode::NearestNeighbor;

Bitmap Composed(Document& document, InterpolationMode interpolation = kNearest) {
    Compositor compositor;
    graphics::Bitmap canvas;
    compositor.Compose(document, interpolation, canvas);
    return canvas;
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
        const int choice = Below(11);
        if (document.Layers.empty() || choice == 0) {
            AddLayer(document, RandomPicture());
            return;
        }
        IconLayer& layer = document.Layers[static_cast<std::size_t>(Below(document.LayerCount()))];
        if (choice <= 3) {
            layer.Rect.X += static_cast<float>(Below(9) - 4);
        } else if (choice == 4) {
            Stroke(layer);
        } else if (choice == 5) {
            layer.Opacity = static_cast<float>(Below(101)) / 100.0F;
        } else if (choice == 6) {
            layer.Visible = !layer.Visible;
        } else if (choice == 7) {
            std::swap(layer, document.Layers.back());
        } else if (choice == 8) {
            layer.ClipNextLayer = !layer.ClipNextLayer;
        } else if (choice == 9) {
            layer.ImageWidth = 1 + Below(30);
            layer.Rect.Width = static_cast<float>(Below(3) ? layer.ImageWidth : 1 + Below(30));
        } else if (document.LayerCount() > 6) {
            document.Layers.erase(document.Layers.begin() + Below(document.LayerCount()));
        } else {
            document.PageWidth = 10 + Below(20);
        }
    }

private:
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

    // What a tool does: another picture that differs in a box, in several, or nowhere.
    void Stroke(IconLayer& layer) {
        Bitmap picture = layer.Image;
        picture.MutablePixels();
        for (int dots = Below(4); dots > 0; --dots)
            picture.SetPixel(Below(picture.Width()), Below(picture.Height()), random_());
        layer.Image = picture;
        if (Below(8) == 0)
            layer.Rect.X += 1;
    }

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
    for (unsigned seed = 1; seed <= 30; ++seed) {
        const auto interpolation = seed % 3 ? kNearest : InterpolationMode::HighQuality;
        RandomEdits edits(seed);
        Document document = PageOf(24, 20);
        Compositor compositor;
        graphics::Bitmap canvas;
        for (int step = 0; step < 150; ++step) {
            edits.Edit(document);
            compositor.Compose(document, interpolation, canvas);
            ASSERT_TRUE(SamePixels(canvas, Composed(document, interpolation)))
                << "seed " << seed << ", step " << step;
        }
    }
}

TEST(Compositor, RepaintsTheBoxAroundTheDotsThatAToolSet) {
    constexpr graphics::Argb kLayer = 0xFF204060, kDot = 0xFFFFFFFF, kSpoilt = 0xFF00FF00;
    // Where two dots are set in the lower layer, and the box on the page that is painted again.
    const struct {
        std::vector<std::pair<int, int>> Dots;
        RectI Repainted;
    } cases[] = {
        {{{2, 5}, {7, 3}}, {5, 2, 6, 3}},
        {{{0, 0}, {9, 9}}, {3, 0, 10, 9}},  // row 0 lies above the page
        {{{4, 4}}, {7, 3, 1, 1}},
        {{{8, 2}}, {}},  // beyond what is shown of the picture
        {{}, {}},
    };
    for (const auto& test : cases) {
        Document document = PageOf(16, 12);
        AddLayer(document, FilledPicture(10, 10, kLayer));
        AddLayer(document, FilledPicture(16, 12, 0x40FF0000));
        IconLayer& layer = document.Layers[0];
        layer.Rect.X = 3;
        layer.Rect.Y = -1;
        if (test.Repainted.IsEmpty())
            layer.ImageWidth = layer.Rect.Width = 6;
        Compositor compositor;
        graphics::Bitmap canvas;
        compositor.Compose(document, kNearest, canvas);
        canvas = FilledPicture(16, 12, kSpoilt);

        Bitmap drawn = FilledPicture(10, 10, kLayer);
        for (const auto& [x, y] : test.Dots)
            drawn.SetPixel(x, y, kDot);
        layer.Image = drawn;
        compositor.Compose(document, kNearest, canvas);

        const Bitmap whole = Composed(document);
        Bitmap expected = FilledPicture(16, 12, kSpoilt);
        const RectI& box = test.Repainted;
        for (int y = box.Y; y < box.Y + box.Height; ++y)
            for (int x = box.X; x < box.X + box.Width; ++x)
                expected.SetPixel(x, y, *whole.GetPixel(x, y));
        EXPECT_TRUE(SamePixels(canvas, expected)) << box.X << ", " << box.Width;
    }
}

}  // namespace
}  // namespace orbelle::document
