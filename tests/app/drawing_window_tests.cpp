// Tools under a real pointer: what the page holds afterwards, as an exported picture.
#include "real_window.h"

namespace orbelle::app {
namespace {

constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kBlue = 0xFF0000FF;

class DrawingWindowTest : public RealWindowTest {
protected:
    void Draw(QPoint from, QPoint to) { Drag(page + from, page + to); }
};

TEST_F(DrawingWindowTest, EveryToolWorksWhereThePointerIs) {
    ASSERT_TRUE(StartWithPicture());
    const struct {
        const char* Key;
        QPoint From, To;
    } strokes[] = {
        {"b", {10, 10}, {30, 10}},          // pencil
        {"l", {40, 10}, {60, 10}},          // line
        {"r", {70, 10}, {90, 30}},          // rectangle
        {"shift+r", {100, 10}, {120, 30}},  // filled
        {"o", {130, 10}, {150, 30}},        // ellipse
        {"shift+o", {160, 10}, {190, 40}},  // filled
    };
    for (const auto& [key, from, to] : strokes) {
        Press({key});
        Draw(from, to);
    }
    Click(Button("ToolBox", 9));
    Click(PopupButton("FillBar", 9, 2));
    Draw({40, 60}, {140, 110});
    // The picture's own colour, picked, becomes the foreground; then it changes places with blue.
    Press({"i"});
    Click(page + QPoint(5, 5));
    Press({"b"});
    Draw({105, 20}, {115, 20});
    Press({"x"});
    Draw({10, 50}, {30, 50});

    Click(Button("ToolBox", 12));
    Click(PopupButton("EraserBar", 12, 1));
    Click(page + QPoint(150, 150));
    Click(Button("ToolBox", 12));
    Click(PopupButton("EraserBar", 12, 2));
    Click(page + QPoint(30, 150));

    const QImage drawn = ExportPng();
    const struct {
        const char* What;
        QPoint Place;
        QRgb Color;
    } pixels[] = {
        {"pencil", {25, 10}, kRed},
        {"end of the pencil", {30, 10}, kRed},
        {"beside the pencil", {25, 12}, kPictureColor},
        {"line", {50, 10}, kRed},
        {"beside the line", {50, 12}, kPictureColor},
        {"top of the rectangle", {80, 9}, kRed},
        {"left of the rectangle", {69, 20}, kRed},
        {"inside the rectangle", {80, 20}, kPictureColor},
        {"first pixel of the filled rectangle", {99, 9}, kRed},
        {"last pixel of the filled rectangle", {120, 30}, kRed},
        {"beyond the filled rectangle", {121, 31}, kPictureColor},
        {"inside the ellipse", {140, 20}, kPictureColor},
        {"corner of the ellipse's box", {130, 10}, kPictureColor},
        {"inside the filled ellipse", {175, 25}, kRed},
        {"corner of the filled ellipse's box", {160, 10}, kPictureColor},
        {"pencil in the picked colour", {112, 20}, kPictureColor},
        {"pencil in the exchanged colour", {25, 50}, kBlue},
        // A full brush of size 10 takes 250 (1 - distance / 15) of the alpha.
        {"middle of the brush eraser", {150, 150}, qRgba(0, 0, 0, 5)},
        {"near its middle", {153, 150}, qRgba(0, 0, 0, 55)},
        {"its rim", {165, 150}, kPictureColor},
        {"pencil eraser", {30, 150}, 0},
        {"beside the pencil eraser", {31, 150}, kPictureColor},
    };
    ASSERT_EQ(drawn.size(), QSize(kPictureSide, kPictureSide));
    for (const auto& [what, place, color] : pixels) {
        const QRgb pixel = drawn.pixel(place);
        EXPECT_EQ(qAlpha(pixel), qAlpha(color)) << what;
        if (qAlpha(color) == 255) {
            EXPECT_EQ(pixel, color) << what;
        }
    }
    // The outline of an ellipse is smoothed: its topmost pixels are red in the main.
    EXPECT_GT(qRed(drawn.pixel(140, 9)), 150);
    // The gradient from red to blue.
    EXPECT_GT(qRed(drawn.pixel(42, 80)), 240);
    EXPECT_NEAR(qRed(drawn.pixel(90, 80)), 128, 6);
    EXPECT_GT(qBlue(drawn.pixel(137, 80)), 240);
    EXPECT_EQ(drawn.pixel(90, 62), drawn.pixel(90, 108));

    Press({"v"});
    Draw({100, 100}, {130, 120});
    Press({"Left"});
    const QImage moved = ExportPng();
    ASSERT_FALSE(moved.isNull());
    EXPECT_EQ(qAlpha(moved.pixel(28, 20)), 0);
    EXPECT_EQ(moved.pixel(29, 20), kPictureColor);
}

TEST_F(DrawingWindowTest, SelectionsOfEachKindAreTakenOutAndComeBack) {
    ASSERT_TRUE(StartWithPicture());
    const auto isHole = [](const QImage& picture, int x, int y) {
        return qAlpha(picture.pixel(x, y)) == 0;
    };
    Press({"m"});
    Draw({50, 50}, {99, 99});
    Press({"ctrl+x"});
    const QImage rectangle = ExportPng();
    ASSERT_FALSE(rectangle.isNull());
    EXPECT_TRUE(isHole(rectangle, 50, 50) && isHole(rectangle, 99, 99));
    EXPECT_FALSE(isHole(rectangle, 49, 75) || isHole(rectangle, 100, 75));

    Press({"ctrl+v"});
    const QImage pasted = ExportPng();
    ASSERT_FALSE(pasted.isNull());
    for (const int corner : {50, 75, 99})
        EXPECT_EQ(pasted.pixel(corner, corner), kPictureColor) << "pasted in its place";

    Press({"ctrl+z", "ctrl+z"});
    Click(Button("ToolBox", 2));
    EXPECT_EQ(Count(), kWholePicture);
    Click(PopupButton("SelectionBar", 2, 2));
    Draw({50, 50}, {99, 99});
    Press({"alt+e", "d"});
    const QImage ellipse = ExportPng();
    ASSERT_FALSE(ellipse.isNull());
    EXPECT_TRUE(isHole(ellipse, 75, 75));
    EXPECT_FALSE(isHole(ellipse, 50, 50));

    Press({"ctrl+z"});
    Click(Button("ToolBox", 2));
    Click(PopupButton("SelectionBar", 2, 3));
    for (const QPoint& corner : {QPoint(20, 20), QPoint(120, 20), QPoint(20, 120)})
        Click(page + corner);
    Click(page + QPoint(20, 120), 3);
    Press({"alt+e", "d"});
    const QImage polygon = ExportPng();
    ASSERT_FALSE(polygon.isNull());
    EXPECT_TRUE(isHole(polygon, 40, 40));
    EXPECT_FALSE(isHole(polygon, 110, 110));
}

}  // namespace
}  // namespace orbelle::app
