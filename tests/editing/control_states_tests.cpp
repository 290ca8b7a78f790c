#include "editing/control_states.h"

#include "editing/buttons.h"
#include "editing/clipboard_commands.h"
#include "editing/layer_bar.h"
#include "editing/layer_commands.h"
#include "editing/stack_commands.h"
#include "editing/style_commands.h"
#include "editing/tool_palette.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

class ControlStatesTest : public EditingTest {
protected:
    // One sign a command, in the order of CommandId, parted by topic: Save, Save As, Export; Undo,
    // Redo; Cut, Copy, Paste, Delete; Merge Down; flips and turns; Back One, Forward One, To Back,
    // To Front; Set Order; Add, Remove, Hide; Disabled, Hot; the other styles; tools; Zoom In, Out;
    // Original Size; background.
    std::string States() const {
        std::string signs;
        int next = 0;
        for (const int topic : {3, 2, 4, 1, 4, 4, 1, 3, 2, 12, 1, 2, 1, 1}) {
            signs += signs.empty() ? "" : " ";
            for (int i = 0; i < topic; ++i)
                signs += editor.States.IsEnabled(static_cast<CommandId>(next++)) ? '+' : '-';
        }
        EXPECT_EQ(next, static_cast<int>(CommandId::Count));
        return signs;
    }

    // Buttons have the states of their commands.
    void CheckButtons() {
        using enum CommandId;
        const ControlStates& states = editor.States;
        const struct {
            ButtonState Button;
            bool Enabled;
        } buttons[] = {
            {states.MainBar[main_buttons::New], true},
            {states.MainBar[main_buttons::Open], true},
            {states.MainBar[main_buttons::Import], true},
            {states.MainBar[main_buttons::Website], true},
            {states.MainBar[main_buttons::Save], states.IsEnabled(Save)},
            {states.MainBar[main_buttons::Undo], states.IsEnabled(CommandId::Undo)},
            {states.MainBar[main_buttons::Redo], states.IsEnabled(CommandId::Redo)},
            {states.MainBar[main_buttons::ZoomIn], states.IsEnabled(CommandId::ZoomIn)},
            {states.MainBar[main_buttons::ZoomOut], states.IsEnabled(CommandId::ZoomOut)},
            {states.MainBar[main_buttons::OriginalSize], editor.DocumentExists},
            {states.LayerBar[layer_buttons::Add], states.IsEnabled(AddLayer)},
            {states.LayerBar[layer_buttons::Remove], states.IsEnabled(RemoveLayer)},
            {states.LayerBar[layer_buttons::Hide], states.IsEnabled(HideLayer)},
            {states.LayerBar[layer_buttons::SetOrder], states.IsEnabled(SetOrder)},
            {states.LayerBar[layer_buttons::MergeDown], states.IsEnabled(CommandId::MergeDown)},
            {states.ToolBox[tool_buttons::Move], true},
            {states.ToolBox[tool_buttons::Pencil], states.IsEnabled(ChooseTool)},
            {states.ToolBox[tool_buttons::Eraser], states.IsEnabled(ChooseTool)},
        };
        for (const auto& [button, enabled] : buttons)
            EXPECT_EQ(button.Enabled, enabled) << &button - &buttons[0].Button;
        const document::Page& page = editor.Page();
        EXPECT_EQ(states.LayerBar[layer_buttons::Hide].Pressed,
                  page.HasSelection() && page.Selected().Visible);
        EXPECT_EQ(editor.Sliders.Opacity.Enabled, page.HasSelection());
        EXPECT_EQ(editor.Sliders.Hue.Enabled, page.HasSelection());
        EXPECT_EQ(editor.Sliders.Scale.Enabled, page.HasSelection());
        EXPECT_EQ(editor.Sliders.PageHeight.Enabled, editor.DocumentExists);
        EXPECT_TRUE(editor.Sliders.BrushSize.Enabled && editor.Sliders.BrushOpacity.Enabled);
    }

    void NewStack(int layers, int selected) {
        OpenPage(8, 8);
        while (editor.Page().LayerCount() < layers)
            PutLayer(testing::FilledPicture(2, 2, kBlue), 0, 0);
        Do(SelectLayer, selected);
    }

    void HideLayer(int index) {
        Layer(index).Visible = false;
        Show();
    }
};

