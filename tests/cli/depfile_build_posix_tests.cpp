// What other programs read out of our dependency files.
#include "shell_fixture.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;

constexpr graphics::Argb kBlue = 0xFF204060;

// Files of all names that can be told.
class BuildTest : public ShellTest {
protected:
    BuildTest() {
        for (const char* name : {"a b.png", "c#d.png", "$e$(f).png", "g:h.png", R"(i\j.png)",
                                 R"(k\ l.png)", "ü(1).png", "m%n"})
            Write(name, FilledPicture(32, 32, kBlue));
        const std::string script = "open {}\nimport m%n\nexport \"out/{stem}.ico\"\n";
        Write("my script", {script.begin(), script.end()});
        EXPECT_EQ(
            Shell(
                "mkdir out; LC_ALL=C; \"$cli\" --each *.png --depfile x.d -- --script 'my script'"),
            kSuccess);
    }
};

TEST_F(BuildTest, MakeMakesWhatIsOld) {
    if (Shell("command -v make").Status != 0)
        GTEST_SKIP() << "there is no make";
    const std::string rules = "all:\n%::\n\t@exit 9\ninclude x.d\n";
    Write("Makefile", {rules.begin(), rules.end()});
    // Each input in turn is newer than all outputs.
    const Outcome stale = Shell(R"(export LC_ALL=C
        touch -d @1000 *.png m%n 'my script' x.d Makefile; touch -d @2000 out/*
        for input in *.png m%n 'my script'; do
            touch -d @3000 "$input"
            for output in out/*; do
                make -rRq "$output" || case $input in
                    *.png) printf '%s>%s\n' "$input" "$output" ;;
                    *) printf . ;;
                esac
            done
            touch -d @1000 "$input"
        done)");
    EXPECT_EQ(stale, (Outcome{0,
                              "$e$(f).png>out/$e$(f).ico\na b.png>out/a b.ico\n"
                              "c#d.png>out/c#d.ico\ng:h.png>out/g:h.ico\n"
                              "i\\j.png>out/i\\j.ico\nk\\ l.png>out/k\\ l.ico\n"
                              "ü(1).png>out/ü(1).ico\n..............",
                              ""}));
}

TEST_F(BuildTest, NinjaKnowsTheInputs) {
    if (Shell("command -v ninja").Status != 0)
        GTEST_SKIP() << "there is no ninja";
    const std::string rules =
        "rule icons\n  command = touch stamp\n  depfile = x.d\n  deps = gcc\nbuild stamp: icons\n";
    Write("build.ninja", {rules.begin(), rules.end()});
    EXPECT_EQ(Shell("ninja --quiet && ninja -t deps stamp | sed -n 's/^    //p'"),
              (Outcome{0,
                       "$e$(f).png\nm%n\nmy script\na b.png\nc#d.png\ng:h.png\ni\\j.png\n"
                       "k\\ l.png\nü(1).png\n",
                       ""}));
}

}  // namespace
}  // namespace orbelle::cli
