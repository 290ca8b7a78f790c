#include "app/export_sets.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "app/icon_sets_dialog.h"
#include "desk.h"
#include "editing/document_commands.h"
#include "editing/export_commands.h"
#include "graphics/file_io.h"
#include "support/temporary_folder.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;
using formats::IconSet;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(AskExportSetsTest, AsksOnceAndTellsWhatWasWrittenAndWhatNot) {
    const testing::TemporaryFolder folder;
    Desk desk;
    desk.Run([](editing::Editor& editor) { NewDocument(editor, 16, 16); });
    AskExportSets(desk.Context);
    EXPECT_EQ(desk.AllTold(), "sets?");
    EXPECT_EQ(desk.Proposed, fs::absolute("icons"));

    desk.Sets = SetChoice{{IconSet::Web, IconSet::Ios}, folder / "out"};
    desk.Told.clear();
    AskExportSets(desk.Context);
    EXPECT_THAT(desk.Told, ElementsAre("sets?", "message"));
    EXPECT_THAT(desk.Message, HasSubstr("Exported 9 files, "));

    fs::remove_all(folder / "out/web");
    fs::remove(folder / "out/ios/AppIcon.appiconset/icon-1024.png");
    graphics::WriteFile(folder / "out/web", {});
    desk.Told.clear();
    AskExportSets(desk.Context);
    EXPECT_THAT(desk.Told, ElementsAre("sets?", "1 file of these sets already exists, overwrite?"));
    EXPECT_FALSE(fs::exists(folder / "out/ios/AppIcon.appiconset/icon-1024.png"));

    desk.OverwriteAnswer = true;
    AskExportSets(desk.Context);
    EXPECT_THAT(desk.Message, HasSubstr("Exported 2 files, "));
    EXPECT_THAT(desk.Message, HasSubstr("\nNot written: "));
    EXPECT_TRUE(fs::exists(folder / "out/ios/AppIcon.appiconset/icon-1024.png"));
}

TEST(IconSetsDialogTest, ExportsWhatIsTickedAndRemembersIt) {
    Desk desk;
    desk.Run([](editing::Editor& editor) { NewDocument(editor, 16, 16); });
    const formats::SetSource source = SetSourceOf(desk.State);
    {
        IconSetsDialog dialog(source, "/here/icons");
        const auto buttons = dialog.findChildren<QPushButton*>();
        const auto exporting = std::ranges::find(buttons, "&Export", &QPushButton::text);
        ASSERT_NE(exporting, buttons.end());
        EXPECT_EQ(dialog.Choice().Folder, "/here/icons");
        EXPECT_FALSE((*exporting)->isEnabled());
        dialog.findChild<QCheckBox*>("linux")->click();
        dialog.findChild<QCheckBox*>("macos")->click();
        EXPECT_TRUE((*exporting)->isEnabled());
        dialog.findChild<QLineEdit*>("Folder")->clear();
        EXPECT_FALSE((*exporting)->isEnabled());
        dialog.findChild<QLineEdit*>("Folder")->setText("/there");
        (*exporting)->click();
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    }
    const SetChoice again = IconSetsDialog(source, "/here/icons").Choice();
    EXPECT_THAT(again.Sets, ElementsAre(IconSet::MacOs, IconSet::Linux));
    EXPECT_EQ(again.Folder, "/there");
}

}  // namespace
}  // namespace orbelle::app
