#include "widgets/motion.h"

#include <gtest/gtest.h>

#include <QPushButton>

#include "app/waiting.h"
#include "support/hands.h"
#include "widgets/size_strip.h"
#include "widgets/theme.h"

namespace orbelle::widgets {
namespace {

class MotionTest : public ::testing::Test {
protected:
    MotionTest() { SetMotionWanted(true); }
    ~MotionTest() override { SetMotionWanted(false); }
};

TEST_F(MotionTest, IsShortAndNotAtAllWhereNobodyWantsIt) {
    QWidget moved;
    Motion motion(moved);
    EXPECT_EQ(motion.Share(), 1);
    motion.Start();
    EXPECT_EQ(motion.Share(), 1) << "not to be seen";
    moved.show();
    motion.Start();
    EXPECT_LT(motion.Share(), 0.5);
    EXPECT_TRUE(testing::WaitUntil([&] { return motion.Share() == 1; }));
    SetMotionWanted(false);
    motion.Start();
    EXPECT_EQ(motion.Share(), 1);
}

TEST_F(MotionTest, WhatFadesInCanBeUsedAtOnce) {
    QWidget content;
    QPushButton button(&content);
    button.resize(50, 20);
    content.show();
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
    const QImage calm = content.grab().toImage();
    FadeIn(content);
    EXPECT_NE(content.grab().toImage(), calm);
    QWidget* hit = QApplication::widgetAt(button.mapToGlobal(QPoint(9, 9)));
    ASSERT_EQ(hit, &button);
    testing::Click(*hit, {9, 9});
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(testing::WaitUntil([&] { return content.children().size() == 1; }));
    SetMotionWanted(false);
    FadeIn(content);
    EXPECT_EQ(content.children().size(), 1);
}

TEST_F(MotionTest, TheStripsFrameGoesToTheCellThatIsEdited) {
    SizeStrip strip, still;
    for (SizeStrip* shown : {&strip, &still})
        shown->SetCells({{.Size = 64}, {.Size = 32}, {.Size = 16}});
    strip.setFocusPolicy(Qt::NoFocus);
    strip.SetEditedSize(64);
    strip.resize(400, 120);
    strip.show();
    still.resize(strip.size());
    const QImage first = strip.grab().toImage();
    strip.SetEditedSize(16);
    still.SetEditedSize(16);
    const QImage last = still.grab().toImage();
    EXPECT_NE(strip.grab().toImage(), last) << "on its way";
    EXPECT_NE(first, last);
    EXPECT_TRUE(testing::WaitUntil([&] { return strip.grab().toImage() == last; }));
}

}  // namespace
}  // namespace orbelle::widgets
