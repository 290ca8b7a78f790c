#include "app/ask_commands.h"

#include <gmock/gmock.h>

#include <chrono>
#include <fstream>

#include "app/import_files.h"
#include "app/save_commands.h"
#include "app/written_text.h"
#include "desk.h"
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
using orbelle::testing::SamePixels;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr int kOldSide = 16, kNextSide = Desk::kNewSide;
constexpr const ExportEntry& kPng = kExportEntries[3];
constexpr const ExportEntry& kGif = kExportEntries[4];

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
        {"drop", [](Desk& desk) { return ImportFiles(desk.Context, {desk.ToRead}), true; }},
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
    ImportFiles(desk.Context, {picture});
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
    const fs::path takenPng = taken.string() + ".png", takenGif = taken.string() + ".gif";
    for (const fs::path& completed : {takenPng, takenGif})
        fs::copy(taken, completed);
    EXPECT_THAT(exportTo(taken, kGif), ElementsAre("write?", "overwrite?"));
    EXPECT_EQ(fs::file_size(takenGif), 3u);
    EXPECT_THAT(exportTo(impossible, kPng), ElementsAre("write?")) << "no box, as a save has";
    EXPECT_THAT(desk.Status, HasSubstr(impossible.string()));
    desk.OverwriteAnswer = true;
    EXPECT_THAT(exportTo(taken, kPng), ElementsAre("write?", "overwrite?"));
    EXPECT_EQ(graphics::LoadImageFromFile(takenPng).Width(), kOldSide);
    EXPECT_TRUE(TakenIsUntouched());

    const fs::path gif = folder / "a.GIF";
    EXPECT_THAT(exportTo(gif, kGif), ElementsAre("write?", "threshold?"));
    EXPECT_FALSE(fs::exists(gif)) << "cancelled";
    desk.GifThreshold = 77;
    exportTo(gif, kGif);
    EXPECT_TRUE(fs::exists(gif));
    EXPECT_EQ(desk.State.ExportSettings.GifThreshold, 77);
    EXPECT_TRUE(desk.State.Document.Modified && desk.State.Document.Path.empty())
        << "an export is no save";
    desk.Run([](Editor& editor) { SetPageBackground(editor, 0xFF102030); });
    EXPECT_THAT(exportTo(folder / "b.gif", kGif), ElementsAre("write?"));
    EXPECT_TRUE(fs::exists(folder / "b.gif"));
}

TEST_F(AskCommandsTest, NamesAreCompletedByTheirExtension) {
    constexpr char kVolf[] = "Varnel Orbelle File(*.VOLF)|*.volf", kJpeg[] = "J|*.jpg;*.jpeg";
    const std::tuple<std::string, const char*, std::string> cases[] = {
        {"a", kVolf, "a.volf"},         {"a.volf", kVolf, "a.volf"},    {"a.VoLF", kVolf, "a.VoLF"},
        {"a.txt", kVolf, "a.txt.volf"}, {"avolf", kVolf, "avolf.volf"}, {"a.", kVolf, "a..volf"},
        {"a", kJpeg, "a.jpg"},          {"a.jpeg", kJpeg, "a.jpeg"},    {"a.JPG", kJpeg, "a.JPG"},
        {"a.png", kJpeg, "a.png.jpg"},  {"\xFF", kVolf, "\xFF.volf"},
    };
    for (const auto& [name, filter, completed] : cases)
        EXPECT_EQ(CompletedName(folder / name, filter), folder / completed);

    Desk desk;
    Change(desk);
    desk.ToWrite = folder / "taken";
    EXPECT_FALSE(AskSave(desk.Context));
    EXPECT_THAT(desk.Told, ElementsAre("write?", "overwrite?")) << "about the completed name";
    EXPECT_TRUE(TakenIsUntouched());
    desk.ToWrite = folder / "fresh";
    EXPECT_TRUE(AskSave(desk.Context));
    EXPECT_EQ(desk.State.Document.Path, fresh);
}

