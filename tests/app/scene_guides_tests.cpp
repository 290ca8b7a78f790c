// Lines over the scene: the pixel grid and the axes of mirror drawing.
#include <QAction>
#include <QImage>
#include <array>

#include "app/settings.h"
#include "main_window_fixture.h"

namespace orbelle::app {
namespace {

class SceneGuides : public MainWindowTest {
protected:
    // A third each of white, black and mid grey.
    void OpenColumns(double zoom) {
        NewPage(24, 12);
        window.Run([zoom](editing::Editor& editor) {
            graphics::Bitmap& image = editor.Page().Selected().Image;
            for (int i = 0; i < 24 * 12; ++i)
                image.SetPixel(i % 24, i / 24,
                               std::array{0xFFFFFFFF, 0xFF000000, 0xFF808080}[i % 24 / 8]);
            editor.View.Zoom = zoom;
            editor.Changed.Pixels = true;
        });
    }

    // The scene on a screen of `scale` device pixels a pixel.
    QImage Shot(int scale) {
        QImage shot(Scene().size() * scale, QImage::Format_RGB32);
        shot.setDevicePixelRatio(scale);
        Scene().render(&shot);
        return shot;
    }

    // Where the two differ, device pixels from the page's corner.
    std::vector<QPoint> Differences(const QImage& one, const QImage& other, int scale) {
        const QPoint corner(PageOffsetX(Page(), window.Editor().View) * scale,
                            PageOffsetY(Page(), window.Editor().View) * scale);
        std::vector<QPoint> places;
        for (int y = 0; y < one.height(); ++y)
            for (int x = 0; x < one.width(); ++x)
                if (one.pixel(x, y) != other.pixel(x, y))
                    places.push_back(QPoint(x, y) - corner);
        return places;
    }

    QAction& Entry(const char* name) { return *window.findChild<QAction*>(name); }
};

TEST_F(SceneGuides, ThePixelGridLiesBetweenThePagesPixelsFromEightfoldOn) {
    OpenColumns(10);
    for (const int scale : {1, 2}) {
        SCOPED_TRACE(scale);
        window.ShowPixelGrid(true);
        const QImage with = Shot(scale);
        window.ShowPixelGrid(false);
        const int cell = 10 * scale, width = 24 * cell, height = 12 * cell;
        // Of two pixels along a line one is seen at least, on grey both.
        std::vector<int> seen(static_cast<std::size_t>(24 * 12), 0);
        for (const QPoint& place : Differences(with, Shot(scale), scale)) {
            const bool isOnColumn = place.x() % cell == 0, isOnRow = place.y() % cell == 0;
            ASSERT_TRUE(isOnColumn || isOnRow) << place.x() << ' ' << place.y();
            ASSERT_TRUE(QRect(0, 0, width, height).contains(place));
            ASSERT_TRUE((isOnColumn && place.x() > 0) || (isOnRow && place.y() > 0));
            ++seen[static_cast<std::size_t>(place.y() / cell * 24 + place.x() / cell)];
        }
        for (int x = 1; x < 24; ++x)
            for (int y = 1; y < 12; ++y)
                EXPECT_GE(seen[static_cast<std::size_t>(y * 24 + x)],
                          x < 16 ? cell - 1 : 2 * cell - 1)
                    << x << ' ' << y;
    }
    for (const auto& [zoom, shown] : {std::pair(7.9, false), {8.0, true}}) {
        OpenColumns(zoom);
        window.ShowPixelGrid(true);
        const QImage with = Shot(1);
        window.ShowPixelGrid(false);
        EXPECT_EQ(with != Shot(1), shown) << zoom;
    }
}

TEST_F(SceneGuides, ThePixelGridFollowsPixelsOfUnequalWidthAndRepaintsOfAPart) {
    OpenColumns(8.7);
    QImage with = Shot(1);
    window.ShowPixelGrid(false);
    const QImage without = Shot(1);
    const int x = PageOffsetX(Page(), window.Editor().View);
    const int y = PageOffsetY(Page(), window.Editor().View) + 4;
    int changes = 0;
    for (int i = x + 1; i < x + static_cast<int>(24 * 8.7); ++i)
        if (without.pixel(i, y) != without.pixel(i - 1, y)) {
            ++changes;
            EXPECT_TRUE(with.pixel(i, y) != without.pixel(i, y) ||
                        with.pixel(i, y + 1) != without.pixel(i, y + 1))
                << i - x;
        }
    EXPECT_EQ(changes, 2);

    window.ShowPixelGrid(true);
    const QImage whole = with;
    const QRect part(x + 31, y + 9, 83, 41);
    Scene().render(&with, part.topLeft(), part);
    EXPECT_EQ(with, whole);
}

TEST_F(SceneGuides, ThePixelGridIsOnAndWhatTheUserTurnsOffStaysOff) {
    Settings().clear();
    window.RestoreSettings();
    EXPECT_TRUE(Entry("PixelGrid").isChecked());
    Entry("PixelGrid").trigger();
    EXPECT_FALSE(Scene().IsPixelGridShown());
    EXPECT_FALSE(Entry("PixelGrid").isChecked());
    window.StoreSettings();
    MainWindow next;
    next.RestoreSettings();
    EXPECT_FALSE(next.findChild<SceneView*>()->IsPixelGridShown());
    EXPECT_FALSE(next.findChild<QAction*>("PixelGrid")->isChecked());
}

TEST_F(SceneGuides, TheMirrorAxesLieInThePagesMiddle) {
    EXPECT_FALSE(Entry("MirrorLeftRight").isEnabled());
    OpenColumns(4);
    const QImage without = Shot(1);
    Entry("MirrorTopBottom").trigger();
    EXPECT_TRUE(Entry("MirrorTopBottom").isChecked());
    for (const QPoint& place : Differences(Shot(1), without, 1))
        ASSERT_EQ(place.y(), 24);
    Entry("MirrorTopBottom").trigger();
    EXPECT_EQ(Shot(1), without);
    Entry("MirrorLeftRight").trigger();
    EXPECT_EQ(Differences(Shot(1), without, 1).size(), 48U);
    EXPECT_EQ(window.Editor().Tools.Mirror, (editing::MirrorAxes{true, false}));
    EXPECT_FALSE(Entry("MirrorTopBottom").isChecked());
}

TEST_F(SceneGuides, ArrowsWithAltMoveByHalfAPixel) {
    NewPage(16, 12);
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers keys) {
        QKeyEvent event(QEvent::KeyPress, key, keys);
        QApplication::sendEvent(&Scene(), &event);
        return Page().Selected().Rect;
    };
    using graphics::RectF;
    EXPECT_EQ(press(Qt::Key_Left, Qt::AltModifier), (RectF{-1, 0, 17, 12}));
    EXPECT_EQ(press(Qt::Key_Down, Qt::AltModifier | Qt::KeypadModifier), (RectF{-1, 0, 17, 13}));
    EXPECT_EQ(press(Qt::Key_Right, Qt::NoModifier), (RectF{0, 0, 17, 13}));
}

}  // namespace
}  // namespace orbelle::app
