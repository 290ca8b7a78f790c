#include "app/frm_page.h"

#include <gtest/gtest.h>

#include <QMessageBox>

#include "app/settings.h"
#include "waiting.h"
#include "widgets/ctl_scroll.h"

namespace orbelle::app {
namespace {

using orbelle::testing::AnswerDialog;

class FrmPageTest : public ::testing::Test {
protected:
    FrmPageTest() { Settings().clear(); }

    static void Enter(const FrmPage& page, int width, int height) {
        page.findChild<widgets::CtlScroll*>("CtlScroll1")->SetColorValue(width);
        page.findChild<widgets::CtlScroll*>("CtlScroll2")->SetColorValue(height);
    }
};

TEST_F(FrmPageTest, StaysOpenOutside1To512) {
    const editing::PageSize wrong[] = {{513, 16}, {16, 513}, {0, 16}, {16, 0}};
    for (const auto& [width, height] : wrong) {
        FrmPage page;
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

TEST_F(FrmPageTest, RemembersTheSizeChosenWithOk) {
    FrmPage first;
    EXPECT_EQ(first.Size().Width, 0);
    EXPECT_EQ(first.Size().Height, 0);
    Enter(first, 1, 512);
    first.accept();
    EXPECT_EQ(first.result(), QDialog::Accepted);

    FrmPage cancelled;
    Enter(cancelled, 64, 64);
    cancelled.reject();

    FrmPage next;
    EXPECT_EQ(next.Size().Width, 1);
    EXPECT_EQ(next.Size().Height, 512);
}

}  // namespace
}  // namespace orbelle::app
