#include "graphics/region.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "support/pixel_runs.h"
#include "support/shapes.h"

namespace orbelle::graphics {
namespace {

constexpr RectF kInfiniteBounds{-4194304, -4194304, 8388608, 8388608};
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

TEST(Region, CombinesTwoRectangles) {
    const struct {
        CombineMode Mode;
        const char* Expected;
    } cases[] = {
        {CombineMode::Replace, "2-4: 3-6"},
        {CombineMode::Intersect, "2-3: 3-4"},
        {CombineMode::Union, "1: 1-4; 2-3: 1-6; 4: 3-6"},
        {CombineMode::Xor, "1: 1-4; 2-3: 1-2 5-6; 4: 3-6"},
        {CombineMode::Exclude, "1: 1-4; 2-3: 1-2"},
    };
    for (const auto& test : cases) {
        Region shapes = Region::FromRect({1, 1, 4, 3});
        shapes.CombineRect({3, 2, 4, 3}, test.Mode);
        EXPECT_EQ(Runs(shapes), test.Expected);

        Region pixels = Region::FromPixelRects({{1, 1, 4, 3}});
        pixels.Combine(Region::FromPixelRects({{3, 2, 4, 3}}), test.Mode);
        EXPECT_EQ(Runs(pixels), test.Expected);
    }
}

TEST(Region, InfiniteEmptyAndNone) {
    Region infinite = Region::Infinite();
    EXPECT_EQ(infinite.Bounds(), kInfiniteBounds);
    EXPECT_FALSE(infinite.IsEmpty());
    EXPECT_TRUE(infinite.IsVisiblePoint(1e20f, -1e20f));
    infinite.Translate(1000, 1000);
    EXPECT_EQ(infinite.Bounds(), kInfiniteBounds);
    infinite.CombineRect({2, 2, 3, 1}, CombineMode::Exclude);
    EXPECT_EQ(PixelRuns(infinite.Rects({1, 1, 6, 3})), "1: 1-6; 2: 1 5-6; 3: 1-6");

    EXPECT_TRUE(Region::Empty().IsEmpty());
    EXPECT_FALSE(Region::Empty().IsNull());
    EXPECT_EQ(Region::Empty().Bounds(), RectF());
    EXPECT_FALSE(Region::Empty().IsVisiblePoint(0, 0));

    Region none;
    EXPECT_TRUE(none.IsEmpty());
    EXPECT_EQ(none.Bounds(), RectF());
    EXPECT_TRUE(none.Rects().empty());
    none.CombineRect({1, 1, 2, 2}, CombineMode::Union);
    none.Translate(1, 1);
    EXPECT_TRUE(none.IsNull());
    EXPECT_TRUE(Region::FromPath(Path()).IsNull());
    none.CombineRect({1, 1, 2, 2}, CombineMode::Replace);
    EXPECT_EQ(Runs(none), "1-2: 1-2");
    none.Combine(Region(), CombineMode::Replace);
    none.Combine(Region(), CombineMode::Exclude);
    EXPECT_EQ(Runs(none), "1-2: 1-2");
}

TEST(Region, AnEmptySideLeavesTheOthersOwnBounds) {
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    const RectF fractional{1.25f, 1.5f, 4, 3};
    for (const RectF& nothing :
         {RectF{1, 1, 0, 5}, {1, 1, 5, -1}, {nan, 1, 2, 2}, {1, 1, 2, nan}}) {
        EXPECT_TRUE(Region::FromRect(nothing).IsEmpty());
        for (CombineMode mode : {CombineMode::Union, CombineMode::Xor, CombineMode::Exclude}) {
            Region region = Region::FromRect(fractional);
            region.CombineRect(nothing, mode);
            EXPECT_EQ(region.Bounds(), fractional);
        }
        Region region = Region::FromRect(fractional);
        region.CombineRect(nothing, CombineMode::Intersect);
        EXPECT_EQ(region.Bounds(), RectF());
    }
    for (const auto& [mode, bounds] : {std::pair{CombineMode::Union, fractional},
                                       {CombineMode::Xor, fractional},
                                       {CombineMode::Intersect, RectF()},
                                       {CombineMode::Exclude, RectF()}}) {
        Region region = Region::Empty();
        region.CombineRect(fractional, mode);
        EXPECT_EQ(region.Bounds(), bounds);
    }
}

TEST(Region, BoundsAreAShapesOwnAndAPixelBoxForCombinations) {
    EXPECT_EQ(Region::FromRect({1.25f, 1.5f, 4, 3}).Bounds(), (RectF{1.25f, 1.5f, 4, 3}));
    EXPECT_EQ(Ellipse({1.5f, 2.5f, 10, 8}).Bounds(), (RectF{1.5f, 2.5f, 10, 8}));
    EXPECT_EQ(Region::FromPath(Path(FillMode::Alternate)).Bounds(), RectF());
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
    for (float outside : {9.25f, 39.5f, 40.f, 1e30f, -1e30f})
        EXPECT_FALSE(region.IsVisiblePoint(20, outside)) << outside;
    EXPECT_FALSE(region.IsVisiblePoint(std::numeric_limits<float>::quiet_NaN(), 20));
}

TEST(Region, GeometryMovesAndScalesWithoutRounding) {
    Matrix matrix;
    matrix.Scale(3, 3, MatrixOrder::Append);
    matrix.Translate(10, 20, MatrixOrder::Append);
    Region rectangle = Region::FromRect({1, 1, 4, 3});
    rectangle.Transform(matrix);
    EXPECT_EQ(rectangle.Bounds(), (RectF{13, 23, 12, 9}));
    EXPECT_EQ(rectangle.Rects(), (std::vector<RectI>{{13, 23, 12, 9}}));

    // Twenty steps of a tenth are two pixels, not none.
    Region moved = Ellipse({1, 1, 4, 4});
    moved.CombineRect({8, 1, 2, 2}, CombineMode::Union);
    EXPECT_EQ(Runs(moved), "1: 8-9; 2: 2-4 8-9; 3: 1-4; 4: 2-4");
    for (int i = 0; i < 20; ++i)
        moved.Translate(0.125f, 0);
    moved.Translate(-0.5f, 0);
    EXPECT_EQ(Runs(moved), "1: 10-11; 2: 4-6 10-11; 3: 3-6; 4: 4-6");

    // Zoomed in and out again an ellipse is the same, and in between it is smooth.
    Region zoomed = Ellipse({1, 1, 4, 4});
    const std::string before = Runs(zoomed);
    zoomed.Transform({.ScaleX = 0.1, .ScaleY = 0.1});
    zoomed.Transform({.ScaleX = 20, .ScaleY = 20});
    EXPECT_EQ(Runs(zoomed), Runs(Ellipse({2, 2, 8, 8})));
    zoomed.Transform({.ScaleX = 0.5, .ScaleY = 0.5});
    EXPECT_EQ(Runs(zoomed), before);
}

TEST(Region, PixelsMoveByWholeNumbersAndScaleAsRectangles) {
    const std::vector<RectI> step{{1, 1, 2, 1}, {2, 2, 2, 1}};
    Region region = Region::FromPixelRects(step);
    region.Translate(3, -1);
    EXPECT_EQ(Runs(region), "0: 4-5; 1: 5-6");
    region.Translate(0.25f, 0.25f);
    region.Translate(0.25f, 0.25f);
    region.Translate(-0.5f, -0.5f);
    EXPECT_EQ(Runs(region), "0: 4-5; 1: 5-6");

    Region scaled = Region::FromPixelRects(step);
    scaled.Transform({.ScaleX = 3, .ScaleY = 2});
    EXPECT_EQ(Runs(scaled), "2-3: 3-8; 4-5: 6-11");
    scaled.Transform({.ScaleX = 0.5, .ScaleY = 0.5});
    EXPECT_EQ(Runs(scaled), "1: 2-4; 2: 3-5");
    Region mirrored = Region::FromPixelRects(step);
    mirrored.Transform({.ScaleX = -1, .ScaleY = 1, .OffsetX = 10});
    EXPECT_EQ(Runs(mirrored), "1: 7-8; 2: 6-7");
}

TEST(Region, RectanglesComeByRowsAndAreJoinedDownwards) {
    const Region region = Region::FromPixelRects(
        {{5, 3, 2, 1}, {1, 1, 2, 1}, {1, 2, 2, 1}, {1, 3, 2, 1}, {8, 8, 0, 4}});
    const std::vector<RectI> expected{{1, 1, 2, 2}, {1, 3, 2, 1}, {5, 3, 2, 1}};
    EXPECT_EQ(region.Rects(), expected);
    EXPECT_EQ(region.Rects({2, 2, 4, 9}),
              (std::vector<RectI>{{2, 2, 1, 1}, {2, 3, 1, 1}, {5, 3, 1, 1}}));
    EXPECT_TRUE(region.Rects({100, 100, 5, 5}).empty());
    EXPECT_TRUE(region.Rects({2, 2, 0, 9}).empty());
}

// A region and, built beside it, the pixels of the window that it must have.
struct Modelled {
    Region Built;
    std::vector<bool> Pixels;
};

std::vector<bool> WindowPixels(const Region& region, const RectI& within = kWindow) {
    std::vector<bool> pixels(kWindow.Width * kWindow.Height);
    for (const RectI& rect : region.Rects(within)) {
        for (int y = rect.Y; y < rect.Y + rect.Height; ++y)
            std::fill_n(pixels.begin() + y * kWindow.Width + rect.X, rect.Width, true);
    }
    return pixels;
}

class RandomRegions {
public:
    explicit RandomRegions(unsigned seed) : random_(seed) {}

    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

