#include "app/icon_images_dialog.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollArea>

#include "app/main_window.h"
#include "editing/document_commands.h"
#include "formats/icon_file.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"
#include "waiting.h"

namespace orbelle::app {
namespace {

using orbelle::testing::AnswerDialog;
using orbelle::testing::FilledPicture;

constexpr graphics::Argb kRed = 0xFFC02040;

std::vector<formats::IconEntryImage> Images(const std::vector<int>& sides) {
    std::vector<formats::IconEntryImage> images;
    for (int side : sides)
        images.push_back({side, side, 32, FilledPicture(side, side, kRed)});
    return images;
}

IconStripView& Strip(const IconImagesDialog& form) {
    return *form.findChild<IconStripView*>();
}

void Send(QWidget& widget, QEvent::Type type, QPointF point) {
    QMouseEvent event(type, point, widget.mapToGlobal(point), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void Type(QWidget& widget, Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

TEST(FormIconTest, PressesAndKeysSelectAndADoubleClickChooses) {
    IconImagesDialog form(Images({48, 32, 16}));
    form.open();
    IconStripView& strip = Strip(form);
    EXPECT_EQ(strip.width(), 300);
    EXPECT_EQ(form.SelectedIndex(), 0);
    EXPECT_EQ(strip.accessibleDescription(), "48x48, 1 of 3");
    Send(strip, QEvent::MouseButtonPress, {250, 100});
    EXPECT_EQ(form.SelectedIndex(), 2);
    EXPECT_EQ(strip.accessibleDescription(), "16x16, 3 of 3");
    const std::pair<Qt::Key, int> keys[] = {{Qt::Key_Right, 2}, {Qt::Key_Left, 1},
                                            {Qt::Key_Left, 0},  {Qt::Key_Left, 0},
                                            {Qt::Key_End, 2},   {Qt::Key_Home, 0}};
    for (const auto& [key, selected] : keys) {
        Type(strip, key);
        EXPECT_EQ(form.SelectedIndex(), selected) << key;
    }
    Send(strip, QEvent::MouseButtonPress, {150, 100});
    Send(strip, QEvent::MouseButtonDblClick, {150, 100});
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_EQ(form.SelectedIndex(), 1);
}

TEST(FormIconTest, CellsShowPicturesOnPlatesThatTellTheSelection) {
    IconImagesDialog form(Images({48, 256}));
    Strip(form).setAttribute(Qt::WA_DontShowOnScreen);
    QImage shown(200, 200, QImage::Format_ARGB32);
    shown.fill(QColor(245, 245, 245));
    Strip(form).render(&shown, QPoint(), QRegion(), QWidget::RenderFlags());
    EXPECT_EQ(shown.pixel(50, 20), 0xFFF9F9F9);   // white of alpha 100 on the grey
    EXPECT_EQ(shown.pixel(150, 20), 0xFFFFFFFF);  // the other plate
    EXPECT_EQ(shown.pixel(199, 20), 0xFFF5F5F5);  // between plates
    EXPECT_EQ(shown.pixel(26, 66), kRed);
    EXPECT_EQ(shown.pixel(25, 66), 0xFFF9F9F9);
    EXPECT_EQ(shown.pixel(150, 40), kRed);
    EXPECT_EQ(shown.pixel(150, 39), 0xFFFFFFFF);
}

TEST(FormIconTest, TheSelectedCellIsScrolledIntoView) {
    IconImagesDialog form(Images(std::vector<int>(20, 16)));
    form.show();
    Type(Strip(form), Qt::Key_End);
    EXPECT_FALSE(Strip(form).visibleRegion().intersected(QRect(1900, 0, 100, 200)).isEmpty());
}

TEST(FormIconTest, OkTakesTheSelectedImageAndCancelNone) {
    const orbelle::testing::TemporaryFolder folder;
    const graphics::Bitmap pictures[] = {FilledPicture(16, 16, kRed), FilledPicture(32, 32, kRed)};
    const std::filesystem::path path = folder / "a.ico";
    graphics::WriteFile(path, formats::EncodeIcon(pictures, formats::IconFormat::Bmp));
    MainWindow form;
    form.show();
    const auto answer = [&](QDialogButtonBox::StandardButton button) {
        AnswerDialog<IconImagesDialog>([button](IconImagesDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Choose Icon Format");
            Strip(dialog).Select(1);
            dialog.findChild<QDialogButtonBox*>()->button(button)->click();
        });
        form.Run([&](editing::Editor& editor) { ImportFile(editor, path); });
    };
    answer(QDialogButtonBox::Cancel);
    EXPECT_FALSE(form.Editor().DocumentExists);
    answer(QDialogButtonBox::Ok);
    EXPECT_EQ(form.Editor().Document.PageWidth, 32);
    answer(QDialogButtonBox::Cancel);
    EXPECT_EQ(form.Editor().Document.LayerCount(), 1);
}

TEST(FormIconTest, WithoutImagesOkTakesNone) {
    IconImagesDialog form({});
    form.open();
    Type(Strip(form), Qt::Key_Right);
    form.accept();
    EXPECT_EQ(form.SelectedIndex(), -1);
}

}  // namespace
}  // namespace orbelle::app
