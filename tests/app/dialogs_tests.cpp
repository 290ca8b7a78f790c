// The dialogs and what they are made of; the settings that they and the window leave.
#include <gmock/gmock.h>

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
#include "widgets/theme.h"

namespace orbelle::app {
namespace {

using namespace orbelle::testing;
using ::testing::ElementsAre;

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
    EXPECT_EQ(pixel(1, 1), widgets::CurrentTheme().Line.rgba()) << "the outline is two pixels wide";
    EXPECT_EQ(pixel(2, 2), 0xFFE6E6E6) << "the checker begins with a square";
    EXPECT_EQ(pixel(5, 2), 0xFFFFFFFF);
    EXPECT_NEAR(qRed(pixel(6, 4)), 127, 1) << "blue of half alpha on white";
    EXPECT_EQ(qBlue(pixel(6, 4)), 255);
    well.activateWindow();
    QApplication::processEvents();
    well.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(pixel(0, 0), widgets::CurrentTheme().Accent.rgba());
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

formats::IconEntryImage IconImage(int width, int height, int bits = 32) {
    formats::IconEntryImage image;
    image.Width = width;
    image.Height = height;
    image.Bits = bits;
    image.Format = formats::IconEntryFormat::Bitmap;
    image.Image = FilledPicture(width, height, kRed);
    return image;
}

std::vector<formats::IconEntryImage> Images(const std::vector<int>& sides) {
    std::vector<formats::IconEntryImage> images;
    for (int side : sides)
        images.push_back(IconImage(side, side));
    return images;
}

IconGridView& Cells(const IconImagesDialog& dialog) {
    return *dialog.findChild<IconGridView*>();
}

QPushButton* AllSizes(const IconImagesDialog& dialog) {
    for (QPushButton* button : dialog.findChildren<QPushButton*>())
        if (button->text().remove('&') == "Open All Sizes")
            return button;
    return nullptr;
}

void StrikeWith(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers keys) {
    QKeyEvent event(QEvent::KeyPress, key, keys);
    QApplication::sendEvent(&widget, &event);
}

TEST(IconImagesDialogTest, PressesAndKeysChooseAndADoubleClickTakes) {
    // Rows of 4 and 3; the largest is chosen, and of two of a size that with more bits.
    std::vector<formats::IconEntryImage> images = Images({48, 32, 16, 48, 9, 9});
    images.push_back(IconImage(48, 48, 24));
    images[0].Bits = 8;
    IconImagesDialog dialog(images, {});
    dialog.open();
    IconGridView& cells = Cells(dialog);
    ASSERT_EQ(cells.Grid().Columns(), 4);
    EXPECT_THAT(cells.Choice().Chosen(), ElementsAre(3));
    for (const int cell : {5, 6, 0}) {
        Click(cells, cells.PartPlace(cell).center());
        EXPECT_THAT(cells.Choice().Chosen(), ElementsAre(cell));
    }
    Click(cells, QPointF(cells.width() - 1, cells.height() - 1));
    EXPECT_THAT(cells.Choice().Chosen(), ElementsAre(0)) << "beside the cells";
    const std::pair<Qt::Key, int> keys[] = {
        {Qt::Key_Left, 0}, {Qt::Key_Up, 0},    {Qt::Key_Right, 1}, {Qt::Key_Down, 5},
        {Qt::Key_Down, 5}, {Qt::Key_Right, 6}, {Qt::Key_Right, 6}, {Qt::Key_Left, 5},
        {Qt::Key_Left, 4}, {Qt::Key_Left, 3},  {Qt::Key_Down, 6},  {Qt::Key_Up, 2},
        {Qt::Key_Home, 0}, {Qt::Key_End, 6}};
    for (const auto& [key, chosen] : keys) {
        Strike(cells, key);
        EXPECT_THAT(cells.Choice().Chosen(), ElementsAre(chosen)) << key;
    }
    StrikeWith(cells, Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_THAT(cells.Choice().Chosen(), ElementsAre(0)) << "one at most";
    SendMouse(cells, QEvent::MouseButtonDblClick, cells.PartPlace(0).center(), Qt::LeftButton,
              Qt::LeftButton);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_THAT(dialog.Choice().Images, ElementsAre(0));
    EXPECT_FALSE(dialog.Choice().AllSizes);
}

TEST(IconImagesDialogTest, SeveralAreChosenWithCtrlAndShift) {
    IconImagesDialog dialog(Images({16, 24, 32, 48, 64}), {.TakesSeveral = true});
    dialog.open();
    IconGridView& cells = Cells(dialog);
    QPushButton& ok = *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    const auto click = [&](int cell, Qt::KeyboardModifiers keys) {
        SendMouse(cells, QEvent::MouseButtonPress, cells.PartPlace(cell).center(), Qt::LeftButton,
                  Qt::LeftButton, keys);
        return cells.Choice().Chosen();
    };
    EXPECT_THAT(click(1, Qt::ControlModifier), ElementsAre(1, 4));
    EXPECT_THAT(click(3, Qt::ShiftModifier), ElementsAre(1, 2, 3));
    EXPECT_THAT(click(0, Qt::ShiftModifier), ElementsAre(0, 1));
    EXPECT_THAT(click(0, Qt::ControlModifier), ElementsAre(1));
    EXPECT_THAT(click(1, Qt::ControlModifier), ElementsAre());
    EXPECT_FALSE(ok.isEnabled());
    StrikeWith(cells, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_THAT(cells.Choice().Chosen(), ElementsAre()) << "only led there";
    Strike(cells, Qt::Key_Space);
    EXPECT_THAT(cells.Choice().Chosen(), ElementsAre(2));
    StrikeWith(cells, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_THAT(cells.Choice().Chosen(), ElementsAre(1, 2));
    Strike(cells, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_THAT(dialog.Choice().Images, ElementsAre(1, 2));
}

TEST(IconImagesDialogTest, CellsShowPicturesAtTheirSizeOnChecksAndTheChoiceInAFrame) {
    std::vector<formats::IconEntryImage> images = Images({48, 256, 16});
    graphics::Bitmap dots(16, 16);
    dots.MutablePixels()[0] = kRed;
    images[2].Image = dots;
    IconImagesDialog dialog(images, {});
    IconGridView& cells = Cells(dialog);
    cells.setAttribute(Qt::WA_DontShowOnScreen);
    const QImage shown = cells.grab().toImage();
    const auto place = [&](int cell) {
        const graphics::RectI rect = cells.Grid().Thumbnail(cell);
        return QRect(rect.X, rect.Y, rect.Width, rect.Height);
    };
    EXPECT_EQ(place(0).size(), QSize(48, 48));
    EXPECT_EQ(place(1).size(), QSize(128, 128)) << "shrunk";
    for (const int cell : {0, 1}) {
        EXPECT_EQ(shown.pixel(place(cell).topLeft()), kRed);
        EXPECT_EQ(shown.pixel(place(cell).bottomRight()), kRed);
        EXPECT_NE(shown.pixel(place(cell).topLeft() - QPoint(1, 0)), kRed);
        EXPECT_NE(shown.pixel(place(cell).bottomRight() + QPoint(0, 1)), kRed);
    }
    const QPoint corner = place(2).topLeft();
    EXPECT_EQ(shown.pixel(corner), kRed);
    EXPECT_EQ(shown.pixel(corner + QPoint(1, 0)), 0xFFE6E6E6) << "a check, hard beside the dot";
    EXPECT_EQ(shown.pixel(corner + QPoint(5, 0)), 0xFFFFFFFF);
    const auto frame = [&](int cell) {
        return shown.pixel(cells.PartPlace(cell).topLeft() + QPoint(2, 9));
    };
    EXPECT_EQ(frame(0), 0xFFFFFFFF);
    EXPECT_EQ(frame(1), widgets::CurrentTheme().Accent.rgba());
}

TEST(IconImagesDialogTest, AssistiveToolsSeeTheCells) {
    std::vector<formats::IconEntryImage> images = Images({48, 32});
    images[1].Format = formats::IconEntryFormat::Png;
    IconImagesDialog dialog(images, {});
    const IconGridView& cells = Cells(dialog);
    EXPECT_EQ(cells.PartName(0), "48 x 48, 32 bit");
    EXPECT_EQ(cells.PartName(1), "32 x 32, PNG, 32 bit");
    EXPECT_EQ(cells.PartValue(1), "2 of 2");
    EXPECT_TRUE(cells.PartState(0).selected);
    EXPECT_FALSE(cells.PartState(1).selected);
}

TEST(IconImagesDialogTest, AllCellsAreInSightWhereTheyFit) {
    const auto arranged = [](const std::vector<int>& sides, GridSize room) {
        IconGrid grid(Images(sides));
        grid.FitInto(room, {60, 30});
        return grid;
    };
    const std::vector<int> windows{256, 96, 80, 72, 64, 60, 48, 40, 36, 32, 30, 24, 20, 16};
    EXPECT_EQ(arranged(windows, {1200, 700}).Columns(), 5);  // 740 x 564
    EXPECT_LE(arranged(windows, {1200, 400}).Size().Height, 400);
    EXPECT_EQ(arranged(windows, {600, 500}).Cell(0).Height, 96 + 60) << "smaller pictures";
    EXPECT_LE(arranged(windows, {600, 500}).Size().Height, 500);
    EXPECT_EQ(arranged({16}, {1200, 700}).Size().Width, 80);
    const IconGrid many = arranged(std::vector<int>(500, 48), {600, 500});
    EXPECT_GT(many.Size().Height, 500);
    EXPECT_EQ(many.Columns(), 7);  // of 80

    IconImagesDialog dialog(Images(std::vector<int>(900, 16)), {});
    dialog.show();
    EXPECT_TRUE(Cells(dialog).visibleRegion().intersects(Cells(dialog).PartPlace(0)));
    Strike(Cells(dialog), Qt::Key_End);
    EXPECT_TRUE(Cells(dialog).visibleRegion().intersects(Cells(dialog).PartPlace(899)));
}

TEST(IconImagesDialogTest, OkTakesTheChosenImagesAndCancelNone) {
    MainWindow window;
    const auto answer = [&](QDialogButtonBox::StandardButton button) {
        AnswerDialog<IconImagesDialog>([button](IconImagesDialog& dialog) {
            Cells(dialog).Choose(0, CellChoice::How::Alone);
            dialog.findChild<QDialogButtonBox*>()->button(button)->click();
        });
        return window.ChooseIconImages(Images({16, 32}), {});
    };
    EXPECT_FALSE(answer(QDialogButtonBox::Cancel));
    EXPECT_THAT(answer(QDialogButtonBox::Ok)->Images, ElementsAre(0));

    IconImagesDialog empty({}, {});
    empty.open();
    Strike(Cells(empty), Qt::Key_Right);
    Strike(Cells(empty), Qt::Key_Space);
    EXPECT_THAT(Cells(empty).Choice().Chosen(), ElementsAre());
}

TEST(IconImagesDialogTest, AllSizesAreOfferedWhereThereAreSeveral) {
    const auto offers = [](const std::vector<formats::IconEntryImage>& images) {
        return AllSizes(IconImagesDialog(images, {.OffersAllSizes = true})) != nullptr;
    };
    EXPECT_TRUE(offers(Images({16, 32})));
    EXPECT_TRUE(offers(Images({8, 300, 256})));
    EXPECT_FALSE(offers(Images({16, 16})));
    EXPECT_FALSE(offers(Images({7, 257, 32})));
    EXPECT_FALSE(offers({IconImage(16, 16), IconImage(32, 31)}));
    EXPECT_EQ(AllSizes(IconImagesDialog(Images({16, 32}), {})), nullptr) << "not wanted";
    IconImagesDialog dialog(Images({16, 32}), {.OffersAllSizes = true});
    AllSizes(dialog)->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(dialog.Choice().AllSizes);
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
