#include "formats/file_preview.h"

#include <gtest/gtest.h>

#include "document/layer_slots.h"
#include "formats/export_icon.h"
#include "formats/volf_store.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::formats {
namespace {

constexpr graphics::Argb kBlue = 0xFF3060C0, kRed = 0xFFC02040;

class FilePreviewTest : public ::testing::Test {
protected:
    std::filesystem::path Document(int width, int height) {
        document::Document document;
        document.Master = document::MakePicturePage(testing::FilledPicture(20, 10, kRed));
        document.Master.Width = width;
        document.Master.Height = height;
        document.Background = kBlue;
        SaveDocument(folder / "a.volf", document);
        return folder / "a.volf";
    }

    testing::TemporaryFolder folder;
};

TEST_F(FilePreviewTest, ShowsWhatWouldOpen) {
    const graphics::Bitmap page = PreviewOfFile(Document(20, 40), 20);
    EXPECT_EQ(page.Width(), 10);
    EXPECT_EQ(page.Height(), 20);
    EXPECT_EQ(page.Row(2)[5], kRed);
    EXPECT_EQ(page.Row(15)[5], kBlue) << "the page's background";

    ExportIcon(folder / "a.ico", IconKind::Windows,
               FlatFamily{.Master = testing::FilledPicture(64, 64, kRed)});
    EXPECT_EQ(PreviewOfFile(folder / "a.ico", 128).Width(), 64) << "its largest";
    graphics::WriteFile(folder / "a.png", EncodePng(testing::FilledPicture(7, 3, kRed)));
    EXPECT_EQ(PreviewOfFile(folder / "a.png", 64).Width(), 7) << "never enlarged";
}

TEST_F(FilePreviewTest, GivesUpOnWhatIsLargeOrDamaged) {
    EXPECT_THROW(PreviewOfFile(folder / "none", 64), Error);
    const auto document = Document(4097, 4096);
    EXPECT_THROW(PreviewOfFile(document, 64), Error) << "pixels";
    Document(20, 20);
    EXPECT_EQ(PreviewOfFile(document, 64).Width(), 20);
    std::filesystem::resize_file(document, std::filesystem::file_size(document) - 30);
    EXPECT_THROW(PreviewOfFile(document, 64), Error);
    graphics::WriteFile(folder / "a.png", EncodePng(testing::FilledPicture(7, 3, kRed)));
    std::filesystem::resize_file(folder / "a.png", kMaxPreviewBytes + 1);
    EXPECT_THROW(PreviewOfFile(folder / "a.png", 64), Error) << "bytes";
}

}  // namespace
}  // namespace orbelle::formats
