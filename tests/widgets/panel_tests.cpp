// Headers, captions, balloons and the picture holder.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>

#include "support/hands.h"
#include "widgets/balloon.h"
#include "widgets/caption_text.h"
#include "widgets/image_store.h"
#include "widgets/panel_header.h"

namespace orbelle::widgets {
namespace {

using namespace orbelle::testing;

TEST(PanelHeaderTest, TurnsAtAClickAndAtSpaceAndReturn) {
    PanelHeader title("Icon Opacity");
    title.resize(200, 24);
    QList<bool> told;
    QObject::connect(&title, &PanelHeader::Clicked, [&](bool closed) { told << closed; });
    EXPECT_FALSE(title.IsClosed());
    Click(title, {20, 12});
    EXPECT_TRUE(title.IsClosed());
    Click(title, {190, 12});
    EXPECT_FALSE(title.IsClosed());
    Strike(title, Qt::Key_Space, " ");
    Strike(title, Qt::Key_Return, "\r");
    Strike(title, Qt::Key_A, "a");
    EXPECT_EQ(told, QList<bool>({true, false, true, false}));
    title.SetClosed(true);
    EXPECT_TRUE(title.IsClosed());
    EXPECT_EQ(told.size(), 4) << "told of what its owner did";
}

TEST(PanelHeaderTest, ShowsWhetherItIsClosed) {
    PanelHeader title("Layer");
    title.resize(200, 24);
    const QImage open = title.grab().toImage();
    title.SetClosed(true);
    const QImage closed = title.grab().toImage();
    const QRect chevron(176, 0, 24, 24);
    EXPECT_NE(open.copy(chevron), closed.copy(chevron));
    EXPECT_EQ(open.copy(0, 0, 176, 24), closed.copy(0, 0, 176, 24));
    EXPECT_EQ(open.pixelColor(0, 0), QColor(245, 246, 247));
    EXPECT_EQ(open.pixelColor(0, 23), QColor(220, 220, 220));
}

TEST(PanelHeaderTest, IsACheckableButtonToAssistiveTools) {
    PanelHeader title("Icon Filter");
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(&title);
    ASSERT_TRUE(button);
    EXPECT_EQ(button->text(QAccessible::Name), "Icon Filter");
    EXPECT_TRUE(button->state().checkable);
    EXPECT_TRUE(button->state().checked);
    title.SetClosed(true);
    EXPECT_FALSE(button->state().checked);
}

TEST(BalloonTest, HeightFollowsTheTextInAFixedWidth) {
    Balloon tips;
    tips.SetTipString("One line.");
    const int one = tips.height();
    tips.SetTipString("Two\nlines.");
    const int two = tips.height();
    tips.SetTipString("Not satisfied with the current results? Undo restores, and Redo repeats.");
    EXPECT_GT(two, one);
    EXPECT_GT(tips.height(), two);
    EXPECT_EQ(tips.width(), 190);
    tips.SetTipString("One line.");
    EXPECT_EQ(tips.height(), one);
}

TEST(BalloonTest, PointsUpOrDownAtThe35thPixel) {
    Balloon tips;
    tips.SetTipString("Here.");
    const auto isInked = [&](int y) {
        const QImage picture = tips.grab().toImage();
        return picture.pixel(36, y) != picture.pixel(180, y);
    };
    const int last = tips.height() - 2;
    EXPECT_TRUE(isInked(1));
    EXPECT_FALSE(isInked(last - 2));
    tips.SetDirection(1);
    EXPECT_TRUE(isInked(last));
    EXPECT_FALSE(isInked(3));
}

TEST(BalloonTest, ComesUpAboveItsSiblingsAndTellsOfAClick) {
    QWidget window;
    window.resize(300, 200);
    Balloon tips(&window);
    tips.SetTipString("Click here.");
    QWidget later(&window);
    later.resize(300, 200);
    window.show();
    tips.hide();
    later.raise();
    tips.show();
    EXPECT_EQ(window.childAt(50, 20), &tips);

    int clicks = 0;
    QObject::connect(&tips, &Balloon::Clicked, [&] { ++clicks; });
    Click(tips, {50, 20});
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(tips.isVisible());
    Press(tips, {50, 20});
    Release(tips, {-5, 20});
    EXPECT_EQ(clicks, 1);
}

TEST(BalloonTest, AndCaptionsSpeakTheirTexts) {
    Balloon tips;
    tips.SetTipString("Click here.");
    CaptionText captions("A block of text.");
    const std::tuple<QWidget*, QAccessible::Role, const char*> cases[] = {
        {&tips, QAccessible::AlertMessage, "Click here."},
        {&captions, QAccessible::StaticText, "A block of text."}};
    for (const auto& [widget, role, text] : cases) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(accessible);
        EXPECT_EQ(accessible->role(), role);
        EXPECT_EQ(accessible->text(QAccessible::Name), text);
    }
}

TEST(CaptionTextTest, WrapsByWordsAndMakesRoomForItsPicture) {
    CaptionText captions("A text block, wrapped by words, with an optional picture at its left.");
    EXPECT_GT(captions.heightForWidth(80), captions.heightForWidth(400));
    const int plain = captions.heightForWidth(120);
    captions.SetPicture("orbelle");
    EXPECT_GT(captions.heightForWidth(120), plain);
    captions.SetCaption("Short.");
    EXPECT_EQ(captions.heightForWidth(400), 32);
    EXPECT_EQ(captions.Caption(), "Short.");
}

TEST(ImageStoreTest, WithoutAPictureDrawsNothing) {
    QImage picture(40, 40, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::red);
    const QImage before = picture;
    QPainter painter(&picture);
    ImageStore("no such drawing").Drawing(painter, picture.rect(), 1);
    EXPECT_EQ(painter.opacity(), 1);
    painter.end();
    EXPECT_EQ(picture, before);
}

}  // namespace
}  // namespace orbelle::widgets
