#include "widgets/button_bar.h"

#include <gmock/gmock.h>

#include <QCursor>
#include <QElapsedTimer>

#include "app/waiting.h"
#include "support/hands.h"

namespace orbelle::widgets {
namespace {

using namespace orbelle::testing;
using ::testing::ElementsAre;

using BarButtons = std::vector<BarButton>;

const BarButton kPlain;
const BarButton kLatching{.Latches = true};
const BarButton kSeparator{.IsSeparator = true};
const QColor kBackground(245, 246, 247);
const QColor kAccent(58, 150, 255);

// A shown bar and the numbers of the clicks that it raised.
struct ShownBar {
    explicit ShownBar(const BarButtons& buttons, Qt::Orientation direction = Qt::Horizontal)
        : Bar({.Direction = direction, .Buttons = buttons}),
          Count(static_cast<int>(buttons.size())) {
        QObject::connect(&Bar, &ButtonBar::Clicked, [this](int n) { Clicks.push_back(n); });
        Bar.resize(Bar.sizeHint());
        Bar.show();
    }
    QPointF Middle(int button) const { return QRectF(Bar.ButtonRect(button)).center(); }
    void Hover(int button) {
        QCursor::setPos(Bar.mapToGlobal(Middle(button).toPoint()));
        SendMouse(Bar, QEvent::MouseMove, Middle(button), Qt::NoButton, Qt::NoButton);
    }
    // Buttons have no icon in these tests.
    QColor Face(int button) { return Bar.grab().toImage().pixelColor(Middle(button).toPoint()); }
    // The button with the ring of the focus; 0: none.
    int Ring() {
        const QImage image = Bar.grab().toImage();
        for (int button = 1; button <= Count; ++button)
            if (const QRect place = Bar.ButtonRect(button);
                !place.isEmpty() && image.pixelColor(place.left(), place.center().y()) == kAccent)
                return button;
        return 0;
    }

