#include "document/compositor.h"

#include <gmock/gmock.h>

#include <random>

#include "document/layer_slots.h"
#include "support/pictures.h"
#include "support/pixel_runs.h"
#include "support/random_pictures.h"

namespace orbelle::document {
namespace {

using graphics::Bitmap;
using graphics::InterpolationMode;
using ::testing::ElementsAre;
using testing::FilledPicture;
using testing::SamePixels;

constexpr auto kNearest = InterpolationMode::NearestNeighbor;

Bitmap Composed(Page& page, InterpolationMode interpolation = kNearest) {
    Compositor compositor;
    Bitmap canvas;
    compositor.Compose(page, interpolation, canvas);
    return canvas;
}

IconLayer& AddLayer(Page& page, const Bitmap& image) {
    MakeImageLayer(page, page.Layers.emplace_back(), image);
    return page.Layers.back();
}

Page PageOf(int width, int height) {
    Page page;
    page.Width = width;
    page.Height = height;
    return page;
}

TEST(Compositor, BlendsVisibleLayersFromTheBottomWithTheirOpacity) {
    Page page = PageOf(4, 4);
    AddLayer(page, FilledPicture(4, 4, 0xFF000000));
    AddLayer(page, FilledPicture(2, 2, 0xFFFFFFFF)).Opacity = 0.5F;
    AddLayer(page, FilledPicture(4, 4, 0xFFFF0000)).Visible = false;
    EXPECT_EQ(Composed(page).GetPixel(0, 0), 0xFF000000);
    EXPECT_EQ(Composed(page).GetPixel(1, 1), 0xFF808080);  // 255 x 0.5 is 128 of 255
    page.Layers[1].Rect.X = -1.9F;                         // places are cut toward zero
    EXPECT_EQ(Composed(page).GetPixel(0, 1), 0xFF808080);
    EXPECT_EQ(Composed(page).GetPixel(1, 1), 0xFF000000);

    Page none = PageOf(0, -3);
    EXPECT_TRUE(SamePixels(Composed(none), Bitmap(1, 1)));
    EXPECT_EQ(std::pair(none.Width, none.Height), std::pair(1, 1));
}

TEST(Compositor, APlateCutsAllLayersAboveItAlsoWhenItIsHidden) {
    Page page = PageOf(24, 24);
    for (const graphics::Argb color : {0xFF111111, 0xFF222222, 0xFF333333})
        AddLayer(page, FilledPicture(24, 24, color));
    page.Layers[0].ClipNextLayer = true;
    page.Layers[0].Visible = false;
    const auto pixels = [&](std::initializer_list<std::pair<int, int>> places) {
        const Bitmap picture = Composed(page);
        std::vector<graphics::Argb> found;
        for (const auto& [x, y] : places)
            found.push_back(*picture.GetPixel(x, y));
        return found;
    };
    EXPECT_THAT(pixels({{1, 0}, {2, 0}, {0, 1}, {0, 2}}),
                ElementsAre(0U, 0xFF333333, 0U, 0xFF333333));
    EXPECT_FALSE(page.Layers[0].Path.IsNull());

    // A second plate only narrows.
    page.Layers[1].ClipNextLayer = true;
    page.Layers[1].Rect.X = 12;
    EXPECT_THAT(pixels({{10, 10}, {20, 10}, {23, 1}}), ElementsAre(0U, 0xFF333333, 0U));
}

class RandomEdits {
public:
    explicit RandomEdits(unsigned seed) : random_(seed) {}

    void Edit(Page& page) {
        const int choice = Below(11);
        if (page.Layers.empty() || choice == 0) {
            AddLayer(page, testing::RandomPicture(random_, 1 + Below(30), 1 + Below(30)));
            return;
        }
        IconLayer& layer = page.Layers[static_cast<std::size_t>(Below(page.LayerCount()))];
        if (choice <= 3)
            layer.Rect.X += static_cast<float>(Below(9) - 4);
        else if (choice == 4)
            Stroke(layer);
        else if (choice == 5)
            layer.Opacity = static_cast<float>(Below(101)) / 100.0F;
        else if (choice == 6)
            layer.Visible = !layer.Visible;
        else if (choice == 7)
            std::swap(layer, page.Layers.back());
        else if (choice == 8)
            layer.ClipNextLayer = !layer.ClipNextLayer;
        else if (choice == 9)
            Scale(layer);
        else if (page.LayerCount() > 6)
            page.Layers.erase(page.Layers.begin() + Below(page.LayerCount()));
        else
            page.Width = 10 + Below(20);
    }

private:
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

