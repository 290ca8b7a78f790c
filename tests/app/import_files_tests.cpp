#include "app/import_files.h"

#include <gmock/gmock.h>

#include "app/take_file.h"
#include "desk.h"
#include "editing/document_commands.h"
#include "editing/layer_commands.h"
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

TEST(ImportFilesTest, OneAnswerIsForAllFilesOfARun) {
    const orbelle::testing::TemporaryFolder folder;
    const fs::path wide = folder / "wide.png", small = folder / "small.png",
                   drawing = folder / "drawing.svg";
    graphics::WriteFile(wide, graphics::EncodePng(FilledPicture(32, 16, 0xFFC02040)));
    graphics::WriteFile(small, graphics::EncodePng(FilledPicture(8, 8, 0xFFC02040)));
    const std::string_view svg = "<svg xmlns='http://www.w3.org/2000/svg' width='48' height='24'/>";
    graphics::WriteFile(drawing, {reinterpret_cast<const std::uint8_t*>(svg.data()), svg.size()});
    const std::vector<fs::path> files{small, wide, drawing, drawing, wide};
    const struct {
        const char* Name;
        std::optional<int> Side;
        std::optional<bool> Fits;
        std::vector<int> Widths;  // of the layers
        const char* Told;
    } cases[] = {
        {"fitted", 30, true, {8, 8, 8, 8, 8}, "fit? drawn?"},
        {"as large as they are", 30, false, {8, 32, 30, 30, 32}, "fit? drawn?"},
        {"cancelled", 30, std::nullopt, {8}, "fit? message"},
        {"no size", std::nullopt, true, {8, 8}, "fit? drawn? message"},
    };
    for (const auto& [name, side, fits, widths, told] : cases) {
        SCOPED_TRACE(name);
        Desk desk;
        desk.SvgSide = side;
        desk.Fits = fits;
        ImportFiles(desk.Context, files);
        std::vector<int> found;
        for (const document::IconLayer& layer : desk.State.Page().Layers)
            found.push_back(layer.ImageWidth);
        EXPECT_EQ(found, widths);
        EXPECT_EQ(desk.AllTold(), told);
        EXPECT_EQ(desk.LargeSize.Width, 32);
    }
    Desk opened;
    opened.SvgSide = 16;
    OpenFiles(opened.Context, {drawing});
    EXPECT_EQ(opened.OwnSize.Height, 24);
    EXPECT_EQ(opened.State.Page().Height, 8);
}

TEST(TakePastedTest, APictureLargerThanThePageIsAskedAbout) {
    const struct {
        const char* Name;
        int Width;
        std::optional<bool> Fits;
        std::vector<graphics::RectF> Places;  // of the layers
        const char* Told;
    } cases[] = {
        {"fitted", 32, true, {{0, 0, 8, 8}, {0, 3, 8, 2}}, "fit?"},
        {"as large as it is", 32, false, {{0, 0, 8, 8}, {0, 0, 32, 8}}, "fit?"},
        {"cancelled", 32, std::nullopt, {{0, 0, 8, 8}}, "fit?"},
        {"no larger", 8, true, {{0, 0, 8, 8}, {0, 0, 8, 8}}, ""},
        {"nothing", 0, true, {{0, 0, 8, 8}}, ""},
    };
    for (const auto& [name, width, fits, places, told] : cases) {
        SCOPED_TRACE(name);
        Desk desk;
        desk.Run([](editing::Editor& editor) { NewDocument(editor, 8, 8); });
        desk.Fits = fits;
        desk.Copied = width ? FilledPicture(width, 8, 0xFFC02040) : graphics::Bitmap();
        EXPECT_EQ(TakePasted(desk.Context).Text, "");
        std::vector<graphics::RectF> found;
        for (const document::IconLayer& layer : desk.State.Page().Layers)
            found.push_back(layer.Rect);
        EXPECT_EQ(found, places);
        EXPECT_EQ(desk.AllTold(), told);
    }
}

// What is given up is asked for, once.
TEST(TakeDroppedTest, OpensWhereThereIsNothingOrItIsWanted) {
    const orbelle::testing::TemporaryFolder folder;
    const auto write = [&](const char* name, int side) {
        graphics::WriteFile(folder / name,
                            graphics::EncodePng(FilledPicture(side, side, 0xFFC02040)));
        return QByteArray::fromStdString((folder / name).string());
    };
    const QByteArray a = write("a.png", 3), b = write("b.png", 2),
                     none = QByteArray::fromStdString((folder / "none.png").string());
    const OfferedPicture picture{FilledPicture(5, 5, 0xFFC02040), {}};
    const OfferedPicture wrong{{}, "the picture can't be read"};
    constexpr auto kCancel = SavePromptAnswer::Cancel, kNo = SavePromptAnswer::No;
    const struct {
        const char* Name;
        Drop Dropped;
        bool HasDocument;
        SavePromptAnswer Answer;
        int Side, Layers, Steps;  // 8, 2 and 1 as it was
        const char* Told;
    } cases[] = {
        {"empty", {{{a, b}, {}}, {}}, false, kCancel, 3, 2, 1, ""},
        {"empty, one missing", {{{none, b, a}, {}}, {}}, false, kCancel, 2, 2, 1, "fit? message"},
        {"empty, a picture", {{}, picture}, false, kCancel, 5, 1, 0, ""},
        {"layers", {{{a, b}, {}}, {}}, true, kCancel, 8, 4, 3, ""},
        {"a picture as layer", {{}, picture}, true, kCancel, 8, 3, 2, ""},
        {"open, refused", {{{a, b}, {}}, {}, true}, true, kCancel, 8, 2, 1, "save?"},
        {"open", {{{a, b}, {}}, {}, true}, true, kNo, 3, 2, 1, "save?"},
        {"open what is missing", {{{none}, {}}, {}, true}, true, kNo, 8, 2, 1, "save? message"},
        {"open a picture", {{}, picture, true}, true, kNo, 5, 1, 0, "save?"},
        {"open a wrong picture", {{}, wrong, true}, true, kNo, 8, 2, 1, "save? message"},
        {"far", {{{}, {"http://a/b"}}, {}}, true, kNo, 8, 2, 1, "message"},
        {"far, but here", {{{}, {"http://a/b"}}, picture}, true, kNo, 8, 3, 2, ""},
        {"far and near", {{{a}, {"http://a/b"}}, {}}, true, kNo, 8, 3, 2, "status"},
    };
    for (const auto& [name, dropped, hasDocument, answer, side, layers, steps, told] : cases) {
        SCOPED_TRACE(name);
        Desk desk;
        desk.SaveAnswer = answer;
        if (hasDocument) {
            desk.Run([](editing::Editor& editor) { NewDocument(editor, 8, 8); });
            desk.Run([](editing::Editor& editor) { AddEmptyLayer(editor, 8, 8); });
        }
        TakeDropped(desk.Context, dropped);
        EXPECT_EQ(desk.State.Page().Width, side);
        EXPECT_EQ(desk.State.Page().LayerCount(), layers);
        EXPECT_EQ(desk.State.History.UndoIndex(), steps);
        EXPECT_EQ(desk.AllTold(), told);
    }
}

}  // namespace
}  // namespace orbelle::app
