#include "app/ask_commands.h"

#include <gmock/gmock.h>

#include "editing/document_commands.h"
#include "editing/layer_commands.h"
#include "editing/page_commands.h"
#include "formats/icon_file.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

using editing::Editor;
using orbelle::testing::FilledPicture;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kOldSide = 16, kNextSide = 7;
constexpr const ExportEntry& kPng = kExportEntries[1];
constexpr const ExportEntry& kGif = kExportEntries[2];

// An editor and its user, without a window: answers from its fields, and notes in `Told` what was
// asked and told.
class Desk : public CommandRunner,
             public UserQuestions,
             public WindowActions,
             public editing::EditorObserver,
             public editing::Clipboard {
public:
    SavePromptAnswer SaveAnswer = SavePromptAnswer::Cancel;
    bool OverwriteAnswer = false;
    fs::path ToRead, ToWrite;
    std::optional<int> GifThreshold, IconImage;
    std::optional<graphics::Argb> Color;
    std::vector<std::string> Told;

    WindowContext Context{*this, *this, *this};
    editing::Editor State{*this, *this};

    editing::Outcome Try(const editing::Command& command) override {
        return editing::Run(State, command);
    }
    bool Run(const editing::Command& command) override {
        const editing::Outcome outcome = Try(command);
        if (outcome.Failed())
            ShowMessage(outcome.Problem());
        return !outcome.Failed();
    }
    bool RunBusy(const editing::Command& command) override { return Run(command); }
    bool RunDuringDrag(const editing::Command& step) override { return Run(step); }
    const editing::Editor& Editor() const override { return State; }

    void ShowMessage(const std::string&) override { Told.emplace_back("message"); }
    void ShowStatus(const std::string&) override { Told.emplace_back("status"); }
    SavePromptAnswer AskSave() override { return Answer("save?", SaveAnswer); }
    bool Confirm(const std::string& text, const std::string& title) override {
        EXPECT_EQ(title + ": " + text, "Warning: Image already exists, overwrite it?");
        return Answer("overwrite?", OverwriteAnswer);
    }
    std::optional<PageSize> AskPageSize() override { return PageSize{kNextSide, kNextSide}; }
    fs::path AskFile(const std::string&, bool isOpen) override {
        return isOpen ? Answer("read?", ToRead) : Answer("write?", ToWrite);
    }
    std::optional<int> AskGifThreshold(const graphics::Bitmap&) override {
        return Answer("threshold?", GifThreshold);
    }
    std::optional<int> ChooseIconImage(const std::vector<formats::IconEntryImage>&) override {
        return Answer("image?", IconImage);
    }
    std::optional<graphics::Argb> AskColor(graphics::Argb) override { return Color; }

    void Changed(const editing::Changes&) override {}
    void Put(const graphics::Bitmap&, const std::string&) override {}
    bool HasPicture() override { return false; }
    graphics::Bitmap Picture() override { return {}; }
    std::string Text() override { return {}; }
    void CloseWindow() override {}
    void FocusScene() override {}
    void ShowOrderMenu() override {}
    void Paste() override {}
    void ToggleTips() override {}
    void CloseTips() override {}
    void ShowAbout() override {}
    void ShowControls() override {}

private:
    template <typename T>
    T Answer(const char* question, const T& answer) {
        Told.emplace_back(question);
        return answer;
    }
};

class AskCommandsTest : public ::testing::Test {
protected:
    AskCommandsTest() {
        Desk writer;
        writer.Run([&](Editor& editor) {
            NewDocument(editor, kNextSide, kNextSide);
            SaveTo(editor, next);
        });
        WriteTaken();
    }

    // With a document that has been changed.
    static void Change(Desk& desk) {
        desk.Run([](Editor& editor) { NewDocument(editor, kOldSide, kOldSide); });
        desk.Run([](Editor& editor) { AddEmptyLayer(editor, kOldSide, kOldSide); });
    }
    void WriteTaken() const { graphics::WriteFile(taken, std::vector<std::uint8_t>{1, 2, 3}); }
    bool TakenIsUntouched() const { return fs::file_size(taken) == 3; }

    const orbelle::testing::TemporaryFolder folder;
    const fs::path next = folder / "next.volf";
    const fs::path taken = folder / "taken.volf";  // a file that is there already
    const fs::path fresh = folder / "fresh.volf";
    const fs::path impossible = folder / "no folder" / "a.volf";
};

