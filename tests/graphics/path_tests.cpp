#include "graphics/path.h"

#include <gmock/gmock.h>

#include <cfloat>
#include <cmath>

namespace orbelle::graphics {
namespace {

using testing::ElementsAre;

TEST(Path, NullAndEmptyAreNotTheSame) {
    Path null, empty(FillMode::Winding);
    for (Path* path : {&null, &empty}) {
        path->AddRectangle({1, 1, 0, 5});
        path->AddRectangle({1, 1, 5, -1});
        path->AddPolygon(std::vector<PointF>{{1, 1}, {2, 2}});
        path->CloseFigures();
        EXPECT_TRUE(path->IsEmpty());
        EXPECT_EQ(path->WorldBounds(), RectF());
        EXPECT_TRUE(path->Flatten().empty());
    }
    null.AddRectangle({1, 1, 2, 2});
    null.AddEllipse({1, 1, 2, 2});
    null.AddBezier({}, {}, {}, {});
    EXPECT_TRUE(null.IsNull());
    EXPECT_TRUE(null.IsEmpty());
    EXPECT_FALSE(empty.IsNull());
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
    Path path(FillMode::Alternate);
    const auto addDot = [&](PointF point) { path.AddBezier(point, point, point, point); };
    addDot({0, 0});
    addDot({5, 5});
    path.StartFigure();
    addDot({9, 9});
    path.CloseFigures();
    addDot({7, 7});

    const std::vector<FlatFigure> figures = path.Flatten();
    ASSERT_EQ(figures.size(), 3u);
    EXPECT_THAT(figures[0].Points,
                ElementsAre(PointF{0, 0}, PointF{0, 0}, PointF{5, 5}, PointF{5, 5}));
    EXPECT_TRUE(figures[0].Closed);
    EXPECT_THAT(figures[1].Points, ElementsAre(PointF{9, 9}, PointF{9, 9}));
    EXPECT_FALSE(figures[2].Closed);
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
    Path path(FillMode::Alternate);
    path.AddBezier({NAN, 0}, {1, NAN}, {0, 0}, {5, 5});
    path.AddBezier({-FLT_MAX, FLT_MAX}, {FLT_MAX, -FLT_MAX}, {FLT_MAX, FLT_MAX}, {0, -FLT_MAX});
    EXPECT_LT(path.Flatten().front().Points.size(), 2000u);
}

TEST(Matrix, AppendComesAfterAndPrependBefore) {
    Matrix appended;
    appended.Scale(3, 2, MatrixOrder::Append);
    appended.Translate(10, 20, MatrixOrder::Append);
    appended.Scale(2, 2, MatrixOrder::Append);
    EXPECT_EQ(appended.Apply({1, 1}), (PointF{26, 44}));

    Matrix prepended;
    prepended.Scale(3, 2);
    prepended.Translate(10, 20);
    EXPECT_EQ(prepended.Apply({1, 1}), (PointF{33, 42}));
}

}  // namespace
}  // namespace orbelle::graphics
