// The program runs beside the test, which waits for what it does.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <optional>
#include <thread>

#include "program_fixture.h"

namespace orbelle::cli {

class WatchTest : public ProgramTest {
protected:
    static constexpr graphics::Argb kBlue = 0xFF204060;

    WatchTest() {
        for (const char* name : {"a.png", "b.png"})
            Write(name, testing::FilledPicture(8, 8, kBlue));
        Write("input", std::vector<std::uint8_t>{});
    }
    // By itself it never ends.
    ~WatchTest() override { EXPECT_TRUE(!program_ || program_->Interrupt()); }

    void Start(const std::string& words) { program_.emplace(Call("--watch " + words)); }

    static bool Comes(const std::function<bool()>& condition) {
        using namespace std::chrono_literals;
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

    // The first letter of the file of each line of --json.
    std::string FilesTold() const {
        const std::string output = Text("output");
        std::string files;
        for (std::size_t at = 0; (at = output.find(R"({"file":")", at)) != std::string::npos; ++at)
            files += output[at + 9];
        return files;
    }

    // Where "a.png" or "b.png" is the same file as there: each change is told once.
    void ChangeWhatIsWrittenInto(const std::string& name) {
        Start("--each a.png b.png --json -- open {} flip vertical export " + name + "/{name}");
        ASSERT_TRUE(Prints(2));
        const std::string changes = "abab";
        for (int i = 0; i < 4; ++i) {
            Write(changes.substr(i, 1) + ".png", testing::FilledPicture(100 + i * 100, 8, kBlue));
            ASSERT_TRUE(Prints(3 + i));
        }
        EXPECT_EQ(FilesTold(), "ab" + changes);
    }

private:
    std::optional<testing::RunningProgram> program_;
};

}  // namespace orbelle::cli
