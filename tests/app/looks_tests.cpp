#include "app/looks.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "app/desktop_motion.h"
#include "app/settings.h"
#include "filters/outline_contrast.h"
#include "main_window_fixture.h"
#include "widgets/theme.h"

namespace orbelle::app {
namespace {

using widgets::Shade;

double Contrast(const QColor& first, const QColor& second) {
    return filters::ContrastRatio(first.rgba(), second.rgba());
}

// WCAG 2.1: 1.4.3 for words, 1.4.11 for lines.
TEST(ThemeTest, WordsAndLinesAreSeenWellOnBothGrounds) {
    constexpr double kOfWords = 4.5, kOfLines = 3;
    for (const Shade shade : {Shade::Light, Shade::Dark}) {
        const widgets::Theme& theme = widgets::ThemeOf(shade);
        for (const QColor& ground : {theme.Ground, theme.Field}) {
            EXPECT_GE(Contrast(theme.Text, ground), kOfWords);
            EXPECT_GE(Contrast(theme.Note, ground), kOfWords);
            EXPECT_GE(Contrast(theme.Line, ground), kOfLines);
            EXPECT_GE(Contrast(theme.Accent, ground), kOfLines);
        }
        EXPECT_GE(Contrast(theme.Field, theme.Accent), kOfWords) << "words that are marked";
        widgets::SetShade(shade);
        for (const QColor& face :
             {widgets::BandColor(), widgets::HoverColor(), widgets::PressedColor()}) {
            EXPECT_GE(Contrast(theme.Text, face), kOfWords);
            EXPECT_GE(Contrast(theme.Note, face), kOfWords);
            EXPECT_GE(Contrast(theme.Accent, face), kOfLines);
        }
        const widgets::Theme scene = widgets::SceneTheme();
        for (const QColor& ground :
             {scene.Ground, scene.Field, widgets::SceneHoverColor(), widgets::ScenePressedColor()})
            EXPECT_GE(Contrast(scene.Text, ground), kOfWords);
        EXPECT_GE(Contrast(scene.Note, scene.Ground), kOfWords);
        EXPECT_GE(Contrast(scene.Line, scene.Ground), kOfLines);
        EXPECT_GE(Contrast(scene.Accent, scene.Ground), kOfLines);
    }
    widgets::SetShade(Shade::Light);
}

TEST(DesktopMotionTest, IsWhatTheDesktopsFilesSay) {
    EXPECT_TRUE(DoesDesktopWantMotion());
    const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    QDir().mkpath(config + "/gtk-3.0");
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"gtk-3.0/settings.ini", "[Settings]\ngtk-font-name=Sans, 10\n", true},
        {"gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=1\n", true},
        {"gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=false\n", false},
        {"kdeglobals", "[KDE]\nAnimationDurationFactor=0.5\n", true},
        {"kdeglobals", "[KDE]\nAnimationDurationFactor=0\n", false},
    };
    for (const auto& [name, text, expected] : cases) {
        QFile file(config + '/' + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        EXPECT_EQ(DoesDesktopWantMotion(), expected) << text;
        file.remove();
    }
}

class LooksTest : public MainWindowTest {
protected:
    ~LooksTest() override { ApplyLooks(Looks::Light); }
    QAction& Entry(const char* name) { return *window.findChild<QAction*>(name); }
    QColor Shown() { return window.grab().toImage().pixelColor(2, window.height() - 3); }
};

TEST_F(LooksTest, AreChosenInTheViewMenuAndRemembered) {
    EXPECT_EQ(StoredLooks(), Looks::AsDesktop);
    Entry("LooksDark").trigger();
    EXPECT_EQ(Shown(), widgets::ThemeOf(Shade::Dark).Ground);
    EXPECT_EQ(StoredLooks(), Looks::Dark);
    window.ShowControls();
    EXPECT_TRUE(Entry("LooksDark").isChecked());
    EXPECT_FALSE(Entry("LooksLight").isChecked());
    Entry("LooksLight").trigger();
    EXPECT_EQ(Shown(), widgets::ThemeOf(Shade::Light).Ground);
    EXPECT_EQ(StoredLooks(), Looks::Light);
}

}  // namespace
}  // namespace orbelle::app
