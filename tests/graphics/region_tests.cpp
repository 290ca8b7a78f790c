#include "graphics/region.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <random>

#include "support/pixel_runs.h"
#include "support/shapes.h"

namespace orbelle::graphics {
namespace {

constexpr RectI kWindow{0, 0, 20, 20};

Region Ellipse(const RectF& box) {
    return Region::FromPath(testing::EllipsePath(box));
}

Region Rectangle(const RectF& rect) {
    return Region::FromPath(testing::RectanglePath(rect));
}

std::string Runs(const Region& region) {
    return PixelRuns(region.Rects(kWindow));
}

TEST(Region, InfiniteEmptyAndNone) {
    Region infinite = Region::Infinite();
    EXPECT_TRUE(infinite.IsVisiblePoint(1e20f, -1e20f));
    infinite.Translate(1000, 1000);
    EXPECT_EQ(infinite.Bounds(), (RectF{-4194304, -4194304, 8388608, 8388608}));
    infinite.CombineRect({2, 2, 3, 1}, CombineMode::Exclude);
    EXPECT_EQ(PixelRuns(infinite.Rects({1, 1, 6, 3})), "1: 1-6; 2: 1 5-6; 3: 1-6");

    Region none = Region::FromPath(Path());
    for (const Region& nothing : {Region::Empty(), none}) {
        EXPECT_TRUE(nothing.IsEmpty());
        EXPECT_EQ(nothing.Bounds(), RectF());
        EXPECT_TRUE(nothing.Rects().empty());
        EXPECT_FALSE(nothing.IsVisiblePoint(0, 0));
    }
    EXPECT_FALSE(Region::Empty().IsNull());
    none.CombineRect({1, 1, 2, 2}, CombineMode::Union);
    none.Translate(1, 1);
    EXPECT_TRUE(none.IsNull());
    none.CombineRect({1, 1, 2, 2}, CombineMode::Replace);
    none.Combine(Region(), CombineMode::Replace);
    none.Combine(Region(), CombineMode::Exclude);
    EXPECT_EQ(Runs(none), "1-2: 1-2");
}

TEST(Region, AnEmptySideLeavesTheOthersOwnBounds) {
    const RectF fractional{1.25f, 1.5f, 4, 3};
    const struct {
        CombineMode Mode;
        RectF WithNothing, OfNothing;
    } cases[] = {{CombineMode::Union, fractional, fractional},
                 {CombineMode::Xor, fractional, fractional},
                 {CombineMode::Exclude, fractional, {}},
                 {CombineMode::Intersect, {}, {}}};
    for (const auto& [mode, withNothing, ofNothing] : cases) {
        for (const RectF& nothing : {RectF{1, 1, 0, 5}, {1, 1, 5, -1}, {NAN, 1, 2, 2}}) {
            Region full = Region::FromRect(fractional), empty = Region::FromRect(nothing);
            full.CombineRect(nothing, mode);
            EXPECT_EQ(full.Bounds(), withNothing);
            empty.CombineRect(fractional, mode);
            EXPECT_EQ(empty.Bounds(), ofNothing);
        }
    }
}

TEST(Region, BoundsAreAShapesOwnAndAPixelBoxForCombinations) {
    EXPECT_EQ(Ellipse({1.5f, 2.5f, 10, 8}).Bounds(), (RectF{1.5f, 2.5f, 10, 8}));
    EXPECT_EQ(Region::FromPixelRects({{1, 1, 4, 3}, {2, 6, 1, 1}}).Bounds(), (RectF{1, 1, 4, 6}));
    Region both = Region::FromRect({1.25f, 1.5f, 4, 3});
    both.CombineRect({8, 9, 1.5f, 1}, CombineMode::Union);
    EXPECT_EQ(both.Bounds(), (RectF{2, 2, 8, 8}));
    both.CombineRect({30, 30, 1, 1}, CombineMode::Intersect);
    EXPECT_EQ(both.Bounds(), RectF());
}

TEST(Region, PointsAreRoundedFirst) {
    const Region region = Region::FromRect({10, 10, 30, 30});
    for (float inside : {9.5f, 10.f, 39.f, 39.49f})
        EXPECT_TRUE(region.IsVisiblePoint(inside, 20)) << inside;
    for (float outside : {9.25f, 39.5f, 40.f, 1e30f, -1e30f, NAN})
        EXPECT_FALSE(region.IsVisiblePoint(20, outside)) << outside;
}

TEST(Region, GeometryMovesAndScalesWithoutRounding) {
    Region rectangle = Region::FromRect({1, 1, 4, 3});
    rectangle.Transform({.ScaleX = 3, .ScaleY = 3, .OffsetX = 10, .OffsetY = 20});
    EXPECT_EQ(rectangle.Bounds(), (RectF{13, 23, 12, 9}));
    EXPECT_EQ(rectangle.Rects(), (std::vector<RectI>{{13, 23, 12, 9}}));

    // Sixteen steps of an eighth are two pixels, not none.
    Region moved = Ellipse({1, 1, 4, 4});
    moved.CombineRect({8, 1, 2, 2}, CombineMode::Union);
    EXPECT_EQ(Runs(moved), "1: 8-9; 2: 2-4 8-9; 3: 1-4; 4: 2-4");
    for (int i = 0; i < 16; ++i)
        moved.Translate(0.125f, 0);
    EXPECT_EQ(Runs(moved), "1: 10-11; 2: 4-6 10-11; 3: 3-6; 4: 4-6");

    // Zoomed in and out again an ellipse is the same, and in between it is smooth.
    Region zoomed = Ellipse({1, 1, 4, 4});
    zoomed.Transform({.ScaleX = 0.1, .ScaleY = 0.1});
    zoomed.Transform({.ScaleX = 20, .ScaleY = 20});
    EXPECT_EQ(Runs(zoomed), Runs(Ellipse({2, 2, 8, 8})));
    zoomed.Transform({.ScaleX = 0.5, .ScaleY = 0.5});
    EXPECT_EQ(Runs(zoomed), Runs(Ellipse({1, 1, 4, 4})));
}

TEST(Region, PixelsMoveByWholeNumbersAndScaleAsRectangles) {
    const Region step = Region::FromPixelRects({{1, 1, 2, 1}, {2, 2, 2, 1}});
    Region region = step;
    region.Translate(3, -1);
    EXPECT_EQ(Runs(region), "0: 4-5; 1: 5-6");
    for (float by : {0.25f, 0.25f, -0.5f})
        region.Translate(by, by);
    EXPECT_EQ(Runs(region), "0: 4-5; 1: 5-6");
    Region scaled = step;
    scaled.Transform({.ScaleX = 3, .ScaleY = 2});
    EXPECT_EQ(Runs(scaled), "2-3: 3-8; 4-5: 6-11");
    scaled.Transform({.ScaleX = 0.5, .ScaleY = 0.5});
    EXPECT_EQ(Runs(scaled), "1: 2-4; 2: 3-5");
    Region mirrored = step;
    mirrored.Transform({.ScaleX = -1, .ScaleY = 1, .OffsetX = 10});
    EXPECT_EQ(Runs(mirrored), "1: 7-8; 2: 6-7");
}

TEST(Region, RectanglesComeByRowsAndAreJoinedDownwards) {
    const Region region = Region::FromPixelRects(
        {{5, 3, 2, 1}, {1, 1, 2, 1}, {1, 2, 2, 1}, {1, 3, 2, 1}, {8, 8, 0, 4}});
    EXPECT_EQ(region.Rects(), (std::vector<RectI>{{1, 1, 2, 2}, {1, 3, 2, 1}, {5, 3, 2, 1}}));
    EXPECT_EQ(region.Rects({2, 2, 4, 9}),
              (std::vector<RectI>{{2, 2, 1, 1}, {2, 3, 1, 1}, {5, 3, 1, 1}}));
    EXPECT_TRUE(region.Rects({2, 2, 0, 9}).empty());
}

std::vector<bool> WindowPixels(const Region& region, const RectI& within = kWindow) {
    std::vector<bool> pixels(kWindow.Width * kWindow.Height);
    for (const RectI& rect : region.Rects(within)) {
        for (int y = rect.Y; y < rect.Y + rect.Height; ++y)
            std::fill_n(pixels.begin() + y * kWindow.Width + rect.X, rect.Width, true);
    }
    return pixels;
}

// A region and, built beside it, the pixels of the window that it must have.
struct Modelled {
    explicit Modelled(const Region& region) : Built(region), Pixels(WindowPixels(region)) {}