    ButtonBar Bar;
    int Count;
    std::vector<int> Clicks;
};

TEST(ButtonBarLayoutTest, PlacesButtonsAlongTheBar) {
    const auto layOut = [](Qt::Orientation direction, int iconSize, const BarButtons& buttons) {
        return LayOutButtonBar(
            buttons, direction, iconSize, iconSize + 10,
            [](const QString& text) { return 10 * static_cast<int>(text.size()); });
    };
    const BarButton arrow{.HasArrow = true}, caption{.Caption = "New"};
    const auto plain = layOut(Qt::Horizontal, 16, {kPlain, kPlain, kSeparator, kPlain});
    EXPECT_THAT(plain.Places, ElementsAre(QRect(8, 0, 25, 25), QRect(35, 0, 25, 25), QRect(),
                                          QRect(78, 0, 25, 25)));
    EXPECT_THAT(plain.SeparatorLines, ElementsAre(0, 0, 75, 0));
    EXPECT_EQ(plain.Length, 112);
    const auto captions = layOut(Qt::Horizontal, 32, {caption, arrow, kPlain});
    EXPECT_THAT(captions.Places,
                ElementsAre(QRect(8, 0, 80, 41), QRect(90, 0, 47, 41), QRect(141, 0, 41, 41)));
    EXPECT_EQ(captions.Length, 191);
    const auto vertical = layOut(Qt::Vertical, 16, {caption, arrow, kSeparator, kPlain});
    EXPECT_THAT(vertical.Places, ElementsAre(QRect(0, 8, 25, 23), QRect(0, 32, 25, 23), QRect(),
                                             QRect(0, 72, 25, 23)));
    EXPECT_THAT(vertical.SeparatorLines, ElementsAre(0, 0, 69, 0));
    EXPECT_EQ(vertical.Length, 104);
}

TEST(ButtonBarLayoutTest, HitsTheButtonUnderThePointer) {
    const ButtonBarLayout layout = {
        .Places = {{8, 0, 25, 25}, {}, {51, 0, 25, 25}}, .SeparatorLines = {}, .Length = 0};
    const std::pair<QPoint, int> cases[] = {{{7, 0}, -1},  {{8, 0}, 0},  {{32, 24}, 0},
                                            {{33, 9}, -1}, {{0, 0}, -1}, {{51, 9}, 2},
                                            {{8, 25}, -1}};
    for (const auto& [point, button] : cases)
        EXPECT_EQ(ButtonAt(layout, point), button) << point.x() << ", " << point.y();
}

TEST(ButtonBarTest, ClicksAtThePressWithAnyMouseButton) {
    ShownBar shown({kPlain, kSeparator, kPlain}, Qt::Vertical);
    Press(shown.Bar, shown.Middle(3));
    EXPECT_THAT(shown.Clicks, ElementsAre(3));
    EXPECT_EQ(shown.Bar.LastButton(), 3);
    SendMouse(shown.Bar, QEvent::MouseButtonPress, shown.Middle(1), Qt::RightButton,
              Qt::RightButton);
    Click(shown.Bar, {1, 1});
    EXPECT_THAT(shown.Clicks, ElementsAre(3, 1));
}

TEST(ButtonBarTest, LatchesBeforeItRaisesTheClickUnlessDisabledOrUnknown) {
    ShownBar shown({kLatching});
    std::vector<bool> states;
    QObject::connect(&shown.Bar, &ButtonBar::Clicked,
                     [&] { states.push_back(shown.Bar.IsPressed(1)); });
    for (const bool enabled : {true, true, false}) {
        shown.Bar.SetButtonEnabled(1, enabled);
        Click(shown.Bar, shown.Middle(1));
    }
    EXPECT_THAT(states, ElementsAre(true, false));
    for (const int number : {-1, 0, 2, 1 << 30}) {
        shown.Bar.SetPressed(number, true);
        shown.Bar.SetButtonEnabled(number, false);
        EXPECT_FALSE(shown.Bar.IsPressed(number));
        EXPECT_TRUE(shown.Bar.ButtonRect(number).isEmpty());
    }
    EXPECT_FALSE(shown.Bar.IsPressed(1));
    EXPECT_EQ(shown.Face(1), kBackground);
}

TEST(ButtonBarTest, ShowsTheStatesOfAButton) {
    ShownBar shown({kPlain});
    EXPECT_EQ(shown.Face(1), kBackground);
    shown.Hover(1);
    const QColor hover = shown.Face(1);
    Press(shown.Bar, shown.Middle(1));
    const QColor down = shown.Face(1);
    Release(shown.Bar, shown.Middle(1));
    EXPECT_TRUE(hover != kBackground && down != kBackground && down != hover);
    EXPECT_EQ(shown.Face(1), hover);

    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&shown.Bar, &leave);
    EXPECT_EQ(shown.Face(1), kBackground);
    shown.Bar.SetPressed(1, true);
    EXPECT_EQ(shown.Face(1), down);
}

TEST(ButtonBarTest, HoverEndsWithoutAMoveOutside) {
    ShownBar shown({kPlain});
    shown.Hover(1);
    QElapsedTimer stay;
    stay.start();
    WaitUntil([&] { return stay.elapsed() > 150; });
    EXPECT_NE(shown.Face(1), kBackground);
    // Moving the pointer raises no event for the bar here.
    shown.Bar.setMouseTracking(false);
    QCursor::setPos(shown.Bar.mapToGlobal(QPoint(0, shown.Bar.height() + 300)));
    EXPECT_TRUE(WaitUntil([&] { return shown.Face(1) == kBackground; }, 5));
}

TEST(ButtonBarTest, DrawsTheSeparatorLines) {
    ButtonBar bar({.Buttons = {kSeparator}});
    bar.resize(40, 26);
    const QImage image = bar.grab().toImage();
    // Two lines at 20 and 21, from 2 to 22.
    const std::pair<QPoint, QColor> pixels[] = {
        {{20, 2}, {220, 220, 220}}, {{20, 21}, {220, 220, 220}}, {{21, 2}, {253, 253, 253}},
        {{20, 1}, kBackground},     {{20, 22}, kBackground},     {{19, 10}, kBackground},
        {{22, 10}, kBackground}};
    for (const auto& [place, color] : pixels)
        EXPECT_EQ(image.pixelColor(place), color) << place.x() << ", " << place.y();
}

TEST(ButtonBarTest, KeysWalkOverEnabledButtonsAndPress) {
    ShownBar shown({kPlain, kPlain, kSeparator, kPlain, kLatching});
    shown.Bar.SetButtonEnabled(1, false);
    shown.Bar.SetButtonEnabled(4, false);
    EXPECT_EQ(shown.Ring(), 0);
    QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&shown.Bar, &focus);
    EXPECT_EQ(shown.Ring(), 2);
    const struct {
        Qt::Key Key;
        int Ring;
        std::vector<int> Clicks;
    } keys[] = {{Qt::Key_Left, 2, {}},    {Qt::Key_Space, 2, {2}}, {Qt::Key_Right, 5, {}},
                {Qt::Key_Return, 5, {5}}, {Qt::Key_Down, 5, {}},   {Qt::Key_Enter, 5, {5}},
                {Qt::Key_Up, 2, {}}};
    for (const auto& [key, ring, clicks] : keys) {
        Strike(shown.Bar, key);
        EXPECT_EQ(shown.Ring(), ring) << key;
        EXPECT_EQ(std::exchange(shown.Clicks, {}), clicks) << key;
    }
    EXPECT_FALSE(shown.Bar.IsPressed(5)) << "pressed twice";
    shown.Bar.SetButtonEnabled(2, false);
    Strike(shown.Bar, Qt::Key_Space);
    EXPECT_THAT(shown.Clicks, ElementsAre());
}

TEST(ButtonBarTest, AssistiveToolsReachTheButtons) {
    ShownBar shown({{.Caption = "New"}, kSeparator, {.Caption = "U", .ToolTip = "Undo"}});
    shown.Bar.SetButtonEnabled(3, false);
    shown.Bar.SetPressed(3, true);
    QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(&shown.Bar);
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->role(), QAccessible::ToolBar);
    ASSERT_EQ(bar->childCount(), 2);
    QAccessibleInterface* first = bar->child(0);
    QAccessibleInterface* undo = bar->child(1);
    EXPECT_EQ(bar->child(2), nullptr);
    EXPECT_EQ(bar->indexOfChild(undo), 1);
    EXPECT_EQ(bar->childAt(undo->rect().center().x(), undo->rect().center().y()), undo);
    EXPECT_EQ(first->text(QAccessible::Name), "New");
    EXPECT_EQ(undo->text(QAccessible::Name), "Undo");
    EXPECT_TRUE(undo->state().disabled && undo->state().pressed);
    EXPECT_FALSE(first->state().disabled || first->state().pressed);
    for (QAccessibleInterface* button : {first, undo})
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(shown.Clicks, ElementsAre(1));
}

}  // namespace
}  // namespace orbelle::widgets
