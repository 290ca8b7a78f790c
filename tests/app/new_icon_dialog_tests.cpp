#include "app/new_icon_dialog.h"

#include <gtest/gtest.h>

#include <QMessageBox>

#include "app/settings.h"
#include "waiting.h"
#include "widgets/number_slider.h"

namespace orbelle::app {
namespace {

using orbelle::testing::AnswerDialog;

class NewIconDialogTest : public ::testing::Test {
protected:
    NewIconDialogTest() { Settings().clear(); }

    static void Enter(const NewIconDialog& page, int width, int height) {
        page.findChild<widgets::NumberSlider*>("PageWidth")->SetValue(width);
        page.findChild<widgets::NumberSlider*>("PageHeight")->SetValue(height);
    }
};

TEST_F(NewIconDialogTest, StaysOpenOutside1To512) {
    const PageSize wrong[] = {{513, 16}, {16, 513}, {0, 16}, {16, 0}};
    for (const auto& [width, height] : wrong) {
        NewIconDialog page;
        page.open();
        Enter(page, width, height);
        QString text;
        AnswerDialog<QMessageBox>([&](QMessageBox& box) {
            text = box.text();
            box.accept();
        });
        page.accept();
        EXPECT_EQ(text, "Please input a integer from 1 to 512.") << width << " x " << height;
        EXPECT_TRUE(page.isVisible());
        EXPECT_FALSE(Settings().contains("Width"));
    }
}

TEST_F(NewIconDialogTest, RemembersTheSizeChosenWithOk) {
    const auto size = [](const NewIconDialog& page) {
        return std::pair(page.Size().Width, page.Size().Height);
    };
    NewIconDialog first;
    EXPECT_EQ(size(first), std::pair(0, 0));
    Enter(first, 1, 512);
    first.accept();
    EXPECT_EQ(first.result(), QDialog::Accepted);
    NewIconDialog cancelled;
    Enter(cancelled, 64, 64);
    cancelled.reject();
    EXPECT_EQ(size(NewIconDialog()), std::pair(1, 512));
}

}  // namespace
}  // namespace orbelle::app
