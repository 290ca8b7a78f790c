#include "editing/document_commands.h"

#include "document/scene_painter.h"
#include "editing/adjust_sliders.h"
#include "editing/layer_commands.h"
#include "editing/menu_state.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using graphics::RectF;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class DocumentCommands : public EditingTest {};

TEST_F(DocumentCommands, NewMakesAnUnmodifiedPageWithOneSelectedEmptyLayer) {
    editor.Document.PageBackground = 0xFF112233;
    NewPage(64, 48);
    EXPECT_EQ(editor.Title, "Varnel Orbelle - Project *");
    ASSERT_EQ(editor.Document.LayerCount(), 1);
    EXPECT_EQ(editor.Document.SelectedLayer, 0);
    EXPECT_EQ(Layer(0).Rect, (RectF{0, 0, 64, 48}));
    EXPECT_EQ(Layer(0).Image.Width(), 64);
    EXPECT_FALSE(editor.Document.Modified);
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    EXPECT_FALSE(editor.Controls.m_Undo.Enabled);
    EXPECT_EQ(editor.Document.PageBackground, 0xFF112233);
    EXPECT_EQ(editor.Canvas.Width(), 64);
    EXPECT_EQ(host.Animations, 1);
    EXPECT_EQ(host.SavePrompts, 0);
    EXPECT_TRUE(editor.Controls.Opacity.Enabled);
    EXPECT_EQ(editor.Controls.Opacity.Value, 100);
    EXPECT_EQ(editor.Controls.PageHeight.Value, 48);
}

TEST_F(DocumentCommands, NewRefusesPagesOutside1To512) {
    for (const auto& [width, height] : {std::pair{513, 10}, {10, 0}, {-1, 5}}) {
        host.Messages.clear();
        NewPage(width, height);
        EXPECT_THAT(host.Messages, ElementsAre("Please input a integer from 1 to 512."));
        EXPECT_FALSE(editor.DocumentExists);
    }
    host.Size.reset();
    New(editor);
    EXPECT_FALSE(editor.DocumentExists);
}

TEST_F(DocumentCommands, TheFirstImportMakesThePageOfAnySize) {
    host.File = Picture("large.png", 600, 400);
    Import(editor);
    EXPECT_EQ(editor.Document.PageWidth, 600);
    EXPECT_EQ(editor.Document.PageHeight, 400);
    EXPECT_EQ(editor.Document.LayerCount(), 1);
    EXPECT_EQ(editor.Document.SelectedLayer, 0);
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    EXPECT_EQ(editor.Canvas.GetPixel(599, 399), 0xFF204060);
    EXPECT_THAT(host.Filters, ElementsAre("All Supported Formats|*.ico;*.png;*.gif;*.jpg;*.jpeg;"
                                          "*.bmp|ICO Files (*.ICO)|*.ico|PNG Files (*.PNG)|*.png"
                                          "|GIF Files (*.GIF)|*.gif|JPEG Files (*.JPG;*.JPEG)"
                                          "|*.jpg;*.jpeg|BMP Files (*.BMP)|*.bmp"));
}

TEST_F(DocumentCommands, AnImportGoesAboveTheSelectedLayerAndIsOneUndoStep) {
    NewPage(20, 20);
    host.File = Picture("a.png", 30, 6);
    Import(editor);
    EXPECT_EQ(editor.Document.SelectedLayer, 1);
    EXPECT_EQ(Layer(1).Rect, (RectF{-5, 7, 30, 6}));
    EXPECT_TRUE(editor.Document.Modified);
    SelectLayer(editor, 0);
    host.File = Picture("b.png", 4, 4);
    Import(editor);
    EXPECT_EQ(editor.Document.SelectedLayer, 1);
    EXPECT_EQ(Layer(2).ImageWidth, 30);
    EXPECT_EQ(editor.History.UndoIndex(), 2);
    Undo(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 2);
    EXPECT_EQ(editor.Document.SelectedLayer, 0);
    Undo(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 1);
    EXPECT_FALSE(editor.Controls.m_Undo.Enabled);
    EXPECT_TRUE(editor.Controls.m_Redo.Enabled);
    Undo(editor);
    Redo(editor);
    Redo(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 3);
    EXPECT_FALSE(editor.Controls.m_Redo.Enabled);
}

TEST_F(DocumentCommands, AnUnreadablePictureIsToldAndMakesAnEmptyLayer) {
    NewPage(20, 20);
    host.File = folder / "missing.png";
    Import(editor);
    ASSERT_EQ(host.Messages.size(), 1U);
    EXPECT_THAT(host.Messages[0], HasSubstr("missing.png"));
    ASSERT_EQ(editor.Document.LayerCount(), 2);
    EXPECT_EQ(Layer(1).Rect, (RectF{10, 10, 0, 0}));
    EXPECT_TRUE(Layer(1).Image.IsEmpty());
    EXPECT_EQ(host.Busy, 0);
}

