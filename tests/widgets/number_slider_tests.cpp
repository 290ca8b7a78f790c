#include "widgets/number_slider.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QBackingStore>
#include <QDeadlineTimer>
#include <QPushButton>
#include <climits>
#include <memory>

#include "support/hands.h"

namespace orbelle::widgets {
namespace {

using namespace orbelle::testing;

class NumberSliderTest : public ::testing::Test {
protected:
    NumberSliderTest() {
        slider_.resize(92, 24);
        slider_.SetRange(5, 255);
        slider_.SetValue(51);
        slider_.show();
    }

    void Enter(const QString& text) {
        field_.selectAll();
        for (const QChar letter : text)
            Strike(field_, Qt::Key_unknown, letter);
    }

    // On the pop-up's own pixels: the thumb of the value 51 begins 13 pixels into the track.
    QPointF OnThumb() const { return track_.ThumbRect().center(); }

    NumberSlider slider_;
    QLineEdit& field_ = *slider_.findChild<QLineEdit*>();
    SliderTrack& track_ = *slider_.findChild<SliderTrack*>();
    Gestures gestures_{slider_};
    const QPointF up_{65, 6}, down_{65, 18}, open_{83, 12};
};

TEST(SliderScaleTest, DragsByTenthsUpToTenAndElseOverTheWholeTrack) {
    const struct {
        int MaxValue;
        double X;
        int Value;
        double Place;
    } cases[] = {
        {10, 50, 5, 43},     {10, 5, 0, 0},        {10, 15, 2, 13},      {10, 25, 2, 13},
        {5, 50, 5, 43},      {5, 56, 5, 100},      {11, 100, 11, 93},    {255, 40, 102, 33},
        {255, 100, 255, 93}, {255, 101, 255, 100}, {255, 900, 255, 100}, {255, -1, 0, 0},
    };
    for (const auto& c : cases) {
        const SliderScale::Drag drag = SliderScale{c.MaxValue}.DragTo(c.X);
        EXPECT_EQ(drag.Value, c.Value) << c.MaxValue << " at " << c.X;
        EXPECT_NEAR(drag.Place, c.Place, 1e-9) << c.MaxValue << " at " << c.X;
    }
    const std::tuple<int, int, double> places[] = {
        {255, 51, 13}, {255, 300, 100},    {255, INT_MIN, 0},     {10, 3, 23},
        {0, 0, 0},     {10, INT_MAX, 100}, {INT_MAX, INT_MAX, 93}};
    for (const auto& [maxValue, value, place] : places)
        EXPECT_NEAR(SliderScale{maxValue}.PlaceFromValue(value), place, 1e-9)
            << value << " of " << maxValue;
}

TEST_F(NumberSliderTest, ATypedNumberCountsWhenItIsCommitted) {
    Enter("102");
    EXPECT_EQ(gestures_.Told(), "") << "not digit by digit";
    EXPECT_EQ(slider_.Value(), 51);
    for (const char* told : {"pressed 102 released finished", "finished"}) {
        Strike(field_, Qt::Key_Return, "\r");
        EXPECT_EQ(gestures_.Told(), told);
    }
    EXPECT_NEAR(track_.Place(), 33, 1e-9);
    Enter("300");
    slider_.CommitTyping();
    EXPECT_EQ(slider_.Value(), 300) << "typed values may lie beyond the range";
}

TEST_F(NumberSliderTest, EscapeBringsBackTheNumberBeforeTheTyping) {
    Enter("102");
    Strike(field_, Qt::Key_Escape);
    EXPECT_EQ(gestures_.Told(), "finished");
    EXPECT_EQ(field_.text(), "51");
    Strike(field_, Qt::Key_Up);
    Strike(field_, Qt::Key_Up);
    Strike(field_, Qt::Key_Escape);
    EXPECT_EQ(gestures_.Told(), "pressed 52 53 51 released finished");
    Press(track_, OnThumb());
    DragTo(track_, {OnThumb().x() + 40, OnThumb().y()});
    gestures_.Told();
    Strike(track_, Qt::Key_Escape);
    Release(track_, OnThumb());
    EXPECT_EQ(gestures_.Told(), "51 released");
}

// Letters are the window's, Undo while nothing is typed.
TEST_F(NumberSliderTest, TakesOnlyShortcutsThatItNeeds) {
    const auto isTaken = [&](Qt::Key key, Qt::KeyboardModifiers modifiers, const char* text = "") {
        QKeyEvent event(QEvent::ShortcutOverride, key, modifiers, text);
        event.ignore();
        QApplication::sendEvent(&field_, &event);
        return event.isAccepted();
    };
    for (const bool typing : {false, true, false}) {
        if (typing)
            Enter("7");
        else
            Strike(field_, Qt::Key_Return, "\r");
        EXPECT_EQ(isTaken(Qt::Key_Z, Qt::ControlModifier), typing);
        EXPECT_EQ(isTaken(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier), typing);
        EXPECT_TRUE(isTaken(Qt::Key_Escape, Qt::NoModifier));
        EXPECT_TRUE(isTaken(Qt::Key_C, Qt::ControlModifier));
        EXPECT_TRUE(isTaken(Qt::Key_5, Qt::NoModifier, "5"));
        EXPECT_FALSE(isTaken(Qt::Key_V, Qt::NoModifier, "v"));
    }
}

TEST_F(NumberSliderTest, TakesDigitsOnly) {
    for (const auto& [typed, number] :
         {std::pair("", 51), {"x", 51}, {"-6 2.5e", 625}, {"12345678901", 123456789}}) {
        slider_.SetValue(51);
        Enter("");
        Strike(field_, Qt::Key_Delete);
        Enter(typed);
        Strike(field_, Qt::Key_Return, "\r");
        EXPECT_EQ(slider_.Value(), number) << typed;
        EXPECT_EQ(field_.text(), QString::number(number));
    }
}

TEST_F(NumberSliderTest, AnOwnerMayLimitWhatIsTypedOrDragged) {
    QObject::connect(&slider_, &NumberSlider::Changed, &slider_,
                     [this](int value) { slider_.SetValue(std::min(value, 204)); });
    Press(track_, OnThumb());
    DragTo(track_, {200, OnThumb().y()});
    EXPECT_EQ(slider_.Value(), 204);
    EXPECT_NEAR(track_.Place(), 73, 1e-9);
    Enter("12");
    slider_.SetValue(204);
    EXPECT_EQ(field_.text(), "12") << "the typing was disturbed";
    Enter("250");
    slider_.CommitTyping();
    EXPECT_EQ(field_.text(), "204");
}

TEST_F(NumberSliderTest, ArrowsStepWithinTheRange) {
    const std::tuple<int, int, const char*> cases[] = {
        {51, 1, "pressed 52 released"},       {51, -1, "pressed 50 released"},
        {255, 1, "pressed released"},         {5, -1, "pressed released"},
        {300, 1, "pressed 255 released"},     {0, -1, "pressed 5 released"},
        {INT_MAX, 1, "pressed 255 released"},
    };
    for (const auto& [from, step, told] : cases) {
        slider_.SetValue(from);
        Click(slider_, step > 0 ? up_ : down_);
        EXPECT_EQ(gestures_.Told(), told) << from;
        slider_.SetValue(from);
        Strike(field_, step > 0 ? Qt::Key_Up : Qt::Key_Down);
        slider_.CommitTyping();
        EXPECT_EQ(gestures_.Told(), told) << from;
    }
}

TEST_F(NumberSliderTest, AnArrowIsShownPaleWhileItCanGoNoFurther) {
    const auto shown = [this] {
        QApplication::processEvents();
        // What is on the screen; a grab would paint.
        const auto& screen = *static_cast<QImage*>(slider_.backingStore()->paintDevice());
        std::string arrows;
        for (const QPointF& arrow : {up_, down_})
            arrows += screen.pixelColor(arrow.toPoint()).red() > 200 ? "pale " : "dark ";
        return arrows;
    };
    EXPECT_EQ(shown(), "dark dark ");
    Enter("254");
    Click(slider_, up_);
    EXPECT_EQ(shown(), "pale dark ");
    Strike(field_, Qt::Key_Down);
    EXPECT_EQ(shown(), "dark dark ");
    Enter("5");
    slider_.CommitTyping();
    EXPECT_EQ(shown(), "dark pale ");
    slider_.SetRange(0, 5);
    EXPECT_EQ(shown(), "pale dark ");
    slider_.SetValue(3);
    EXPECT_EQ(shown(), "dark dark ");
}

TEST_F(NumberSliderTest, AHeldArrowRepeatsWithinOneGesture) {
    Press(slider_, up_);
    const QDeadlineTimer deadline(10000);
    while (slider_.Value() < 54 && !deadline.hasExpired())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    Release(slider_, up_);
    const std::string told = gestures_.Told();
    EXPECT_TRUE(told.starts_with("pressed 52 53 54") && told.ends_with(" released")) << told;
}

TEST_F(NumberSliderTest, WhatInterruptsAGestureEndsIt) {
    Enter("9");
    Strike(field_, Qt::Key_Up);
    EXPECT_EQ(gestures_.Told(), "pressed 9 released pressed 10");
    slider_.CommitTyping();
    EXPECT_EQ(gestures_.Told(), "released");
    for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
        Enter("9");
        QFocusEvent leaves(QEvent::FocusOut, reason);
        QApplication::sendEvent(&field_, &leaves);
        EXPECT_EQ(gestures_.Told(), "pressed 9 released");
        slider_.SetValue(10);
    }
    Press(slider_, up_);
    slider_.setEnabled(false);
    EXPECT_EQ(gestures_.Told(), "pressed 11 released");
    slider_.setEnabled(true);
    Press(slider_, down_);
    slider_.hide();
    EXPECT_EQ(gestures_.Told(), "pressed 10 released");
    slider_.show();
    Click(slider_, open_);
    Press(track_, OnThumb());
    track_.hide();
    EXPECT_EQ(gestures_.Told(), "pressed released");
}

TEST_F(NumberSliderTest, TellsNothingMoreWhenItIsDestroyedInADrag) {
    auto slider = std::make_unique<NumberSlider>();
    auto& track = *slider->findChild<SliderTrack*>();
    Gestures gestures(*slider);
    Press(track, track.ThumbRect().center());
    slider.reset();
    EXPECT_EQ(gestures.Told(), "pressed");
}

TEST_F(NumberSliderTest, TheTrackOpensAndOnlyItsThumbIsDragged) {
    EXPECT_FALSE(track_.isVisible());
    slider_.resize(132, 24);
    Click(slider_, {123, 12});
    ASSERT_TRUE(track_.isVisible());
    const double trackStart = track_.ThumbRect().left() - 13;
    const auto at = [&](double x) { return QPointF(trackStart + x, OnThumb().y()); };
    Press(track_, at(50));
    DragTo(track_, at(60));
    Release(track_, at(60));
    EXPECT_EQ(gestures_.Told(), "");

    Press(track_, OnThumb());
    for (const auto& [x, place] : {std::pair(40, 33), {140, 100}, {200, 100}, {-20, 0}}) {
        DragTo(track_, at(x));
        EXPECT_NEAR(track_.Place(), place, 1e-9);
    }
    Release(track_, at(-20));
    DragTo(track_, at(40));
    EXPECT_EQ(gestures_.Told(), "pressed 102 255 0 released");
}

TEST_F(NumberSliderTest, TheTrackIsAsWideAsItsField) {
    for (const int width : {92, 132, 300}) {
        track_.hide();
        slider_.resize(width, 24);
        slider_.SetValue(51);
        Click(slider_, {width - 9.0, 12});
        EXPECT_EQ(track_.width(), width);
        Press(track_, OnThumb());
        DragTo(track_, {OnThumb().x() - 1, OnThumb().y()});
        EXPECT_NEAR(slider_.Value(), 51, 5) << "the thumb stays below the pointer";
        DragTo(track_, {width - 9.0, OnThumb().y()});
        EXPECT_EQ(slider_.Value(), 255);
        EXPECT_LE(track_.ThumbRect().right(), width - 8);
        Release(track_, OnThumb());
    }
}

TEST_F(NumberSliderTest, KeysStepOnTheOpenTrack) {
    Strike(field_, Qt::Key_Down);
    EXPECT_FALSE(track_.isVisible());
    slider_.CommitTyping();
    gestures_.Told();
    QKeyEvent opens(QEvent::KeyPress, Qt::Key_Down, Qt::AltModifier);
    QApplication::sendEvent(&field_, &opens);
    EXPECT_TRUE(track_.isVisible());
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Up, Qt::Key_Left, Qt::Key_Down})
        Strike(track_, key);
    EXPECT_EQ(gestures_.Told(), "pressed 51 52 51 50");
}

