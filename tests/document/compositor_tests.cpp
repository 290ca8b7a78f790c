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

Bitmap Composed(Page& page, InterpolationMode interpolation = kNearest) {
    Compositor compositor;
    graphics::Bitmap canvas;
    compositor.Compose(page, interpolation, canvas);
    return canvas;
}

void AddLayer(Page& page, const Bitmap& image) {
    MakeImageLayer(page, page.Layers.emplace_back(), image);
}

Page PageOf(int width, int height) {
    Page page;
    page.Width = width;
    page.Height = height;
    return page;
}

TEST(Compositor, APageWithoutSizeBecomesOnePixel) {
    Page page = PageOf(0, -3);
    const Bitmap picture = Composed(page);
    EXPECT_EQ(picture.Width(), 1);
    EXPECT_EQ(picture.Height(), 1);
    EXPECT_EQ(page.Width, 1);
    EXPECT_EQ(page.Height, 1);
}

TEST(Compositor, BlendsVisibleLayersFromTheBottomWithTheirOpacity) {
    Page page = PageOf(4, 4);
    AddLayer(page, FilledPicture(4, 4, 0xFF000000));
    AddLayer(page, FilledPicture(2, 2, 0xFFFFFFFF));
    page.Layers[1].Opacity = 0.5F;
    AddLayer(page, FilledPicture(4, 4, 0xFFFF0000));
    page.Layers[2].Visible = false;
    const Bitmap picture = Composed(page);
    EXPECT_EQ(picture.GetPixel(0, 0), 0xFF000000);
    EXPECT_EQ(picture.GetPixel(1, 1), 0xFF808080);  // 255 x 0.5 is 128 of 255
    page.Layers[1].Rect.X = -1.9F;                  // places are cut toward zero
    EXPECT_EQ(Composed(page).GetPixel(0, 1), 0xFF808080);
    EXPECT_EQ(Composed(page).GetPixel(1, 1), 0xFF000000);
}

TEST(Compositor, APlateCutsAllLayersAboveItAlsoWhenItIsHidden) {
    Page page = PageOf(24, 24);
    AddLayer(page, FilledPicture(24, 24, 0xFF111111));
    page.Layers[0].ClipNextLayer = true;
    page.Layers[0].Visible = false;
    AddLayer(page, FilledPicture(24, 24, 0xFF222222));
    AddLayer(page, FilledPicture(24, 24, 0xFF333333));
    const Bitmap picture = Composed(page);
    EXPECT_EQ(picture.GetPixel(1, 0), 0U);
    EXPECT_EQ(picture.GetPixel(2, 0), 0xFF333333);
    EXPECT_EQ(picture.GetPixel(0, 1), 0U);
    EXPECT_EQ(picture.GetPixel(0, 2), 0xFF333333);
    EXPECT_FALSE(page.Layers[0].Path.IsNull());

    // A second plate only narrows.
    page.Layers[1].ClipNextLayer = true;
    page.Layers[1].Rect.X = 12;
    const Bitmap narrowed = Composed(page);
    EXPECT_EQ(narrowed.GetPixel(10, 10), 0U);
    EXPECT_EQ(narrowed.GetPixel(20, 10), 0xFF333333);
    EXPECT_EQ(narrowed.GetPixel(23, 1), 0U);
}

class RandomEdits {
public:
    explicit RandomEdits(unsigned seed) : random_(seed) {}

    void Edit(Page& page) {
        const int choice = Below(11);
        if (page.Layers.empty() || choice == 0) {
            AddLayer(page, RandomPicture());
            return;
        }
        IconLayer& layer = page.Layers[static_cast<std::size_t>(Below(page.LayerCount()))];
        if (choice <= 3) {
            layer.Rect.X += static_cast<float>(Below(9) - 4);
        } else if (choice == 4) {
            Stroke(layer);
        } else if (choice == 5) {
            layer.Opacity = static_cast<float>(Below(101)) / 100.0F;
        } else if (choice == 6) {
            layer.Visible = !layer.Visible;
        } else if (choice == 7) {
            std::swap(layer, page.Layers.back());
        } else if (choice == 8) {
            layer.ClipNextLayer = !layer.ClipNextLayer;
        } else if (choice == 9) {
            layer.ImageWidth = 1 + Below(30);
            layer.ImageHeight = 1 + Below(30);
            layer.Rect.Width = static_cast<float>(Below(3) ? layer.ImageWidth : 1 + Below(30));
            layer.Rect.Height = static_cast<float>(Below(3) ? layer.ImageHeight : 1 + Below(30));
        } else if (page.LayerCount() > 6) {
            page.Layers.erase(page.Layers.begin() + Below(page.LayerCount()));
        } else {
            page.Width = 10 + Below(20);
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
        Page page = PageOf(24, 20);
        Compositor compositor;
        graphics::Bitmap canvas;
        for (int step = 0; step < 150; ++step) {
            edits.Edit(page);
            compositor.Compose(page, interpolation, canvas);
            ASSERT_TRUE(SamePixels(canvas, Composed(page, interpolation)))
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
        Page page = PageOf(16, 12);
        AddLayer(page, FilledPicture(10, 10, kLayer));
        AddLayer(page, FilledPicture(16, 12, 0x40FF0000));
        IconLayer& layer = page.Layers[0];
        layer.Rect.X = 3;
        layer.Rect.Y = -1;
        if (test.Repainted.IsEmpty())
            layer.ImageWidth = layer.Rect.Width = 6;
        Compositor compositor;
        graphics::Bitmap canvas;
        compositor.Compose(page, kNearest, canvas);
        canvas = FilledPicture(16, 12, kSpoilt);

        Bitmap drawn = FilledPicture(10, 10, kLayer);
        for (const auto& [x, y] : test.Dots)
            drawn.SetPixel(x, y, kDot);
        layer.Image = drawn;
        compositor.Compose(page, kNearest, canvas);

        const Bitmap whole = Composed(page);
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
