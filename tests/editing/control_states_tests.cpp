#include "editing/control_states.h"

#include "editing/buttons.h"
#include "editing/layer_bar.h"
#include "editing/layer_commands.h"
#include "editing/selection_commands.h"
#include "editing/stack_commands.h"
#include "editing/undo_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using ::testing::ElementsAre;

class ControlStatesTest : public EditingTest {
protected:
    // A sign a topic, or one for each of its commands when they differ. The topics, in the order of
    // CommandId: Save, Save As, Export; Undo, Redo; Cut, Copy, Paste, Delete; Select All; Deselect,
    // Invert; Merge Down; flips and turns; Back One, Forward One, To Back, To Front; Set Order;
    // Add, Remove, Hide; Disabled, Hot; the other styles; tools, mirrors; Zoom In, Out; Original
    // Size, Fit in Whole Steps; background.
    std::string States() const {
        std::string text;
        int next = 0;
        for (const int topic : {3, 2, 4, 1, 2, 1, 4, 4, 1, 3, 2, 12, 2, 2, 2, 1}) {
            std::string signs;
            for (int i = 0; i < topic; ++i)
                signs += editor.States.IsEnabled(static_cast<CommandId>(next++)) ? '+' : '-';
            const bool alike = signs.find_first_not_of(signs[0]) == std::string::npos;
            text.append(text.empty() ? "" : " ").append(alike ? signs.substr(0, 1) : signs);
        }
        EXPECT_EQ(next, static_cast<int>(CommandId::Count));
        return text;
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

    void Copy() {
        recorder.Copied = testing::FilledPicture(1, 1, kBlue);
        Show();
    }

    // The numbers of a bar's buttons that are so.
    template <typename Bar>
    static std::vector<int> Buttons(const Bar& bar, bool ButtonState::*quality) {
        std::vector<int> numbers;
        for (std::size_t i = 0; i < bar.size(); ++i)
            if (bar[i].*quality)
                numbers.push_back(static_cast<int>(i));
        return numbers;
    }
};

TEST_F(ControlStatesTest, FollowTheSituation) {
    const struct {
        const char* Situation;
        std::function<void()> SetUp;
        const char* States;
    } rows[] = {
        {"a picture to paste, no document", [&] { Copy(); }, "- - - - - - - - - - - - - - - -"},
        {"a new one", [&] { NewStack(1, 0); }, "+ - ++-+ + - - + - - + + + + + + +"},
        {"and a picture to paste", [&] { NewStack(1, 0), Copy(); },
         "+ - + + - - + - - + + + + + + +"},
        {"a selection", [&] { NewStack(1, 0), Do(SelectAll); },
         "+ - ++-+ + + - + - - + + + + + + +"},
        {"the top of two", [&] { NewStack(2, 1); }, "+ - ++-+ + - + + +-+- + + + + + + + +"},
        {"the bottom of two", [&] { NewStack(2, 0); }, "+ - ++-+ + - - + -+-+ + + + + + + + +"},
        {"the middle of three", [&] { NewStack(3, 1); }, "+ - ++-+ + - + + + + + + + + + + +"},
        {"hidden", [&] { NewStack(3, 1), HideLayer(1); }, "+ - - + - - - - - + + - + + + +"},
        {"over hidden", [&] { NewStack(2, 1), HideLayer(0); },
         "+ - ++-+ + - + + +-+- + + + + + + + +"},
        {"a plate", [&] { NewStack(2, 1), Layer(1).ClipNextLayer = true, Show(); },
         "+ - - + - + - - + + + + + + + +"},
        {"under a plate", [&] { NewStack(2, 0), Layer(1).ClipNextLayer = true, Show(); },
         "+ - ++-+ + - - + -+-+ + + + + + + + +"},
        {"none selected", [&] { NewStack(2, 1), SelectNone(); },
         "+ - - + - - - - - +-- + - + + + +"},
        {"no layer", [&] { NewStack(1, 0), Do(DeleteLayer); },
         "- +- - + - - - - - +-- - - + + + +"},
        {"undone", [&] { NewStack(1, 0), Do(PressAddLayer), Do(Undo); },
         "+ -+ ++-+ + - - + - - + + + + + + +"},
        {"deleting undone", [&] { NewStack(2, 1), Do(DeleteLayer), Do(Undo); },
         "+ -+ ++-+ + - + + +-+- + + + + + + + +"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Situation);
        editor.DocumentExists = false;
        editor.Page() = {};
        editor.History.ClearHistory();
        recorder.Copied = {};
        row.SetUp();
        EXPECT_EQ(States(), row.States);
        const document::Page& page = editor.Page();
        EXPECT_EQ(editor.States.LayerBar[layer_buttons::Hide].Pressed,
                  page.HasSelection() && page.Selected().Visible);
        EXPECT_EQ(editor.Sliders.Opacity.Enabled, page.HasSelection());
        EXPECT_EQ(editor.Sliders.Hue.Enabled, page.HasSelection());
        EXPECT_EQ(editor.Sliders.Scale.Enabled, page.HasSelection());
        EXPECT_EQ(editor.Sliders.PageHeight.Enabled, editor.DocumentExists);
    }
}

TEST_F(ControlStatesTest, ButtonsHaveTheStatesOfTheirCommands) {
    const ControlStates& states = editor.States;
    const auto enabled = &ButtonState::Enabled;
    Show();
    EXPECT_THAT(Buttons(states.MainBar, enabled), ElementsAre(1, 2, 3, 13));
    EXPECT_THAT(Buttons(states.LayerBar, enabled), ElementsAre());
    EXPECT_THAT(Buttons(states.ToolBox, enabled), ElementsAre(1));
    NewStack(2, 1);
    EXPECT_THAT(Buttons(states.MainBar, enabled), ElementsAre(1, 2, 3, 4, 9, 10, 11, 13));
    EXPECT_THAT(Buttons(states.LayerBar, enabled), ElementsAre(1, 2, 3, 5, 6));
    EXPECT_TRUE(states.ToolBox[tool_buttons::Pencil].Enabled);
    HideLayer(1);
    EXPECT_THAT(Buttons(states.LayerBar, enabled), ElementsAre(1, 2, 3));
    Do(PressAddLayer);
    EXPECT_TRUE(states.MainBar[main_buttons::Undo].Enabled);
    Do(Undo);
    EXPECT_FALSE(states.MainBar[main_buttons::Undo].Enabled);
    EXPECT_TRUE(states.MainBar[main_buttons::Redo].Enabled);
}

TEST_F(ControlStatesTest, TheBarsPressWhatIsInUse) {
    OpenPage(8, 8);
    const auto pressed = &ButtonState::Pressed;
    const struct {
        Tool InUse;
        int Button;
        bool LineWidth, ColorOpacity;
    } tools[] = {
        {Tool::Move, 1, false, false},          {Tool::SelectRectangle, 2, false, false},
        {Tool::SelectEllipse, 2, false, false}, {Tool::SelectPolygon, 2, false, false},
        {Tool::Pencil, 4, false, true},         {Tool::Line, 5, true, true},
        {Tool::Ellipse, 6, true, true},         {Tool::FilledEllipse, 7, false, true},
        {Tool::Rectangle, 8, true, true},       {Tool::FilledRectangle, 9, false, true},
        {Tool::ColorPick, 11, false, true},     {Tool::PencilEraser, 12, false, false},
        {Tool::BrushEraser, 12, false, false},
    };
    for (const auto& row : tools) {
        editor.Tools.InUse = row.InUse;
        Show();
        EXPECT_THAT(Buttons(editor.States.ToolBox, pressed), ElementsAre(row.Button));
        EXPECT_EQ(editor.Sliders.LineWidth.Enabled, row.LineWidth) << row.Button;
        EXPECT_EQ(editor.Sliders.ColorOpacity.Enabled, row.ColorOpacity) << row.Button;
    }
    editor.Tools.FillKind = FillKind::VerticalGradient;
    editor.Tools.SelectionKind = Tool::SelectPolygon;
    editor.Tools.EraserKind = Tool::BrushEraser;
    Show();
    EXPECT_THAT(Buttons(editor.States.FillBar, pressed), ElementsAre(3));
    EXPECT_THAT(Buttons(editor.States.SelectionBar, pressed), ElementsAre(3));
    EXPECT_THAT(Buttons(editor.States.EraserBar, pressed), ElementsAre(1));
}

}  // namespace
}  // namespace orbelle::editing