    void Scale(IconLayer& layer) {
        layer.ImageWidth = 1 + Below(30);
        layer.ImageHeight = 1 + Below(30);
        layer.Rect.Width = static_cast<float>(Below(3) ? layer.ImageWidth : 1 + Below(30));
        layer.Rect.Height = static_cast<float>(Below(3) ? layer.ImageHeight : 1 + Below(30));
    }

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

    std::mt19937 random_;
};

TEST(Compositor, WhatItRemembersNeverShows) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        const auto interpolation = seed % 3 ? kNearest : InterpolationMode::HighQuality;
        RandomEdits edits(seed);
        Page page = PageOf(24, 20);
        Compositor compositor;
        Bitmap canvas;
        for (int step = 0; step < 150; ++step) {
            edits.Edit(page);
            compositor.Compose(page, interpolation, canvas);
            ASSERT_TRUE(SamePixels(canvas, Composed(page, interpolation)))
                << "seed " << seed << ", step " << step;
        }
    }
}

// Enough for all cores, and a strip at a time, which is for one.
TEST(Compositor, ALargePageIsTheSameAsItsStrips) {
    constexpr int kSide = 300, kStrip = 60;
    std::mt19937 random(1);
    Page page = PageOf(kSide, kSide);
    for (int i = 0; i < 60; ++i) {
        AddLayer(page, testing::RandomPicture(random, kSide, kSide));
        page.Layers.back().Opacity = static_cast<float>(i + 30) / 100.0F;
        page.Layers.back().Rect.Y = static_cast<float>(i % 7);
        page.Layers.back().ClipNextLayer = i == 20 || i == 40;
    }
    const Bitmap whole = Composed(page);
    page.Height = kStrip;
    for (int y = 0; y < kSide; y += kStrip) {
        ASSERT_TRUE(SamePixels(Composed(page), whole.CloneArea(0, y, kSide, kStrip))) << y;
        for (IconLayer& layer : page.Layers)
            layer.Rect.Y -= kStrip;
    }
}

TEST(Compositor, RepaintsTheBoxAroundTheDotsThatAToolSet) {
    // Dots in the lower layer, of whose picture so many columns are shown.
    const struct {
        std::vector<std::pair<int, int>> Dots;
        int Columns;
        const char* Repainted;
    } cases[] = {
        {{{2, 5}, {7, 3}}, 10, "2-4: 5-10"},
        {{{0, 0}, {9, 9}}, 10, "0-8: 3-12"},  // row 0 lies above the page
        {{{4, 4}}, 10, "3: 7"},
        {{{8, 2}}, 6, ""},
        {{}, 10, ""},
    };
    for (const auto& [dots, columns, repainted] : cases) {
        Page page = PageOf(16, 12);
        IconLayer layer = AddLayer(page, FilledPicture(10, 10, 0xFF204060));
        AddLayer(page, FilledPicture(16, 12, 0x40FF0000));
        layer.ImageWidth = columns;
        layer.Rect = {3, -1, static_cast<float>(columns), 10};
        page.Layers[0] = layer;
        Compositor compositor;
        Bitmap canvas;
        compositor.Compose(page, kNearest, canvas);
        canvas = Bitmap(16, 12);

        for (const auto& [x, y] : dots)
            layer.Image.SetPixel(x, y, 0xFFFFFFFF);
        layer.Image.MutablePixels();
        page.Layers[0] = layer;
        compositor.Compose(page, kNearest, canvas);
        EXPECT_EQ(PixelRuns(canvas), repainted);
    }
}

}  // namespace
}  // namespace orbelle::document