TEST_F(AskCommandsTest, AChangedDocumentIsGivenUpOnlyOnceWrittenOrNotWanted) {
    const std::pair<const char*, bool (*)(Desk&)> roads[] = {
        {"New", [](Desk& desk) { return AskNew(desk.Context), true; }},
        {"Open", [](Desk& desk) { return AskOpen(desk.Context), true; }},
        {"hand-over",
         [](Desk& desk) {
             return OpenHandedOver(desk.Context, '"' + desk.ToRead.string() + '"'), true;
         }},
        {"Import", [](Desk& desk) { return AskImport(desk.Context), true; }},
        {"drop", [](Desk& desk) { return ImportKnownFile(desk.Context, desk.ToRead), true; }},
        {"close", [](Desk& desk) { return MayGiveUpDocument(desk.Context); }},
    };
    using enum SavePromptAnswer;
    const struct {
        const char* Name;
        SavePromptAnswer Answer;
        fs::path ToWrite;
        bool Overwrite;
        bool GivenUp;
        const char* Last;  // what was asked or told last before it was, or was not, given up
    } cases[] = {
        {"cancelled", Cancel, fresh, true, false, "save?"},
        {"not wanted", No, fresh, true, true, "save?"},
        {"written", Yes, fresh, false, true, "write?"},
        {"written over another", Yes, taken, true, true, "overwrite?"},
        {"file dialog cancelled", Yes, {}, true, false, "write?"},
        {"overwriting refused", Yes, taken, false, false, "overwrite?"},
        {"writing failed", Yes, impossible, true, false, "message"},
    };
    for (const auto& [road, giveUp] : roads) {
        const bool isClose = road == std::string_view("close");
        for (const auto& [name, answer, toWrite, overwrite, givenUp, last] : cases) {
            SCOPED_TRACE(std::string(road) + ", " + name);
            fs::remove(fresh);
            WriteTaken();
            Desk desk;
            Change(desk);
            desk.SaveAnswer = answer;
            desk.ToRead = next;
            desk.ToWrite = toWrite;
            desk.OverwriteAnswer = overwrite;
            const bool closes = giveUp(desk);
            EXPECT_TRUE(closes == givenUp || !isClose);
            EXPECT_EQ(desk.State.Page().Width, givenUp && !isClose ? kNextSide : kOldSide);
            if (!givenUp || isClose) {
                EXPECT_EQ(desk.State.Page().LayerCount(), 2);
                EXPECT_EQ(desk.Told.back(), last);
            }
            EXPECT_EQ(desk.State.Document.Modified, (isClose && answer == No) || !givenUp);
            const bool writes = answer == Yes && givenUp;
            EXPECT_EQ(fs::exists(fresh), writes && toWrite == fresh);
            EXPECT_EQ(TakenIsUntouched(), !(writes && toWrite == taken));
        }
        Desk unchanged;
        unchanged.ToRead = next;
        unchanged.Run([](Editor& editor) { NewDocument(editor, kOldSide, kOldSide); });
        EXPECT_TRUE(giveUp(unchanged));
        EXPECT_THAT(unchanged.Told, ::testing::Not(::testing::Contains("save?"))) << road;
    }
}

TEST_F(AskCommandsTest, APictureIsImportedWithoutTheSavePrompt) {
    const fs::path picture = folder / "a.png";
    graphics::WriteFile(picture, graphics::EncodePng(FilledPicture(3, 3, 0xFFC02040)));
    Desk desk;
    Change(desk);
    ImportKnownFile(desk.Context, picture);
    EXPECT_THAT(desk.Told, IsEmpty());
    EXPECT_EQ(desk.State.Page().LayerCount(), 3);
}

TEST_F(AskCommandsTest, ARefusedOrFailedSaveAsLeavesPathAndTitle) {
    Desk desk;
    Change(desk);
    desk.ToWrite = fresh;
    EXPECT_TRUE(AskSave(desk.Context));
    EXPECT_THAT(desk.Told, ElementsAre("write?")) << "there is no path yet";
    for (const fs::path& path : {fs::path(), taken, impossible}) {
        desk.ToWrite = path;
        EXPECT_FALSE(AskSaveAs(desk.Context)) << path;
        EXPECT_EQ(desk.State.Document.Path, fresh) << path;
        EXPECT_EQ(desk.State.Title, "fresh.volf - Varnel Orbelle") << path;
    }
    EXPECT_TRUE(TakenIsUntouched());
    fs::remove(fresh);
    desk.Told.clear();
    EXPECT_TRUE(AskSave(desk.Context));
    EXPECT_THAT(desk.Told, IsEmpty());
    EXPECT_TRUE(fs::exists(fresh));
    desk.ToWrite = taken;
    desk.OverwriteAnswer = true;
    EXPECT_TRUE(AskSaveAs(desk.Context));
    EXPECT_EQ(desk.State.Document.Path, taken);
}

