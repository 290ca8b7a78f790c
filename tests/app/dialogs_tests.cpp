// The dialogs and what they are made of; the settings that they and the window leave.
#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <cctype>

#include "app/color_well.h"
#include "app/file_dialog.h"
#include "app/gif_optimizer_dialog.h"
#include "app/gif_preview.h"
#include "app/icon_images_dialog.h"
#include "app/main_window.h"
#include "app/new_icon_dialog.h"
#include "app/settings.h"
#include "support/hands.h"
#include "support/pictures.h"
#include "waiting.h"
#include "widgets/number_slider.h"

namespace orbelle::app {
namespace {

using namespace orbelle::testing;

TEST(ColorWellTest, MouseAndKeysClickAndDoubleClick) {
    ColorWell well("Foreground color");
    std::string told;
    QObject::connect(&well, &ColorWell::Clicked, [&] { told += 'c'; });
    QObject::connect(&well, &ColorWell::DoubleClicked, [&] { told += 'd'; });
    Click(well, {10, 10});
    SendMouse(well, QEvent::MouseButtonPress, {10, 10}, Qt::RightButton, Qt::RightButton);
    SendMouse(well, QEvent::MouseButtonDblClick, {10, 10}, Qt::LeftButton, Qt::LeftButton);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_A, Qt::Key_Enter})
        Strike(well, key);
    EXPECT_EQ(told, "cdcdd");
}

TEST(ColorWellTest, ShowsItsColorOnACheckerAndTheFocusAround) {
    ColorWell well("Foreground color");
    well.Show(0x800000FF, 2);
    well.show();
    const auto pixel = [&](int x, int y) { return well.grab().toImage().pixel(x, y); };
    EXPECT_EQ(pixel(1, 1), 0xFF464646) << "the outline is two pixels wide";
    EXPECT_EQ(pixel(2, 2), 0xFFE6E6E6) << "the checker begins with a square";
    EXPECT_EQ(pixel(5, 2), 0xFFFFFFFF);
    EXPECT_NEAR(qRed(pixel(6, 4)), 127, 1) << "blue of half alpha on white";
    EXPECT_EQ(qBlue(pixel(6, 4)), 255);
    well.activateWindow();
    QApplication::processEvents();
    well.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(pixel(0, 0), 0xFF3A96FF);
}

class GifOptimizerDialogTest : public ::testing::Test {
protected:
    GifOptimizerDialogTest() { Settings().remove("Optimize"); }

    static int Type(const GifOptimizerDialog& optimizer, const QString& digits) {
        auto& field = *optimizer.findChild<QLineEdit*>();
        field.selectAll();
        for (const QChar digit : digits)
            Strike(field, Qt::Key(digit.unicode()), digit);
        return optimizer.OptimizeValue();
    }

    const graphics::Bitmap surface = FilledPicture(20, 10, 0x80FF0000);
};

TEST_F(GifOptimizerDialogTest, StartsAt130RemembersTheValueAndTakesMoreThanItsTrackHas) {
    {
        GifOptimizerDialog optimizer(surface, nullptr);
        EXPECT_EQ(optimizer.OptimizeValue(), 130);
        EXPECT_EQ(Type(optimizer, "180"), 180);
        EXPECT_EQ(Type(optimizer, "250"), 200);
        EXPECT_EQ(Type(optimizer, "42"), 42);
        optimizer.reject();
    }
    EXPECT_EQ(GifOptimizerDialog(surface, nullptr).OptimizeValue(), 42);
    Settings().setValue("Optimize", 0);
    EXPECT_EQ(GifOptimizerDialog(surface, nullptr).OptimizeValue(), 130);
}

