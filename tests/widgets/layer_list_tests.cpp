#include "widgets/layer_list.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>

namespace orbelle::widgets {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QColor kSelected(205, 236, 254);
const QColor kHidden(230, 230, 230);

QImage Picture(int width, int height, const QColor& color) {
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

// A list of `count` layers, 200 x 120 pixels: three rows of 40. It records what it raises.
class LayerListTest : public ::testing::Test {
protected:
    void Fill(int count) {
        list.resize(200, 120);
        list.Clean();
        for (int i = 0; i < count; ++i)
            list.LoadImage(Picture(16, 16, Qt::red), 16, 16, ".50", true);
        list.DrawLayers();
        list.show();
        QObject::connect(&list, &LayerList::Clicked,
                         [this](Qt::MouseButton button, Qt::KeyboardModifiers, const QPoint&) {
                             clicks.emplace_back(list.SelectedIndex(), button);
                         });
    }
    void Press(int y, Qt::MouseButton button = Qt::LeftButton,
               QEvent::Type type = QEvent::MouseButtonPress) {
        const QPointF place(100, y);
        QMouseEvent event(type, place, list.viewport()->mapToGlobal(place), button, button,
                          Qt::NoModifier);
        QApplication::sendEvent(list.viewport(), &event);
    }
    void Key(int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&list, &event);
    }
    // The ground of a row, right of its text.
    QColor Ground(int y) { return list.viewport()->grab().toImage().pixelColor(150, y); }

    LayerList list;
    std::vector<std::pair<int, Qt::MouseButton>> clicks;
};

TEST(FitRectTest, PlacesPicturesInABox) {
    struct Case {
        QSize Picture;
        QRect Place;
    };
    for (const Case& c : {
             Case{{32, 32}, {0, 0, 32, 32}},
             Case{{16, 16}, {8, 8, 16, 16}},
             Case{{15, 32}, {8, 0, 15, 32}},
             Case{{64, 64}, {0, 0, 32, 32}},
             Case{{64, 16}, {0, 12, 32, 8}},
             Case{{16, 64}, {12, 0, 8, 32}},
             Case{{48, 100}, {8, 0, 15, 32}},
             Case{{128, 10}, {0, 15, 32, 2}},  // 2.5 goes to the even side
             Case{{512, 1}, {0, 15, 32, 1}},
             Case{{0, 16}, {}},
             Case{{16, -1}, {}},
         })
        EXPECT_EQ(FitRect(c.Picture, 32), c.Place)
            << c.Picture.width() << "x" << c.Picture.height();
}

TEST_F(LayerListTest, RaisesTheClickOfAnEmptyList) {
    Fill(0);
    list.SetSelectedIndex(-1);
    Press(10);
    Key(Qt::Key_Down);
    EXPECT_THAT(clicks, ElementsAre(std::pair(-1, Qt::LeftButton)));
}

TEST_F(LayerListTest, SelectsTheRowUnderAPressOfAnyButton) {
    Fill(2);
    Press(0);
    Press(39, Qt::RightButton);
    Press(40, Qt::MiddleButton);
    Press(79, Qt::LeftButton, QEvent::MouseButtonDblClick);
    Press(80);
    EXPECT_THAT(clicks, ElementsAre(std::pair(1, Qt::LeftButton), std::pair(1, Qt::RightButton),
                                    std::pair(0, Qt::MiddleButton), std::pair(0, Qt::LeftButton),
                                    std::pair(0, Qt::LeftButton)));
}

TEST_F(LayerListTest, ScrollsRowsThatDoNotFit) {
    Fill(9);
    QScrollBar& bar = *list.verticalScrollBar();
    EXPECT_EQ(bar.maximum(), 9 * 40 + 2 - 120);
    Press(5);
    EXPECT_EQ(list.SelectedIndex(), 8);
    bar.setValue(100);
    Press(19);
    EXPECT_EQ(list.SelectedIndex(), 6);
    Press(20);
    EXPECT_EQ(list.SelectedIndex(), 5);

    Fill(2);
    EXPECT_EQ(bar.maximum(), 0);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(LayerListTest, ColoursRowsByTheirState) {
    Fill(3);
    const QImage picture = Picture(16, 16, Qt::red);
    list.UpdateImage(picture, 16, 16, 0, ".50", false);
    list.UpdateImage(picture, 16, 16, 2, ".50", false);
    list.UpdateImage(picture, 16, 16, 3, ".50", false);
    list.UpdateImage(picture, 16, 16, -1, ".50", false);
    list.SetSelectedIndex(2);
    list.DrawLayers();
    EXPECT_EQ(Ground(20), kSelected);
    EXPECT_EQ(Ground(60), QColor(Qt::white));
    EXPECT_EQ(Ground(100), kHidden);
    EXPECT_EQ(Ground(39), QColor(150, 150, 150));
}

TEST_F(LayerListTest, DrawsCheckerAndThumbnail) {
    Fill(1);
    list.LoadImage(Picture(64, 32, QColor(0, 0, 255, 0)), 64, 32, "1.00", true);
    list.UpdateImage(Picture(2, 2, Qt::red), 16, 16, 0, ".50", true);
    list.DrawLayers();
    const QImage image = list.viewport()->grab().toImage();
    const QColor dark(225, 225, 225);
    // The upper row's picture is transparent and shows the checker.
    EXPECT_EQ(image.pixelColor(0, 0), dark);
    EXPECT_EQ(image.pixelColor(4, 4), dark);
    EXPECT_EQ(image.pixelColor(5, 4), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(5, 5), dark);
    EXPECT_EQ(image.pixelColor(38, 38), dark);
    EXPECT_EQ(image.pixelColor(20, 20), dark);
    EXPECT_EQ(image.pixelColor(40, 10), QColor(Qt::white));
    // The lower one's stands in the size of its layer, with hard edges.
    EXPECT_EQ(image.pixelColor(12, 52), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(27, 67), QColor(Qt::red));
    EXPECT_NE(image.pixelColor(11, 52), QColor(Qt::red));
    EXPECT_NE(image.pixelColor(28, 67), QColor(Qt::red));
}

TEST_F(LayerListTest, MixesThePixelsOfAPictureThatShrinks) {
    Fill(0);
    QImage stripes = Picture(64, 64, Qt::red);
    for (int x = 0; x < 64; x += 2)
        for (int y = 0; y < 64; ++y)
            stripes.setPixelColor(x, y, Qt::blue);
    list.LoadImage(stripes, 64, 64, "1.00", true);
    list.DrawLayers();
    const QColor middle = list.viewport()->grab().toImage().pixelColor(20, 20);
    EXPECT_NEAR(middle.red(), 128, 2);
    EXPECT_NEAR(middle.blue(), 128, 2);

    list.UpdateImage(Picture(64, 64, Qt::green), 64, 64, 0, "1.00", true);
    list.DrawLayers();
    EXPECT_EQ(list.viewport()->grab().toImage().pixelColor(20, 20), QColor(Qt::green));
}

TEST_F(LayerListTest, KeysMoveTheSelectionIntoView) {
    Fill(9);
    for (const int key :
         {Qt::Key_Up, Qt::Key_Down, Qt::Key_End, Qt::Key_Down, Qt::Key_Up, Qt::Key_Home})
        Key(key);
    std::vector<int> selections;
    for (const auto& [index, button] : clicks)
        selections.push_back(index);
    EXPECT_THAT(selections, ElementsAre(8, 7, 0, 1, 8));
    EXPECT_EQ(list.verticalScrollBar()->value(), 0);
    Key(Qt::Key_End);
    EXPECT_EQ(list.verticalScrollBar()->value(), 9 * 40 - 120);
}

TEST_F(LayerListTest, AssistiveToolsReadTheRows) {
    Fill(2);
    list.SetSelectedIndex(0);
    QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&list);
    ASSERT_NE(whole, nullptr);
    EXPECT_EQ(whole->role(), QAccessible::List);
    ASSERT_EQ(whole->childCount(), 2);
    QAccessibleInterface* top = whole->child(0);
    QAccessibleInterface* bottom = whole->child(1);
    EXPECT_EQ(top->text(QAccessible::Name), "Icon 2");
    EXPECT_EQ(bottom->text(QAccessible::Name), "Icon 1");
    EXPECT_EQ(bottom->text(QAccessible::Value), ".50");
    EXPECT_TRUE(bottom->state().selected);
    EXPECT_FALSE(top->state().selected);
    top->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(clicks, ElementsAre(std::pair(1, Qt::LeftButton)));

    list.Clean();
    EXPECT_FALSE(top->isValid());
    EXPECT_EQ(top->text(QAccessible::Name), "");
}

}  // namespace
}  // namespace orbelle::widgets
