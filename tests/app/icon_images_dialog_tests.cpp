#include "app/icon_images_dialog.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QImage>
#include <QPushButton>
#include <QScrollArea>

#include "app/main_window.h"
#include "support/hands.h"
#include "support/pictures.h"
#include "waiting.h"

namespace orbelle::app {
namespace {

using namespace orbelle::testing;

constexpr graphics::Argb kRed = 0xFFC02040;

std::vector<formats::IconEntryImage> Images(const std::vector<int>& sides) {
    std::vector<formats::IconEntryImage> images;
    for (int side : sides)
        images.push_back({side, side, 32, FilledPicture(side, side, kRed)});
    return images;
}

IconStripView& Strip(const IconImagesDialog& dialog) {
    return *dialog.findChild<IconStripView*>();
}

TEST(IconImagesDialogTest, PressesAndKeysSelectAndADoubleClickChooses) {
    IconImagesDialog dialog(Images({48, 32, 16}));
    dialog.open();
    IconStripView& strip = Strip(dialog);
    EXPECT_EQ(strip.width(), 300);
    EXPECT_EQ(strip.accessibleDescription(), "48x48, 1 of 3");
    for (const auto& [x, selected] : {std::pair(99, 0), {100, 1}, {299, 2}, {0, 0}, {200, 2}}) {
        Click(strip, QPointF(x, 100));
        EXPECT_EQ(dialog.SelectedIndex(), selected) << x;
    }
    EXPECT_EQ(strip.accessibleDescription(), "16x16, 3 of 3");
    const std::pair<Qt::Key, int> keys[] = {{Qt::Key_Right, 2}, {Qt::Key_Left, 1},
                                            {Qt::Key_Left, 0},  {Qt::Key_Left, 0},
                                            {Qt::Key_End, 2},   {Qt::Key_Home, 0}};
    for (const auto& [key, selected] : keys) {
        Strike(strip, key);
        EXPECT_EQ(dialog.SelectedIndex(), selected) << key;
    }
    Click(strip, {150, 100});
    SendMouse(strip, QEvent::MouseButtonDblClick, {150, 100}, Qt::LeftButton, Qt::LeftButton);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.SelectedIndex(), 1);
}

TEST(IconImagesDialogTest, CellsShowPicturesOnPlatesThatTellTheSelection) {
    IconImagesDialog dialog(Images({48, 256}));
    Strip(dialog).setAttribute(Qt::WA_DontShowOnScreen);
    QImage shown(200, 200, QImage::Format_ARGB32);
    shown.fill(QColor(245, 245, 245));
    Strip(dialog).render(&shown, QPoint(), QRegion(), QWidget::RenderFlags());
    EXPECT_EQ(shown.pixel(50, 20), 0xFFF9F9F9);   // white of alpha 100 on the grey
    EXPECT_EQ(shown.pixel(150, 20), 0xFFFFFFFF);  // the other plate
    EXPECT_EQ(shown.pixel(199, 20), 0xFFF5F5F5);  // between plates
    EXPECT_EQ(shown.pixel(26, 66), kRed);
    EXPECT_EQ(shown.pixel(25, 66), 0xFFF9F9F9);
    EXPECT_EQ(shown.pixel(150, 40), kRed);
    EXPECT_EQ(shown.pixel(150, 39), 0xFFFFFFFF);
}

TEST(IconImagesDialogTest, TheSelectedCellIsScrolledIntoView) {
    IconImagesDialog dialog(Images(std::vector<int>(20, 16)));
    dialog.show();
    Strike(Strip(dialog), Qt::Key_End);
    EXPECT_FALSE(Strip(dialog).visibleRegion().intersected(QRect(1900, 0, 100, 200)).isEmpty());
}

TEST(IconImagesDialogTest, OkTakesTheSelectedImageAndCancelNone) {
    MainWindow window;
    const auto answer = [&](QDialogButtonBox::StandardButton button) {
        AnswerDialog<IconImagesDialog>([button](IconImagesDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Choose Icon Format");
            Strip(dialog).Select(1);
            dialog.findChild<QDialogButtonBox*>()->button(button)->click();
        });
        return window.ChooseIconImage(Images({16, 32}));
    };
    EXPECT_EQ(answer(QDialogButtonBox::Cancel), std::nullopt);
    EXPECT_EQ(answer(QDialogButtonBox::Ok), 1);
}

TEST(IconImagesDialogTest, WithoutImagesOkTakesNone) {
    IconImagesDialog dialog({});
    dialog.open();
    Strike(Strip(dialog), Qt::Key_Right);
    dialog.accept();
    EXPECT_EQ(dialog.SelectedIndex(), -1);
}

}  // namespace
}  // namespace orbelle::app
