// What only the real program shows: a pointer and keys, files, its end, a second copy, other
// programs; and the pictures that orbelle-screenshot takes.
#include <gmock/gmock.h>

#include "real_window.h"

namespace orbelle::app {
namespace {

using orbelle::testing::WaitUntil;

constexpr QRgb kRed = 0xFFFF0000, kBlue = 0xFF0000FF, kOther = 0xFF20C060;

// Of colours that are not opaque only the alpha counts.
void ExpectPixels(const QImage& picture,
                  const std::vector<std::pair<QRgb, std::vector<QPoint>>>& pixels) {
    ASSERT_EQ(picture.size(), QSize(kPictureSide, kPictureSide));
    for (const auto& [color, places] : pixels) {
        const QRgb counts = qAlpha(color) == 255 ? 0xFFFFFFFF : 0xFF000000;
        for (const QPoint& place : places)
            EXPECT_EQ(picture.pixel(place) & counts, color) << place.x() << ", " << place.y();
    }
}

TEST_F(RealWindowTest, EveryToolWorksWhereThePointerIs) {
    ASSERT_TRUE(StartWith());
    const auto draw = [this](QPoint from, QPoint to) { Drag(page + from, page + to); };
    const std::tuple<const char*, QPoint, QPoint> strokes[] = {
        {"b", {10, 10}, {30, 10}},          // pencil
        {"l", {40, 10}, {60, 10}},          // line
        {"r", {70, 10}, {90, 30}},          // rectangle
        {"shift+r", {100, 10}, {120, 30}},  // filled
        {"o", {130, 10}, {150, 30}},        // ellipse
        {"shift+o", {160, 10}, {190, 40}},  // filled
    };
    for (const auto& [key, from, to] : strokes) {
        Press({key});
        draw(from, to);
    }
    Pick(9, "FillBar", 2);
    draw({40, 60}, {140, 110});
    // The picture's own colour, picked, becomes the foreground; then it changes places with blue.
    Press({"i"});
    Click(page + QPoint(5, 5));
    Press({"b"});
    draw({105, 20}, {115, 20});
    Press({"x"});
    draw({10, 50}, {30, 50});
    Pick(12, "EraserBar", 1);
    Click(page + QPoint(150, 150));
    Pick(12, "EraserBar", 2);
    Click(page + QPoint(30, 150));
    // Selections of each kind are taken out.
    Press({"m"});
    draw({50, 130}, {69, 149});
    Press({"ctrl+x"});
    Pick(2, "SelectionBar", 2);
    draw({80, 130}, {119, 169});
    Press({"alt+e", "d"});
    Pick(2, "SelectionBar", 3);
    for (const QPoint& corner : {QPoint(50, 160), QPoint(90, 190), QPoint(50, 190)})
        Click(page + corner);
    Click(page + QPoint(50, 190), 3);
    Press({"alt+e", "d"});

    const QImage drawn = Export();
    ASSERT_FALSE(drawn.isNull());
    ExpectPixels(
        drawn,
        {{kRed, {{25, 10}, {30, 10}, {50, 10}, {80, 9}, {69, 20}, {99, 9}, {120, 30}, {175, 25}}},
         // Beside the lines, in the outlines and corners.
         {kPictureColor,
          {{25, 12}, {50, 12}, {80, 20}, {121, 31}, {140, 20}, {130, 10}, {160, 10}}},
         // In the picked colour, beside the erasers and the selections.
         {kPictureColor,
          {{112, 20}, {165, 150}, {31, 150}, {49, 140}, {70, 140}, {80, 130}, {80, 165}}},
         {kBlue, {{25, 50}}},
         // The pencil eraser, the selections.
         {0, {{30, 150}, {50, 130}, {69, 149}, {100, 150}, {55, 180}}},
         // A full brush of size 10 takes 250 (1 - distance / 15) of the alpha.
         {qRgba(0, 0, 0, 5), {{150, 150}}},
         {qRgba(0, 0, 0, 55), {{153, 150}}}});
    EXPECT_GT(qRed(drawn.pixel(140, 9)), 150) << "the smoothed outline of the ellipse";
    // The gradient from red to blue.
    EXPECT_GT(qRed(drawn.pixel(42, 80)), 240);
    EXPECT_NEAR(qRed(drawn.pixel(90, 80)), 128, 6);
    EXPECT_GT(qBlue(drawn.pixel(137, 80)), 240);
    EXPECT_EQ(drawn.pixel(90, 62), drawn.pixel(90, 108));

    Press({"v"});
    draw({100, 100}, {130, 120});
    Press({"Left"});
    ExpectPixels(Export(), {{0, {{28, 20}}}, {kPictureColor, {{29, 20}}}});
}

TEST_F(RealWindowTest, StylesAndSlidersChangeThePictureAndAreUndone) {
    QImage picture = PictureOf(kPictureColor);
    for (int y = 40; y < 120; ++y)
        for (int x = 60; x < 150; ++x)
            picture.setPixel(x, y, 0xFFE0B040);
    ASSERT_TRUE(StartWith(picture));
    const QImage before = Scene();
    const QStringList styles[] = {{"d"}, {"h"}, {"f"}, {"i"}, {"o", "v"}, {"o", "h"}, {"m"}, {"v"},
                                  {"c"}, {"b"}, {"p"}, {"r"}, {"s"},      {"l"},      {"w"}};
    for (const QStringList& keys : styles) {
        const std::string name = keys.join(' ').toStdString();
        Press(QStringList("alt+s") + keys);
        ASSERT_TRUE(WaitUntil([&] { return Scene() != before; }, 10)) << name;
        // What makes room or brings a layer of its own takes a second step.
        for (int steps = 0; steps < 3 && Scene() != before; ++steps)
            Press({"ctrl+z"});
        ASSERT_EQ(Scene(), before) << name;
    }
    // A drag of a slider is one step.
    for (const char* slider : {"Opacity", "Brightness", "Hue"}) {
        const QPoint middle = Control(slider);
        Drag(middle, middle + QPoint(-20, 0));
        const QImage changed = Scene();
        EXPECT_NE(changed, before) << slider;
        for (const auto& [key, shown] : {std::pair("ctrl+z", before), {"ctrl+y", changed}}) {
            Press({key});
            EXPECT_EQ(Scene(), shown) << slider << ' ' << key;
        }
        Press({"ctrl+z"});
    }
    // So is a number that is typed, with the focus still in its field.
    Click(Control("PageWidth"));
    Press({"ctrl+a"});
    Do({"type", "150"});
    Press({"Return"});
    const QImage narrow = Scene();
    EXPECT_NE(narrow, before);
    for (const auto& [key, shown] : {std::pair("ctrl+z", before), {"ctrl+y", narrow}}) {
        Press({key});
        EXPECT_EQ(Scene(), shown) << key;
    }
    Press({"ctrl+q"});
    EXPECT_TRUE(FocusWindow("^Save Icon Document"));
    Press({"alt+n"});
    EXPECT_TRUE(EndsWell(program));
    EXPECT_EQ(QDir(Path("")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList("tile.png"));
}

TEST_F(RealWindowTest, PicturesGoToAndComeFromOtherPrograms) {
    ASSERT_TRUE(StartWith());
    Press({"ctrl+c"});
    QProcess taker;
    Start(taker, ORBELLE_CLIPBOARD_PEER, {"take", Path("taken.png")});
    EXPECT_TRUE(EndsWell(taker));
    EXPECT_EQ(taker.readAll().trimmed(), "Orbelle");
    ExpectPixels(QImage(Path("taken.png")), {{kPictureColor, {{100, 100}}}});

    QProcess peer;
    Start(peer, ORBELLE_CLIPBOARD_PEER, {"offer", Write("o.png", PictureOf(kOther, {60, 40}))});
    ASSERT_TRUE(WaitUntil([&] { return peer.waitForReadyRead(100) || peer.canReadLine(); }));
    WaitUntilIdle();
    Press({"ctrl+v"});
    EXPECT_TRUE(WaitUntil([&] { return Count(kOther) > 0; }));
    ExpectPixels(Export(), {{kOther, {{0, 0}, {59, 39}}}, {kPictureColor, {{60, 40}}}});
    peer.kill();
    peer.waitForFinished();
}

TEST_F(RealWindowTest, WhatAnotherProgramDragsHereBecomesALayerOrOpens) {
    ASSERT_TRUE(StartWith());
    QProcess peer;
    Start(peer, ORBELLE_CLIPBOARD_PEER, {"drag", Write("o.png", PictureOf(kOther, {60, 40}))});
    const auto says = [&peer](const char* word) {
        return WaitUntil([&] {
            return (peer.canReadLine() || peer.waitForReadyRead(100)) &&
                   peer.readLine().trimmed() == word;
        });
    };
    ASSERT_TRUE(says("ready"));
    // What is let go before the window has said that it takes it is not dropped.
    const auto drag = [&](QPoint to) {
        constexpr QPoint kPeer(1200, 100);
        MoveTo(kPeer);
        Do({"mousedown", "1"});
        MoveTo((kPeer + to) / 2);
        MoveTo(to);
        EXPECT_TRUE(says("accepted"));
        Do({"mouseup", "1"});
    };
    drag(Control("Opacity"));  // anywhere on the window
    EXPECT_TRUE(WaitUntil([&] { return Count(kOther) == 60 * 40 && Count() > 0; }));
    ASSERT_TRUE(FocusMain());
    Press({"ctrl+z"});
    EXPECT_TRUE(WaitUntil([&] { return Count() == kWholePicture; }));
    Do({"keydown", "ctrl"});
    drag(page);
    Do({"keyup", "ctrl"});
    ASSERT_TRUE(FocusWindow("^Save Icon Document"));
    Press({"alt+n"});
    EXPECT_TRUE(WaitUntil([&] { return Count(kOther) >= 4 * 60 * 40 && Count() == 0; }))
        << "a small page comes as large as it fits";
    peer.kill();
    peer.waitForFinished();
}

// From a number field and from the list of layers.
TEST_F(RealWindowTest, TheKeysReturnToThePage) {
    ASSERT_TRUE(StartWith());
    const QImage before = Scene();
    const auto type = [&](const char* last) {
        Click(Control("PageWidth"));
        Press({"ctrl+a"});
        Do({"type", "a150"});
        Press({last});
    };
    type("Escape");
    EXPECT_EQ(Scene(), before);
    Press({"Left"});
    const QImage moved = Scene();
    EXPECT_NE(moved, before) << "the arrow is the page's";
    type("Return");
    const QImage narrow = Scene();
    EXPECT_NE(narrow, moved);
    Press({"Left"});
    EXPECT_NE(Scene(), narrow);
    // In the field: its letters and, while nothing is typed, Undo are the editor's.
    Click(Control("PageWidth"));
    Press({"ctrl+z", "ctrl+z", "ctrl+z", "b"});
    EXPECT_EQ(Scene(), before);
    Drag(page + QPoint(20, 20), page + QPoint(40, 20));
    EXPECT_GT(Count(kRed), 5) << "the pencil draws";
    Press({"ctrl+z", "v"});
    // The only row of the list.
    Click(Place("Layers").topLeft() + QPoint(90, 20));
    Press({"Right"});
    EXPECT_NE(Scene(), before);
    Press({"ctrl+z"});
    EXPECT_EQ(Scene(), before);
    Press({"Delete"});
    EXPECT_EQ(Count(), 0);
    Press({"ctrl+z"});
    EXPECT_EQ(Scene(), before);
}

TEST_F(RealWindowTest, ClosingAsksAndWhatItSavesOpensAgain) {
    ASSERT_TRUE(StartWith());
    Press({"alt+s", "d"});
    ASSERT_TRUE(WaitUntil([&] { return Count() == 0; }));
    Press({"ctrl+q"});
    ASSERT_TRUE(FocusWindow("^Save Icon Document"));
    Press({"Escape"});
    ASSERT_TRUE(FocusMain());
    Press({"ctrl+z", "ctrl+z"});
    EXPECT_TRUE(WaitUntil([&] { return Count() == kWholePicture; })) << "Cancel keeps all";

    Press({"ctrl+q"});
    ASSERT_TRUE(FocusWindow("^Save Icon Document"));
    Press({"alt+y"});
    ASSERT_TRUE(AnswerFileDialog(Path("kept.volf")));
    ASSERT_TRUE(EndsWell(program));

    StartProgram({Write("other.png", PictureOf(kOther, {30, 20}))});
    ASSERT_TRUE(FocusMain());
    ASSERT_TRUE(WaitUntil([&] { return Count(kOther) > 0; }));
    Press({"ctrl+o"});
    ASSERT_TRUE(AnswerFileDialog(Path("kept.volf")));
    EXPECT_TRUE(WaitUntil([&] { return Count() == kWholePicture; }));
    EXPECT_TRUE(FocusWindow("^kept.volf - Varnel Orbelle$"));
    Press({"ctrl+q"});
    EXPECT_TRUE(EndsWell(program)) << "what is saved asks nothing";
}

TEST_F(RealWindowTest, ExportsEachFormat) {
    ASSERT_TRUE(StartWith());
    // The side is that of the first picture in the file.
    const std::tuple<const char*, const char*, int, int> formats[] = {
        {"i", "ico", 256, 0},
        {"p", "png", kPictureSide, 0},
        {"g", "gif", kPictureSide, 0},
        {"j", "jpg", kPictureSide, 3},
        {"b", "bmp", kPictureSide, 0}};
    for (const auto& [mnemonic, ending, side, tolerance] : formats) {
        const QImage picture = Export(mnemonic, ending);
        ASSERT_EQ(picture.size(), QSize(side, side)) << ending;
        const QRgb pixel = picture.pixel(side / 2, side / 2);
        EXPECT_NEAR(qRed(pixel), qRed(kPictureColor), tolerance) << ending;
        EXPECT_NEAR(qGreen(pixel), qGreen(kPictureColor), tolerance) << ending;
        EXPECT_NEAR(qBlue(pixel), qBlue(kPictureColor), tolerance) << ending;
    }
    Press({"ctrl+s"});
    EXPECT_TRUE(FocusWindow("^Open File")) << "an export is no save";
}

TEST_F(RealWindowTest, ASecondStartHandsItsFileOver) {
    ASSERT_TRUE(StartWith());
    const QImage before = Scene();
    HandOver({});
    EXPECT_EQ(Scene(), before);
    HandOver({Write("other.png", PictureOf(kOther, {100, 80}))});
    EXPECT_TRUE(WaitUntil([&] { return Count(kOther) > 0 && Count() == 0; }));
    EXPECT_EQ(program.state(), QProcess::Running);
}

TEST_F(RealWindowTest, RemembersItsUser) {
    ASSERT_TRUE(StartWith());
    Press({"x", "alt+h", "t"});
    Click(Control("ColorPanel"));
    Press({"e"});
    Do({"getwindowfocus", "windowmove", "30", "40", "windowsize", "1000", "740"});
    const QString remembered =
        "ForeColor0=255,0,0,255 ForeColor1=255,255,0,0 TipsControl=1 CtlTitle1=-1 CtlTitle2=0 "
        "CtlTitle3=-1 isQuick=-1 SizesClosed=1 CtlScroll22=100 CtlScroll23=10 MainLeft=30 "
        "MainTop=40 "
        "MainWidth=1000 MainHeight=740 MainState=0";
    for (const bool again : {false, true}) {
        if (again)
            StartProgram({Path("tile.png")});
        ASSERT_TRUE(FocusMain());
        Press({"ctrl+q"});
        ASSERT_TRUE(EndsWell(program));
        const Settings settings;
        for (const QString& setting : remembered.split(' '))
            EXPECT_EQ(settings.value(setting.section('=', 0, 0)).toStringList().join(','),
                      setting.section('=', 1))
                << setting.toStdString() << ' ' << again;
        EXPECT_EQ(settings.value("RecentFiles").toString(), Path("tile.png"));
    }
}

TEST_F(RealProgramTest, ScreenshotsAt200PercentHaveHardSquaresAndBrokenFilesHaveNone) {
    environment.insert("QT_SCALE_FACTOR", "2");
    const auto take = [&](const QStringList& arguments) {
        QProcess process;
        Start(process, ORBELLE_SCREENSHOT_PROGRAM, arguments);
        process.waitForFinished(60000);
        return process.exitCode();
    };
    EXPECT_EQ(take({}), 2);
    EXPECT_EQ(take({Path("shot.png"), Path("none.png")}), 1);
    EXPECT_FALSE(QFile::exists(Path("shot.png")));
    ASSERT_EQ(take({Path("shot.png"), Write("tile.png", PictureOf(kPictureColor))}), 0);
    const QImage shot(Path("shot.png"));
    ASSERT_EQ(shot.size(), QSize(2200, 1520));
    // The layer list shows the picture, too.
    constexpr QRect kScene(0, 200, 1600, 700), kSizes(0, 900, 1600, 620);
    // The squares begin at the page's corner.
    QPoint corner = kScene.topLeft();
    while (CountOf(shot.copy(corner.x(), kScene.y(), 1, kScene.height()), kPictureColor) == 0)
        ++corner.rx();
    while (shot.pixel(corner) != kPictureColor)
        ++corner.ry();
    int softSquares = 0;
    for (int y = corner.y(); y <= kScene.bottom(); y += 2)
        for (int x = corner.x(); x < kScene.right(); x += 2)
            softSquares += CountOf(shot.copy(x, y, 2, 2), kPictureColor) % 4 != 0;
    EXPECT_EQ(softSquares, 0);
    EXPECT_EQ(CountOf(shot.copy(kScene), kPictureColor), 4 * kWholePicture);
    int pixelsOfSizes = 0;
    for (const int size : {128, 64, 48, 32, 24, 16})
        pixelsOfSizes += size * size;
    // The largest is shown where the desktop's fonts leave room for it.
    EXPECT_THAT(CountOf(shot.copy(kSizes), kPictureColor) - pixelsOfSizes,
                ::testing::AnyOf(0, 256 * 256))
        << "true pixels";
    EXPECT_TRUE(QSettings("OrbelleWork").allKeys().isEmpty()) << "it is not the user's window";
}

}  // namespace
}  // namespace orbelle::app
