#include "app/export_sets.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <thread>

#include "app/icon_sets_dialog.h"
#include "app/run_progress.h"
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
using ::testing::StartsWith;

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
    EXPECT_THAT(SetSizesOf(desk.State), ElementsAre(16, 32, 48, 180, 192, 512, 1024));

    fs::remove_all(folder / "out/web");
    fs::remove(folder / "out/ios/AppIcon.appiconset/icon-1024.png");
    graphics::WriteFile(folder / "out/web", {});
    desk.Told.clear();
    AskExportSets(desk.Context);
    EXPECT_THAT(desk.Told,
                ElementsAre("sets?", "1 file of these sets already exists, overwrite it?"));
    EXPECT_FALSE(fs::exists(folder / "out/ios/AppIcon.appiconset/icon-1024.png"));

    desk.OverwriteAnswer = true;
    AskExportSets(desk.Context);
    EXPECT_THAT(desk.Message, HasSubstr("Exported 2 files, "));
    EXPECT_THAT(desk.Message, HasSubstr("\nWeb was not written: " + (folder / "out/web").string()));
    EXPECT_TRUE(fs::exists(folder / "out/ios/AppIcon.appiconset/icon-1024.png"));

    desk.Sets->Sets = {IconSet::Web};
    AskExportSets(desk.Context);
    EXPECT_THAT(desk.Message, StartsWith("Nothing was exported.\nWeb was not written: "));
}

TEST(AskExportSetsTest, CanBeStoppedBetweenTwoSets) {
    const testing::TemporaryFolder folder;
    Desk desk;
    desk.Run([](editing::Editor& editor) { NewDocument(editor, 16, 16); });
    desk.Sets = SetChoice{{IconSet::MacOs, IconSet::Ios, IconSet::Windows}, folder / "out"};
    desk.FilesAtMost = 2;
    AskExportSets(desk.Context);
    EXPECT_EQ(desk.Doing, "Writing set 3 of 3: Windows...");
    EXPECT_THAT(desk.Message,
                StartsWith("Cancelled: 2 of 3 sets were written.\nExported 3 files, "));
    EXPECT_TRUE(fs::exists(folder / "out/ios/AppIcon.appiconset/Contents.json"));
    EXPECT_FALSE(fs::exists(folder / "out/windows"));
}

// The words of the dialog as long as it is shown, and what the user does there.
template <typename Act>
std::string WhileShown(const Act& act) {
    std::string words;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (!dialog || !words.empty())
            return;
        words = dialog->labelText().toStdString();
        dialog->findChild<QPushButton*>()->click();
    });
    look.start(10);
    act();
    return words;
}

TEST(RunProgressTest, ALongPieceShowsItselfAndAShortRunDoesNot) {
    QWidget window;
    RunProgress progress(window);
    const auto main = std::this_thread::get_id();
    EXPECT_EQ(WhileShown([&] {
                  EXPECT_TRUE(progress.GoOn(0, 2, "one"));
                  progress.DoMeanwhile([&] { EXPECT_NE(std::this_thread::get_id(), main); });
                  EXPECT_TRUE(progress.GoOn(1, 2, "two"));
                  EXPECT_FALSE(progress.IsShown());
                  EXPECT_TRUE(progress.GoOn(2, 2, {}));
              }),
              "");
    EXPECT_EQ(WhileShown([&] {
                  EXPECT_TRUE(progress.GoOn(0, 2, "one"));
                  progress.DoMeanwhile(
                      [] { std::this_thread::sleep_for(std::chrono::milliseconds(600)); });
                  EXPECT_FALSE(progress.GoOn(1, 2, "two")) << "stopped meanwhile";
                  progress.GoOn(2, 2, {});
              }),
              "one");
    EXPECT_FALSE(progress.IsShown());
    EXPECT_THROW(progress.DoMeanwhile([] { throw Error("full"); }), Error);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
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