// Red while alpha 128 reaches the value, else the white of the box.
TEST_F(GifOptimizerDialogTest, TheResultFollowsTheValue) {
    GifOptimizerDialog optimizer(surface, nullptr);
    const auto red = [&](const char* value) {
        Type(optimizer, value);
        const QImage result = optimizer.findChild<QLabel*>("Result")->pixmap().toImage();
        QRect place;
        for (int y = 0; y < result.height(); ++y)
            for (int x = 0; x < result.width(); ++x)
                if (result.pixelColor(x, y) == QColor(255, 0, 0))
                    place |= QRect(x, y, 1, 1);
        return place;
    };
    EXPECT_EQ(red("128"), QRect(118, 123, 20, 10));
    EXPECT_EQ(red("129"), QRect());
    EXPECT_EQ(PreviewRect(surface, 15, 15), (graphics::RectF{0, 2, 15, 10})) << "each axis its own";
}

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
            Strip(dialog).Select(1);
            dialog.findChild<QDialogButtonBox*>()->button(button)->click();
        });
        return window.ChooseIconImage(Images({16, 32}));
    };
    EXPECT_EQ(answer(QDialogButtonBox::Cancel), std::nullopt);
    EXPECT_EQ(answer(QDialogButtonBox::Ok), 1);

    IconImagesDialog empty({});
    empty.open();
    Strike(Strip(empty), Qt::Key_Right);
    empty.accept();
    EXPECT_EQ(empty.SelectedIndex(), -1);
}

TEST(NewIconDialogTest, TakesSidesFrom1To512AndRemembersTheSizeChosenWithOk) {
    Settings().clear();
    // Gives the sides that the dialog began with.
    const auto enter = [](int width, int height, void (QDialog::*end)(), bool closes) {
        NewIconDialog page;
        const std::pair before(page.Size().Width, page.Size().Height);
        page.open();
        page.findChild<widgets::NumberSlider*>("PageWidth")->SetValue(width);
        page.findChild<widgets::NumberSlider*>("PageHeight")->SetValue(height);
        if (!closes)
            AnswerDialog<QMessageBox>([](QMessageBox& box) {
                EXPECT_EQ(box.text(), "Please input a integer from 1 to 512.");
                box.accept();
            });
        (page.*end)();
        EXPECT_EQ(page.isVisible(), !closes) << width << " x " << height;
        return before;
    };
    for (const auto& [width, height] : {std::pair(513, 16), {16, 513}, {0, 16}, {16, 0}})
        EXPECT_EQ(enter(width, height, &QDialog::accept, false), std::pair(0, 0));
    EXPECT_EQ(enter(1, 512, &QDialog::accept, true), std::pair(0, 0));
    EXPECT_EQ(enter(64, 64, &QDialog::reject, true), std::pair(1, 512));
    EXPECT_EQ(enter(64, 64, &QDialog::reject, true), std::pair(1, 512));
}

TEST(NewIconDialogTest, ASideOutOfRangeIsToBeTypedAnew) {
    for (const char* name : {"PageWidth", "PageHeight"}) {
        NewIconDialog page;
        page.show();
        page.activateWindow();
        for (const char* side : {"PageWidth", "PageHeight"})
            page.findChild<widgets::NumberSlider*>(side)->SetValue(16);
        auto& wrong = *page.findChild<widgets::NumberSlider*>(name);
        wrong.SetValue(513);
        AnswerDialog<QMessageBox>([](QMessageBox& box) { box.accept(); });
        page.accept();
        auto& field = *wrong.findChild<QLineEdit*>();
        EXPECT_EQ(page.focusWidget(), &field);
        EXPECT_EQ(field.selectedText(), "513");
        for (const char digit : {'4', 'e', '-', '8'})
            Strike(field, Qt::Key(std::toupper(digit)), QString(digit));
        page.accept();
        EXPECT_EQ(page.result(), QDialog::Accepted);
        EXPECT_EQ(wrong.Value(), 48) << "digits alone count";
    }
}

