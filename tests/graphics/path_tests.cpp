#include "graphics/path.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace orbelle::graphics {
namespace {

using testing::ElementsAre;

TEST(Path, NullAndEmptyAreNotTheSame) {
    Path null;
    null.AddRectangle({1, 1, 2, 2});
    null.AddEllipse({1, 1, 2, 2});
    null.AddBezier({}, {}, {}, {});
    null.CloseFigures();
    null.StartFigure();
    EXPECT_TRUE(null.IsNull());
    EXPECT_TRUE(null.IsEmpty());

    Path empty(FillMode::Winding);
    EXPECT_FALSE(empty.IsNull());
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_EQ(empty.Fill(), FillMode::Winding);
    EXPECT_EQ(empty.WorldBounds(), RectF());
    EXPECT_TRUE(empty.Flatten().empty());
}

TEST(Path, CopiesAreIndependent) {
    Path first(FillMode::Alternate);
    first.AddRectangle({1, 2, 3, 4});
    Path second = first;
    second.Transform({.ScaleX = 2, .ScaleY = 3, .OffsetX = 10, .OffsetY = 20});
    EXPECT_EQ(first.WorldBounds(), (RectF{1, 2, 3, 4}));
    EXPECT_EQ(second.WorldBounds(), (RectF{12, 26, 6, 12}));
}

TEST(Path, CurvesJoinTheFigureUntilAnotherStarts) {
    const auto addStraightCurve = [](Path& path, PointF from, PointF to) {
        path.AddBezier(from, from, to, to);
    };
    Path path(FillMode::Alternate);
    addStraightCurve(path, {0, 0}, {0, 0});
    addStraightCurve(path, {0, 0}, {0, 0});
    addStraightCurve(path, {5, 5}, {5, 5});
    path.StartFigure();
    addStraightCurve(path, {9, 9}, {9, 9});
    path.CloseFigures();
    addStraightCurve(path, {7, 7}, {7, 7});

    const std::vector<FlatFigure> figures = path.Flatten();
    ASSERT_EQ(figures.size(), 3u);
    EXPECT_THAT(figures[0].Points,
                ElementsAre(PointF{0, 0}, PointF{0, 0}, PointF{0, 0}, PointF{5, 5}, PointF{5, 5}));
    EXPECT_TRUE(figures[0].Closed);
    EXPECT_THAT(figures[1].Points, ElementsAre(PointF{9, 9}, PointF{9, 9}));
    EXPECT_FALSE(figures[2].Closed);
}

TEST(Path, FiguresWithoutAreaAreNotAdded) {
    Path path(FillMode::Alternate);
    path.AddRectangle({1, 1, 0, 5});
    path.AddRectangle({1, 1, 5, -1});
    path.AddPolygon(std::vector<PointF>{{1, 1}, {2, 2}});
    EXPECT_TRUE(path.IsEmpty());
}

TEST(Path, AnEllipseStartsRightGoesDownAndIsRoundToATenthOfAPixel) {
    Path path(FillMode::Alternate);
    path.AddEllipse({10, 20, 1000, 1000});
    EXPECT_EQ(path.WorldBounds(), (RectF{10, 20, 1000, 1000}));
    const FlatFigure figure = path.Flatten().front();
    EXPECT_TRUE(figure.Closed);
    EXPECT_EQ(figure.Points.front(), (PointF{1010, 520}));
    EXPECT_GT(figure.Points[1].Y, 520);
    for (std::size_t i = 1; i < figure.Points.size(); ++i) {
        const PointF a = figure.Points[i - 1], b = figure.Points[i];
        // Four cubic curves of this radius leave the circle by up to 0.14 themselves.
        EXPECT_NEAR(std::hypot(a.X - 510, a.Y - 520), 500, 0.15);
        EXPECT_NEAR(std::hypot((a.X + b.X) / 2 - 510, (a.Y + b.Y) / 2 - 520), 500, 0.25);
    }
}

TEST(Path, HostileCurvesStaySmall) {
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float huge = std::numeric_limits<float>::max();
    Path path(FillMode::Alternate);
    path.AddBezier({nan, 0}, {1, nan}, {0, 0}, {5, 5});
    path.AddBezier({-huge, huge}, {huge, -huge}, {huge, huge}, {-huge, -huge});
    EXPECT_LT(path.Flatten().front().Points.size(), 2000u);
}

TEST(Matrix, AppendComesAfterAndPrependBefore) {
    Matrix appended;
    appended.Scale(3, 2, MatrixOrder::Append);
    appended.Translate(10, 20, MatrixOrder::Append);
    EXPECT_EQ(appended.Apply({1, 1}), (PointF{13, 22}));
    appended.Scale(2, 2, MatrixOrder::Append);
    EXPECT_EQ(appended.Apply({1, 1}), (PointF{26, 44}));

    Matrix prepended;
    prepended.Scale(3, 2);
    prepended.Translate(10, 20);
    EXPECT_EQ(prepended.Apply({1, 1}), (PointF{33, 42}));
}

}  // namespace
}  // namespace orbelle::graphics
