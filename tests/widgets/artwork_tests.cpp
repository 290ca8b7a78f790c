// The pictures that the build makes of our drawings.
#include "widgets/artwork.h"

#include <gtest/gtest.h>

#include <QImage>
#include <set>

#include "widgets/theme.h"

namespace orbelle::widgets {
namespace {

QImage Drawn(const QString& name, const QSize& size, qreal ratio, Shade shade = Shade::Light) {
    return Artwork(name, size, ratio, shade).toImage().convertToFormat(QImage::Format_ARGB32);
}

std::set<QRgb> ColorsOf(const QImage& picture) {
    std::set<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, y));
    return colors;
}

TEST(ArtworkTest, HasPicturesForEveryRatioAndOfBothShades) {
    const struct {
        const char* Name;
        QSize Size;
        bool FollowsTheme;
    } cases[] = {
        {"main/new", {16, 16}, true},         {"main/new", {32, 32}, true},
        {"tools/corner-solid", {7, 7}, true}, {"sizes/double", {12, 12}, true},
        {"cursors/move", {32, 32}, false},    {"board", {40, 40}, false},
        {"welcome", {480, 270}, false},
    };
    for (const auto& test : cases) {
        for (const qreal ratio : {1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.25, 3.0, 4.0}) {
            SCOPED_TRACE(std::string(test.Name) + ' ' + std::to_string(ratio));
            const QImage light = Drawn(test.Name, test.Size, ratio);
            EXPECT_EQ(light.size(), test.Size * ratio);
            EXPECT_GT(ColorsOf(light).size(), 1U);
            EXPECT_EQ(Drawn(test.Name, test.Size, ratio, Shade::Dark) == light, !test.FollowsTheme);
        }
    }
    EXPECT_TRUE(Artwork("main/none", {16, 16}, 1).isNull());
    EXPECT_TRUE(Artwork("", {16, 16}, 1).isNull());
}

// Also at 150 %, for which there are drawings of their own.
TEST(ArtworkTest, StrokesOfWholePixelsHaveNoBlurredEdges) {
    for (const qreal ratio : {1.0, 1.5, 2.0, 3.0}) {
        for (const QRgb color : ColorsOf(Drawn("layers/remove", {16, 16}, ratio)))
            EXPECT_TRUE(qAlpha(color) == 0 || qAlpha(color) == 255) << ratio << ' ' << color;
    }
}

}  // namespace
}  // namespace orbelle::widgets
