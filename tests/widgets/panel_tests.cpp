// Headers and captions; and how controls show the focus.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>

#include "support/hands.h"
#include "widgets/balloon.h"
#include "widgets/caption_text.h"
#include "widgets/layer_list.h"
#include "widgets/number_slider.h"
#include "widgets/panel_header.h"
#include "widgets/theme.h"
#include "widgets/track_slider.h"

namespace orbelle::widgets {
namespace {

using namespace orbelle::testing;

int AccentPixels(QWidget& widget) {
    const QImage picture = widget.grab().toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, y) == CurrentTheme().Accent;
    return count;
}

TEST(FocusTest, IsShownInTheAccentColour) {
    PanelHeader header("Layer");
    NumberSlider number;
    TrackSlider track;
    LayerList list;
    for (QWidget* control : std::initializer_list<QWidget*>{&header, &number, &track, &list}) {
        control->resize(120, 24);
        control->show();
        control->clearFocus();
        const int before = AccentPixels(*control);
        control->activateWindow();
        QApplication::processEvents();
        control->setFocus(Qt::TabFocusReason);
        EXPECT_GT(AccentPixels(*control), before + 10) << control->metaObject()->className();
    }
}

TEST(PanelHeaderTest, TurnsAtAClickAndAtSpaceAndReturnAndShowsIt) {
    PanelHeader header("Icon Opacity");
    header.resize(200, 24);
    const QImage open = header.grab().toImage();
    QList<bool> told;
    QObject::connect(&header, &PanelHeader::Clicked, [&](bool closed) { told << closed; });
    Click(header, {20, 12});
    EXPECT_TRUE(header.IsClosed());
    const QImage closed = header.grab().toImage();
    const QRect chevron(0, 0, 28, kHeaderHeight);
    const QRect rest(28, 0, 172, kHeaderHeight);
    EXPECT_NE(open.copy(chevron), closed.copy(chevron));
    EXPECT_EQ(open.copy(rest), closed.copy(rest));
    const QAccessibleInterface* button = QAccessible::queryAccessibleInterface(&header);
    ASSERT_TRUE(button);
    EXPECT_EQ(button->text(QAccessible::Name), "Icon Opacity");
    EXPECT_TRUE(button->state().checkable && !button->state().checked) << "checked while open";

    Click(header, {190, 12});
    Strike(header, Qt::Key_Space, " ");
    Strike(header, Qt::Key_Return, "\r");
    Strike(header, Qt::Key_A, "a");
    header.SetClosed(true);
    EXPECT_TRUE(header.IsClosed());
    EXPECT_EQ(told, QList<bool>({true, false, true, false})) << "its owner's doing is not told";
}

TEST(TextsTest, AreWrappedAndReachAssistiveTools) {
    Balloon balloon;
    balloon.SetText("Click here.");
    CaptionText caption("A block of text, wrapped by words.");
    EXPECT_GT(caption.heightForWidth(80), caption.heightForWidth(400));
    const std::tuple<QWidget*, QAccessible::Role, const char*> cases[] = {
        {&balloon, QAccessible::AlertMessage, "Click here."},
        {&caption, QAccessible::StaticText, "A block of text, wrapped by words."}};
    for (const auto& [widget, role, text] : cases) {
        const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(accessible);
        EXPECT_EQ(accessible->role(), role);
        EXPECT_EQ(accessible->text(QAccessible::Name), text);
    }
}

}  // namespace
}  // namespace orbelle::widgets
