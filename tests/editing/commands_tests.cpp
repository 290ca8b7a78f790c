// What verbs don't tell of commands: tips, labels, another program's clipboard, damaged files, and
// that nothing happens without a selected layer.
#include "editing/adjust_sliders.h"
#include "editing/clipboard_commands.h"
#include "editing/layer_bar.h"
#include "editing/layer_commands.h"
#include "editing/page_commands.h"
#include "editing/selection_commands.h"
#include "editing/stack_commands.h"
#include "editing/style_commands.h"
#include "editing/tips.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "editing_fixture.h"
#include "graphics/file_io.h"
#include "support/temporary_folder.h"

namespace orbelle::editing {
namespace {

using testing::FilledPicture;

class Commands : public EditingTest {
protected:
    Commands() {
        OpenPage(24, 20);
        PutLayer(FilledPicture(6, 4, kBlue), 3, 4);
        PutLayer(FilledPicture(5, 5, kBlue), 6, 7);
    }
};

TEST_F(Commands, GiveATipThatFits) {
    for (const NamedCommand& command : LayerCommands()) {
        Do(NewDocument, 24, 20);
        EXPECT_EQ(recorder.LastTip(), tips::NewOrOpened);
        Do(ImportPicture, FilledPicture(20, 10, kBlue), "");
        EXPECT_EQ(recorder.LastTip(), tips::Imported);
        EXPECT_TRUE(recorder.Last.Tip->AboutLayers);
        Do(command.Run);
        EXPECT_EQ(recorder.LastTip(), command.Tip) << command.Name;
    }
}

TEST_F(Commands, NameTheirStepsForUndoAndRedo) {
    const auto drag = [this](Tool tool) {
        return [this, tool](Editor& e) {
            e.Tools.InUse = tool;
            for (const auto& [handle, x] :
                 {std::pair(&MoveScene, 7.0F), {PressScene, 7.0F}, {MoveScene, 9.0F}})
                handle(e, OnPage(x, 8));
            ReleaseScene(e, OnPage(9, 9));
        };
    };
    const auto selected = [](const Command& command) {
        return [=](Editor& e) {
            e.Selection.AddFrame({5, 6, 4, 3}, document::FrameShape::Rectangle);
            command(e);
        };
    };
    std::vector<NamedCommand> commands = LayerCommands();
    commands.insert(
        commands.end(),
        {{"add", PressAddLayer, "Add Layer"},
         {"import", [](Editor& e) { ImportPicture(e, FilledPicture(3, 3, kBlue)); }, "Import"},
         {"paste", [](Editor& e) { CopyToClipboard(e), PasteFromClipboard(e); }, "Paste"},
         {"page size", [](Editor& e) { SetPageSize(e, 9, 8); }, "Page Size"},
         {"background", [](Editor& e) { SetPageBackground(e, kBlue); }, "Page Background"},
         {"cut selection", selected(CutToClipboard), "Cut"},
         {"delete selection", selected(DeleteSelected), "Delete Selection"},
         {"lift", selected([this](Editor& e) { PressScene(e, OnPage(7, 8)); }), "Move Selection"},
         {"move", drag(Tool::Move), "Move Layer"},
         {"pencil", drag(Tool::Pencil), "Pencil"},
         {"line", drag(Tool::Line), "Line"},
         {"rectangle", drag(Tool::Rectangle), "Rectangle"},
         {"ellipse", drag(Tool::Ellipse), "Ellipse"},
         {"filled rectangle", drag(Tool::FilledRectangle), "Filled Rectangle"},
         {"filled ellipse", drag(Tool::FilledEllipse), "Filled Ellipse"},
         {"pencil eraser", drag(Tool::PencilEraser), "Pencil Eraser"},
         {"brush eraser", drag(Tool::BrushEraser), "Brush Eraser"}});
    for (const NamedCommand& command : commands) {
        SCOPED_TRACE(command.Name);
        editor.Tools.InUse = Tool::Move;
        OpenPage(24, 20);
        PutLayer(FilledPicture(6, 4, kBlue), 3, 4);
        PutLayer(FilledPicture(5, 5, kBlue), 6, 7);
        Do(command.Run);
        const std::string name = command.Step;
        EXPECT_EQ(Steps() == 0, name.empty());
        for (int steps = Steps(); steps > 0; --steps) {
            EXPECT_EQ(editor.States.UndoName, name);
            Do(Undo);
            EXPECT_EQ(editor.States.RedoName, name);
        }
        EXPECT_EQ(editor.States.UndoName, "");
    }
}

TEST_F(Commands, MergingIntoAPlateKeepsWhatIsSeen) {
    PutOnlyLayer(FilledPicture(24, 20, 0xFFC08040), 5, -3).Opacity = 0.7F;
    Do(Ios);
    Layer(0).Rect = {2, -1, 18, 17};
    Show();
    Do(SelectLayer, 1);
    const graphics::Bitmap before = editor.Canvas;
    EXPECT_EQ(before.GetPixel(21, 5), 0U) << "beside the plate";
    Do(MergeDown);
    EXPECT_TRUE(testing::SamePixels(editor.Canvas, before));
    EXPECT_FALSE(Layer(0).ClipNextLayer);
    EXPECT_TRUE(editor.States.IsEnabled(CommandId::Cut));
}

// Also where a document came with more layers, or the history has no room.
TEST_F(Commands, A102ndLayerIsRefusedWithNothingChanged) {
    Do(CopyToClipboard);
    Do(SetLayerOrder, LayerOrder::ToBack);
    Do(Undo);
    const std::pair<const char*, Command> adders[] = {
        {"add", PressAddLayer},
        {"paste", PasteFromClipboard},
        {"import", [](Editor& e) { ImportPicture(e, FilledPicture(3, 3, kBlue)); }},
        {"lift", [this](Editor& e) { PressScene(e, OnPage(7, 8)); }}};
    const std::string refusal = "A document can't have more than 101 layers.";
    for (const int layers : {101, 150}) {
        editor.Page().Layers.resize(static_cast<std::size_t>(layers), Layer(2));
        editor.Selection.AddFrame({5, 6, 4, 3}, document::FrameShape::Rectangle);
        Show();
        const std::string before = testing::AccountOf(editor) + testing::AccountOf(recorder.Copied);
        for (const auto& [name, run] : adders) {
            EXPECT_EQ(editing::Run(editor, run).Problem(), refusal) << name;
            EXPECT_EQ(testing::AccountOf(editor) + testing::AccountOf(recorder.Copied), before)
                << name;
        }
        for (const NamedCommand& command : LayerCommands()) {
            const int steps = Steps();
            const std::string problem = editing::Run(editor, command.Run).Problem();
            EXPECT_TRUE(problem.empty() || problem == refusal) << command.Name << problem;
            EXPECT_LE(editor.Page().LayerCount(), layers) << command.Name;
            while (Steps() > steps)
                Do(Undo);
            Do(SelectLayer, layers - 1);
        }
    }
    // Room for one: a style that takes two steps makes one layer.
    editor.Page().Layers.resize(100);
    Do(SelectLayer, 50);
    Do(Crystal);
    EXPECT_EQ(editor.Page().LayerCount(), 101);
}

TEST_F(Commands, DoNothingWithoutASelectedLayer) {
    recorder.Copied = {};
    SelectNone();
    editor.Document.Modified = false;
    const std::string before = testing::AccountOf(editor);
    for (const NamedCommand& command : LayerCommands()) {
        if (std::string_view(command.Name).starts_with("the bar's"))
            continue;
        Do(command.Run);
        EXPECT_EQ(testing::AccountOf(editor), before) << command.Name;
        EXPECT_FALSE(recorder.Last.Pixels || recorder.Last.Stack) << command.Name;
        EXPECT_FALSE(IsDragging());
    }
    Do(SelectLayer, 3);
    Do(SelectLayer, -1);
    Do(PasteFromClipboard);
    EXPECT_EQ(testing::AccountOf(editor), before);
    EXPECT_FALSE(recorder.HasPicture());
}

TEST_F(Commands, OrderOfOneLayerIsNoStepAndOneWithoutRoomIsOne) {
    Do(SetLayerOrder, LayerOrder::ToFront);
    EXPECT_EQ(Steps(), 1);
    Layer(1).ScaleValue = 9;
    Do(MergeDown);
    EXPECT_EQ(Layer(1).ScaleValue, 0);
    Do(SelectLayer, 0);
    Do(MergeDown);
    EXPECT_EQ(Steps(), 3);
    OpenPage(8, 8);
    Do(SetLayerOrder, LayerOrder::ToFront);
    EXPECT_EQ(Steps(), 0);
}

// By the names of the layers, from the bottom; the selected one with a star.
TEST_F(Commands, AHandTakesLayersToOtherPlaces) {
    OpenPage(8, 8);
    editor.Page().Layers.clear();
    for (const char* name : {"a", "b", "c", "d"})
        PutLayer(testing::FilledPicture(2, 2, kBlue), 0, 0).Name = name;
    const auto stack = [&] {
        std::string names;
        for (int i = 0; i < editor.Page().LayerCount(); ++i)
            names += Layer(i).Name + (i == editor.Page().SelectedLayer ? "*" : "");
        return names;
    };
    const std::tuple<int, int, int, const char*> cases[] = {
        {0, 2, 1, "bca*d"}, {3, 1, 2, "bd*ca"},  {2, 2, 2, "bdc*a"}, {0, 4, 2, "bdc*a"},
        {4, 0, 2, "bdc*a"}, {0, -1, 2, "bdc*a"}, {0, 3, 3, "dcab*"},
    };
    for (const auto& [from, to, steps, after] : cases) {
        Do(MoveLayerTo, from, to);
        EXPECT_EQ(stack(), after);
        EXPECT_EQ(Steps(), steps);
    }
    EXPECT_EQ(editor.History.UndoName(), "Set Order");
    Do(Undo);
    EXPECT_EQ(stack(), "bdc*a");
    Layer(0).Visible = false;
    Layer(1).ClipNextLayer = true;
    for (const int fixed : {0, 1})
        Do(MoveLayerTo, fixed, 3);
    EXPECT_EQ(stack(), "bdc*a") << "as for Set Order";
}

TEST_F(Commands, LayersHaveNamesOfTheirOwn) {
    OpenPage(8, 8);
    PutLayer(testing::FilledPicture(2, 2, kBlue), 0, 0);
    Do(RenameLayer, 1, " Icon 2 ");
    Do(RenameLayer, 2, "Sky");
    EXPECT_EQ(Steps(), 0) << "it is called so already, and there is no third";
    Do(RenameLayer, 1, " Sky\n");
    EXPECT_EQ(NameOfLayer(editor.Page(), 1), "Sky");
    EXPECT_EQ(editor.History.UndoName(), "Rename Layer");
    EXPECT_TRUE(editor.Document.Modified);
    Do(RenameLayer, 1, "Sky");
    EXPECT_EQ(Steps(), 1);

    Do(CopyToClipboard);
    Do(PasteFromClipboard);
    EXPECT_EQ(NameOfLayer(editor.Page(), 2), "Sky") << "a copy of it";
    Do(PressAddLayer);
    EXPECT_EQ(NameOfLayer(editor.Page(), 3), "Icon 4");
    Do(SelectLayer, 1);
    Do(DropShadow);
    EXPECT_EQ(NameOfLayer(editor.Page(), 1), "Icon 2") << "the shadow";
    EXPECT_EQ(NameOfLayer(editor.Page(), 2), "Sky");
    Do(RenameLayer, 2, "");
    EXPECT_EQ(NameOfLayer(editor.Page(), 2), "Icon 3");
    Do(Undo);
    EXPECT_EQ(NameOfLayer(editor.Page(), 2), "Sky");
    Do(SelectLayer, 2);
    Do(MergeDown);
    EXPECT_EQ(NameOfLayer(editor.Page(), 1), "Sky") << "its shadow has none";
    Do(RenameLayer, 0, "Ground");
    Do(MergeDown);
    EXPECT_EQ(NameOfLayer(editor.Page(), 0), "Ground");
}

TEST_F(Commands, AnEyeHidesItsLayerAndLeavesTheSelectedOne) {
    OpenPage(8, 8);
    PutLayer(testing::FilledPicture(2, 2, kBlue), 0, 0);
    Do(SelectAll);
    Do(PressEye, 0);
    EXPECT_FALSE(Layer(0).Visible);
    EXPECT_EQ(editor.Page().SelectedLayer, 1);
    EXPECT_TRUE(editor.Selection.Exists());
    Do(PressEye, 1);
    Do(PressEye, 2);
    EXPECT_FALSE(Layer(1).Visible);
    EXPECT_FALSE(editor.Selection.Exists());
    EXPECT_EQ(Steps(), 0);
}

TEST_F(Commands, SlidersHaveLabels) {
    const struct {
        Adjustment Kind;
        const Slider& Shown;
        int Value, Label;
    } cases[] = {{Adjustment::Hue, editor.Sliders.Hue, 70, 70},
                 {Adjustment::Saturation, editor.Sliders.Saturation, 70, 30},
                 {Adjustment::Brightness, editor.Sliders.Brightness, 70, 20},
                 {Adjustment::Contrast, editor.Sliders.Contrast, 30, -20}};
    for (const auto& c : cases) {
        Do(PressAdjustment, c.Kind);
        Step(ChangeAdjustment, c.Kind, c.Value);
        EXPECT_EQ(c.Shown.Label, c.Label);
        Step(ChangeAdjustment, c.Kind, c.Value + 100);  // brought to the end
        EXPECT_EQ(c.Shown.Value, 100);
        Step(ReleaseAdjustment, c.Kind);
    }
    EXPECT_EQ(editor.Page().Selected().Hue, 100);
    Do(SelectLayer, 0);
    Do(SelectLayer, 2);
    EXPECT_EQ(editor.Sliders.Hue.Label, 100);
    EXPECT_EQ(editor.Sliders.Contrast.Value, 100);
    EXPECT_EQ(editor.Sliders.Contrast.Label, 0);  // until the slider itself is moved

    Do(PressScale);
    Step(ChangeScale, 60);
    EXPECT_EQ(editor.Sliders.Scale.Label, 10);
    EXPECT_EQ(Layer(2).Rect, (graphics::RectF{6, 7, 15, 15}));
    EXPECT_EQ(Layer(2).Image.Width(), 5);  // until the release
    Step(ReleaseScale);
    EXPECT_EQ(editor.Sliders.Scale.Label, 0);
    EXPECT_EQ(Layer(2).Image.Width(), 15);
    for (const auto& [scale, shown] : {std::pair{-7, 43}, {-700, 0}}) {
        Layer(0).ScaleValue = scale;
        Do(SelectLayer, 0);
        EXPECT_EQ(editor.Sliders.Scale.Value, shown);
        EXPECT_EQ(editor.Sliders.Scale.Label, scale);
    }

    const graphics::Bitmap before = Layer(0).Image;
    Step(ChangeAdjustment, Adjustment::Hue, 50);  // no press
    Step(ChangeOpacity, 50);
    Step(ReleaseOpacity);
    EXPECT_TRUE(Layer(0).Image.SharesPixelsWith(before));
    EXPECT_EQ(Layer(0).Opacity, 1);
}

// Also those of a drag that undo gives up.
TEST_F(Commands, RedoShowsTheSlidersAsTheyStoodAtUndo) {
    Do(PressAdjustment, Adjustment::Hue);
    Step(ChangeAdjustment, Adjustment::Hue, 70);
    Do(Undo);
    EXPECT_EQ(editor.Sliders.Hue.Value, 0);
    Do(Redo);
    EXPECT_EQ(Layer(2).Hue, 70);
    EXPECT_EQ(editor.Sliders.Hue.Value, 70);
    EXPECT_EQ(editor.Sliders.Hue.Label, 70);
}

TEST_F(Commands, AnotherProgramsPictureArrivesOpaqueAtThePagesCorner) {
    Do(CopyToClipboard);
    EXPECT_EQ(recorder.Mark, "Orbelle");
    const graphics::Bitmap row = testing::RowOf({0x80204060, 0x00123456, kBlue});
    recorder.Put(row, "words");
    Do(PasteFromClipboard);
    const document::IconLayer& layer = Layer(3);
    // Over white: (128 x 32 + 127 x 255) / 255 = 143 and so on.
    EXPECT_EQ(layer.Image.GetPixel(0, 0), 0xFF8F9FAF);
    EXPECT_EQ(layer.Image.GetPixel(1, 0), 0xFFFFFFFF);
    EXPECT_EQ(layer.Image.GetPixel(2, 0), kBlue);
    EXPECT_EQ(layer.Rect, (graphics::RectF{0, 0, 3, 1}));
    EXPECT_EQ(layer.Region.Bounds(), layer.Rect);

    editor.ClipboardLayer.reset();  // the mark without a copy of ours
    recorder.Put(row, kClipboardMark);
    Do(PasteFromClipboard);
    EXPECT_EQ(Layer(4).Image.GetPixel(0, 0), 0xFF8F9FAF);
}

TEST_F(Commands, AnotherProgramsPictureCanBeMadeToFitThePage) {
    OpenPage(8, 8);
    Do(CopyToClipboard);
    EXPECT_TRUE(ForeignPicture(editor).IsEmpty());
    recorder.Put(FilledPicture(32, 12, 0x80204060), "words");
    const graphics::Bitmap picture = ForeignPicture(editor);
    Do(PastePicture, picture, true);
    EXPECT_EQ(Steps(), 1);
    EXPECT_EQ(Layer(1).Rect, (graphics::RectF{0, 2, 8, 3}));
    EXPECT_EQ(Layer(1).Image.GetPixel(7, 2), 0xFF8F9FAF);
    EXPECT_EQ(Layer(1).Region.Bounds(), Layer(1).Rect);
    // A smaller one is as large as it is.
    Do(PastePicture, FilledPicture(2, 3, kBlue), true);
    EXPECT_EQ(Layer(2).Rect, (graphics::RectF{3, 2, 2, 3}));
}

TEST_F(Commands, AnOpenedDocumentHasScrollBarsAndTheLayersBeforeItsDamage) {
    const testing::TemporaryFolder folder;
    const std::filesystem::path path = folder / "a.volf";
    editor.Page().Width = 300;
    Do(SaveTo, path);
    EXPECT_TRUE(recorder.Last.Title);
    std::filesystem::resize_file(path, std::filesystem::file_size(path) - 30);
    Do(NewDocument, 3, 3);
    Do([&](Editor& e) { OpenFile(e, path); });
    EXPECT_EQ(editor.Page().LayerCount(), 2);
    EXPECT_EQ(editor.Page().SelectedLayer, 1);
    EXPECT_THAT(recorder.Last.Message, ::testing::StartsWith(graphics::Utf8Of(path) + ": "));
    EXPECT_EQ(recorder.LastTip(), -1);
    EXPECT_TRUE(recorder.Last.Title);
    EXPECT_TRUE(editor.Zoom.IsAnimated);
    while (editor.Zoom.IsAnimated)
        Do(TickZoomAnimation);
    const document::ScrollBar& bar = editor.View.HorizontalScroll;
    EXPECT_TRUE(bar.Visible);
    EXPECT_EQ(bar.Max, 100);
    EXPECT_EQ(bar.Value, 50);
    EXPECT_FALSE(editor.View.VerticalScroll.Visible);
}

TEST_F(Commands, WhatAnotherProgramWritesShowsInTheStamp) {
    const testing::TemporaryFolder folder;
    const std::filesystem::path path = folder / "a.volf";
    Do(SaveTo, path);
    EXPECT_EQ(editor.Document.Stamp, graphics::StampOf(path));
    Do([&](Editor& e) { OpenFile(e, path); });
    EXPECT_EQ(editor.Document.Stamp, graphics::StampOf(path));
    EXPECT_NE(editor.Document.Stamp, graphics::FileStamp());
    Do(NewDocument, 3, 3);
    EXPECT_EQ(editor.Document.Stamp, graphics::FileStamp());
}

TEST_F(Commands, WhatAFileHoldsIsAskedWithoutFailing) {
    const testing::TemporaryFolder folder;
    const std::filesystem::path path = folder / "a.ico";
    const std::pair<std::string, int> files[] = {
        {"volf 1", 1}, {std::string("\0\0\1\0\1\0", 6), 2}, {"", 0}, {"BM", 0}};
    for (const auto& [content, kind] : files) {
        graphics::WriteFile(
            path, {reinterpret_cast<const std::uint8_t*>(content.data()), content.size()});
        EXPECT_EQ(IsDocumentFile(path), kind == 1) << content;
        EXPECT_EQ(IsIconFile(path), kind == 2) << content;
    }
    for (const std::filesystem::path& none : {folder / "missing.volf", folder.Path()})
        EXPECT_FALSE(IsDocumentFile(none) || IsIconFile(none)) << none;
}

}  // namespace
}  // namespace orbelle::editing