TEST_F(AskCommandsTest, WhatAnotherProgramChangedIsNotOverwrittenUnasked) {
    using graphics::WriteFile;
    const std::pair<const char*, void (*)(const fs::path&)> changes[] = {
        {"replaced", [](const fs::path& path) { WriteFile(path, {}); }},
        {"written to", [](const fs::path& path) { std::ofstream(path, std::ios::app) << '!'; }},
        {"touched",
         [](const fs::path& path) {
             fs::last_write_time(path, fs::last_write_time(path) + std::chrono::seconds(1));
         }},
    };
    for (const auto& [name, change] : changes) {
        for (const bool opened : {false, true}) {
            SCOPED_TRACE(name);
            Desk desk;
            Change(desk);
            fs::remove(fresh);
            desk.ToWrite = desk.ToRead = fresh;
            ASSERT_TRUE(AskSave(desk.Context));
            if (opened)
                AskOpen(desk.Context);
            desk.Run([](Editor& editor) { AddEmptyLayer(editor, kOldSide, kOldSide); });
            change(fresh);
            const graphics::FileStamp changed = graphics::StampOf(fresh);
            desk.Told.clear();
            EXPECT_FALSE(AskSave(desk.Context));
            EXPECT_THAT(desk.Told, ElementsAre("changed?"));
            desk.SaveAnswer = SavePromptAnswer::Yes;
            AskNew(desk.Context);
            EXPECT_THAT(desk.Told, ElementsAre("changed?", "save?", "changed?"));
            EXPECT_EQ(graphics::StampOf(fresh), changed);
            EXPECT_TRUE(desk.State.Document.Modified);
            EXPECT_EQ(desk.State.Document.Path, fresh);

            desk.OverwriteAnswer = true;
            EXPECT_TRUE(AskSave(desk.Context));
            desk.Told.clear();
            EXPECT_TRUE(AskSave(desk.Context));
            fs::remove(fresh);
            EXPECT_TRUE(AskSave(desk.Context));
            EXPECT_THAT(desk.Told, IsEmpty()) << "our own file, and one that has vanished";
        }
    }
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
        desk.IconImages = IconChoice{{1}};
        ask(desk.Context);
        EXPECT_EQ(desk.State.Page().Width, 24);
        EXPECT_EQ(desk.State.Page().LayerCount(), 1);
    }
}

TEST_F(AskCommandsTest, AllSizesOfAnIconAreOpened) {
    const graphics::Bitmap images[] = {FilledPicture(16, 16, 0xFFC02040),
                                       FilledPicture(32, 32, 0xFF204060)};
    graphics::WriteFile(folder / "a.ico", formats::EncodeIcon(images, formats::IconFormat::Bmp));
    Desk desk;
    desk.ToRead = folder / "a.ico";
    desk.IconImages = IconChoice{{0}, true};
    AskOpen(desk.Context);
    EXPECT_TRUE(desk.AskedOfIcon.OffersAllSizes);
    EXPECT_EQ(desk.State.Page().Width, 32);
    ASSERT_EQ(desk.State.Document.Sizes.size(), 1u);
    EXPECT_EQ(desk.State.Document.Sizes[0].Size, 16);
    EXPECT_EQ(desk.State.History.UndoIndex(), 0);
    EXPECT_FALSE(desk.State.Document.Modified);
    AskImport(desk.Context);
    EXPECT_FALSE(desk.AskedOfIcon.OffersAllSizes);
}

