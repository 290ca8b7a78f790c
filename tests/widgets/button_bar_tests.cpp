#include "widgets/button_bar.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QMouseEvent>

#include "app/waiting.h"

namespace orbelle::widgets {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

ButtonBarSetup BarOf(QStringList buttons, Qt::Orientation direction = Qt::Horizontal) {
    ButtonBarSetup setup;
    setup.Direction = direction;
    setup.Buttons = std::move(buttons);
    return setup;
}

void SendMouse(QWidget& widget, QEvent::Type type, const QPointF& place,
               Qt::MouseButton button = Qt::NoButton) {
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, button, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void Click(QWidget& widget, const QPointF& place, Qt::MouseButton button = Qt::LeftButton) {
    SendMouse(widget, QEvent::MouseButtonPress, place, button);
    SendMouse(widget, QEvent::MouseButtonRelease, place, button);
}

void SendKey(QWidget& widget, int key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

// A shown bar and the numbers of the clicks that it raised.
struct ShownBar {
    explicit ShownBar(const ButtonBarSetup& setup) : Bar(setup) {
        QObject::connect(&Bar, &ButtonBar::MouseClick, [this](int n) { Clicks.push_back(n); });
        Bar.resize(Bar.sizeHint());
        Bar.show();
    }
    QPointF Middle(int button) const { return QRectF(Bar.ButtonRect(button)).center(); }
    void Hover(int button) {
        QCursor::setPos(Bar.mapToGlobal(Middle(button).toPoint()));
        SendMouse(Bar, QEvent::MouseMove, Middle(button));
    }

    ButtonBar Bar;
    std::vector<int> Clicks;
};

// The pixel in the middle of a button, which has no icon in these tests.
QColor Face(ShownBar& shown, int button) {
    return shown.Bar.grab().toImage().pixelColor(shown.Middle(button).toPoint());
}

TEST(ToolButtonTest, ReadsTheEightFields) {
    const BarButton tool = ParseBarButton("11,Y,Original Size,1,Show all,1,-1,2");
    EXPECT_EQ(tool.Index, 11);
    EXPECT_EQ(tool.Kind, "Y");
    EXPECT_EQ(tool.Caption, "Original Size");
    EXPECT_EQ(tool.ExtraFlag, "1");
    EXPECT_EQ(tool.ToolTip, "Show all");
    EXPECT_EQ(tool.ButtonType, 1);
    EXPECT_TRUE(tool.Enabled);
    EXPECT_TRUE(tool.IsPressed);
    EXPECT_TRUE(tool.HasMenu());
    EXPECT_FALSE(tool.IsSeparator());

    const BarButton push = ParseBarButton("3,Y,,,Import,0,0,0");
    EXPECT_FALSE(push.Enabled);
    EXPECT_FALSE(push.IsPressed);
    EXPECT_FALSE(push.HasMenu());

    EXPECT_TRUE(ParseBarButton("3,1,,,,1,-1,0").IsSeparator());
}

TEST(ToolButtonTest, TakesMissingFieldsAsEmpty) {
    for (const char* text : {"", "x", "7,Y", ",,,,,,,,,,,"}) {
        const BarButton button = ParseBarButton(text);
        EXPECT_FALSE(button.Enabled) << text;
        EXPECT_FALSE(button.HasMenu()) << text;
        EXPECT_THAT(button.Menus, IsEmpty()) << text;
    }
}

// Where buttons come to stand when each letter is 10 pixels wide.
ButtonBarLayout LayOutStrings(const QStringList& strings, Qt::Orientation direction, int iconSize) {
    std::vector<BarButton> buttons;
    for (const QString& string : strings)
        buttons.push_back(ParseBarButton(string));
    return LayOutButtonBar(buttons, direction, iconSize, iconSize + 10,
                           [](const QString& text) { return 10 * static_cast<int>(text.size()); });
}

TEST(ButtonBarLayoutTest, PlacesHorizontalButtons) {
    // p: 15, 34 | 42, 61 | sep 69, 77 | 85, 104.
    const ButtonBarLayout plain = LayOutStrings(
        {"1,Y,,,,0,-1,0", "2,Y,,,,0,-1,0", "3,1,,,,0,-1,0", "4,Y,,,,0,-1,0"}, Qt::Horizontal, 16);
    EXPECT_THAT(plain.Places, ElementsAre(QRect(8, 0, 25, 25), QRect(35, 0, 25, 25), QRect(),
                                          QRect(78, 0, 25, 25)));
    EXPECT_THAT(plain.SeparatorLines, ElementsAre(0, 0, 75, 0));

    // Icons of 32. p: 15, 47, 55, 85, 89 | 97, 129, 132 | after a menu 148, 180, 183.
    const ButtonBarLayout captions =
        LayOutStrings({"1,Y,New,,,0,-1,0", "2,Y,,,,0,-1,1", "3,Y,,,,0,-1,0"}, Qt::Horizontal, 32);
    EXPECT_THAT(captions.Places,
                ElementsAre(QRect(8, 0, 80, 41), QRect(90, 0, 47, 41), QRect(141, 0, 41, 41)));
}

TEST(ButtonBarLayoutTest, PlacesVerticalButtons) {
    // p: 15, 31 | 39, 55 | sep 63, 71 | 79. Captions and menus take no room.
    const ButtonBarLayout layout = LayOutStrings(
        {"1,Y,Move,,,1,-1,0", "2,Y,,,,1,-1,3", "3,1,,,,1,-1,0", "4,Y,,,,1,-1,0"}, Qt::Vertical, 16);
    EXPECT_THAT(layout.Places, ElementsAre(QRect(0, 8, 25, 23), QRect(0, 32, 25, 23), QRect(),
                                           QRect(0, 72, 25, 23)));
    EXPECT_THAT(layout.SeparatorLines, ElementsAre(0, 0, 69, 0));
}

TEST(ButtonBarLayoutTest, HitsNeitherSeparatorsNorSplitLines) {
    const std::vector<BarButton> buttons = {ParseBarButton("1,Y,Split Line,,,0,-1,0"),
                                            ParseBarButton("2,1,,,,0,-1,0"),
                                            ParseBarButton("3,Y,,,,0,-1,0")};
    const ButtonBarLayout layout =
        LayOutButtonBar(buttons, Qt::Horizontal, 16, 26, [](const QString&) { return 50; });
    std::vector<int> hits;
    for (int x = 0; x < layout.Length; ++x)
        if (const int hit = ButtonAt(buttons, layout, QPoint(x, 10)); hit >= 0)
            hits.push_back(hit);
    EXPECT_EQ(hits, std::vector<int>(25, 2));
    EXPECT_EQ(ButtonAt(buttons, layout, layout.Places[2].topLeft() - QPoint(0, 1)), -1);
}

TEST(ButtonBarTest, IgnoresNumbersWithoutAButton) {
    ButtonBar bar(BarOf({"1,Y,,,,1,-1,0", "2,Y,,,,0,-1,0"}));
    for (const int number : {-1, 0, 3, 1 << 30}) {
        bar.SetButtonPressState(number, true);
        bar.SetButtonEnable(number, true);
        bar.SetButtonCaptions(number, "x");
        bar.SetButtonToolTip(number, "x");
        bar.AddButtonMenu(number, {});
        EXPECT_FALSE(bar.IsPressed(number));
        EXPECT_FALSE(bar.GetButtonEnable(number));
        EXPECT_TRUE(bar.ButtonRect(number).isEmpty());
    }
    EXPECT_TRUE(bar.IsPressed(1));
    EXPECT_FALSE(bar.IsPressed(2));
    EXPECT_TRUE(bar.GetButtonEnable(2));
}

TEST(ButtonBarTest, PaintsOnlyItsBackgroundWithoutButtons) {
    ButtonBar bar(BarOf({}));
    bar.resize(40, 26);
    Click(bar, {20, 13});
    SendKey(bar, Qt::Key_Right);
    SendKey(bar, Qt::Key_Space);
    const QImage image = bar.grab().toImage();
    QImage background = image.copy();
    background.fill(QColor(245, 246, 247));
    EXPECT_EQ(image, background);
    EXPECT_EQ(bar.refTopValue(), 0);
}

TEST(ButtonBarTest, ClicksAtThePressWithAnyMouseButton) {
    ShownBar shown(BarOf({"1,Y,,,,0,-1,0", "2,1,,,,0,-1,0", "3,Y,,,,0,-1,0"}, Qt::Vertical));
    EXPECT_EQ(shown.Bar.ButtonIndex(), 0);
    SendMouse(shown.Bar, QEvent::MouseButtonPress, shown.Middle(3), Qt::LeftButton);
    EXPECT_THAT(shown.Clicks, ElementsAre(3));
    EXPECT_EQ(shown.Bar.ButtonIndex(), 3);
    EXPECT_EQ(shown.Bar.refTopValue(), 48);
    SendMouse(shown.Bar, QEvent::MouseButtonRelease, shown.Middle(3), Qt::LeftButton);
    Click(shown.Bar, shown.Middle(1), Qt::RightButton);
    Click(shown.Bar, {1, 1});
    EXPECT_THAT(shown.Clicks, ElementsAre(3, 1));
}

TEST(ButtonBarTest, LatchesBeforeItRaisesTheClick) {
    ShownBar shown(BarOf({"1,Y,,,,1,-1,0"}));
    std::vector<bool> states;
    QObject::connect(&shown.Bar, &ButtonBar::MouseClick,
                     [&] { states.push_back(shown.Bar.IsPressed(1)); });
    Click(shown.Bar, shown.Middle(1));
    Click(shown.Bar, shown.Middle(1));
    EXPECT_THAT(states, ElementsAre(false, true));
}

TEST(ButtonBarTest, DisabledButtonsAreSilent) {
    ShownBar shown(BarOf({"1,Y,,,,1,0,0"}));
    shown.Bar.SetButtonPressState(1, false);
    const QColor background = Face(shown, 1);
    shown.Hover(1);
    Click(shown.Bar, shown.Middle(1));
    EXPECT_THAT(shown.Clicks, IsEmpty());
    EXPECT_FALSE(shown.Bar.IsPressed(1));
    EXPECT_EQ(Face(shown, 1), background);
}

TEST(ButtonBarTest, ShowsTheStatesOfAButton) {
    ShownBar shown(BarOf({"1,Y,,,,0,-1,0"}));
    const QColor normal = Face(shown, 1);
    shown.Hover(1);
    const QColor hover = Face(shown, 1);
    SendMouse(shown.Bar, QEvent::MouseButtonPress, shown.Middle(1), Qt::LeftButton);
    const QColor down = Face(shown, 1);
    SendMouse(shown.Bar, QEvent::MouseButtonRelease, shown.Middle(1), Qt::LeftButton);
    EXPECT_NE(hover, normal);
    EXPECT_NE(down, normal);
    EXPECT_NE(down, hover);
    EXPECT_EQ(Face(shown, 1), hover);

    shown.Bar.SetButtonEnable(1, false);
    EXPECT_EQ(Face(shown, 1), normal);

    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&shown.Bar, &leave);
    shown.Bar.SetButtonEnable(1, true);
    EXPECT_EQ(Face(shown, 1), normal);
    shown.Bar.SetButtonPressState(1, true);
    EXPECT_EQ(Face(shown, 1), down);
}

TEST(ButtonBarTest, HoverEndsWithoutAMoveOutside) {
    ShownBar shown(BarOf({"1,Y,,,,0,-1,0"}));
    const QColor normal = Face(shown, 1);
    shown.Hover(1);
    QElapsedTimer stay;
    stay.start();
    testing::WaitUntil([&] { return stay.elapsed() > 150; });
    EXPECT_NE(Face(shown, 1), normal);

    // Moving the pointer raises no event for the bar here.
    shown.Bar.setMouseTracking(false);
    QCursor::setPos(shown.Bar.mapToGlobal(QPoint(0, shown.Bar.height() + 300)));
    EXPECT_TRUE(testing::WaitUntil([&] { return Face(shown, 1) == normal; }, 5));
}

TEST(ButtonBarTest, DrawsTheSeparatorLines) {
    ButtonBar bar(BarOf({"1,1,,,,0,-1,0"}));
    bar.resize(40, 26);
    const QImage image = bar.grab().toImage();
    const QColor background(245, 246, 247);
    // p = 7 + 8 + 8: lines at 20 and 21, from 2 to 22.
    for (const int y : {2, 21})
        EXPECT_EQ(image.pixelColor(20, y), QColor(220, 220, 220));
    EXPECT_EQ(image.pixelColor(21, 2), QColor(253, 253, 253));
    for (const QPoint& outside : {QPoint(20, 1), QPoint(20, 22), QPoint(19, 10), QPoint(22, 10)})
        EXPECT_EQ(image.pixelColor(outside), background);
}

TEST(ButtonBarTest, KeysWalkOverEnabledButtonsAndPress) {
    ShownBar shown(
        BarOf({"1,Y,,,,0,0,0", "2,Y,,,,0,-1,0", "3,1,,,,0,-1,0", "4,Y,,,,0,0,0", "5,Y,,,,1,-1,0"}));
    const QImage calm = shown.Bar.grab().toImage();
    QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&shown.Bar, &focus);
    EXPECT_NE(shown.Bar.grab().toImage(), calm);
    SendKey(shown.Bar, Qt::Key_Space);
    SendKey(shown.Bar, Qt::Key_Right);
    SendKey(shown.Bar, Qt::Key_Return);
    EXPECT_FALSE(shown.Bar.IsPressed(5));
    SendKey(shown.Bar, Qt::Key_Down);
    SendKey(shown.Bar, Qt::Key_Space);
    SendKey(shown.Bar, Qt::Key_Left);
    SendKey(shown.Bar, Qt::Key_Up);
    shown.Bar.SetButtonEnable(2, false);
    SendKey(shown.Bar, Qt::Key_Space);
    EXPECT_THAT(shown.Clicks, ElementsAre(2, 5, 5));
    EXPECT_EQ(shown.Bar.ButtonIndex(), 5);
}

TEST(ButtonBarTest, CaptionsAndMenusChangeTheLength) {
    ButtonBar bar(BarOf({"1,Y,,,,0,-1,0"}));
    const int plain = bar.sizeHint().width();
    bar.AddButtonMenu(1, ButtonMenu{1, "a", "a", true, true});
    EXPECT_EQ(bar.sizeHint().width(), plain + 6);
    EXPECT_EQ(bar.Buttons()[0].Menus.size(), 1u);
    bar.SetButtonCaptions(1, "A caption");
    EXPECT_EQ(
        bar.sizeHint().width() - plain,
        9 + static_cast<int>(std::ceil(QFontMetricsF(bar.font()).horizontalAdvance("A caption"))));
}

TEST(ButtonBarTest, AssistiveToolsReachTheButtons) {
    ShownBar shown(BarOf({"1,Y,New,,,0,-1,0", "2,1,,,,0,-1,0", "3,Y,,,Undo,1,0,0"}));
    QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(&shown.Bar);
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->role(), QAccessible::ToolBar);
    ASSERT_EQ(bar->childCount(), 2);
    QAccessibleInterface* first = bar->child(0);
    QAccessibleInterface* undo = bar->child(1);
    EXPECT_EQ(bar->child(2), nullptr);
    EXPECT_EQ(bar->indexOfChild(undo), 1);
    EXPECT_EQ(first->text(QAccessible::Name), "New");
    EXPECT_EQ(undo->text(QAccessible::Name), "Undo");
    EXPECT_TRUE(undo->state().disabled);
    EXPECT_TRUE(undo->state().pressed);
    EXPECT_FALSE(first->state().disabled);
    EXPECT_FALSE(first->state().pressed);
    EXPECT_EQ(bar->childAt(undo->rect().center().x(), undo->rect().center().y()), undo);

    for (QAccessibleInterface* button : {first, undo})
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(shown.Clicks, ElementsAre(1));
}

}  // namespace
}  // namespace orbelle::widgets
