#include "formats/journal_file.h"
#include "program_fixture.h"

namespace orbelle::cli {
namespace {

using ::testing::HasSubstr;

TEST_F(ProgramTest, RecoverListsAndSavesWhatWasLeftBehind) {
    EXPECT_EQ(Run("--recover"), kSuccess);
    const auto keep = [&](int width, std::int64_t time) {
        formats::JournalFile journal(folder / "state" / "orbelle" / "journals");
        document::Document document;
        document.Master.Width = width;
        document.Master.Height = 9;
        document::IconLayer& layer = document.Master.Layers.emplace_back();
        layer.Image = testing::FilledPicture(3, 2, 0xFF204060);
        document::PlaceAt(layer, {1, 1, 3, 2});
        document.Path = "/there/" + std::to_string(width) + ".volf";
        journal.Keep(document, time);
    };
    keep(7, 1'000);
    keep(8, 86'400'000);
    const std::string list =
        R"({"number":0,"path":"/there/8.volf","time":"1970-01-02T00:00:00Z","layers":1,"page":[8,9]})"
        "\n"
        R"({"number":1,"path":"/there/7.volf","time":"1970-01-01T00:00:01Z","layers":1,"page":[7,9]})"
        "\n";
    EXPECT_EQ(Run("--recover list"), (Outcome{0, list, ""}));
    EXPECT_EQ(Run("--recover 1 saved.volf"), kSuccess);
    EXPECT_THAT(Run("open saved.volf info").Output, HasSubstr(R"("width":7,"height":9)"));
    EXPECT_EQ(Run("--recover"), (Outcome{0, list, ""}));
    EXPECT_EQ(Run("--recover 2 x.volf"), Failed("--recover 2: there are 2 documents to recover"));
    EXPECT_EQ(Run("--recover soon x.volf"), WrongUsage("--recover: N must be a whole number"));
    EXPECT_FALSE(Exists("x.volf"));
    std::filesystem::create_directory(folder / "state" / "orbelle" / "saves");
    Write("state/orbelle/saves/7-a.png", {1, 2, 3});
    EXPECT_THAT(Run("--recover").Output, HasSubstr(R"(7-a.png","bytes":3})"));
}

}  // namespace
}  // namespace orbelle::cli
