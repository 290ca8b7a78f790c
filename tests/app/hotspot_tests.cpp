// The question where a pointer points, and the file that follows from the answer.
#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <functional>

#include "app/hotspot_dialog.h"
#include "app/hotspot_view.h"
#include "app/save_commands.h"
#include "desk.h"
#include "editing/document_commands.h"
#include "graphics/file_io.h"
#include "support/hands.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"
#include "widgets/number_slider.h"

namespace orbelle::app {
namespace {

using namespace orbelle::testing;
using formats::Hotspot;
using Hand = std::function<void(HotspotDialog&)>;

// A user who answers by hand.
class DeskWithDialog : public Desk {
public:
    Hand Act;

    std::optional<Hotspot> AskHotspot(const graphics::Bitmap& picture, Hotspot start) override {
        HotspotDialog dialog(picture, start);
        dialog.open();
        Act(dialog);
        return dialog.result() == QDialog::Accepted ? std::optional(dialog.Choice()) : std::nullopt;
    }
};

void End(HotspotDialog& dialog, QDialogButtonBox::StandardButton button) {
    dialog.findChild<QDialogButtonBox*>()->button(button)->click();
}

void Type(HotspotDialog& dialog, const char* name, const QString& text) {
    auto* field = dialog.findChild<widgets::NumberSlider*>(name)->findChild<QLineEdit*>();
    field->setFocus();
    field->selectAll();
    for (const QChar letter : text)
        Strike(*field, static_cast<Qt::Key>(letter.unicode()), letter);
}

void StrikeWithShift(QWidget& widget, Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::ShiftModifier);
    QApplication::sendEvent(&widget, &event);
}

HotspotView& ViewOf(HotspotDialog& dialog) {
    return *dialog.findChild<HotspotView*>();
}

TEST(AskExportTest, APointerPointsWhereTheUserSays) {
    const TemporaryFolder folder;
    DeskWithDialog desk;
    desk.Run([](editing::Editor& editor) { NewDocument(editor, 64, 48); });
    desk.State.ExportSettings.PointerHotspot = {70, -3};
    desk.ToWrite = folder / "arrow.cur";
    desk.OverwriteAnswer = true;
    const ExportEntry& cursor =
        *std::ranges::find(kExportEntries, formats::ExportFormat::Cur, &ExportEntry::Format);
    desk.Act = [](HotspotDialog& dialog) {
        Strike(ViewOf(dialog), Qt::Key_Left);
        Strike(ViewOf(dialog), Qt::Key_Escape);
    };
    AskExport(desk.Context, cursor);
    EXPECT_FALSE(std::filesystem::exists(desk.ToWrite));
    EXPECT_EQ(desk.State.ExportSettings.PointerHotspot, (Hotspot{70, -3}));

    // Each begins with what the one before has left.
    struct Case {
        const char* How;
        Hand Act;
        Hotspot Expected;
    };
    const Case cases[] = {
        {"taken as it is, from the nearest pixel", [](HotspotDialog&) {}, {63, 0}},
        {"dragged",
         [](HotspotDialog& dialog) {
             HotspotView& view = ViewOf(dialog);
             Press(view, view.PlaceOf({1, 1}));
             DragTo(view, view.PlaceOf({40, 9}));
             Release(view, view.PlaceOf({40, 9}));
         },
         {40, 9}},
        {"dragged past the page",
         [](HotspotDialog& dialog) {
             Press(ViewOf(dialog), ViewOf(dialog).PlaceOf({40, 9}));
             DragTo(ViewOf(dialog), {-5, 9999});
         },
         {0, 47}},
        {"by keys",
         [](HotspotDialog& dialog) {
             EXPECT_EQ(dialog.focusWidget(), &ViewOf(dialog));
             StrikeWithShift(ViewOf(dialog), Qt::Key_Right);
             Strike(ViewOf(dialog), Qt::Key_Right);
             StrikeWithShift(ViewOf(dialog), Qt::Key_Up);
             Strike(ViewOf(dialog), Qt::Key_Down);
             Strike(ViewOf(dialog), Qt::Key_Left);
             Strike(ViewOf(dialog), Qt::Key_Right);
         },
         {9, 40}},
        {"typed",
         [](HotspotDialog& dialog) {
             Type(dialog, "X", "31");
             EXPECT_EQ(ViewOf(dialog).Value(), (Hotspot{31, 40})) << "at once";
             Type(dialog, "Y", "99");
         },
         {31, 47}},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.How);
        desk.Act = [&](HotspotDialog& dialog) {
            row.Act(dialog);
            EXPECT_EQ(dialog.findChild<widgets::NumberSlider*>("X")->Value(), row.Expected.X);
            EXPECT_EQ(dialog.findChild<widgets::NumberSlider*>("Y")->Value(), row.Expected.Y);
            End(dialog, QDialogButtonBox::Ok);
        };
        AskExport(desk.Context, cursor);
        EXPECT_EQ(desk.State.ExportSettings.PointerHotspot, row.Expected);
        const std::vector<std::uint8_t> file = graphics::ReadFile(desk.ToWrite);
        ASSERT_GT(file.size(), 14U);
        // Of the first size, 64, where the page lies in the middle.
        EXPECT_EQ(file[10], row.Expected.X);
        EXPECT_EQ(file[12], row.Expected.Y + 8);
        EXPECT_EQ(file[11] + file[13], 0);
    }
}

// Opaque pixels of the picture away from the cross.
TEST(HotspotViewTest, ShowsHardSquaresAtEveryScale) {
    QImage picture(20, 20, QImage::Format_ARGB32);
    for (int i = 0; i < 400; ++i)
        picture.setPixel(i % 20, i / 20, i % 3 == 0 ? 0 : qRgb(i % 20 * 12, i / 20 * 12, 99));
    for (const double scale : {1.0, 1.5, 2.0}) {
        SCOPED_TRACE(scale);
        HotspotView view(picture, scale);
        QImage shot(view.size() * scale, QImage::Format_RGB32);
        shot.setDevicePixelRatio(scale);
        view.render(&shot);
        const int cell = static_cast<int>(16 * scale), corner = static_cast<int>(20 * scale);
        for (int y = 2 * cell; y < 20 * cell; ++y)
            for (int x = 2 * cell; x < 20 * cell; ++x) {
                const QRgb pixel = picture.pixel(x / cell, y / cell);
                const QRgb shown = shot.pixel(corner + x, corner + y);
                ASSERT_TRUE(qAlpha(pixel) != 0 ? shown == pixel
                                               : shown == 0xFFFFFFFF || shown == 0xFFE6E6E6)
                    << x << ' ' << y;
            }
        // The pixel itself is free, its frame is dark.
        view.SetValue({11, 10});
        view.render(&shot);
        const int left = corner + 11 * cell, top = corner + 10 * cell;
        EXPECT_EQ(shot.pixel(left, top + 1), picture.pixel(11, 10));
        EXPECT_EQ(shot.pixel(left - 1, top + 1), 0xFF202020);
    }
    HotspotView large(QImage(2000, 10, QImage::Format_ARGB32), 1);
    EXPECT_EQ(large.width(), 360);
    EXPECT_LE(large.PlaceOf({1999, 9}).x(), 340);
}

}  // namespace
}  // namespace orbelle::app