TEST_F(AskCommandsTest, SeveralImagesOfAnIconAreImportedInOneStep) {
    const graphics::Bitmap images[] = {FilledPicture(16, 16, 0xFFC02040),
                                       FilledPicture(32, 32, 0xFFC02040),
                                       FilledPicture(24, 24, 0xFFC02040)};
    std::vector<std::uint8_t> icon = formats::EncodeIcon(images, formats::IconFormat::Bmp);
    icon.resize(icon.size() - 500);  // the last one is bad, and is not offered
    graphics::WriteFile(folder / "a.ico", icon);
    Desk desk;
    desk.ToRead = folder / "a.ico";
    desk.IconImages = IconChoice{{0, 1}};
    AskImport(desk.Context);
    EXPECT_TRUE(desk.AskedOfIcon.TakesSeveral);
    EXPECT_EQ(desk.State.Page().Width, 32) << "the larger one makes the page";
    EXPECT_EQ(desk.State.Page().LayerCount(), 2);
    EXPECT_EQ(desk.State.History.UndoIndex(), 1);
    AskImport(desk.Context);
    EXPECT_EQ(desk.State.Page().LayerCount(), 4);
    EXPECT_EQ(desk.State.Page().Layers[2].ImageWidth, 16);
    EXPECT_EQ(desk.State.History.UndoIndex(), 2);

    icon.resize(60);
    graphics::WriteFile(folder / "a.ico", icon);
    AskImport(desk.Context);
    EXPECT_EQ(desk.Told.back(), "message");
    EXPECT_NE(desk.Message.find("no image of the icon can be read: "), std::string::npos);
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
    AskPageBackground(desk.Context);
    EXPECT_FALSE(desk.Question.HasAlpha);
}

TEST_F(AskCommandsTest, AWellTakesTheAlphaThatWasChosenElseItKeepsItsOwn) {
    const struct {
        graphics::Argb Present, Start, Chosen, Result;
        int Opacity;
    } cases[] = {
        {0xFF000000, 0xFF000000, 0xFF204060, 0xFF204060, 100},
        {0x80102030, 0x7F102030, 0x7F204060, 0x7F204060, 50},
        {0x80102030, 0x7F102030, 0x33204060, 0x33204060, 20},
        {0x00102030, 0xFF102030, 0xFF204060, 0xFF204060, 100},  // nothing was said about alpha
        {0x01102030, 0xFF102030, 0xFF204060, 0xFF204060, 100},
        {0x00102030, 0xFF102030, 0x40204060, 0x40204060, 25},
        {0xFF102030, 0xFF102030, 0x00204060, 0x00204060, 0},
    };
    Desk desk;
    desk.State.Tools.Colors[1] = 0x4D010203;
    for (const auto& [present, start, chosen, result, opacity] : cases) {
        desk.State.Tools.ActiveColor = 1;
        desk.State.Tools.Colors[0] = present;
        desk.Color = chosen;
        AskWellColor(desk.Context, 0);
        EXPECT_EQ(desk.Question.Old, present);
        EXPECT_EQ(desk.Question.Start, start);
        EXPECT_TRUE(desk.Question.HasAlpha);
        EXPECT_EQ(desk.State.Tools.ActiveColor, 0);
        EXPECT_EQ(desk.State.Tools.Colors[0], result);
        EXPECT_EQ(desk.State.Sliders.ColorOpacity.Value, opacity);
        EXPECT_EQ(desk.State.Tools.Colors[1], 0x4D010203);
    }
}

TEST_F(AskCommandsTest, AFileDialogBeginsWithTheNameOfTheDocumentOrOfItsPicture) {
    Desk desk;
    const auto proposed = [&](auto ask) {
        ask();
        return desk.Proposed;
    };
    const auto save = [&] { AskSaveAs(desk.Context); };
    const auto exportPng = [&] { AskExport(desk.Context, kPng); };
    Change(desk);
    EXPECT_EQ(proposed(save), "icon.volf") << "in the folder of the last file";
    EXPECT_EQ(proposed(exportPng), "icon.png");

    const fs::path picture = folder / "glass.v2.png", icon = folder / "tile.ico";
    const graphics::Bitmap red = FilledPicture(32, 32, 0xFFC02040);
    graphics::WriteFile(picture, graphics::EncodePng(red));
    graphics::WriteFile(icon, formats::EncodeIcon({&red, 1}, formats::IconFormat::Bmp));
    desk.SaveAnswer = SavePromptAnswer::No;
    desk.IconImages = IconChoice{{0}};
    desk.ToRead = picture;
    AskImport(desk.Context);
    EXPECT_EQ(proposed(save), "icon.volf") << "a layer gives no name";
    AskOpen(desk.Context);
    EXPECT_EQ(proposed(save), folder / "glass.v2.volf");
    EXPECT_EQ(proposed(exportPng), picture);
    desk.ToRead = icon;
    AskOpen(desk.Context);
    EXPECT_EQ(proposed(save), folder / "tile.volf");
    desk.ToWrite = fresh;
    AskSave(desk.Context);
    EXPECT_EQ(proposed(exportPng), folder / "fresh.png");
    AskNew(desk.Context);
    EXPECT_EQ(proposed(save), "icon.volf");

    Desk empty;
    empty.ToRead = picture;
    AskImport(empty.Context);
    AskSaveAs(empty.Context);
    EXPECT_EQ(empty.Proposed, folder / "glass.v2.volf") << "the import has made the page";
}

