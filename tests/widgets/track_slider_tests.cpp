#include "widgets/track_slider.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QWheelEvent>

#include "support/hands.h"

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

    void Wheel(int angle) {
        QWheelEvent event(At(50), slider_.mapToGlobal(At(50)), {}, {0, angle}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&slider_, &event);
    }

    TrackSlider slider_;
    Gestures gestures_{slider_};
};

TEST_F(TrackSliderTest, AWrittenValueIsSilentAndPlacesTheThumb) {
    const std::pair<int, int> cases[] = {{0, 0}, {25, 50}, {50, 100}, {100, 200}, {300, 200}};
    for (const auto& [value, left] : cases) {
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
    DragTo(slider_, At(104));
    DragTo(slider_, At(105));
    DragTo(slider_, At(101));
    EXPECT_EQ(ThumbLeft(), 98);
    Release(slider_, At(101));
    DragTo(slider_, At(150));
    // 50.5 is a tie, to the even value.
    EXPECT_EQ(gestures_.Told(), "pressed 51 49 released");
}

TEST_F(TrackSliderTest, ADragPastTheEndStopsFivePixelsShort) {
    Press(slider_, At(105));
    // 195 pixels are 97.5, to the even value.
    for (const auto& [x, value] : {std::pair(200, 98), {201, 100}, {500, 100}}) {
        DragTo(slider_, At(x));
        EXPECT_EQ(slider_.value(), value);
        EXPECT_EQ(ThumbLeft(), 195);
    }
    Release(slider_, At(500));
    EXPECT_EQ(gestures_.Told(), "pressed 98 100 released");
    slider_.SetValue(100);
    EXPECT_EQ(ThumbLeft(), 200);

    Press(slider_, At(205));
    DragTo(slider_, At(-300));
    EXPECT_EQ(ThumbLeft(), 0);
    Release(slider_, At(-300));
    EXPECT_EQ(gestures_.Told(), "pressed 0 released");
}

TEST_F(TrackSliderTest, AnOwnerThatAnswersADragDoesNotMoveItsThumb) {
    QObject::connect(&slider_, &TrackSlider::Changed, &slider_,
                     [this](int value) { slider_.SetValue(value); });
    Press(slider_, At(105));
    DragTo(slider_, At(300));
    EXPECT_EQ(ThumbLeft(), 195);
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

TEST_F(TrackSliderTest, AKeyIsAGestureOfOneStep) {
    const std::pair<Qt::Key, const char*> cases[] = {{Qt::Key_Right, "pressed 51 released"},
                                                     {Qt::Key_Up, "pressed 52 released"},
                                                     {Qt::Key_Left, "pressed 51 released"},
                                                     {Qt::Key_Down, "pressed 50 released"},
                                                     {Qt::Key_PageUp, "pressed 60 released"},
                                                     {Qt::Key_PageDown, "pressed 50 released"},
                                                     {Qt::Key_End, "pressed 100 released"},
                                                     {Qt::Key_Right, ""},
                                                     {Qt::Key_Home, "pressed 0 released"},
                                                     {Qt::Key_PageDown, ""},
                                                     {Qt::Key_A, ""}};
    for (const auto& [key, told] : cases) {
        Strike(slider_, key);
        EXPECT_EQ(gestures_.Told(), told) << key;
    }
}

TEST_F(TrackSliderTest, ANotchOfTheWheelIsAGesture) {
    Wheel(240);
    EXPECT_EQ(gestures_.Told(), "pressed 51 released pressed 52 released");
    Wheel(-60);
    EXPECT_EQ(gestures_.Told(), "");
    Wheel(-60);
    EXPECT_EQ(gestures_.Told(), "pressed 51 released");
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