TEST(NewIconDialogTest, APresetFillsBothSides) {
    Settings().setValue("Width", 256);
    Settings().setValue("Height", 256);
    NewIconDialog page;
    page.show();
    page.activateWindow();
    QStringList names;
    QToolButton* pressed = nullptr;
    for (auto* preset : page.findChildren<QToolButton*>()) {
        names << preset->text();
        if (preset->isChecked())
            pressed = preset;
    }
    EXPECT_EQ(names.join(' '), "16 24 32 48 64 128 256 512");
    ASSERT_TRUE(pressed);
    EXPECT_EQ(pressed->accessibleName(), "256 x 256");
    QApplication::processEvents();
    pressed->setFocus(Qt::TabFocusReason);
    Strike(*pressed, Qt::Key_Left);
    EXPECT_EQ(page.Size().Width, 128);
    EXPECT_EQ(page.Size().Height, 128);
    EXPECT_FALSE(pressed->isChecked());
    auto& width = *page.findChild<widgets::NumberSlider*>("PageWidth");
    width.SetValue(17);
    emit width.Changed(17);
    for (const auto* preset : page.findChildren<QToolButton*>())
        EXPECT_FALSE(preset->isChecked()) << "17 x 128";
}

TEST(MainWindowPlaceTest, IsWhollyOnTheScreen) {
    const QRect screen(100, 50, 1400, 960);
    const std::tuple<const char*, QRect, QRect> cases[] = {
        {"nothing stored", {0, 0, 0, 0}, {250, 150, 1100, 760}},
        {"stored size, no corner", {0, 0, 400, 360}, {600, 350, 400, 360}},
        {"one coordinate 0 is no reason to centre", {0, 70, 400, 360}, {100, 70, 400, 360}},
        {"as stored", {300, 200, 800, 600}, {300, 200, 800, 600}},
        {"beyond the right and bottom edges", {1400, 900, 800, 600}, {700, 410, 800, 600}},
        {"left and above", {-500, -20, 800, 600}, {100, 50, 800, 600}},
        {"larger than the screen", {300, 200, 9000, 9000}, screen},
    };
    for (const auto& [name, stored, place] : cases)
        EXPECT_EQ(MainWindowPlace(stored, screen), place) << name;
}

TEST(SettingsTest, AMaximizedWindowLeavesTheStoredPlace) {
    QWidget window;
    window.resize(320, 240);
    window.move(20, 30);
    window.show();
    StoreMainWindow(window);
    window.showMaximized();
    ASSERT_TRUE(WaitUntil([&] { return window.width() > 320; }));
    StoreMainWindow(window);
    const std::pair<const char*, int> stored[] = {{"MainLeft", 20},
                                                  {"MainTop", 30},
                                                  {"MainWidth", 320},
                                                  {"MainHeight", 240},
                                                  {"MainState", 2}};
    for (const auto& [name, value] : stored)
        EXPECT_EQ(Settings().value(name).toInt(), value) << name;

    QWidget next;
    RestoreMainWindow(next);
    EXPECT_TRUE(next.windowState() & Qt::WindowMaximized);
}

// Also at the screen's lower edge, where no room is left for a title bar that it has already.
TEST(SettingsTest, AWindowComesBackToWhereItStood) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect stood(screen.right() - 499, screen.bottom() - 399, 500, 400);
    Settings().clear();
    for (const auto& [name, value] : {std::pair("MainLeft", stood.left()),
                                      {"MainTop", stood.top()},
                                      {"MainWidth", stood.width()},
                                      {"MainHeight", stood.height()}})
        Settings().setValue(name, value);
    QWidget window;
    RestoreMainWindow(window);
    EXPECT_EQ(QRect(window.pos(), window.size()), stood);
}

TEST(FileDialogTest, FiltersTakeTheFormOfTheDialog) {
    EXPECT_EQ(
        NameFilters("All Supported Formats|*.volf;*.ico;*.png|ICO Files (*.ICO)|*.ico"),
        QStringList({"All Supported Formats (*.volf *.ico *.png)", "ICO Files (*.ICO) (*.ico)"}));
    EXPECT_EQ(NameFilters("a text without patterns"), QStringList());
}

}  // namespace
}  // namespace orbelle::app