TEST_F(NumberSliderTest, IsOneStopOfTheTabKey) {
    QWidget window;
    auto* first = new NumberSlider(&window);
    auto* second = new QPushButton(&window);
    second->setFocusPolicy(Qt::StrongFocus);
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    first->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), first->findChild<QLineEdit*>());
    Strike(*QApplication::focusWidget(), Qt::Key_Tab, "\t");
    EXPECT_EQ(QApplication::focusWidget(), second);
}

TEST_F(NumberSliderTest, IsASpinBoxToAssistiveTools) {
    slider_.setAccessibleName("Line width");
    QAccessibleInterface* spin = QAccessible::queryAccessibleInterface(&slider_);
    ASSERT_TRUE(spin && spin->valueInterface());
    EXPECT_EQ(spin->role(), QAccessible::SpinBox);
    EXPECT_EQ(spin->text(QAccessible::Name), "Line width");
    EXPECT_EQ(spin->text(QAccessible::Value), "51");
    QAccessibleValueInterface& value = *spin->valueInterface();
    EXPECT_EQ(value.minimumValue().toInt(), 5);
    EXPECT_EQ(value.maximumValue().toInt(), 255);
    value.setCurrentValue(1000);
    EXPECT_EQ(value.currentValue().toInt(), 255);
    EXPECT_EQ(gestures_.Told(), "pressed 255 released");
    slider_.activateWindow();
    QApplication::processEvents();
    slider_.setFocus();
    EXPECT_EQ(field_.accessibleName(), "Line width");
}

}  // namespace
}  // namespace orbelle::widgets
