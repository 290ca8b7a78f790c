#include "widgets/layer_list.h"

#include <gmock/gmock.h>

#include <QScrollBar>

#include "support/hands.h"

namespace orbelle::widgets {
namespace {

using namespace orbelle::testing;
using ::testing::ElementsAre;

LayerRow Row(int width, int height, const QColor& color, bool visible = true) {
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(color);
    return {image, {std::max(width, 16), std::max(height, 16)}, ".50", visible};
}

// 200 x 120 pixels: three rows of 40. It records what is selected at each click.
class LayerListTest : public ::testing::Test {
protected:
    LayerListTest() {
        list.resize(200, 120);
        list.show();
        QObject::connect(&list, &LayerList::Clicked,
                         [this](Qt::MouseButton button, Qt::KeyboardModifiers, const QPoint&) {
                             clicks.emplace_back(list.SelectedIndex(), button);
                         });
    }
    void Fill(int count) { list.SetRows(std::vector<LayerRow>(count, Row(16, 16, Qt::red))); }
    int PressAt(int y, Qt::MouseButton button = Qt::LeftButton,
                QEvent::Type type = QEvent::MouseButtonPress) {
        SendMouse(*list.viewport(), type, QPointF(100, y), button, button);
        return list.SelectedIndex();
    }
    void ExpectPixels(const std::vector<std::pair<QPoint, QColor>>& pixels) {
        const QImage image = list.viewport()->grab().toImage();
        for (const auto& [place, color] : pixels)
            EXPECT_EQ(image.pixelColor(place), color) << place.x() << ", " << place.y();
    }

