#include "widgets/track_slider.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QImage>
#include <QWheelEvent>

#include "support/hands.h"
#include "widgets/value_field.h"

namespace orbelle::widgets {
namespace {

using namespace orbelle::testing;

// A track of 200 pixels with a thumb of 10: one value is two pixels.
class TrackSliderTest : public ::testing::Test {
protected:
    TrackSliderTest() {
        slider_.setRange(0, 100);
        slider_.setPageStep(10);
        slider_.resize(210, 20);
        slider_.show();
        slider_.SetValue(50);
    }

    // As painted, in a row above the groove.
    int ThumbLeft() {
        const QImage picture = slider_.grab().toImage();
        int left = 0;
        while (left < picture.width() && picture.pixel(left, 6) == picture.pixel(0, 0))
            ++left;
        return left;
    }

    static QPointF At(double x) { return {x, 10}; }

    TrackSlider slider_;
    Gestures gestures_{slider_};
};

TEST_F(TrackSliderTest, AWrittenValueIsSilentAndPlacesTheThumb) {
    for (const auto& [value, left] : {std::pair(0, 0), {25, 50}, {100, 200}, {300, 200}}) {
        slider_.SetValue(value);
        EXPECT_EQ(ThumbLeft(), left) << value;
    }
    slider_.resize(110, 20);
    EXPECT_EQ(ThumbLeft(), 100);
    EXPECT_EQ(gestures_.Told(), "");
}

TEST_F(TrackSliderTest, TheScaleBeginsAtZeroWhateverTheLeastValue) {
    slider_.setRange(20, 100);
    slider_.SetValue(20);
    EXPECT_EQ(ThumbLeft(), 40);
    Press(slider_, At(45));
    DragTo(slider_, At(15));
    EXPECT_EQ(ThumbLeft(), 10);
    Release(slider_, At(15));
    EXPECT_EQ(gestures_.Told(), "pressed released") << "below the least value is the least value";
}

TEST_F(TrackSliderTest, DragsTheThumbByItsGrip) {
    Press(slider_, At(103));
    for (const int x : {104, 105, 101})
        DragTo(slider_, At(x));
    EXPECT_EQ(ThumbLeft(), 98);
    Release(slider_, At(101));
    DragTo(slider_, At(150));
    EXPECT_EQ(gestures_.Told(), "pressed 51 49 released") << "50.5 is a tie, to the even value";
}

TEST_F(TrackSliderTest, ADragPastTheEndStopsFivePixelsShortWhateverItsOwnerAnswers) {
    QObject::connect(&slider_, &TrackSlider::Changed, &slider_,
                     [this](int value) { slider_.SetValue(value); });
    Press(slider_, At(105));
    // 195 pixels are 97.5, to the even value.
    for (const auto& [x, value] : {std::pair(200, 98), {201, 100}, {500, 100}}) {
        DragTo(slider_, At(x));
        EXPECT_EQ(slider_.value(), value);
        EXPECT_EQ(ThumbLeft(), 195);
    }
    DragTo(slider_, At(-300));
    EXPECT_EQ(ThumbLeft(), 0);
    Release(slider_, At(-300));
    EXPECT_EQ(gestures_.Told(), "pressed 98 100 0 released");
}

TEST_F(TrackSliderTest, APressBesideTheThumbTakesItThere) {
    Click(slider_, At(45));
    EXPECT_EQ(ThumbLeft(), 40);
    EXPECT_EQ(gestures_.Told(), "pressed 20 released");
    Press(slider_, At(208));
    DragTo(slider_, At(108));
    Release(slider_, At(108));
    EXPECT_EQ(gestures_.Told(), "pressed 100 48 released");
    Click(slider_, At(1));
    EXPECT_EQ(gestures_.Told(), "pressed 0 released");
}

// The first click changes the value, so both together have to be one drag.
TEST_F(TrackSliderTest, ADoubleClickOnTheTrackIsOneDragToTheRest) {
    slider_.SetNeutral(40);
    const auto doubleClick = [&](double x) {
        Click(slider_, At(x));
        SendMouse(slider_, QEvent::MouseButtonDblClick, At(x), Qt::LeftButton, Qt::LeftButton);
        Release(slider_, At(x));
    };
    doubleClick(145);
    EXPECT_EQ(gestures_.Told(), "pressed 70 40 released");
    doubleClick(85);
    EXPECT_EQ(gestures_.Told(), "pressed released") << "it rests already";
    Click(slider_, At(145));
    EXPECT_EQ(gestures_.Told(), "pressed 70");
    slider_.EndRun();
    EXPECT_EQ(gestures_.Told(), "released") << "before another command";
    Click(slider_, At(45));
    Strike(slider_, Qt::Key_Escape);
    EXPECT_EQ(gestures_.Told(), "pressed 20 70 given-up");
    Press(slider_, At(145));
    DragTo(slider_, At(155));
    Release(slider_, At(155));
    EXPECT_EQ(gestures_.Told(), "pressed 75 released") << "nobody double-clicks so";
}

// "" is what the slider tells of what changes nothing.
TEST_F(TrackSliderTest, TheNumberBesideItIsTyped) {
    ValueField field(slider_, 50);
    field.show();
    field.activateWindow();
    QApplication::processEvents();
    QObject::connect(&slider_, &TrackSlider::Changed, &field,
                     [&](int value) { field.Show(value - 50); });
    field.Show(0);
    const auto type = [&](const char* text) {
        field.setFocus();
        field.selectAll();
        for (const char* letter = text; *letter; ++letter)
            Strike(field, Qt::Key_unknown, QString(*letter));
    };
    const std::tuple<const char*, Qt::Key, const char*, const char*> cases[] = {
        {"7", Qt::Key_Return, "pressed 57 released", "7"},
        {"-12", Qt::Key_Return, "pressed 38 released", "-12"},
        {"999", Qt::Key_Return, "pressed 100 released", "50"},
        {"20", Qt::Key_Escape, "", "50"},
        {"50", Qt::Key_Return, "", "50"},
        {"-", Qt::Key_Return, "", "50"},
        {"b0", Qt::Key_Return, "pressed 50 released", "0"},
        {"3", Qt::Key_Tab, "pressed 53 released", "3"}};
    for (const auto& [text, key, told, shown] : cases) {
        type(text);
        EXPECT_EQ(gestures_.Told(), "") << "not letter by letter: " << text;
        field.Show(slider_.value() - 50);
        if (key == Qt::Key_Tab)
            field.clearFocus();
        else
            Strike(field, key, "\r");
        EXPECT_EQ(gestures_.Told(), told) << text;
        EXPECT_EQ(field.text(), shown) << text;
    }
    Strike(field, Qt::Key_Up);
    EXPECT_EQ(gestures_.Told(), "pressed 54");
}

TEST_F(TrackSliderTest, TheNumberBesideItIsDragged) {
    ValueField field(slider_, 0, "%");
    field.show();
    field.activateWindow();
    QApplication::processEvents();
    field.Show(50);
    EXPECT_EQ(field.text(), "50%");
    Press(field, {20, 10});
    for (const int x : {21, 40, 300, 25})
        DragTo(field, {double(x), 10});
    Release(field, {25, 10});
    EXPECT_EQ(gestures_.Told(), "pressed 70 100 55 released");
    EXPECT_FALSE(field.hasFocus());
    Press(field, {20, 10});
    DragTo(field, {10, 10});
    Strike(slider_, Qt::Key_Escape);
    DragTo(field, {0, 10});
    Release(field, {0, 10});
    EXPECT_EQ(gestures_.Told(), "pressed 45 55 given-up");
    Click(field, {20, 10});
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(field.selectedText(), "50%") << "to be typed over";
    EXPECT_EQ(gestures_.Told(), "");
}

TEST_F(TrackSliderTest, KeysThatFollowEachOtherAreOneGesture) {
    const std::pair<Qt::Key, const char*> cases[] = {
        {Qt::Key_Right, "pressed 51"}, {Qt::Key_Up, "52"},     {Qt::Key_Left, "51"},
        {Qt::Key_Down, "50"},          {Qt::Key_PageUp, "60"}, {Qt::Key_PageDown, "50"},
        {Qt::Key_End, "100"},          {Qt::Key_Right, ""},    {Qt::Key_Home, "0"},
        {Qt::Key_PageDown, ""},        {Qt::Key_A, ""}};
    for (const auto& [key, told] : cases) {
        Strike(slider_, key);
        EXPECT_EQ(gestures_.Told(), told) << key;
    }
    const QDeadlineTimer deadline(10000);
    std::string told;
    while ((told = gestures_.Told()).empty() && !deadline.hasExpired())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    EXPECT_EQ(told, "released") << "after a pause";
    Strike(slider_, Qt::Key_Right);
    Press(slider_, At(5));
    EXPECT_EQ(gestures_.Told(), "pressed 1 released pressed");
}

TEST_F(TrackSliderTest, TheWheelTurnsOnlyASliderThatHasTheFocus) {
    const auto turn = [&](int angle) {
        QWheelEvent wheel(At(50), slider_.mapToGlobal(At(50)), {}, {0, angle}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        wheel.accept();
        QApplication::sendEvent(&slider_, &wheel);
        return wheel.isAccepted();
    };
    slider_.clearFocus();
    EXPECT_FALSE(turn(120)) << "it belongs to what lies below";
    EXPECT_EQ(gestures_.Told(), "");
    slider_.activateWindow();
    QApplication::processEvents();
    slider_.setFocus();
    ASSERT_TRUE(slider_.hasFocus());
    for (const auto& [angle, told] :
         {std::pair(240, "pressed 51 52"), {-60, ""}, {-60, "51"}, {-240, "50 49"}}) {
        EXPECT_TRUE(turn(angle));
        EXPECT_EQ(gestures_.Told(), told);
    }
    slider_.clearFocus();
    EXPECT_EQ(gestures_.Told(), "released");
}

TEST_F(TrackSliderTest, EscapeGivesADragUp) {
    const auto isTaken = [&] {
        QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
        event.ignore();
        QApplication::sendEvent(&slider_, &event);
        return event.isAccepted();
    };
    EXPECT_FALSE(isTaken());
    Press(slider_, At(105));
    DragTo(slider_, At(125));
    EXPECT_TRUE(isTaken());
    Strike(slider_, Qt::Key_Escape);
    EXPECT_EQ(ThumbLeft(), 100);
    DragTo(slider_, At(150));
    Release(slider_, At(150));
    EXPECT_EQ(gestures_.Told(), "pressed 60 50 given-up");
    Strike(slider_, Qt::Key_Right);
    EXPECT_TRUE(isTaken());
    Strike(slider_, Qt::Key_Escape);
    EXPECT_EQ(gestures_.Told(), "pressed 51 50 given-up");
}

TEST_F(TrackSliderTest, ADragEndsWhenDisabledOrWhenItsReleaseIsLost) {
    Press(slider_, At(105));
    slider_.setEnabled(false);
    EXPECT_EQ(gestures_.Told(), "pressed released");
    slider_.setEnabled(true);
    Press(slider_, At(105));
    SendMouse(slider_, QEvent::MouseMove, At(150), Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(gestures_.Told(), "pressed released");
}

TEST_F(TrackSliderTest, NarrowAndEmptyTracksAreHarmless) {
    for (const int width : {0, 3, 12}) {
        slider_.resize(width, 20);
        Press(slider_, At(5));
        DragTo(slider_, At(50));
        DragTo(slider_, At(-50));
        Release(slider_, At(0));
        slider_.grab();
    }
    slider_.setRange(0, 0);
    slider_.resize(210, 20);
    Click(slider_, At(100));
    EXPECT_EQ(slider_.value(), 0);
}

}  // namespace
}  // namespace orbelle::widgets