TEST_F(AskCommandsTest, AnExportWritesOnlyWhatMayBeOverwrittenAndAsksForAThreshold) {
    Desk desk;
    Change(desk);
    const auto exportTo = [&](const fs::path& path, const ExportEntry& entry) {
        desk.Told.clear();
        desk.ToWrite = path;
        AskExport(desk.Context, entry);
        return desk.Told;
    };
    EXPECT_THAT(exportTo({}, kPng), ElementsAre("write?"));
    EXPECT_THAT(exportTo(taken, kGif), ElementsAre("write?", "overwrite?"));
    EXPECT_TRUE(TakenIsUntouched());
    EXPECT_THAT(exportTo(impossible, kPng), ElementsAre("write?", "status"))
        << "no box, as a save has";
    desk.OverwriteAnswer = true;
    EXPECT_THAT(exportTo(taken, kPng), ElementsAre("write?", "overwrite?"));
    EXPECT_EQ(graphics::LoadImageFromFile(taken).Width(), kOldSide);

    EXPECT_THAT(exportTo(fresh, kGif), ElementsAre("write?", "threshold?"));
    EXPECT_FALSE(fs::exists(fresh)) << "cancelled";
    desk.GifThreshold = 77;
    exportTo(fresh, kGif);
    EXPECT_TRUE(fs::exists(fresh));
    EXPECT_EQ(desk.State.ExportSettings.GifThreshold, 77);
    EXPECT_TRUE(desk.State.Document.Modified && desk.State.Document.Path.empty())
        << "an export is no save";
    desk.Run([](Editor& editor) { SetPageBackground(editor, 0xFF102030); });
    EXPECT_THAT(exportTo(folder / "b.gif", kGif), ElementsAre("write?"));
    EXPECT_TRUE(fs::exists(folder / "b.gif"));
}

TEST_F(AskCommandsTest, OfAnIconFileTheChosenImageIsTaken) {
    const graphics::Bitmap images[] = {FilledPicture(32, 32, 0xFFC02040),
                                       FilledPicture(24, 24, 0xFFC02040)};
    graphics::WriteFile(folder / "a.ico", formats::EncodeIcon(images, formats::IconFormat::Bmp));
    for (const auto ask : {AskOpen, AskImport}) {
        Desk desk;
        desk.ToRead = folder / "a.ico";
        ask(desk.Context);
        EXPECT_THAT(desk.Told, ElementsAre("read?", "image?"));
        EXPECT_FALSE(desk.State.DocumentExists) << "cancelled";
        desk.IconImage = 1;
        ask(desk.Context);
        EXPECT_EQ(desk.State.Page().Width, 24);
        EXPECT_EQ(desk.State.Page().LayerCount(), 1);
    }
}

TEST_F(AskCommandsTest, AFileThatCannotBeReadIsToldAndChangesNothing) {
    graphics::WriteFile(folder / "broken.ico", std::vector<std::uint8_t>{1, 2, 3});
    for (const fs::path& path : {folder / "none.png", taken, folder / "broken.ico"}) {
        for (const auto ask : {AskOpen, AskImport}) {
            Desk desk;
            Change(desk);
            desk.SaveAnswer = SavePromptAnswer::No;
            desk.ToRead = path;
            const std::string title = desk.State.Title;
            ask(desk.Context);
            EXPECT_EQ(desk.Told.back(), "message") << path;
            EXPECT_EQ(desk.State.Page().LayerCount(), 2) << path;
            EXPECT_EQ(desk.State.Title, title) << path;
            EXPECT_TRUE(desk.State.Document.Modified) << path;
        }
    }
}

TEST_F(AskCommandsTest, OfAHandOverTheFirstAndLastCharactersAreCut) {
    const std::string path = next.string();
    for (const std::string& command : {'"' + path + '"', '"' + path + "\"  ", 'x' + path + 'y'}) {
        Desk desk;
        OpenHandedOver(desk.Context, command);
        EXPECT_EQ(desk.State.Document.Path, next) << command;
    }
    for (const char* nothing : {"", "  ", "\"\"", "x"}) {
        Desk desk;
        OpenHandedOver(desk.Context, nothing);
        EXPECT_THAT(desk.Told, ElementsAre("message"));
        EXPECT_FALSE(desk.State.DocumentExists);
    }
}

TEST_F(AskCommandsTest, ChosenColorsArriveAndACancelledWellIsInUseAllTheSame) {
    Desk desk;
    const auto background = [&](std::optional<graphics::Argb> chosen) {
        desk.Color = chosen;
        AskPageBackground(desk.Context);
        return desk.State.Document.Background;
    };
    EXPECT_EQ(background(0x00204060), 0u) << "there is no page";
    Change(desk);
    EXPECT_EQ(background(0x00204060), 0xFF204060);
    EXPECT_EQ(background({}), 0xFF204060);

    AskWellColor(desk.Context, 1);
    EXPECT_EQ(desk.State.Tools.ActiveColor, 1);
    EXPECT_EQ(desk.State.Tools.Colors[1], 0xFFFFFFFF);
    desk.Color = 0x00204060;
    AskWellColor(desk.Context, 0);
    EXPECT_EQ(desk.State.Tools.ActiveColor, 0);
    EXPECT_EQ(desk.State.Tools.Colors[0] & 0xFFFFFF, 0x204060u);
}

}  // namespace
}  // namespace orbelle::app