TEST_F(AskCommandsTest, TheStatusLineSaysWhatWasWrittenWhere) {
    Desk desk;
    Change(desk);
    const std::string in = ", in " + folder.Path().string();
    const auto size = [](const fs::path& path) {
        return SizeText(fs::file_size(path)).toStdString();
    };
    desk.ToWrite = fresh;
    AskSave(desk.Context);
    EXPECT_EQ(desk.Status, "Saved fresh.volf, " + size(fresh) + in);
    desk.ToWrite = folder / "a.png";
    AskExport(desk.Context, kPng);
    EXPECT_EQ(desk.Status, "Exported a.png, PNG of 16 x 16 px, " + size(desk.ToWrite) + in);
    desk.ToWrite = folder / "a.ico";
    AskExport(desk.Context, kExportEntries[0]);
    EXPECT_EQ(desk.Status, "Exported a.ico, ICO of 16 px, " + size(desk.ToWrite) + in);
    desk.Run([](Editor& editor) { NewDocument(editor, 8, 15); });
    desk.ToWrite = folder / "b.ico";
    AskExport(desk.Context, kExportEntries[0]);
    EXPECT_THAT(desk.Status, HasSubstr("Nothing was exported"));
    EXPECT_FALSE(fs::exists(desk.ToWrite));
}

TEST_F(AskCommandsTest, ASuggestionIsMadeOfTheMasterWhateverPageIsInForce) {
    Desk desk;
    desk.ToRead = folder / "wide.png";
    const graphics::Bitmap wide = FilledPicture(40, 20, 0xFFC02040);
    graphics::WriteFile(desk.ToRead, graphics::EncodePng(wide));
    AskImport(desk.Context);
    const int steps = desk.State.History.UndoIndex();
    AskSuggest(desk.Context, 16);
    EXPECT_EQ(desk.State.History.UndoIndex(), steps) << "given up";
    EXPECT_TRUE(desk.State.Document.Sizes.empty());

    desk.Recipe = filters::SizeRecipe::Fill;
    for (const int size : {16, 24}) {
        AskSuggest(desk.Context, size);
        EXPECT_TRUE(SamePixels(desk.Suggested, wide));
        EXPECT_EQ(desk.State.Document.EditedSize, size);
        EXPECT_TRUE(
            SamePixels(desk.State.Canvas, ApplyRecipe(filters::SizeRecipe::Fill, wide, size)));
    }
    EXPECT_EQ(desk.State.History.UndoIndex(), steps + 2);
}

TEST(WrittenTextTest, SizesAreRoundedAndSidesListed) {
    const std::pair<std::uintmax_t, const char*> sizes[] = {
        {0, "0 bytes"},      {1, "1 byte"},          {1023, "1023 bytes"}, {1024, "1 KB"},
        {1535, "1 KB"},      {1536, "2 KB"},         {1048063, "1023 KB"}, {1048064, "1.0 MB"},
        {1468006, "1.4 MB"}, {99'614'720, "95.0 MB"}};
    for (const auto& [bytes, text] : sizes)
        EXPECT_EQ(SizeText(bytes), text);
    EXPECT_EQ(ExportedIconText("/a/b.ico", 2048, "ICO", {48, 32, 16}),
              "Exported b.ico, ICO of 48, 32 and 16 px, 2 KB, in /a");
    EXPECT_EQ(SavedText("b.volf", std::nullopt), "Saved b.volf");
}

}  // namespace
}  // namespace orbelle::app
