// Our files read by programs of others, as far as they are installed.
#include <algorithm>

#include "shell_fixture.h"

namespace orbelle::cli {
namespace {

using ::testing::HasSubstr;

class RefereeTest : public ShellTest {
protected:
    bool IsThere(const std::string& program) { return Shell("command -v " + program).Status == 0; }
    void ExportSets(const std::string& sets) {
        Write("my icon.png", testing::FilledPicture(64, 64, 0xFF204060));
        ASSERT_EQ(
            Run("open 'my icon.png' style crystal background '#80FF0000' export-set out " + sets),
            kSuccess);
    }
};

TEST_F(RefereeTest, Icns) {
    if (!IsThere("icns2png"))
        GTEST_SKIP() << "icns2png is not installed";
    ExportSets("macos linux");
    const Outcome listed = Shell("icns2png -l 'out/macos/my icon.icns' 2>&1");
    for (const char* type :
         {"TOC ", "icp4", "ic11", "icp5", "ic12", "ic07", "ic13", "ic08", "ic14", "ic09", "ic10"})
        EXPECT_THAT(listed.Output, HasSubstr(std::string("'") + type + "'"));
    EXPECT_THAT(listed.Output, HasSubstr("11 elements total"));
    // It decodes the large ones.
    EXPECT_EQ(Shell("icns2png -x 'out/macos/my icon.icns' >/dev/null 2>&1").Status, 0);
    EXPECT_EQ(Run("open 'my icon.png' style crystal export-size 512 export 512.png"), kSuccess);
    EXPECT_TRUE(testing::SamePixels(Picture("my icon_512x512x32.png"), Picture("512.png")));
}

TEST_F(RefereeTest, IconsAndPointers) {
    if (!IsThere("icotool"))
        GTEST_SKIP() << "icotool is not installed";
    ExportSets("windows web");
    const Outcome listed = Shell("icotool -l 'out/windows/my icon.ico'");
    EXPECT_EQ(std::ranges::count(listed.Output, '\n'), 14);
    EXPECT_THAT(listed.Output, HasSubstr("--width=30 --height=30 --bit-depth=32"));
    EXPECT_THAT(Shell("icotool -l out/web/favicon.ico").Output, HasSubstr("--index=3 --width=48"));
    EXPECT_EQ(Run("open 'my icon.png' hotspot 40 17 icon-sizes 32 export a.cur"), kSuccess);
    EXPECT_THAT(Shell("icotool -l a.cur").Output,
                HasSubstr("--cursor --index=1 --width=32 --height=32 --bit-depth=32 "
                          "--palette-size=0 --hotspot-x=20 --hotspot-y=8"));
}

TEST_F(RefereeTest, TextsOfSets) {
    if (!IsThere("python3"))
        GTEST_SKIP() << "python3 is not installed";
    ExportSets("web android ios");
    const std::string script = R"(
import json, xml.etree.ElementTree as xml, html.parser, os
manifest = json.load(open("out/web/site.webmanifest"))
print(manifest["name"], *[i["src"] + i["sizes"] for i in manifest["icons"]
                          if os.path.exists("out/web/" + i["src"])])
images = json.load(open("out/ios/AppIcon.appiconset/Contents.json"))["images"]
print(*[i["filename"] + i["size"] + i["idiom"] for i in images])
space = "{http://schemas.android.com/apk/res/android}drawable"
print(*[e.tag + e.get(space) for e in xml.parse("out/android/mipmap-anydpi-v26/ic_launcher.xml").getroot()])
color = xml.parse("out/android/values/ic_launcher_background.xml").getroot()[0]
print(color.get("name"), color.text)
class Links(html.parser.HTMLParser):
    def handle_starttag(self, tag, attributes):
        print(tag, os.path.exists("out/web" + dict(attributes)["href"]))
Links().feed(open("out/web/head.html").read())
)";
    Write("check.py", {script.begin(), script.end()});
    EXPECT_EQ(Shell("python3 check.py").Output,
              "my icon icon-192.png192x192 icon-512.png512x512 icon-maskable-512.png512x512\n"
              "icon-1024.png1024x1024universal\n"
              "background@color/ic_launcher_background foreground@mipmap/ic_launcher_foreground\n"
              "ic_launcher_background #FF7F7F\n"
              "link True\nlink True\nlink True\nlink True\nlink True\n");
    EXPECT_EQ(Bytes("out/ios/AppIcon.appiconset/icon-1024.png")[25], 2);  // colours without alpha
}

}  // namespace
}  // namespace orbelle::cli
