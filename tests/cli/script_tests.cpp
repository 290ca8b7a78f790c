#include "cli/script.h"

#include <gmock/gmock.h>

#include <sstream>

namespace orbelle::cli {
namespace {

using ::testing::ElementsAre;

using TextList = std::vector<std::string>;

TEST(SplitLineTest, WordsCommentsAndQuotes) {
    const struct {
        const char* Line;
        TextList Words;
    } cases[] = {
        {" \t\r", {}},
        {"  new\t64  48\r", {"new", "64", "48"}},
        {"#FF8800", {}},
        {"undo # twice", {"undo"}},
        {"undo #twice", {"undo"}},
        {"background #80ff8800 # orange", {"background", "#80ff8800"}},
        {"background #FF880", {"background"}},
        {"background #FF8800,", {"background"}},
        {"open a#b.png", {"open", "a#b.png"}},
        {"open \"a b #c.png\" # d", {"open", "a b #c.png"}},
        {"open folder/\"a b\".png", {"open", "folder/a b.png"}},
        {"open \"\"", {"open", ""}},
    };
    for (const auto& [line, words] : cases)
        EXPECT_EQ(SplitLine(line), words) << line;
}

TextList CallsOf(const std::string& text) {
    std::istringstream script(text);
    TextList lines;
    for (const Call& call : ParseLines(ReadScript(script, "a.txt")))
        lines.push_back(JoinWords(call.Words));
    return lines;
}

TEST(ParseScriptTest, EachLineIsOneVerb) {
    EXPECT_THAT(CallsOf("new 8 8\n\n# comment\r\n  opacity 1 2 # half\nopen \"a b.png\""),
                ElementsAre("new 8 8", "opacity 1 2", "open \"a b.png\""));
    EXPECT_THAT(CallsOf("\xEF\xBB\xBFundo\r\nredo"), ElementsAre("undo", "redo"));

    const std::pair<std::string, const char*> refused[] = {
        {"undo\n\nfrobnicate 5", "a.txt:3: frobnicate: unknown verb"},
        {"undo\nnew 5\n6\n", "a.txt:2: new 5: H is missing"},
        {"new 5 5 undo", "a.txt:1: undo: a second verb on the line"},
        {"open \"a.png\nundo", "a.txt:1: a double quote is not closed"},
        {"open \"\"", "a.txt:1: open \"\": PATH must be the name of a file"},
        {"undo\n\xEF\xBB\xBFundo", "a.txt:2: \xEF\xBB\xBFundo: unknown verb"},
        {{"undo\nredo # \0", 14}, "a.txt:2: a byte of 0; a script is plain text"},
        {{"\xFF\xFEu\0n\0", 6}, "a.txt:1: a byte of 0; a script is plain text"},
        {std::string((16 << 20) + 1, '\n'), "a.txt: longer than 16 MiB"},
    };
    for (const auto& refusal : refused)
        EXPECT_THAT([&] { CallsOf(refusal.first); },
                    ::testing::ThrowsMessage<UsageError>(refusal.second));
}

}  // namespace
}  // namespace orbelle::cli
