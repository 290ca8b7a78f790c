#include "gestures.h"

namespace orbelle::editing {
namespace {

using graphics::RectF;

class Erasers : public GestureTest {
protected:
    void OpenFilledPage(int width, int height, double zoom = 1) {
        OpenPage(width, height, zoom);
        PutOnlyLayer(testing::FilledPicture(width, height, kBlue), 0, 0);
    }

    void UseBrush(int size, int opacity) {
        editor.CurrentTool = Tool::BrushEraser;
        editor.Controls.BrushSize.Value = size;
        editor.Controls.BrushOpacity.Value = opacity;
    }
};

TEST_F(Erasers, ThePencilClearsOnePixelPerEvent) {
    OpenFilledPage(10, 8);
    editor.CurrentTool = Tool::PencilEraser;
    Drag({{3, 4}, {6, 4}, {-1, 4}, {9, 7}});
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 10; ++x) {
            const bool erased = (y == 4 && (x == 3 || x == 6)) || (y == 7 && x == 9);
            EXPECT_EQ(Alpha(x, y), erased ? 0 : 255) << x << ", " << y;
        }
    EXPECT_EQ(Layer(0).Image.GetPixel(3, 4), kBlue & 0xFFFFFFU);
    EXPECT_EQ(editor.Canvas.GetPixel(3, 4), 0U);
    EXPECT_EQ(editor.History.UndoIndex(), 1);
    Undo(editor);
    EXPECT_EQ(Alpha(3, 4), 255);
}

TEST_F(Erasers, PixelsAreThoseOfTheLayerAndItsRegionStays) {
    OpenPage(40, 30, 3);
    PutOnlyLayer(testing::FilledPicture(10, 1, kBlue), 20, 10);
    editor.CurrentTool = Tool::PencilEraser;
    for (int x = 20; x < 24; ++x)
        Click(static_cast<float>(x), 10);
    EXPECT_EQ(testing::AlphaRow(Layer(0).Image, 0),
              (std::vector<int>{0, 0, 0, 0, 255, 255, 255, 255, 255, 255}));
    EXPECT_EQ(Layer(0).Region.Bounds(), (RectF{19, 10, 10, 1}));
    EXPECT_EQ(editor.History.UndoIndex(), 4);
}

// Alpha 255 less (1 - d / R) x L, with R of 1.5 x size, halves to even, and L of 5 x (opacity \ 2).
TEST_F(Erasers, OneStampOfTheBrush) {
    const struct {
        int Size, Opacity;
        std::vector<int> Outward;  // alphas from the centre to the right
        int Diagonal;              // one pixel right and down of the centre
    } cases[] = {
        {2, 100, {5, 88, 172, 255}, 123},      // R 3, L 250
        {3, 100, {5, 68, 130, 192, 255}, 93},  // R 4: 67.5, 130, 192.5
        {1, 41, {155, 205, 255}, 226},         // R 2, L 100
        {9, 1, {255, 255}, 255},               // L 0
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Size);
        OpenFilledPage(22, 22);
        UseBrush(c.Size, c.Opacity);
        Click(10, 10);
        for (int i = 0; i < static_cast<int>(c.Outward.size()); ++i) {
            EXPECT_EQ(Alpha(10 + i, 10), c.Outward[static_cast<std::size_t>(i)]) << i;
            EXPECT_EQ(Alpha(10, 10 - i), c.Outward[static_cast<std::size_t>(i)]) << i;
        }
        EXPECT_EQ(Alpha(11, 11), c.Diagonal);
    }
}

TEST_F(Erasers, BrushStampsLieMoreThanTwentyScenePixelsApart) {
    const struct {
        double Zoom;
        float Dx, Dy;
        bool Stamps;
    } cases[] = {{1, 20, 0, false},  {1, 20.5F, 0, true},  {1, 14, 14, false},
                 {1, 15, 15, true},  {5, 20, 0, false},    {5, 20.5F, 0, true},
                 {5, -15, 15, true}, {2, 0, 19.5F, false}, {2, 0, -21, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.Zoom << ": " << c.Dx << ", " << c.Dy);
        OpenFilledPage(80, 60, c.Zoom);
        UseBrush(1, 100);
        const Pointer down = OnPage(40, 30);
        Press(down);
        Pointer moved = down;
        moved.X += c.Dx;
        moved.Y += c.Dy;
        MoveScene(editor, moved);
        const int x = static_cast<int>(std::floor(40.5 + c.Dx / c.Zoom));
        const int y = static_cast<int>(std::floor(30.5 + c.Dy / c.Zoom));
        EXPECT_EQ(Alpha(40, 30), 5);
        EXPECT_EQ(Alpha(x, y), c.Stamps ? 5 : 255);
        ReleaseScene(editor, moved);
        EXPECT_EQ(editor.History.UndoIndex(), 1);
    }
}

// The distance counts from the last stamp, not from the press.
TEST_F(Erasers, AStrokeIsARowOfStampsAndOneUndoStep) {
    OpenFilledPage(80, 10);
    UseBrush(1, 100);
    Drag({{2, 5}, {14, 5}, {24, 5}, {44, 5}, {46, 5}, {60, 5}});
    for (const auto& [x, alpha] :
         {std::pair{2, 5}, {14, 255}, {24, 5}, {44, 255}, {46, 5}, {60, 255}})
        EXPECT_EQ(Alpha(x, 5), alpha) << x;
    EXPECT_EQ(Layer(0).Region.Bounds(), (RectF{-1, 0, 80, 10}));
    EXPECT_EQ(editor.History.UndoIndex(), 1);
    Undo(editor);
    EXPECT_EQ(Alpha(2, 5), 255);
}

}  // namespace
}  // namespace orbelle::editing
