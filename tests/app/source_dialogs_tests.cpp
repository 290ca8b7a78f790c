// The questions about drawings, and about pictures larger than the page.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "app/fit_dialog.h"
#include "app/svg_size_dialog.h"
#include "support/hands.h"
#include "waiting.h"
#include "widgets/number_slider.h"

namespace orbelle::app {
namespace {

using namespace orbelle::testing;

TEST(SvgSizeDialogTest, BeginsWithTheOwnSizeAsFarAsItCanBeDrawn) {
    const struct {
        PageSize Own;
        int Side;
        const char* Presets;
        const char* Pressed;
    } cases[] = {
        {{24, 48}, 48, "512 256 128 64 48 32", "48"},
        {{100, 30}, 100, "Own 512 256 128 64 48 32", "Own"},
        {{1024, 1}, 1024, "Own 512 256 128 64 48 32", "Own"},
        {{3000, 2000}, 1024, "1024 512 256 128 64 48 32", "1024"},
        {{0, 0}, 1, "1 512 256 128 64 48 32", "1"},
    };
    for (const auto& [own, side, presets, pressed] : cases) {
        SCOPED_TRACE(presets);
        const SvgSizeDialog dialog(own);
        EXPECT_EQ(dialog.Side(), side);
        QStringList names, checked;
        for (const auto* preset : dialog.findChildren<QToolButton*>()) {
            names << preset->text();
            if (preset->isChecked())
                checked << preset->text();
        }
        EXPECT_EQ(names.join(' '), presets);
        EXPECT_EQ(checked.join(' '), pressed);
    }
}

TEST(SvgSizeDialogTest, TakesPresetsAndWhatIsTyped) {
    SvgSizeDialog dialog({100, 30});
    dialog.show();
    dialog.activateWindow();
    QApplication::processEvents();
    auto& field = *dialog.findChild<QLineEdit*>();
    EXPECT_EQ(dialog.focusWidget(), &field);
    EXPECT_EQ(field.selectedText(), "100") << "to be typed over";

    auto& own = *dialog.findChild<QToolButton*>();
    own.setFocus(Qt::TabFocusReason);
    Strike(own, Qt::Key_Right);
    EXPECT_EQ(dialog.Side(), 512);
    EXPECT_FALSE(own.isChecked());

    field.setFocus(Qt::TabFocusReason);
    field.selectAll();
    for (const char digit : {'9', '6'})
        Strike(field, Qt::Key(digit), QString(digit));
    Strike(field, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.Side(), 96);
}

TEST(FitDialogTest, IsTickedAndAnswersWithOneKey) {
    const auto answer = [](std::initializer_list<Qt::Key> keys) {
        FitDialog dialog({4000, 3000}, {256, 256});
        dialog.show();
        dialog.activateWindow();
        QApplication::processEvents();
        EXPECT_EQ(dialog.findChild<QLabel*>()->text(),
                  "The picture of 4000 x 3000 pixels is larger than the page of 256 x 256.");
        for (const Qt::Key key : keys)
            Strike(*dialog.focusWidget(), key);
        return std::pair(dialog.result(), dialog.FitsPage());
    };
    EXPECT_EQ(answer({Qt::Key_Return}), std::pair(int{QDialog::Accepted}, true));
    EXPECT_EQ(answer({Qt::Key_Space, Qt::Key_Return}), std::pair(int{QDialog::Accepted}, false));
    EXPECT_EQ(answer({Qt::Key_Escape}).first, int{QDialog::Rejected});
}

}  // namespace
}  // namespace orbelle::app