    LayerList list;
    std::vector<std::pair<int, Qt::MouseButton>> clicks;
};

TEST(FitRectTest, PlacesPicturesInABox) {
    const std::pair<QSize, QRect> cases[] = {
        {{16, 16}, {8, 8, 16, 16}},
        {{15, 32}, {8, 0, 15, 32}},
        {{64, 64}, {0, 0, 32, 32}},
        {{64, 23}, {0, 10, 32, 12}},
        {{48, 100}, {8, 0, 15, 32}},
        {{512, 1}, {0, 15, 32, 1}},
        {{0, 16}, {}},
        {{16, -1}, {}},
        {{128, 10}, {0, 15, 32, 2}},  // 2.5 goes to the even side
    };
    for (const auto& [picture, place] : cases)
        EXPECT_EQ(FitRect(picture, 32), place) << picture.width() << "x" << picture.height();
}

TEST_F(LayerListTest, SelectsTheRowUnderAPressOfAnyButton) {
    PressAt(10);
    Fill(2);
    PressAt(0);
    PressAt(39, Qt::RightButton);
    PressAt(40, Qt::MiddleButton);
    PressAt(79, Qt::LeftButton, QEvent::MouseButtonDblClick);
    PressAt(80);
    EXPECT_THAT(clicks, ElementsAre(std::pair(-1, Qt::LeftButton), std::pair(1, Qt::LeftButton),
                                    std::pair(1, Qt::RightButton), std::pair(0, Qt::MiddleButton),
                                    std::pair(0, Qt::LeftButton), std::pair(0, Qt::LeftButton)));
}

TEST_F(LayerListTest, ScrollsRowsThatDoNotFit) {
    Fill(9);
    QScrollBar& bar = *list.verticalScrollBar();
    EXPECT_EQ(bar.maximum(), 9 * 40 + 2 - 120);
    bar.setValue(100);
    EXPECT_EQ(PressAt(19), 6);
    EXPECT_EQ(PressAt(20), 5);
    EXPECT_EQ(bar.value(), 100) << "what is pressed stays under the pointer";
    for (const auto& [layer, value] : {std::pair(8, 0), {0, 240}, {1, 240}}) {
        list.SetSelectedIndex(layer);
        EXPECT_EQ(bar.value(), value) << layer;
    }
    Fill(2);
    EXPECT_EQ(bar.maximum(), 0);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(LayerListTest, ChosenHiddenAndFocusedRowsLookDifferent) {
    const auto rowOf = [&](bool visible, bool chosen) {
        list.SetRows({Row(16, 16, Qt::red, visible)});
        list.SetSelectedIndex(chosen ? 0 : -1);
        return list.viewport()->grab({0, 0, 200, 40}).toImage();
    };
    const QImage looks[] = {rowOf(true, false), rowOf(false, false), rowOf(true, true),
                            rowOf(false, true)};
    for (const QImage& look : looks)
        EXPECT_EQ(std::count(std::begin(looks), std::end(looks), look), 1);
    EXPECT_EQ(looks[0].pixelColor(24, 20), Qt::red);
    EXPECT_NE(looks[3].pixelColor(24, 20), Qt::red) << "also a chosen one";
    list.activateWindow();
    QApplication::processEvents();
    list.setFocus(Qt::TabFocusReason);
    EXPECT_NE(list.viewport()->grab({0, 0, 200, 40}).toImage(), looks[3]);
}

TEST_F(LayerListTest, DrawsThumbnailsOnChecksThatWhiteAndBlackShowOn) {
    list.SetRows({Row(2, 2, Qt::red), Row(64, 32, Qt::transparent)});
    const QImage image = list.viewport()->grab().toImage();
    for (const int x : {9, 14, 30, 38})
        EXPECT_NEAR(qGray(image.pixel(x, 20)), 160, 20);
    // The lower one's stands in the size of its layer, with hard edges.
    for (const QPoint& place : {QPoint(16, 52), {31, 67}})
        EXPECT_EQ(image.pixelColor(place), Qt::red);
    for (const QPoint& place : {QPoint(15, 52), {32, 67}})
        EXPECT_NE(image.pixelColor(place), Qt::red);
}

TEST_F(LayerListTest, MixesThePixelsOfAPictureThatShrinks) {
    LayerRow stripes = Row(64, 64, Qt::red);
    for (int x = 0; x < 64; x += 2)
        for (int y = 0; y < 64; ++y)
            stripes.Image.setPixelColor(x, y, Qt::blue);
    list.SetRows({stripes});
    const QColor middle = list.viewport()->grab().toImage().pixelColor(20, 20);
    EXPECT_NEAR(middle.red(), 128, 2);
    EXPECT_NEAR(middle.blue(), 128, 2);
    list.SetRows({Row(64, 64, Qt::green)});
    ExpectPixels({{{20, 20}, Qt::green}});
    // One that is shrunk in parts.
    LayerRow large = Row(2400, 2400, Qt::red);
    for (int y = 1200; y < 2400; ++y)
        std::fill_n(reinterpret_cast<QRgb*>(large.Image.scanLine(y)), 2400, qRgb(0, 0, 255));
    list.SetRows({large});
    ExpectPixels(
        {{{20, 5}, Qt::red}, {{20, 18}, Qt::red}, {{20, 22}, Qt::blue}, {{9, 34}, Qt::blue}});
}

TEST_F(LayerListTest, ShowsWhatItIsGivenAlsoAfterItHasShownSomethingElse) {
    LayerRow first = Row(64, 64, Qt::red);
    for (const LayerRow& row : {first, Row(64, 64, Qt::green), first}) {
        list.SetRows({row});
        ExpectPixels({{{20, 20}, row.Image.pixelColor(0, 0)}});
    }
    first.Image.fill(Qt::blue);
    list.SetRows({first});
    ExpectPixels({{{20, 20}, Qt::blue}});
    first.Size = {64, 16};
    list.SetRows({first});
    ExpectPixels({{{20, 20}, Qt::blue}});
    EXPECT_NE(list.viewport()->grab().toImage().pixelColor(20, 30), Qt::blue);
}

TEST_F(LayerListTest, KeysMoveTheSelectionIntoView) {
    Strike(list, Qt::Key_Down);
    EXPECT_TRUE(clicks.empty()) << "there is no row";
    Fill(9);
    const std::pair<Qt::Key, int> keys[] = {{Qt::Key_Up, 8},  {Qt::Key_Down, 7},
                                            {Qt::Key_End, 0}, {Qt::Key_Down, 0},
                                            {Qt::Key_Up, 1},  {Qt::Key_Home, 8}};
    for (const auto& [key, selected] : keys) {
        Strike(list, key);
        EXPECT_EQ(list.SelectedIndex(), selected) << key;
    }
    EXPECT_EQ(clicks.size(), 5u) << "one for each change";
    EXPECT_EQ(list.verticalScrollBar()->value(), 0);
    Strike(list, Qt::Key_End);
    EXPECT_EQ(list.verticalScrollBar()->value(), 9 * 40 - 120);
}

TEST_F(LayerListTest, AnEyeHidesWithoutPicking) {
    Fill(3);
    QList<int> eyes;
    QObject::connect(&list, &LayerList::EyePressed, [&](int layer) { eyes << layer; });
    list.SetSelectedIndex(1);
    Press(*list.viewport(), {185, 10});
    Press(*list.viewport(), {185, 100});
    EXPECT_TRUE(clicks.empty());
    Strike(list, Qt::Key_Space, " ");
    EXPECT_EQ(eyes, QList<int>({2, 0, 1}));
    EXPECT_EQ(list.SelectedIndex(), 1);
}

// Rows 0 to 4 are the layers 4 to 0.
TEST_F(LayerListTest, RowsAreDraggedToOtherPlaces) {
    list.resize(200, 200);
    QList<QPair<int, int>> moves;
    QObject::connect(&list, &LayerList::Moved, [&](int layer, int to) {
        moves.append({layer, to});
    });
    const auto drag = [&](double from, std::initializer_list<double> places) {
        Press(*list.viewport(), {100, from});
        for (const double y : places)
            DragTo(*list.viewport(), {100, y});
        Release(*list.viewport(), {100, *(places.end() - 1)});
    };
    Fill(5);
    drag(20, {60, 110});   // above the fourth row
    drag(180, {100, -5});  // to the top
    drag(60, {150, 700});
    drag(60, {90, 45});  // back to its place
    drag(60, {62});
    EXPECT_EQ(moves, (QList<QPair<int, int>>{{4, 2}, {0, 4}, {3, 0}}));
    Press(*list.viewport(), {100, 20});
    DragTo(*list.viewport(), {100, 110});
    Strike(list, Qt::Key_Escape);
    Release(*list.viewport(), {100, 110});
    std::vector<LayerRow> fixed(5, Row(16, 16, Qt::red));
    fixed[4].CanMove = false;
    list.SetRows(fixed);
    drag(20, {60, 110});
    EXPECT_EQ(moves.size(), 3) << "given up, or fixed";
}

TEST_F(LayerListTest, NamesAreTypedInTheirRows) {
    std::vector<std::pair<int, QString>> names;
    QObject::connect(&list, &LayerList::Renamed,
                     [&](int layer, const QString& name) { names.emplace_back(layer, name); });
    LayerRow named = Row(16, 16, Qt::red, false);
    named.Name = "Sky";
    list.SetRows({named, Row(16, 16, Qt::red)});
    EXPECT_EQ(list.PartName(1), "Sky");
    EXPECT_EQ(list.PartName(0), "Icon 2");
    EXPECT_EQ(list.PartValue(1), ".50, hidden");
    list.activateWindow();
    QApplication::processEvents();
    const auto type = [&](const char* text, Qt::Key end) {
        auto& field = *list.findChild<QLineEdit*>();
        EXPECT_TRUE(field.hasSelectedText());
        for (const char* letter = text; *letter; ++letter)
            Strike(field, Qt::Key_unknown, QString(*letter));
        Strike(field, end, "\r");
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(list.findChild<QLineEdit*>(), nullptr);
    };
    PressAt(60, Qt::LeftButton, QEvent::MouseButtonDblClick);
    type("Sea", Qt::Key_Return);
    Strike(list, Qt::Key_F2);
    type("Land", Qt::Key_Escape);
    Strike(list, Qt::Key_F2);
    type("", Qt::Key_Return);
    EXPECT_THAT(names, ElementsAre(std::pair(0, QString("Sea"))));
}

TEST_F(LayerListTest, AssistiveToolsReadTheRows) {
    Fill(2);
    list.SetSelectedIndex(0);
    QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&list);
    ASSERT_NE(whole, nullptr);
    EXPECT_EQ(whole->role(), QAccessible::List);
    ASSERT_EQ(whole->childCount(), 2);
    QAccessibleInterface* top = whole->child(0);
    EXPECT_EQ(top->text(QAccessible::Name), "Icon 2");
    EXPECT_EQ(whole->child(1)->text(QAccessible::Value), ".50");
    EXPECT_TRUE(whole->child(1)->state().selected && !top->state().selected);
    top->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(clicks, ElementsAre(std::pair(1, Qt::LeftButton)));
    list.SetRows({});
    EXPECT_FALSE(top->isValid());
    EXPECT_EQ(top->text(QAccessible::Name), "");
}

}  // namespace
}  // namespace orbelle::widgets