    Modelled Shape() {
        const RectF box{Quarters(), Quarters(), 1 + Quarters(), 1 + Quarters()};
        Region shape = Ellipse(box);
        if (const int kind = Below(8); kind == 0)
            shape = Region::FromRect(box);
        else if (kind == 1)
            shape = Region::FromPixelRects({{2, 3, 5, 9}, {9, 3, 2, 9}});
        else if (kind == 2)
            shape = Region::Infinite();
        return {shape, WindowPixels(shape)};
    }

    RectI Area() {
        return Intersect({Below(20), Below(20), 1 + Below(20), 1 + Below(20)}, kWindow);
    }

private:
    float Quarters() { return static_cast<float>(Below(60)) / 4; }

    std::mt19937 random_;
};

void Combine(Modelled& first, const Modelled& second, CombineMode mode) {
    first.Built.Combine(second.Built, mode);
    for (std::size_t i = 0; i < first.Pixels.size(); ++i) {
        const bool a = first.Pixels[i], b = second.Pixels[i];
        first.Pixels[i] = mode == CombineMode::Union     ? a || b
                          : mode == CombineMode::Xor     ? a != b
                          : mode == CombineMode::Exclude ? a && !b
                                                         : a && b;
    }
}

TEST(Region, CombinationsHaveThePixelsOfTheirShapesInWhateverWindowAndOrder) {
    const CombineMode modes[] = {CombineMode::Union,   CombineMode::Union,
                                 CombineMode::Xor,     CombineMode::Intersect,
                                 CombineMode::Exclude, CombineMode::Exclude};
    for (unsigned seed = 1; seed <= 40; ++seed) {
        RandomRegions random(seed);
        // Copies share their contents; some are combined with one another, others grow on.
        std::vector<Modelled> regions(4);
        for (Modelled& region : regions)
            region = random.Shape();
        for (int step = 0; step < 120; ++step) {
            Modelled& region = regions[random.Below(4)];
            if (random.Below(8) == 0)
                region = random.Below(2) ? regions[random.Below(4)] : random.Shape();
            const Modelled operand = random.Below(4) ? random.Shape() : regions[random.Below(4)];
            Combine(region, operand, modes[random.Below(6)]);

            const RectI area = random.Below(2) ? kWindow : random.Area();
            std::vector<bool> expected(region.Pixels.size());
            for (int y = area.Y; y < area.Y + area.Height; ++y) {
                for (int x = area.X; x < area.X + area.Width; ++x)
                    expected[y * 20 + x] = region.Pixels[y * 20 + x];
            }
            ASSERT_EQ(WindowPixels(region.Built, area), expected) << seed << ", step " << step;
            const int x = random.Below(20), y = random.Below(20);
            const bool visible = region.Built.IsVisiblePoint(float(x), float(y));
            ASSERT_EQ(visible, region.Pixels[y * 20 + x]) << seed << ", step " << step;
        }
    }
}

TEST(Region, ThousandsOfShapesKeepTheirNumbers) {
    // Each too narrow for a pixel until it is scaled.
    Region comb = Region::Empty();
    for (int i = 0; i < 5000; ++i) {
        comb.Combine(Rectangle({static_cast<float>(i) + 0.25f, 0, 0.5f, 1}), CombineMode::Union);
    }
    EXPECT_TRUE(comb.IsEmpty());
    comb.Transform({.ScaleX = 4, .ScaleY = 1});
    EXPECT_EQ(comb.Bounds(), (RectF{1, 0, 19998, 1}));
    EXPECT_EQ(comb.Rects().size(), 5000U);
    EXPECT_EQ(Runs(comb), "0: 1-2 5-6 9-10 13-14 17-18");

    // Each time the old region is the second operand, and its copies live on.
    std::vector<Region> kept{Region::FromRect({0, 0, 1, 1})};
    for (int i = 1; i < 5000; ++i) {
        Region grown = Region::FromRect({static_cast<float>(i), 0, 1, 1});
        grown.Combine(kept.back(), CombineMode::Xor);
        kept.push_back(grown);
    }
    EXPECT_EQ(kept.back().Bounds(), (RectF{0, 0, 5000, 1}));
    EXPECT_EQ(kept[9].Bounds(), (RectF{0, 0, 10, 1}));
}

TEST(Region, ManyTallShapesAreMergedBitByBit) {
    Region fence = Region::Empty();
    for (int i = 0; i < 80; ++i) {
        fence.Combine(Rectangle({static_cast<float>(i * 3), -15000, 2, 30000}), CombineMode::Union);
    }
    EXPECT_EQ(fence.Rects().size(), 80U);
    EXPECT_EQ(fence.Bounds(), (RectF{0, -15000, 239, 30000}));
}

TEST(Region, HostileNumbersAndEndlessCombinationsAreHarmless) {
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    const Region wide =
        Region::FromPixelRects({{lowest, lowest, highest, highest}, {highest, 5, highest, 9}});
    EXPECT_EQ(wide.Bounds(), (RectF{-4194304, -4194304, 4194303, 4194303}));
    Region away = Region::FromPixelRects({{0, 0, 5, 5}});
    away.Translate(3e38f, -3e38f);
    EXPECT_TRUE(away.IsEmpty());
    away.Translate(std::numeric_limits<float>::infinity(), 0);
    EXPECT_TRUE(away.IsEmpty());

    Region high = Ellipse({-3e38f, -3e38f, 3.3e38f, 3.3e38f});
    EXPECT_FALSE(high.IsVisiblePoint(1, 1));

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
