// The program runs beside the test, which waits for what it does.
#include "cli/file_watch.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <thread>
#include <utility>

#include "program_fixture.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using testing::FilledPicture;

constexpr graphics::Argb kBlue = 0xFF204060;

class WatchTest : public ProgramTest {
protected:
    WatchTest() {
        for (const char* name : {"a.png", "b.png"})
            Write(name, FilledPicture(8, 8, kBlue));
    }
    ~WatchTest() override { EXPECT_EQ(Stop(), SIGINT); }

    void Start(const std::string& words) {
        const std::string command = "cd '" + folder.Path().string() +
                                    "' && XDG_STATE_HOME=$PWD/state exec '" ORBELLE_CLI_PROGRAM
                                    "' --watch " +
                                    words + " >output 2>errors </dev/null";
        program_ = fork();
        if (program_ == 0) {
            std::signal(SIGINT, SIG_DFL);
            execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
            _exit(127);
        }
    }

    // The signal that ended it; 0: it ended by itself.
    int Stop() {
        if (program_ <= 0)
            return SIGINT;
        int status = 0;
        kill(program_, SIGINT);
        waitpid(std::exchange(program_, 0), &status, 0);
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }

    static bool Comes(const std::function<bool()>& condition) {
        const auto end = std::chrono::steady_clock::now() + 60s;
        while (!condition() && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(2ms);
        return condition();
    }
    // So many lines come in the file, and no more are there.
    bool Comes(const std::string& name, int lines) {
        const auto count = [&] { return Exists(name) ? std::ranges::count(Text(name), '\n') : 0; };
        return Comes([&] { return count() >= lines; }) && count() == lines;
    }
    bool Prints(int lines) { return Comes("output", lines); }
    // As line of that number.
    bool Tells(const std::string& error, int line) {
        return Comes("errors", line) && Text("errors").ends_with("orbelle-cli: " + error + '\n');
    }
    // As editors do: in one step.
    void WriteScript(const std::string& text) { Write("icon.txt", {text.begin(), text.end()}); }

private:
    pid_t program_ = 0;
};

// The file of each line of --json.
std::string FilesOf(const std::string& output) {
    std::string files;
    for (std::size_t at = 0; (at = output.find(R"({"file":")", at)) != std::string::npos; ++at)
        files += output[at + 9];
    return files;
}

TEST_F(WatchTest, WhatChangesIsDoneAgain) {
    WriteScript("open {}\nexport {stem}.bmp\n");
    Start("--each a.png b.png --keep-going --json --depfile x.d -- --script icon.txt");
    ASSERT_TRUE(Prints(2));
    Write("b.png", FilledPicture(9, 9, kBlue));
    ASSERT_TRUE(Prints(3));
    EXPECT_EQ(Picture("b.bmp").Width(), 9);
    fs::remove(folder / "a.png");
    ASSERT_TRUE(Prints(4));
    EXPECT_TRUE(Tells("a.png: icon.txt:1: open a.png: No such file or directory", 1));
    WriteScript("open {}\nflip\n");
    ASSERT_TRUE(Tells("icon.txt:2: flip: DIRECTION is missing", 2));
    fs::remove(folder / "x.d");
    Write("a.png", FilledPicture(10, 10, kBlue));
    WriteScript("open {}\nflip vertical\nimport c.png\nexport {stem}.gif\n");
    ASSERT_TRUE(Prints(6));
    EXPECT_FALSE(Exists("x.d"));
    Write("c.png", FilledPicture(11, 11, kBlue));
    ASSERT_TRUE(Prints(8));
    EXPECT_EQ(FilesOf(Text("output")), "abbaabab");
    ASSERT_TRUE(Comes([this] { return Exists("x.d"); }));
    EXPECT_EQ(Text("x.d"), "a.gif: a.png c.png icon.txt\nb.gif: b.png c.png icon.txt\n");
}

TEST_F(WatchTest, ItsOwnWritingIsNoChange) {
    Write("c.png", FilledPicture(8, 8, kBlue));
    fs::create_directory(folder / "to");
    fs::create_symlink("../a.png", folder / "to/a.png");
    fs::create_hard_link(folder / "b.png", folder / "to/b.png");
    Start("--each a.png b.png c.png --json -- open {} flip vertical export to/{name}");
    ASSERT_TRUE(Prints(3));
    const std::string changes = "abcabc";
    for (int i = 0; i < 6; ++i) {
        Write(changes.substr(i, 1) + ".png", FilledPicture(100 + i * 100, 8, kBlue));
        ASSERT_TRUE(Prints(4 + i));
    }
    EXPECT_EQ(FilesOf(Text("output")), "abc" + changes);
}

TEST_F(WatchTest, AChangeDuringARunIsNotMissed) {
    Start("open a.png info compress small export-size 512 export big.png");
    for (int run = 1; run < 4; ++run) {
        ASSERT_TRUE(Prints(run));
        Write("a.png", FilledPicture(8, 8, kBlue + 9000 * run));
    }
    ASSERT_TRUE(Prints(4));
    const graphics::Argb color = kBlue + 9000 * 3;
    EXPECT_TRUE(
        Comes([&] { return Exists("big.png") && Picture("big.png").GetPixel(250, 250) == color; }));
}

TEST_F(WatchTest, FoldersAndLinksOnTheWayMayChange) {
    for (const char* name : {"one", "two", "real"})
        fs::create_directory(folder / name);
    Write("one/a.png", FilledPicture(10, 10, kBlue));
    Write("real/a.png", FilledPicture(20, 10, kBlue));
    fs::create_symlink("../real/a.png", folder / "two/a.png");
    Start("open now/in/a.png export out.bmp info");
    ASSERT_TRUE(Tells("open now/in/a.png: No such file or directory", 1));
    fs::create_directory(folder / "now");
    fs::create_directory_symlink("../one", folder / "now/in");
    ASSERT_TRUE(Prints(1));
    fs::create_directory_symlink("../two", folder / "now/new");
    fs::rename(folder / "now/new", folder / "now/in");
    ASSERT_TRUE(Prints(2));
    EXPECT_EQ(Picture("out.bmp").Width(), 20);
    Write("real/a.png", FilledPicture(30, 10, kBlue));
    ASSERT_TRUE(Prints(3));
    fs::rename(folder / "two", folder / "three");
    ASSERT_TRUE(Tells("open now/in/a.png: No such file or directory", 2));
    fs::rename(folder / "three", folder / "two");
    ASSERT_TRUE(Prints(4));
    EXPECT_EQ(Picture("out.bmp").Width(), 30);
}

// Events stand in the queue as soon as the change is done.
TEST(FileWatchTest, WhateverLeadsToAFileIsSeenAndNothingElse) {
    const testing::TemporaryFolder folder;
    const auto at = [&](const char* name) { return folder / name; };
    const auto write = [&](const char* name) { std::ofstream(at(name)) << "text"; };
    fs::create_directories(at("real/folder"));
    write("real/folder/far");
    write("near");
    fs::create_symlink("../real/folder/far", at("real/link"));
    fs::create_directory_symlink("real", at("way"));
    const fs::path files[] = {at("near"), at("way/link"), at("none/yet")};

    FileWatch watch;
    const std::pair<std::function<void()>, bool> changes[] = {
        {[&] { write("near"); }, true},
        {[&] { write("other"); }, false},
        {[&] { fs::rename(at("other"), at("near")); }, true},
        {[&] { fs::last_write_time(at("near"), {}); }, true},
        {[&] { std::ifstream(at("near")).get(); }, false},
        {[&] { write("real/folder/far"); }, true},
        {[&] { write("real/far"); }, false},
        {[&] { fs::remove(at("real/link")); }, true},
        {[&] { fs::create_symlink("../near", at("real/link")); }, true},
        {[&] { write("real/folder/far"); }, false},
        {[&] { fs::rename(at("real"), at("real2")); }, true},
        {[&] { fs::create_directory(at("none")); }, true},
        {[&] { write("none/yet"); }, true},
        {[&] { fs::remove_all(at("none")); }, true},
    };
    int number = 0;
    for (const auto& [change, isSeen] : changes) {
        watch.Watch(files);
        while (watch.Wait(0ms)) {
        }
        change();
        EXPECT_EQ(watch.Wait(0ms), isSeen) << number;
        ++number;
    }
}

TEST_F(WatchTest, WhatCantBeReadAgainIsWrongUsage) {
    const std::pair<const char*, const char*> cases[] = {
        {"open - export x.ico", "--watch: standard input can't be read again"},
        {"--each a.png -- import - export x.ico", "--watch: standard input can't be read again"},
        {"--script -", "--watch: the script - can't be read again"},
        {"--script /dev/null", "--watch: the script /dev/null can't be read again"},
        {"--script none.txt", "none.txt: No such file or directory"},
        {"new 8 8 export x.ico", "--watch: no verb reads a file"},
        {"open a.png flip", "flip: DIRECTION is missing"},
    };
    for (const auto& [words, message] : cases)
        EXPECT_EQ(Run(std::string("--watch ") + words), WrongUsage(message)) << words;
    EXPECT_FALSE(Exists("x.ico"));
    // Nobody reads what is printed.
    EXPECT_EQ(Shell("\"$cli\" --watch open a.png info >/dev/full"),
              Failed("info: standard output: No space left on device"));
}

}  // namespace
}  // namespace orbelle::cli
