#include "app/import_files.h"

#include <gmock/gmock.h>

#include "desk.h"
#include "formats/icon_file.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

using orbelle::testing::FilledPicture;
using ::testing::ElementsAre;

TEST(ImportFilesTest, OfManyFilesOneSummaryTells) {
    const orbelle::testing::TemporaryFolder folder;
    const fs::path picture = folder / "a.png", none = folder / "none.png";
    graphics::WriteFile(picture, graphics::EncodePng(FilledPicture(3, 3, 0xFFC02040)));
    const std::string notFound = none.string() + ": No such file or directory";
    std::string ten;
    for (int i = 0; i < 10; ++i)
        ten += notFound + '\n';
    const struct {
        const char* Name;
        int Pictures, Missing, Pictures2, AtMost;
        int Layers;
        std::string Told;
    } cases[] = {
        {"all", 3, 0, 0, INT_MAX, 3, ""},
        {"one", 0, 1, 0, INT_MAX, 0, notFound},
        {"some", 2, 2, 2, INT_MAX, 4,
         "2 of 6 files could not be imported:\n" + notFound + '\n' + notFound},
        {"many", 1, 1200, 0, INT_MAX, 1,
         "1,200 of 1,201 files could not be imported:\n" + ten + "and 1,190 more"},
        {"cancelled", 4, 0, 0, 3, 3, "Cancelled: 3 of 4 files were imported."},
        {"cancelled, and one missing", 1, 1, 3, 3, 2,
         "Cancelled: 2 of 5 files were imported.\n1 of 5 files could not be imported:\n" +
             notFound},
    };
    for (const auto& [name, pictures, missing, pictures2, atMost, layers, told] : cases) {
        SCOPED_TRACE(name);
        std::vector<fs::path> files(static_cast<std::size_t>(pictures), picture);
        files.insert(files.end(), static_cast<std::size_t>(missing), none);
        files.insert(files.end(), static_cast<std::size_t>(pictures2), picture);
        Desk desk;
        desk.FilesAtMost = atMost;
        ImportFiles(desk.Context, files);
        EXPECT_EQ(desk.State.Page().LayerCount(), layers);
        EXPECT_EQ(desk.State.History.UndoIndex(), std::max(layers - 1, 0));
        EXPECT_EQ(desk.Message, told);
        EXPECT_EQ(desk.Told.size(), told.empty() ? 0u : 1u);
    }

    Desk full;
    ImportFiles(full.Context, std::vector<fs::path>(1000, picture));
    const int layers = full.State.Page().LayerCount();
    EXPECT_GE(layers, 101);
    EXPECT_THAT(full.Message, ::testing::StartsWith("Stopped: " + std::to_string(layers) +
                                                    " of 1,000 files were imported.\n"));
    EXPECT_EQ(full.Told.size(), 1u);

    // A question that is cancelled ends the run, too.
    graphics::WriteFile(folder / "b.ico",
                        formats::EncodeIcon(std::vector(1, FilledPicture(32, 32, 0xFFC02040)),
                                            formats::IconFormat::Bmp));
    Desk asked;
    ImportFiles(asked.Context, {picture, folder / "b.ico", picture});
    EXPECT_THAT(asked.Told, ElementsAre("image?", "message"));
    EXPECT_EQ(asked.Message, "Cancelled: 1 of 3 files were imported.");
}

}  // namespace
}  // namespace orbelle::app