    void Combine(const Modelled& second, CombineMode mode) {
        Built.Combine(second.Built, mode);
        for (std::size_t i = 0; i < Pixels.size(); ++i) {
            const bool a = Pixels[i], b = second.Pixels[i];
            Pixels[i] = mode == CombineMode::Replace     ? b
                        : mode == CombineMode::Intersect ? a && b
                        : mode == CombineMode::Union     ? a || b
                        : mode == CombineMode::Xor       ? a != b
                                                         : a && !b;
        }
    }

    Region Built;
    std::vector<bool> Pixels;
};

TEST(Region, CombinationsHaveThePixelsOfTheirShapesInWhateverWindowAndOrder) {
    const CombineMode modes[] = {CombineMode::Union,   CombineMode::Union,     CombineMode::Union,
                                 CombineMode::Xor,     CombineMode::Intersect, CombineMode::Exclude,
                                 CombineMode::Exclude, CombineMode::Replace};
    for (unsigned seed = 1; seed <= 40; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&](unsigned bound) { return static_cast<int>(random() % bound); };
        const auto shape = [&] {
            const auto quarters = [&] { return static_cast<float>(below(60)) / 4; };
            const RectF box{quarters(), quarters(), 1 + quarters(), 1 + quarters()};
            const int kind = below(8);
            return Modelled(kind == 0   ? Region::FromRect(box)
                            : kind == 1 ? Region::FromPixelRects({{2, 3, 5, 9}, {9, 3, 2, 9}})
                            : kind == 2 ? Region::Infinite()
                                        : Ellipse(box));
        };
        // Copies share their contents; some are combined with one another, others grow on.
        std::vector<Modelled> regions{shape(), shape(), shape(), shape()};
        for (int step = 0; step < 120; ++step) {
            Modelled& region = regions[below(4)];
            if (below(8) == 0)
                region = below(2) ? regions[below(4)] : shape();
            const Modelled operand = below(4) ? shape() : regions[below(4)];
            region.Combine(operand, modes[below(8)]);

            RectI area = kWindow;
            if (below(2))
                area = Intersect({below(20), below(20), 1 + below(20), 1 + below(20)}, kWindow);
            std::vector<bool> expected(region.Pixels.size());
            for (int y = area.Y; y < area.Y + area.Height; ++y)
                std::copy_n(region.Pixels.begin() + y * 20 + area.X, area.Width,
                            expected.begin() + y * 20 + area.X);
            ASSERT_EQ(WindowPixels(region.Built, area), expected) << seed << ", step " << step;
            const int x = below(20), y = below(20);
            const bool visible = region.Built.IsVisiblePoint(float(x), float(y));
            ASSERT_EQ(visible, region.Pixels[y * 20 + x]) << seed << ", step " << step;
        }
    }
}

TEST(Region, ManyShapesOnEachOtherHaveThePixelsOfAll) {
    constexpr int kSide = 150;
    for (unsigned seed = 1; seed <= 60; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&](unsigned bound) { return static_cast<float>(random() % bound); };
        const auto anywhere = [&] { return below(640) / 4 - 20; };
        const auto shape = [&] {
            const unsigned kind = random() % 8;
            if (kind == 0)
                return Region::FromRect({anywhere(), anywhere(), below(60) / 4, below(90) / 4});
            if (kind == 1)
                return Region::FromPixelRects({{20, 30, 64, 9}, {100, 30, 28, 9}});
            Path path(FillMode::Alternate);
            if (kind == 2) {
                std::vector<PointF> corners;
                for (int i = 0; i < 5; ++i)
                    corners.push_back({anywhere(), anywhere()});
                path.AddPolygon(corners);
            } else {
                path.AddEllipse({anywhere(), anywhere(), below(200) / 4, below(900) / 4});
            }
            if (seed % 4 == 0)  // a curve that is left out
                path.AddEllipse({NAN, 10, 100, 100});
            return Region::FromPath(path);
        };
        const Matrix place{.ScaleX = seed % 3 == 0 ? -1.3 : 1,
                           .ScaleY = seed % 3 == 0 ? 0.7 : 1,
                           .OffsetX = seed % 3 == 0 ? 140.25 : 0,
                           .OffsetY = 0.5};
        const RectI window = seed % 2 ? RectI{0, 0, kSide, kSide} : RectI{13, 40, 101, 64};
        const CombineMode mode = seed % 5 ? CombineMode::Union : CombineMode::Exclude;
        Region all = Region::FromRect({0, 0, 0.25F, 0.25F});
        if (mode == CombineMode::Exclude)
            all = Region::FromRect({-500, -500, 1000, 1000});
        std::vector<bool> inside(kSide * kSide);
        for (int count = 8 + static_cast<int>(seed); count > 0; --count) {
            Region one = shape();
            all.Combine(one, mode);
            one.Transform(place);
            for (const RectI& rect : one.Rects(window)) {
                for (int y = rect.Y; y < rect.Bottom(); ++y)
                    std::fill_n(inside.begin() + y * kSide + rect.X, rect.Width, true);
            }
        }
        all.Transform(place);
        std::vector<RectI> expected;
        for (int y = window.Y; y < window.Bottom(); ++y) {
            for (int x = window.X; x < window.Right(); ++x) {
                if (inside[y * kSide + x] == (mode == CombineMode::Union))
                    expected.push_back({x, y, 1, 1});
            }
        }
        ASSERT_EQ(all.Rects(window), Region::FromPixelRects(expected).Rects()) << seed;
    }
}

