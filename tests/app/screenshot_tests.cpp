// The pictures that orbelle-screenshot takes.
#include <QFile>

#include "real_window.h"

namespace orbelle::app {
namespace {

class ScreenshotTest : public RealProgramTest {
protected:
    // The program's exit status.
    int TakeScreenshot(const QStringList& arguments) {
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(ORBELLE_SCREENSHOT_PROGRAM, arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        return process.exitCode();
    }
};

TEST_F(ScreenshotTest, At200PercentHasHardSquares) {
    environment.insert("QT_SCALE_FACTOR", "2");
    ASSERT_EQ(TakeScreenshot({Path("work/shot.png"), WritePicture()}), 0);
    const QImage shot(Path("work/shot.png"));
    ASSERT_EQ(shot.size(), QSize(2200, 1520));
    constexpr int kSceneEnd = 1600;  // the layer list shows the picture, too
    int picturePixels = 0;
    int softSquares = 0;
    for (int y = 200; y < shot.height(); y += 2) {
        for (int x = 0; x < kSceneEnd; x += 2) {
            const QRgb pixel = shot.pixel(x, y);
            picturePixels += pixel == kPictureColor;
            softSquares += pixel == kPictureColor &&
                           (pixel != shot.pixel(x + 1, y) || pixel != shot.pixel(x, y + 1) ||
                            pixel != shot.pixel(x + 1, y + 1));
        }
    }
    EXPECT_EQ(picturePixels, kWholePicture);
    EXPECT_EQ(softSquares, 0);
    EXPECT_FALSE(QFile::exists(Path("home/OrbelleWork.conf")));
}

TEST_F(ScreenshotTest, OfABrokenFileFails) {
    EXPECT_EQ(TakeScreenshot({Path("work/shot.png"), Path("work/none.png")}), 1);
    EXPECT_FALSE(QFile::exists(Path("work/shot.png")));
    EXPECT_EQ(TakeScreenshot({}), 2);
}

}  // namespace
}  // namespace orbelle::app
