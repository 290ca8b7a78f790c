// Shells ask the program's own scripts.
#include "shell_fixture.h"

namespace orbelle::cli {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

class CompletionTest : public ShellTest {
protected:
    CompletionTest() {
        for (const char* name : {"leaf.PNG", "leaf.volf", "leaf.txt", "leaf gear.ico"})
            Write(name, std::vector<std::uint8_t>{});
        std::filesystem::create_directory(folder / "leaves");
    }

    // What bash offers for the last of the words, each between bars.
    std::string Bash(const std::string& words) {
        return Shell(
                   "\"$cli\" --completion bash >c; bash -c 'source ./c; COMP_WORDS=(orbelle-cli " +
                   words +
                   "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _orbelle_cli; "
                   "printf \"|%s\" \"${COMPREPLY[@]}\"; printf \"|\"'")
            .Output;
    }
};

TEST_F(CompletionTest, BashOffersVerbsTheirWordsAndTheirFiles) {
    EXPECT_EQ(Bash("exp"), "|export|export-size|export-set|");
    EXPECT_EQ(Bash("--j"), "|--jobs|--json|");
    EXPECT_EQ(Bash("new 8 8 flip \"\""), "|horizontal|vertical|");
    EXPECT_EQ(Bash("new 8 8 rotate cw fl"), "|flip|");
    EXPECT_EQ(Bash("new 8 fl"), "||");
    EXPECT_THAT(Bash("open le"),
                AllOf(HasSubstr("|leaf.PNG|"), HasSubstr("|leaf.volf|"),
                      HasSubstr("|leaf gear.ico|"), HasSubstr("|leaves|"), Not(HasSubstr("txt"))));
    EXPECT_EQ(Bash("save leaf"), "|leaf.volf|");
    EXPECT_EQ(Bash("export-set out win"), "|windows|");
    EXPECT_EQ(Bash("export-set out windows ma"), "|macos|");
    EXPECT_EQ(Bash("--help eras"), "||");
    EXPECT_EQ(Bash("--help und"), "|undo|");
    EXPECT_EQ(Bash("--each leaf.t"), "|leaf.txt|");
    EXPECT_EQ(Bash("--depfile leaf.t"), "|leaf.txt|");
    EXPECT_THAT(Bash("--each leaf.txt --"), HasSubstr("|--keep-going|"));
    EXPECT_EQ(Bash("--each leaf.txt -- op"), "|open|opacity|");
}

// They are left out where there is no such shell.
TEST_F(CompletionTest, TheOtherShellsTakeTheirScripts) {
    EXPECT_EQ(Shell("\"$cli\" --completion zsh >c; ! command -v zsh >/dev/null || zsh -n c"),
              kSuccess);
    EXPECT_EQ(Shell("\"$cli\" --completion fish >c; ! command -v fish >/dev/null || fish -n c"),
              kSuccess);
    const Outcome offered = Shell(
        "! command -v fish >/dev/null || fish --no-config -c 'source c; "
        "complete -C \"orbelle-cli new 8 8 flip \"'");
    EXPECT_THAT(offered.Output, ::testing::AnyOf("", "horizontal\nvertical\n"));
    EXPECT_EQ(Run("--completion tcsh"), WrongUsage("--completion must be bash or zsh or fish"));
}

}  // namespace
}  // namespace orbelle::cli
