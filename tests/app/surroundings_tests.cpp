// Starts among things that are not as they should be: the program runs with its defaults, and ends.
#include <sys/stat.h>

#include <fstream>

#include "real_window.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

using orbelle::testing::WaitUntil;

class SurroundingsTest : public RealWindowTest {
protected:
    SurroundingsTest() {
        fs::create_directory(config);
        Set("XDG_CONFIG_HOME", config);
    }
    void Set(const char* variable, const fs::path& path) {
        environment.insert(variable, QString::fromStdString(path.string()));
    }

    const fs::path config = folder / "config";
    const fs::path settings = config / "OrbelleWork.conf";
};

TEST_F(SurroundingsTest, TheProgramStartsWorksAndEnds) {
    const fs::path nowhere = "/proc/nowhere";  // not even the superuser can make it
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"settings are a pipe", [&] { ASSERT_EQ(mkfifo(settings.c_str(), 0600), 0); }},
        {"settings are a folder", [&] { fs::create_directory(settings); }},
        {"settings lead nowhere", [&] { fs::create_symlink(nowhere / "a", settings); }},
        {"settings are noise",
         [&] {
             std::ofstream(settings) << "\xFF\xFE[[%\n=\n@Variant(\n[General]\nMainWidth=-5\n"
                                        "MainLeft=99999999999\nMainState=x\nLastFolder=@@(,\n"
                                        "ForeColor0=a,b\nCtlScroll22=-7\n"
                                     << std::string(1000, '\0');
         }},
        {"their lock is a pipe",
         [&] { ASSERT_EQ(mkfifo((settings.string() + ".lock").c_str(), 0600), 0); }},
        {"no home",
         [&] {
             for (const char* name :
                  {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
                 Set(name, nowhere);
         }},
        {"no folder for sockets", [&] { Set("XDG_RUNTIME_DIR", nowhere); }},
    };
    const QString picture = Write("tile.png", PictureOf(kPictureColor));
    const QProcessEnvironment usual = environment;
    for (const auto& [name, make] : cases) {
        SCOPED_TRACE(name);
        fs::remove_all(config);
        fs::create_directory(config);
        environment = usual;
        make();
        const fs::file_status before = fs::symlink_status(settings);
        StartProgram({picture});
        ASSERT_TRUE(FocusWindow("^Varnel Orbelle - Project"));
        Press({"alt+s", "d"});
        Press({"ctrl+s"});
        ASSERT_TRUE(AnswerFileDialog(Path(name)));
        ASSERT_TRUE(FocusWindow(".volf - Varnel Orbelle$"));
        Press({"ctrl+q"});
        EXPECT_TRUE(EndsWell(program));
        EXPECT_TRUE(QFile::exists(Path(name) + ".volf"));
        if (fs::exists(before) && !fs::is_symlink(before)) {
            EXPECT_EQ(fs::symlink_status(settings).type(), before.type());
        }
        EXPECT_FALSE(fs::exists("/orbelle-main-window")) << "beside nothing";
    }
}

}  // namespace
}  // namespace orbelle::app
