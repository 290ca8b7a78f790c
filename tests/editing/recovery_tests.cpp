#include "editing/recovery.h"

#include <fstream>
#include <memory>

#include "editing/adjust_sliders.h"
#include "editing/layer_commands.h"
#include "editing_fixture.h"
#include "formats/volf_store.h"
#include "support/temporary_folder.h"

namespace orbelle::editing {
namespace {

class RecoveryTest : public EditingTest {
protected:
    RecoveryTest() { Start(); }

    void Start() {
        recovery = std::make_unique<Recovery>(
            journals, [this](const std::string& why) { troubles.push_back(why); });
    }
    // As the window does after each command.
    void Note() { recovery->Note(editor, recorder.Last); }
    // The program ends without asking.
    void EndAtOnce() {
        recovery->EndAtOnce();
        recovery.reset();
    }

    std::vector<formats::FoundJournal> Found() const { return formats::FindJournals(journals); }
    std::vector<std::uint8_t> Kept() const { return formats::EncodeDocument(editor.Document); }

    orbelle::testing::TemporaryFolder folder;
    const std::filesystem::path journals = folder / "state" / "journals";
    std::vector<std::string> troubles;
    std::unique_ptr<Recovery> recovery;
};

TEST_F(RecoveryTest, AnEndThatDoesNotAskLeavesTheWorkToBeRestored) {
    OpenPage(20, 10);
    Note();
    Do(AddEmptyLayer, 20.0f, 10.0f);
    Note();
    const auto kept = Kept();
    EndAtOnce();

    OpenPage(5, 5);
    const auto found = Found();
    ASSERT_EQ(found.size(), 1u);
    Do(RestoreDocument, found[0].Entry().Document);
    EXPECT_EQ(Kept(), kept);
    EXPECT_TRUE(editor.Document.Modified);
    EXPECT_EQ(editor.Page().SelectedLayer, 1);
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    EXPECT_EQ(editor.Sliders.PageWidth.Value, 20);
}

TEST_F(RecoveryTest, AGoodEndAndASavedDocumentLeaveNothing) {
    OpenPage(20, 10);
    Do(AddEmptyLayer, 20.0f, 10.0f);
    Note();
    EXPECT_TRUE(recovery->Flush());
    EXPECT_FALSE(std::filesystem::is_empty(journals));
    recovery.reset();
    EXPECT_TRUE(std::filesystem::is_empty(journals));

    Start();
    Do(AddEmptyLayer, 20.0f, 10.0f);
    Note();
    Do(SaveTo, folder / "saved.volf");
    Note();
    EndAtOnce();
    EXPECT_TRUE(Found().empty());
}

TEST_F(RecoveryTest, HoldsWhatStoodBeforeADragUntilItsEnd) {
    OpenPage(20, 10);
    Do(AddEmptyLayer, 20.0f, 10.0f);
    Note();
    const auto before = Kept();
    Do(PressOpacity);
    Note();
    Step(ChangeOpacity, 40);
    Note();
    EXPECT_TRUE(recovery->Flush());
    EndAtOnce();
    auto found = Found();
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(formats::EncodeDocument(found[0].Entry().Document), before);
    found[0].Remove();
    found.clear();

    Start();
    Step(ReleaseOpacity);
    Note();
    EndAtOnce();
    found = Found();
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(formats::EncodeDocument(found[0].Entry().Document), Kept());
}

TEST_F(RecoveryTest, TroubleIsToldOnceAndTheNextStepTriesAgain) {
    std::ofstream(folder / "state") << "in the way";
    OpenPage(20, 10);
    for (int i = 0; i < 3; ++i) {
        Do(AddEmptyLayer, 20.0f, 10.0f);
        Note();
        EXPECT_FALSE(recovery->Flush());
    }
    EXPECT_EQ(troubles.size(), 1u);
    std::filesystem::remove(folder / "state");
    Do(AddEmptyLayer, 20.0f, 10.0f);
    Note();
    EXPECT_TRUE(recovery->Flush());
    EndAtOnce();
    EXPECT_EQ(Found().size(), 1u);
}

}  // namespace
}  // namespace orbelle::editing