TEST_F(ControlStatesTest, FollowTheSituation) {
    const struct {
        const char* Situation;
        std::function<void()> SetUp;
        const char* States;
    } rows[] = {
        {"no document", [] {}, "--- -- ---- - ---- ---- - --- -- ------------ - -- - -"},
        {"no document, a picture to paste",
         [&] {
             recorder.Copied = testing::FilledPicture(1, 1, kBlue);
             Show();
         },
         "--- -- ---- - ---- ---- - --- -- ------------ - -- - -"},
        {"a new one", [&] { NewStack(1, 0); },
         "+++ -- ++-+ - ++++ ---- - +++ ++ ++++++++++++ + ++ + +"},
        {"and a picture to paste",
         [&] {
             NewStack(1, 0);
             recorder.Copied = testing::FilledPicture(1, 1, kBlue);
             Show();
         },
         "+++ -- ++++ - ++++ ---- - +++ ++ ++++++++++++ + ++ + +"},
        {"the top of two", [&] { NewStack(2, 1); },
         "+++ -- ++-+ + ++++ +-+- + +++ ++ ++++++++++++ + ++ + +"},
        {"the bottom of two", [&] { NewStack(2, 0); },
         "+++ -- ++-+ - ++++ -+-+ + +++ ++ ++++++++++++ + ++ + +"},
        {"the middle of three", [&] { NewStack(3, 1); },
         "+++ -- ++-+ + ++++ ++++ + +++ ++ ++++++++++++ + ++ + +"},
        {"hidden", [&] { NewStack(3, 1), HideLayer(1); },
         "+++ -- ---- - ---- ---- - +++ ++ ------------ + ++ + +"},
        {"over a hidden one", [&] { NewStack(2, 1), HideLayer(0); },
         "+++ -- ++-+ + ++++ +-+- + +++ ++ ++++++++++++ + ++ + +"},
        {"a plate", [&] { NewStack(2, 1), Layer(1).ClipNextLayer = true, Show(); },
         "+++ -- ---- + ---- ---- + +++ ++ ++++++++++++ + ++ + +"},
        {"under a plate", [&] { NewStack(2, 0), Layer(1).ClipNextLayer = true, Show(); },
         "+++ -- ++-+ - ++++ -+-+ + +++ ++ ++++++++++++ + ++ + +"},
        {"none selected", [&] { NewStack(2, 1), SelectNone(); },
         "+++ -- ---- - ---- ---- - +-- ++ ------------ + ++ + +"},
        {"no layer left", [&] { NewStack(1, 0), Do(DeleteLayer); },
         "--- +- ---- - ---- ---- - +-- -- ------------ + ++ + +"},
        {"a step", [&] { NewStack(1, 0), Do(PressAddLayer); },
         "+++ +- ++-+ + ++++ +-+- + +++ ++ ++++++++++++ + ++ + +"},
        {"undone", [&] { NewStack(1, 0), Do(PressAddLayer), Do(Undo); },
         "+++ -+ ++-+ - ++++ ---- - +++ ++ ++++++++++++ + ++ + +"},
        {"done again", [&] { NewStack(1, 0), Do(PressAddLayer), Do(Undo), Do(Redo); },
         "+++ +- ++-+ + ++++ +-+- + +++ ++ ++++++++++++ + ++ + +"},
        {"deleting undone", [&] { NewStack(2, 1), Do(DeleteLayer), Do(Undo); },
         "+++ -+ ++-+ + ++++ +-+- + +++ ++ ++++++++++++ + ++ + +"},
        {"the largest zoom", [&] { NewStack(1, 0), SetZoom(20); },
         "+++ -- ++-+ - ++++ ---- - +++ ++ ++++++++++++ + -+ + +"},
        {"the least", [&] { NewStack(1, 0), SetZoom(0.2 + 1e-9); },
         "+++ -- ++-+ - ++++ ---- - +++ ++ ++++++++++++ + +- + +"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Situation);
        editor.DocumentExists = false;
        editor.Page() = {};
        editor.History.ClearHistory();
        recorder.Copied = {};
        row.SetUp();
        EXPECT_EQ(States(), row.States);
        CheckButtons();
    }
}

TEST_F(ControlStatesTest, TheBarsPressWhatIsInUse) {
    OpenPage(8, 8);
    const auto pressed = [](const auto& bar) {
        std::vector<int> numbers;
        for (std::size_t i = 0; i < bar.size(); ++i)
            if (bar[i].Pressed)
                numbers.push_back(static_cast<int>(i));
        return numbers;
    };
    const struct {
        Tool InUse;
        int Button;
        bool LineWidth, ColorOpacity;
    } tools[] = {
        {Tool::Move, 1, false, false},           {Tool::SelectRectangle, 2, false, false},
        {Tool::SelectEllipse, 2, false, false},  {Tool::SelectPolygon, 2, false, false},
        {Tool::Pencil, 4, false, true},          {Tool::Line, 5, true, true},
        {Tool::Ellipse, 6, true, true},          {Tool::FilledEllipse, 7, false, true},
        {Tool::Rectangle, 8, true, true},        {Tool::FilledRectangle, 9, false, true},
        {Tool::ColorPick, 11, false, true},      {Tool::PencilEraser, 12, false, false},
        {Tool::BrushEraser, 12, false, false},
    };
    for (const auto& row : tools) {
        editor.Tools.InUse = row.InUse;
        Show();
        EXPECT_THAT(pressed(editor.States.ToolBox), ::testing::ElementsAre(row.Button));
        EXPECT_EQ(editor.Sliders.LineWidth.Enabled, row.LineWidth) << row.Button;
        EXPECT_EQ(editor.Sliders.ColorOpacity.Enabled, row.ColorOpacity) << row.Button;
    }
    editor.Tools.FillKind = FillKind::VerticalGradient;
    editor.Tools.SelectionKind = Tool::SelectPolygon;
    editor.Tools.EraserKind = Tool::BrushEraser;
    Show();
    EXPECT_THAT(pressed(editor.States.FillBar), ::testing::ElementsAre(3));
    EXPECT_THAT(pressed(editor.States.SelectionBar), ::testing::ElementsAre(3));
    EXPECT_THAT(pressed(editor.States.EraserBar), ::testing::ElementsAre(1));
}

}  // namespace
}  // namespace orbelle::editing