TEST(Region, ThousandsOfShapesKeepTheirNumbers) {
    // Each too narrow for a pixel until it is scaled.
    Region comb = Region::Empty();
    for (int i = 0; i < 5000; ++i)
        comb.Combine(Rectangle({float(i) + 0.25f, 0, 0.5f, 1}), CombineMode::Union);
    EXPECT_TRUE(comb.IsEmpty());
    comb.Transform({.ScaleX = 4, .ScaleY = 1});
    EXPECT_EQ(comb.Bounds(), (RectF{1, 0, 19998, 1}));
    EXPECT_EQ(comb.Rects().size(), 5000U);
    EXPECT_EQ(Runs(comb), "0: 1-2 5-6 9-10 13-14 17-18");

    // Each time the old region is the second operand, and its copies live on.
    std::vector<Region> kept{Region::FromRect({0, 0, 1, 1})};
    for (int i = 1; i < 5000; ++i) {
        Region grown = Region::FromRect({float(i), 0, 1, 1});
        grown.Combine(kept.back(), CombineMode::Xor);
        kept.push_back(grown);
    }
    EXPECT_EQ(kept.back().Bounds(), (RectF{0, 0, 5000, 1}));
    EXPECT_EQ(kept[9].Bounds(), (RectF{0, 0, 10, 1}));

    // Tall ones far from each other are merged bit by bit.
    Region fence = Region::Empty();
    for (int i = 0; i < 80; ++i)
        fence.Combine(Rectangle({float(i) * 400, -15000, 2, 30000}), CombineMode::Union);
    EXPECT_EQ(fence.Rects().size(), 80U);
    EXPECT_EQ(fence.Bounds(), (RectF{0, -15000, 31602, 30000}));
}

