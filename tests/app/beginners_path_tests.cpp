// The first hour of a user who has never started the program: an empty home, a mouse, a keyboard.
#include "real_window.h"

namespace orbelle::app {
namespace {

using orbelle::testing::WaitUntil;

constexpr int kNewSide = 256;
constexpr int kRedPixels = 61 * 41;
constexpr QRgb kRed = 0xFFFF0000, kBlack = 0xFF000000;

class BeginnersPathTest : public RealWindowTest {
protected:
    // The page with its edges.
    QImage AroundPage() const {
        return Shown(QRect(page, QSize(kNewSide, kNewSide)).adjusted(-3, -3, 3, 3));
    }
};

TEST_F(BeginnersPathTest, GoesFromTheFirstStartToAnExportedIcon) {
    LayOut();
    page = PlaceOfNewPage(kNewSide);
    Settings().clear();
    StartProgram({});
    ASSERT_TRUE(FocusEmptyMain());
    ASSERT_TRUE(MoveToTwin());

    Press({"ctrl+n"});
    ASSERT_TRUE(FocusWindow("^New Icon"));
    Press({"Return"});
    ASSERT_TRUE(FocusMain());
    Press({"ctrl+0"});
    const QRgb empty = At(page + QPoint(20, 20));

    Press({"b"});
    Click(page + QPoint(20, 20));
    MoveTo({0, 0});
    EXPECT_EQ(At(page + QPoint(20, 20)), kBlack) << "a dot with the pencil";
    for (const QPoint& beside : {QPoint(19, 20), QPoint(21, 20), QPoint(20, 19), QPoint(20, 21)})
        EXPECT_NE(At(page + beside), kBlack);
    Press({"ctrl+z"});
    EXPECT_EQ(At(page + QPoint(20, 20)), empty);

    Click(Control("ForeColorOLE0"));
    Do({"click", "--repeat", "2", "--delay", "40", "1"});
    ASSERT_TRUE(FocusWindow("^Foreground"));
    Do({"type", "#ff0000"});
    Press({"Return"});
    ASSERT_TRUE(FocusMain());

    Press({"shift+r"});
    Drag(page + QPoint(40, 40), page + QPoint(99, 79));
    MoveTo({0, 0});
    EXPECT_EQ(Count(kRed), kRedPixels);
    EXPECT_EQ(At(page + QPoint(39, 39)), kRed);
    EXPECT_EQ(At(page + QPoint(99, 79)), kRed);

    const QImage drawn = AroundPage();
    Click(Control("PageWidth"));
    Press({"ctrl+a"});
    Do({"type", "128"});
    Press({"Return"});
    MoveTo({0, 0});
    EXPECT_NE(AroundPage(), drawn);
    EXPECT_EQ(Count(kRed), kRedPixels);
    Press({"ctrl+z"});
    EXPECT_EQ(AroundPage(), drawn);

    Press({"ctrl+s"});
    ASSERT_TRUE(AnswerFileDialog(Path("first")));
    ASSERT_TRUE(FocusWindow("^first.volf - Varnel Orbelle$"));
    EXPECT_TRUE(QFile::exists(Path("first.volf")));
    Press({"ctrl+q"});
    ASSERT_TRUE(EndsWell(program));

    StartProgram({Path("first.volf")});
    ASSERT_TRUE(FocusWindow("^first.volf - Varnel Orbelle$"));
    ASSERT_TRUE(MoveToTwin());
    ASSERT_TRUE(WaitUntil([&] { return Count(kRed) == kRedPixels; }));
    const QImage exported = Export();
    ASSERT_EQ(exported.size(), QSize(kNewSide, kNewSide));
    EXPECT_EQ(CountOf(exported, kRed), kRedPixels);
    EXPECT_EQ(exported.pixel(39, 39), kRed);
    EXPECT_EQ(qAlpha(exported.pixel(38, 40)), 0);
    EXPECT_EQ(qAlpha(exported.pixel(20, 20)), 0);
}

}  // namespace
}  // namespace orbelle::app