TEST_F(DocumentCommands, TheChosenImageOfAnIconBecomesThePageOrALayer) {
    const std::filesystem::path icon = Icon("a.ICO", {{16, 16}, {40, 6}});
    host.IconEntry = 1;
    OpenFile(icon);
    EXPECT_EQ(editor.Document.PageWidth, 40);
    EXPECT_EQ(editor.Document.PageHeight, 6);
    host.IconEntry = 0;
    Import(editor);
    ASSERT_EQ(editor.Document.LayerCount(), 2);
    EXPECT_EQ(Layer(1).Rect, (RectF{12, -5, 16, 16}));
    EXPECT_EQ(Layer(1).Image.GetPixel(15, 15), 0xFF204060);
    EXPECT_EQ(editor.History.UndoIndex(), 1);
    EXPECT_THAT(host.OfferedCounts, ElementsAre(2, 2));
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(DocumentCommands, ACancelledChoiceOfAnIconImageChangesNothing) {
    const std::filesystem::path icon = Icon("a.ico", {{16, 16}});
    host.IconEntry = std::nullopt;
    OpenFile(icon);
    EXPECT_FALSE(editor.DocumentExists);
    OpenFile(Picture("a.png", 12, 10));
    host.File = Picture("b.png", 5, 5);
    Import(editor);
    Undo(editor);
    const std::string title = editor.Title;
    host.File = icon;
    Import(editor);
    Open(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 1);
    EXPECT_EQ(editor.Document.SelectedLayer, 0);
    EXPECT_EQ(editor.Title, title);
    EXPECT_TRUE(editor.DocumentExists);
    EXPECT_TRUE(editor.Document.Modified);
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    EXPECT_TRUE(editor.Controls.m_Redo.Enabled);
    EXPECT_EQ(host.Busy, 0);
    EXPECT_THAT(host.OfferedCounts, ElementsAre(1, 1, 1));
}

TEST_F(DocumentCommands, AnIconWithoutAnImageToTakeMakesAnEmptyLayerAndSaysWhy) {
    std::vector<std::uint8_t> bytes = graphics::ReadFile(Icon("hidden.ico", {{16, 16}}));
    bytes[6 + 16 + 14] = 8;
    graphics::WriteFile(folder / "hidden.ico", bytes);
    bytes[2] = 2;
    graphics::WriteFile(folder / "cursor.ico", bytes);
    NewPage(20, 20);
    for (const char* name : {"hidden.ico", "cursor.ico", "missing.ico"}) {
        host.File = folder / name;
        Import(editor);
        EXPECT_THAT(host.Messages.back(), HasSubstr(name));
        EXPECT_EQ(Layer(editor.Document.SelectedLayer).Rect, (RectF{10, 10, 0, 0}));
    }
    EXPECT_THAT(host.OfferedCounts, ElementsAre(0, 0, 0));
    EXPECT_EQ(host.Messages.size(), 3U);
    EXPECT_EQ(editor.Document.LayerCount(), 4);
}

TEST_F(DocumentCommands, SaveAndOpenBringTheSameLayersBack) {
    OpenFile(Picture("a.png", 12, 10));
    host.File = Picture("b.png", 5, 5, 0x80FF0000);
    Import(editor);
    PressOpacity(editor);
    ChangeOpacity(editor, 33);
    ReleaseOpacity(editor);
    const graphics::Bitmap page = editor.Canvas;
    host.File = folder / "saved.volf";
    EXPECT_TRUE(Save(editor));
    EXPECT_FALSE(editor.Document.Modified);
    EXPECT_EQ(editor.Title, "saved.volf - Varnel Orbelle");

    NewPage(3, 3);
    OpenFile(folder / "saved.volf");
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_EQ(editor.Document.LayerCount(), 2);
    EXPECT_EQ(editor.Document.SelectedLayer, 1);
    EXPECT_EQ(Layer(1).Opacity, 0.33F);
    EXPECT_EQ(editor.Controls.Opacity.Value, 33);
    EXPECT_TRUE(testing::SamePixels(editor.Canvas, page));
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    EXPECT_FALSE(editor.Controls.m_Undo.Enabled);
    EXPECT_EQ(editor.Title, "saved.volf - Varnel Orbelle");
}

TEST_F(DocumentCommands, AFileThatIsNoDocumentLeavesAnEmptyStack) {
    NewPage(20, 20);
    graphics::WriteFile(folder / "bad.volf", std::vector<std::uint8_t>(100, 'x'));
    OpenFile(folder / "bad.volf");
    EXPECT_THAT(host.Messages, ElementsAre("Invalid File"));
    EXPECT_EQ(editor.Document.LayerCount(), 0);
    EXPECT_EQ(editor.Document.SelectedLayer, document::kNoLayer);
    OpenFileMenu(editor);
    EXPECT_FALSE(editor.Controls.m_Save.Enabled);
    EXPECT_FALSE(editor.Controls.m_Export.Enabled);
}

TEST_F(DocumentCommands, OpeningSomethingElseThanADocumentFirstLeavesNoDocument) {
    graphics::WriteFile(folder / "bad.volf", std::vector<std::uint8_t>(3, 'x'));
    OpenFile(folder / "bad.volf");
    EXPECT_FALSE(editor.DocumentExists);
    host.File = Picture("a.png", 7, 7);
    Import(editor);
    EXPECT_EQ(editor.Document.PageWidth, 7);
}

TEST_F(DocumentCommands, ThePromptGuardsChangedWork) {
    NewPage(20, 20);
    host.File = Picture("a.png", 5, 5);
    Import(editor);

    host.SaveAnswer = SavePromptAnswer::Cancel;
    NewPage(3, 3);
    EXPECT_EQ(editor.Document.PageWidth, 20);
    EXPECT_EQ(host.SavePrompts, 1);

    host.SaveAnswer = SavePromptAnswer::Yes;
    host.File = folder / "kept.volf";
    NewPage(3, 3);
    EXPECT_EQ(editor.Document.PageWidth, 3);
    EXPECT_TRUE(std::filesystem::exists(folder / "kept.volf"));

    AddLayerCommand(editor);
    host.SaveAnswer = SavePromptAnswer::No;
    OpenFile(Picture("c.png", 9, 9));
    EXPECT_EQ(editor.Document.PageWidth, 9);
    EXPECT_EQ(editor.Document.LayerCount(), 1);
    EXPECT_FALSE(editor.Document.Modified);
    EXPECT_EQ(host.SavePrompts, 3);
}

TEST_F(DocumentCommands, ACancelledFileDialogChangesNothing) {
    NewPage(20, 20);
    host.File.clear();
    Open(editor);
    Import(editor);
    EXPECT_FALSE(Save(editor));
    EXPECT_EQ(editor.Document.LayerCount(), 1);
    EXPECT_TRUE(editor.DocumentExists);
    EXPECT_EQ(editor.Title, "Varnel Orbelle - Project *");
}

TEST_F(DocumentCommands, SavingAsksBeforeItReplacesAFileAndSaveAsForgetsACancelledPath) {
    NewPage(20, 20);
    graphics::WriteFile(folder / "there.volf", std::vector<std::uint8_t>(1));
    host.File = folder / "there.volf";
    host.ConfirmAnswer = false;
    EXPECT_FALSE(Save(editor));
    EXPECT_THAT(host.Questions, ElementsAre("Warning: Image already exists, overwrite it?"));
    EXPECT_EQ(std::filesystem::file_size(folder / "there.volf"), 1U);
    EXPECT_EQ(editor.Document.DocumentPath, folder / "there.volf");
    EXPECT_TRUE(Save(editor));  // the refused name stayed, and is not asked for again
    host.File.clear();
    EXPECT_FALSE(SaveAs(editor));
    EXPECT_TRUE(editor.Document.DocumentPath.empty());
}

TEST_F(DocumentCommands, WorkThatCouldNotBeSavedStaysMarkedAsChanged) {
    NewPage(20, 20);
    AddLayerCommand(editor);
    host.File = folder / "no/such/folder.volf";
    EXPECT_FALSE(Save(editor));
    EXPECT_TRUE(editor.Document.Modified);
    ASSERT_EQ(host.Messages.size(), 1U);
    EXPECT_THAT(host.Messages[0], HasSubstr("no/such/folder.volf"));
}

TEST_F(DocumentCommands, AHandedOverPathLosesItsFirstAndLastCharacter) {
    const std::string path = Picture("a.png", 6, 6).string();
    ShellOpenFile(editor, '"' + path + "\"  ");
    EXPECT_EQ(editor.Document.PageWidth, 6);
    host.Messages.clear();
    ShellOpenFile(editor, path);
    ASSERT_EQ(host.Messages.size(), 1U);
    EXPECT_THAT(host.Messages[0], HasSubstr(path.substr(1, path.size() - 2) + ": "));
    ShellOpenFile(editor, "");
    EXPECT_EQ(host.Messages.size(), 2U);
}

TEST_F(DocumentCommands, ADroppedDocumentAsksForChangedWork) {
    NewPage(20, 20);
    host.File = folder / "a.volf";
    Save(editor);
    AddLayerCommand(editor);
    host.SaveAnswer = SavePromptAnswer::Cancel;
    ImportFile(editor, folder / "a.volf");
    EXPECT_EQ(host.SavePrompts, 1);
    EXPECT_EQ(editor.Document.LayerCount(), 2);
}

}  // namespace
}  // namespace orbelle::editing
