#include "app/frm_page.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QSlider>
#include <QSpinBox>

#include "app/settings.h"
#include "waiting.h"

namespace orbelle::app {
namespace {

using orbelle::testing::AnswerDialog;

class FrmPageTest : public ::testing::Test {
protected:
    FrmPageTest() { Settings().clear(); }

    static void Enter(const FrmPage& page, int width, int height) {
        const QList<QSpinBox*> sides = page.findChildren<QSpinBox*>();
        sides[0]->setValue(width);
        sides[1]->setValue(height);
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

TEST_F(FrmPageTest, SlidersAndNumbersFollowEachOther) {
    FrmPage page;
    QSlider& width = *page.findChildren<QSlider*>()[0];
    width.setValue(300);
    EXPECT_EQ(page.Size().Width, 300);
    Enter(page, 600, 20);
    EXPECT_EQ(width.value(), 512);
    EXPECT_EQ(page.Size().Width, 600);
}

}  // namespace
}  // namespace orbelle::app
