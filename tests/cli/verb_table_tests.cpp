#include "cli/verb_table.h"

#include <gmock/gmock.h>

#include <sstream>

namespace orbelle::cli {
namespace {

using ::testing::ElementsAre;

using TextList = std::vector<std::string>;

TextList CallsOf(const TextList& words) {
    TextList lines;
    for (const Call& call : ParseCalls(words))
        lines.push_back(JoinWords(call.Words));
    return lines;
}

TEST(ParseCallsTest, EachVerbTakesItsArguments) {
    EXPECT_THAT(
        CallsOf({"new",     "64",    "48",      "background", "none",  "background", "#102030",
                 "opacity", "10",    "20",      "icon-sizes", "16",    "32",         "zoom",
                 "0.5",     "style", "crystal", "export",     "a.JPG", "undo"}),
        ElementsAre("new 64 48", "background none", "background #102030", "opacity 10 20",
                    "icon-sizes 16 32", "zoom 0.5", "style crystal", "export a.JPG", "undo"));
}

TEST(ParseCallsTest, CombineTakesFilesUpToTheNextVerb) {
    EXPECT_THAT(CallsOf({"combine", "o.ico", "undo", "a.png", "./undo", "combine", "p.ico", "1"}),
                ElementsAre("combine o.ico undo a.png ./undo", "combine p.ico 1"));
}

TEST(ParseCallsTest, WrongUsageNamesTheVerbAndTheWord) {
    const struct {
        TextList Words;
        const char* Message;
    } cases[] = {
        {{"frobnicate"}, "frobnicate: unknown verb"},
        {{"Undo"}, "Undo: unknown verb"},
        {{"undo", "2"}, "2: unknown verb"},
        {{"new", "64"}, "new 64: H is missing"},
        {{"new", "64", "x", "undo"}, "new 64 x: H must be a whole number"},
        {{"select", "-1"}, "select -1: N must be 0 or more"},
        {{"opacity", "50", "101"}, "opacity 50 101: V must be from 0 to 100"},
        {{"icon-sizes", "0"}, "icon-sizes 0: N must be from 1 to 256"},
        {{"icon-format", "gif"}, "icon-format gif: FORMAT must be bmp or png256 or png"},
        {{"style", "Vista"},
         "style Vista: NAME must be disabled or hot or fresh or ios or origami-vertical or "
         "origami-horizontal or mac or vista or crystal or blur or sharpen or irradiation or shade "
         "or reflection or shadow"},
        {{"hue", "50", "101"}, "hue 50 101: V must be from 0 to 100"},
        {{"foreground", "red"}, "foreground red: COLOUR must be a colour: #RRGGBB or #AARRGGBB"},
        {{"export", "a.tga"},
         "export a.tga: PATH must end in .ico, .png, .gif, .jpg, .jpeg or .bmp"},
        {{"export", "png"}, "export png: PATH must end in .ico, .png, .gif, .jpg, .jpeg or .bmp"},
        {{"combine", "o.ico"}, "combine o.ico: PNG is missing"},
        {{"combine", "o.ico", "1", "2", "3", "4", "5", "6", "7", "8"},
         "combine o.ico 1 2 3 4 5 6 7 8: more than seven PNG files"},
        {{"write-layer", "a.png", "0"}, "write-layer a.png: N must be a whole number"},
        {{"icon-entry", "-1"}, "icon-entry -1: K must be 0 or more"},
        {{"order", "top"}, "order top: ORDER must be front or back or forward or backward"},
        {{"rotate"}, "rotate: DIRECTION is missing"},
        {{"drag", "1", "1"}, "drag 1 1: X is missing"},
        {{"drag", "1", "1", "2", "2", "3", "undo"},
         "drag 1 1 2 2 3 undo: Y must be a whole number"},
        {{"brush-size", "101"}, "brush-size 101: N must be from 1 to 100"},
        {{"line-width", "0"}, "line-width 0: N must be from 1 to 255"},
        {{"gif-threshold", "201"}, "gif-threshold 201: T must be from 0 to 200"},
        {{"key", "enter"}, "key enter: KEY must be left or right or up or down or delete"},
    };
    for (const auto& [words, message] : cases) {
        try {
            ParseCalls(words);
            ADD_FAILURE() << JoinWords(words) << " was taken";
        } catch (const UsageError& error) {
            EXPECT_STREQ(error.what(), message);
        }
    }
}

TEST(RunCallsTest, WhateverAVerbThrowsBecomesItsFailure) {
    std::ostringstream output;
    Workspace workspace(output);
    bool ranOn = false;
    const std::vector<Call> calls{{{"open", "a b"}, [](Workspace&) { throw std::bad_alloc(); }},
                                  {{"undo"}, [&](Workspace&) { ranOn = true; }}};
    try {
        RunCalls(calls, workspace);
        ADD_FAILURE();
    } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(), "open \"a b\": there is not enough memory");
    }
    EXPECT_FALSE(ranOn);
}

}  // namespace
}  // namespace orbelle::cli
