#include "cli/depfile.h"

#include "program_fixture.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;

constexpr graphics::Argb kBlue = 0xFF204060;

// As they were found to be read by GNU make 4.3 and ninja 1.11.
TEST(NameForDepfileTest, WhatMeansSomethingToMakeOrNinjaIsEscaped) {
    const std::pair<const char*, const char*> names[] = {
        {"a b", R"(a\ b)"},          {"a#b", R"(a\#b)"},   {"a$b$", "a$$b$$"},
        {"a:b", R"(a\:b)"},          {R"(a\b)", R"(a\b)"}, {R"(a\ b)", R"(a\\\ b)"},
        {"é(1)@{,}+!", "é(1)@{,}+!"}};
    for (const auto& [name, text] : names)
        EXPECT_EQ(NameForDepfile(name, true), text);
    EXPECT_EQ(NameForDepfile("a%b", false), "a%b");
    for (const char* name :
         {"a\nb", "a\tb", "a%b", "a=b", "a'b", "a\"b", "a;b", "a|b", "a*b", "a[b]", "~a", "a(b)",
          "a ", "a:", R"(a\)", R"(a\#b)", R"(a\:b)", R"(a\$b)", "\x7F"})
        EXPECT_THROW(NameForDepfile(name, true), UsageError) << name;
}

class DepfileTest : public ProgramTest {
protected:
    DepfileTest() {
        for (const char* name : {"a.png", "b.png", "badge.png"})
            Write(name, FilledPicture(32, 32, kBlue));
        Write("bad.png", std::vector<std::uint8_t>{1, 2, 3});
    }
};

TEST_F(DepfileTest, EachOutputHasWhatItWasMadeOf) {
    EXPECT_EQ(Run("--depfile x.d open a.png import badge.png import a.png save a.volf open a.volf "
                  "export-size 16 export a.gif"),
              kSuccess);
    EXPECT_EQ(Text("x.d"), "a.volf: a.png badge.png\na.gif: a.png badge.png\n");

    const std::string script = "open {}\nimport badge.png\nexport-set out/{stem} web windows\n";
    Write("icon.txt", {script.begin(), script.end()});
    EXPECT_EQ(Run("--each a.png b.png --depfile x.d --jobs 2 -- --script icon.txt"), kSuccess);
    std::string lines;
    for (const std::string stem : {"a", "b"}) {
        for (const std::string name :
             {"web/favicon.ico", "web/apple-touch-icon.png", "web/icon-192.png", "web/icon-512.png",
              "web/icon-maskable-512.png", "web/site.webmanifest", "web/head.html"})
            lines += "out/" + stem + "/" + name + ": " + stem + ".png badge.png icon.txt\n";
        lines += "out/" + stem + "/windows/" + stem + ".ico: " + stem + ".png badge.png icon.txt\n";
    }
    EXPECT_EQ(Text("x.d"), lines);

    // A page too small for an icon: nothing is written. A file that is read and written.
    EXPECT_EQ(Run("--depfile=x.d --script -",
                  "new 8 8\nexport a.ico\nopen a.png\nstyle hot\nexport a.png\n"),
              kSuccess);
    EXPECT_EQ(Text("x.d"), "a.png:\n");
}

TEST_F(DepfileTest, AFailureLeavesTheOldOne) {
    Write("x.d", {'o', 'l', 'd'});
    EXPECT_EQ(Run("--depfile x.d open a.png export a.ico select 9").Status, 1);
    EXPECT_EQ(
        Run("--each a.png bad.png --keep-going --depfile x.d -- open {} export {stem}.ico").Status,
        1);
    EXPECT_EQ(Text("x.d"), "old");
    EXPECT_EQ(Run("--depfile no/x.d open a.png export c.ico"),
              Failed("--depfile no/x.d: No such file or directory"));
}

TEST_F(DepfileTest, WhatItCantTellIsWrongUsage) {
    const std::pair<const char*, const char*> cases[] = {
        {"--depfile out.ico open a.png export ./out.ico",
         "a verb and --depfile would both write out.ico"},
        {"--depfile a.png open a.png export out.ico",
         "a verb would read a.png, which --depfile writes"},
        {"--each a.png b.png --depfile b.gif -- open {} export {stem}.gif",
         "b.png and --depfile would both write b.gif"},
        {"--depfile - open a.png export out.ico", "--depfile needs the name of a file"},
        {"--depfile x.d open a.png export png:-", "--depfile: no verb writes a file"},
        {"--depfile x.d open a.png export a=b.ico",
         "a=b.ico: make and ninja don't both read such a name"},
    };
    for (const auto& [words, message] : cases)
        EXPECT_EQ(Run(words), WrongUsage(message)) << words;
    EXPECT_FALSE(Exists("out.ico") || Exists("x.d") || Exists("a=b.ico"));
}

}  // namespace
}  // namespace orbelle::cli
