// Menus, keys, sliders and the clipboard of the real window.
#include <QDir>

#include "real_window.h"

namespace orbelle::app {
namespace {

using orbelle::testing::WaitUntil;

class CommandsWindowTest : public RealWindowTest {
protected:
    // The peer's output, once it has ended; empty: it failed.
    QByteArray RunPeer(const QStringList& arguments) {
        QProcess peer;
        peer.setProcessEnvironment(environment);
        peer.start(ORBELLE_CLIPBOARD_PEER, arguments);
        return EndsWell(peer) ? peer.readAll().trimmed() : QByteArray();
    }
};

TEST_F(CommandsWindowTest, StylesAndSlidersChangeThePictureAndAreUndone) {
    QImage picture(kPictureSide, kPictureSide, QImage::Format_ARGB32);
    picture.fill(kPictureColor);
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
        Press({"ctrl+z"});
        EXPECT_EQ(Scene(), before) << slider;
        Press({"ctrl+y"});
        EXPECT_EQ(Scene(), changed) << slider;
        Press({"ctrl+z"});
        EXPECT_EQ(Scene(), before) << slider;
    }
    EXPECT_TRUE(QuitWithoutSaving());
    EXPECT_EQ(QDir(Path("work")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList("tile.png"));
}

TEST_F(CommandsWindowTest, PicturesGoToAndComeFromOtherPrograms) {
    ASSERT_TRUE(StartWithPicture());
    Press({"ctrl+c"});
    EXPECT_EQ(RunPeer({"take", Path("taken.png")}), "Orbelle");
    const QImage taken(Path("taken.png"));
    ASSERT_EQ(taken.size(), QSize(kPictureSide, kPictureSide));
    EXPECT_EQ(taken.pixel(100, 100), kPictureColor);

    constexpr QRgb kOffered = 0xFF20C060;
    QProcess peer;
    peer.setProcessEnvironment(environment);
    peer.start(ORBELLE_CLIPBOARD_PEER,
               {"offer", WritePicture("offered.png", QSize(60, 40), kOffered)});
    ASSERT_TRUE(WaitUntil([&] { return peer.waitForReadyRead(100) || peer.canReadLine(); }));
    WaitUntilIdle();
    Press({"ctrl+v"});
    EXPECT_TRUE(WaitUntil([&] { return Count(kOffered) > 0; }));
    const QImage pasted = ExportPng();
    EXPECT_EQ(pasted.pixel(0, 0), kOffered);
    EXPECT_EQ(pasted.pixel(59, 39), kOffered);
    EXPECT_EQ(pasted.pixel(60, 40), kPictureColor);
    peer.kill();
    peer.waitForFinished();
}

}  // namespace
}  // namespace orbelle::app
