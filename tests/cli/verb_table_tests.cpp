#include "cli/verb_table.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

#include "cli/script.h"

namespace orbelle::cli {
namespace {

using ::testing::ElementsAre;
using ::testing::ThrowsMessage;

using TextList = std::vector<std::string>;

TextList CallsOf(const std::string& line) {
    TextList lines;
    for (const Call& call : ParseCalls(SplitLine(line)))
        lines.push_back(JoinWords(call.Words));
    return lines;
}

TEST(ParseCallsTest, EachVerbTakesItsArguments) {
    EXPECT_THAT(
        CallsOf("new 0064 48 background none background #1020fF opacity 10 20 undo "
                "icon-sizes 1 256 zoom 0.5 zoom 20 style crystal export a.JPG"),
        ElementsAre("new 0064 48", "background none", "background #1020fF", "opacity 10 20", "undo",
                    "icon-sizes 1 256", "zoom 0.5", "zoom 20", "style crystal", "export a.JPG"));
    EXPECT_THAT(CallsOf("export-set undo web ios web undo icon-sizes table icon-sizes 16 "
                        "export-size page export-size 16 undo"),
                ElementsAre("export-set undo web ios web", "undo", "icon-sizes table",
                            "icon-sizes 16", "export-size page", "export-size 16", "undo"));
    EXPECT_THAT(CallsOf("combine o.ico undo a.png ./undo combine p.ico 1"),
                ElementsAre("combine o.ico undo a.png ./undo", "combine p.ico 1"));
}

TEST(ParseCallsTest, WrongArgumentsAreRefused) {
    const struct {
        const char* Verb;
        TextList Words;
        const char* Reason;
    } cases[] = {
        {"icon-sizes",
         {"", "-", "+5", "5.0", "0x10", "5 ", " 5", "1e2", "five"},
         "N must be a whole number"},
        {"icon-sizes", {"0", "-5", "257", "99999999999999999999"}, "N must be from 1 to 256"},
        {"select", {"-1"}, "N must be 0 or more"},
        {"opacity", {"-5", "101"}, "V must be from 0 to 100"},
        {"brush-size", {"0", "101"}, "N must be from 1 to 100"},
        {"line-width", {"0", "256"}, "N must be from 1 to 255"},
        {"gif-threshold", {"-1", "201"}, "T must be from 0 to 200"},
        {"zoom",
         {"0", "-1", "20.01", "nan", "inf", "1e1", "1x", "", "."},
         "Z must be a number from 0.2 to 20"},
        {"foreground",
         {"", "#", "123456", "#12345", "#1234567", "#123456789", "#12345g", "#-12345", "#+12345",
          "#12 456"},
         "COLOUR must be a colour: #RRGGBB or #AARRGGBB"},
        {"export",
         {"png", "a.tga"},
         "PATH must end in .ico, .cur, .icns, .png, .gif, .jpg, .jpeg or .bmp"},
        {"export-size", {"0", "1025"}, "N must be from 1 to 1024"},
        {"compress", {"best"}, "HOW must be fast or small"},
        {"icon-format", {"gif"}, "FORMAT must be bmp or png256 or png"},
        {"order", {"top"}, "ORDER must be front or back or forward or backward"},
        {"key", {"enter", ""}, "KEY must be left or right or up or down or delete"},
    };
    for (const auto& [verb, words, reason] : cases) {
        for (const std::string& word : words) {
            const TextList line{verb, word};
            EXPECT_THAT([&] { ParseCalls(line); },
                        ThrowsMessage<UsageError>(JoinWords(line) + ": " + reason));
        }
    }
}

TEST(ParseCallsTest, WrongUsageNamesTheVerbAndTheWord) {
    const std::pair<std::string, const char*> cases[] = {
        {"Undo", "Undo: unknown verb; did you mean undo?"},
        {"exprot a.png", "exprot: unknown verb; did you mean export?"},
        {"background-color", "background-color: unknown verb; did you mean background-colour?"},
        {"frobnicate", "frobnicate: unknown verb"},
        {"undo 2", "2: unknown verb"},
        {"opacity 5 -x", "-x: unknown verb"},
        {"new 64", "new 64: H is missing"},
        {"new 64 x undo", "new 64 x: H must be a whole number"},
        {"opacity info", "opacity info: V must be a whole number"},
        {"opacity 1 2.5", "opacity 1 2.5: V must be a whole number"},
        {"opacity 50 101", "opacity 50 101: V must be from 0 to 100"},
        {"combine o.ico", "combine o.ico: PNG is missing"},
        {"combine o.ico 1 2 3 4 5 6 7 8",
         "combine o.ico 1 2 3 4 5 6 7 8: more than seven PNG files"},
        {"write-layer a.png 0", "write-layer a.png: N must be a whole number"},
        {"drag 1 1", "drag 1 1: X is missing"},
        {"drag 1 1 2 2 3 undo", "drag 1 1 2 2 3 undo: Y must be a whole number"},
    };
    for (const auto& usage : cases)
        EXPECT_THAT([&] { CallsOf(usage.first); }, ThrowsMessage<UsageError>(usage.second));
    std::string sizes = "icon-sizes";
    for (int i = 0; i < 256; ++i)
        sizes += " 16";
    EXPECT_THAT(CallsOf(sizes), ElementsAre(sizes));
    EXPECT_THAT([&] { CallsOf(sizes + " 16"); },
                ThrowsMessage<UsageError>(sizes + ": more than 256 numbers"));
}

// As the first argument, or as one after a number.
bool IsTaken(const std::string& verb, const std::string& value) {
    for (const TextList& line : {TextList{verb, value}, {verb, "9", value}}) {
        try {
            if (ParseCalls(line).size() == 1)
                return true;
        } catch (const UsageError&) {
            continue;
        }
    }
    return false;
}

TEST(VerbTableTest, ExamplesAndValuesAreTaken) {
    for (const Verb* verb : AllVerbs()) {
        std::string line(verb->Example);
        std::ranges::replace(line, '\'', '"');
        TextList calls;
        EXPECT_NO_THROW(calls = CallsOf(line)) << line;
        EXPECT_TRUE(std::ranges::any_of(calls, [&](const std::string& call) {
            return (call + ' ').starts_with(std::string(verb->Name) + ' ');
        })) << line;
        std::istringstream values{std::string(verb->Values)};
        for (std::string value; values >> value;)
            EXPECT_TRUE(IsTaken(std::string(verb->Name), value)) << verb->Name << ' ' << value;
    }
}

TEST(RunCallsTest, WhateverAVerbThrowsBecomesItsFailure) {
    std::ostringstream output;
    Workspace workspace(output);
    bool ranOn = false;
    const std::vector<Call> calls{{{"open", "a b"}, [](Workspace&) { throw std::bad_alloc(); }},
                                  {{"undo"}, [&](Workspace&) { ranOn = true; }}};
    EXPECT_THAT([&] { RunCalls(calls, workspace); },
                ThrowsMessage<Failure>("open \"a b\": there is not enough memory"));
    EXPECT_FALSE(ranOn);
}

}  // namespace
}  // namespace orbelle::cli