TEST(Region, HostileNumbersAndEndlessCombinationsAreHarmless) {
    const Region wide =
        Region::FromPixelRects({{INT_MIN, INT_MIN, INT_MAX, INT_MAX}, {INT_MAX, 5, INT_MAX, 9}});
    EXPECT_EQ(wide.Bounds(), (RectF{-4194304, -4194304, 4194303, 4194303}));
    Region away = Region::FromPixelRects({{0, 0, 5, 5}});
    away.Translate(3e38f, -3e38f);
    away.Translate(INFINITY, 0);
    EXPECT_TRUE(away.IsEmpty());
    EXPECT_FALSE(Ellipse({-3e38f, -3e38f, 3.3e38f, 3.3e38f}).IsVisiblePoint(1, 1));

    Region doubled = Region::FromRect({0, 0, 1, 1});
    for (int i = 0; i < 60; ++i) {
        Region copy = doubled;
        copy.Translate(0.25f, 0);
        doubled.Combine(copy, CombineMode::Union);
    }
    EXPECT_EQ(doubled.Rects({0, 0, 3, 3}), (std::vector<RectI>{{0, 0, 3, 1}}));

    Region chain = Region::Empty();
    for (int i = 0; i < 20000; ++i)
        chain.CombineRect({static_cast<float>(i % 3), 0, 1, 1}, CombineMode::Xor);
    EXPECT_EQ(Runs(chain), "0: 0-1");
}

}  // namespace
}  // namespace orbelle::graphics
