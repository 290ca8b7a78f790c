#include "widgets/button_bar.h"

#include <gmock/gmock.h>

#include <QCursor>
#include <QElapsedTimer>
#include <QLineEdit>

#include "app/waiting.h"
#include "support/hands.h"
#include "widgets/theme.h"

namespace orbelle::widgets {
namespace {

using namespace orbelle::testing;
using ::testing::ElementsAre;

using BarButtons = std::vector<BarButton>;

const BarButton kPlain;
const BarButton kLatching{.Latches = true};
const BarButton kSeparator{.IsSeparator = true};
const QColor kBackground = CurrentTheme().Ground;

// A shown bar and the numbers of the clicks that it raised.
struct ShownBar {
    explicit ShownBar(const BarButtons& buttons, Qt::Orientation direction = Qt::Horizontal)
        : Bar({.Metrics = {.Direction = direction}, .Buttons = buttons}),
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
                !place.isEmpty() &&
                image.pixelColor(place.left() - 2, place.center().y()) == CurrentTheme().Accent)
                return button;
        return 0;
    }

    ButtonBar Bar;
    int Count;
    std::vector<int> Clicks;
};

TEST(ButtonBarLayoutTest, PlacesButtonsAlongTheBar) {
    const auto layOut = [](const ButtonBarMetrics& metrics, const QSize& size,
                           const BarButtons& buttons) {
        return LayOutButtonBar(buttons, metrics, size, [](const QString& text) {
            return 10 * static_cast<int>(text.size());
        });
    };
    const BarButton caption{.Caption = "New"}, spring{.IsSpring = true}, withRoom{.RoomBeside = 80};
    // The line has as much room on either side.
    const auto plain = layOut({}, {0, 32}, {kPlain, kPlain, kSeparator, kPlain});
    EXPECT_THAT(plain.Places, ElementsAre(QRect(4, 4, 24, 24), QRect(30, 4, 24, 24), QRect(),
                                          QRect(63, 4, 24, 24)));
    EXPECT_EQ(plain.Lines[2], QRect(58, 4, 1, 24));
    EXPECT_EQ(plain.Length, 91);

    // The picture's middle, half of it, 4, the words, 8.
    const ButtonBarMetrics wide = {.FaceSize = {28, 28}, .Margin = 6, .Gap = 6};
    EXPECT_EQ(layOut(wide, {0, 40}, {caption}).Places[0], QRect(6, 6, 64, 28));

    // What is left stands before the last button; none in a bar that is too short.
    for (const int length : {300, 10}) {
        const auto spread = layOut(wide, {length, 40}, {kPlain, withRoom, spring, kPlain});
        EXPECT_EQ(spread.Length, 188);
        EXPECT_EQ(spread.Places[1], QRect(40, 6, 28, 28));
        EXPECT_EQ(spread.Places[3], QRect(length == 300 ? 266 : 154, 6, 28, 28));
    }

    const auto vertical = layOut({.Direction = Qt::Vertical, .FaceSize = {30, 24}}, {38, 0},
                                 {caption, kSeparator, kPlain});
    EXPECT_THAT(vertical.Places, ElementsAre(QRect(4, 4, 30, 24), QRect(), QRect(4, 37, 30, 24)));
    EXPECT_EQ(vertical.Lines[1], QRect(4, 32, 30, 1));
    EXPECT_EQ(vertical.Length, 65);
}

TEST(ButtonBarLayoutTest, HitsTheButtonUnderThePointer) {
    const ButtonBarLayout layout = {
        .Places = {{8, 0, 25, 25}, {}, {51, 0, 25, 25}}, .Lines = {}, .Length = 0};
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

// A command of the menu gives the focus back to whatever had it, and an empty window to the first.
TEST(ButtonBarTest, ShowsTheFocusOnlyWhereTheKeyboardBroughtIt) {
    const std::pair<Qt::FocusReason, int> cases[] = {{Qt::TabFocusReason, 1},
                                                     {Qt::BacktabFocusReason, 1},
                                                     {Qt::ShortcutFocusReason, 1},
                                                     {Qt::OtherFocusReason, 0},
                                                     {Qt::ActiveWindowFocusReason, 0}};
    for (const auto& [reason, ring] : cases) {
        ShownBar shown({kPlain});
        QFocusEvent focus(QEvent::FocusIn, reason);
        QApplication::sendEvent(&shown.Bar, &focus);
        EXPECT_EQ(shown.Ring(), ring) << reason;
    }
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
    auto* field = new QLineEdit;
    shown.Bar.PutBeside(1, *field);
    shown.Bar.SetChoice(1, {}, "Solid");
    shown.Bar.SetButtonEnabled(3, false);
    shown.Bar.SetPressed(3, true);
    QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(&shown.Bar);
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->role(), QAccessible::ToolBar);
    ASSERT_EQ(bar->childCount(), 3);
    EXPECT_EQ(bar->child(2), QAccessible::queryAccessibleInterface(field));
    EXPECT_EQ(bar->indexOfChild(bar->child(2)), 2);
    QAccessibleInterface* first = bar->child(0);
    QAccessibleInterface* undo = bar->child(1);
    EXPECT_EQ(bar->child(3), nullptr);
    EXPECT_EQ(bar->indexOfChild(undo), 1);
    EXPECT_EQ(bar->childAt(undo->rect().center().x(), undo->rect().center().y()), undo);
    EXPECT_EQ(first->text(QAccessible::Name), "New");
    EXPECT_EQ(first->text(QAccessible::Value), "Solid");
    EXPECT_EQ(undo->text(QAccessible::Name), "Undo");
    EXPECT_TRUE(undo->state().disabled && undo->state().pressed);
    EXPECT_FALSE(first->state().disabled || first->state().pressed);
    for (QAccessibleInterface* button : {first, undo})
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(shown.Clicks, ElementsAre(1));
}

}  // namespace
}  // namespace orbelle::widgets
