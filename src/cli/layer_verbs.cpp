// Layers, their styles, undo and redo.
#include "cli/verb_table.h"
#include "editing/adjust_sliders.h"
#include "editing/layer_commands.h"
#include "editing/menu_state.h"
#include "editing/style_commands.h"
#include "editing/undo_commands.h"

namespace orbelle::cli {
namespace {

namespace main_buttons = editing::main_buttons;
namespace layer_buttons = editing::layer_buttons;

using editing::Controls;
using editing::Editor;

struct Style {
    std::string_view Name;
    editing::MenuEntry Controls::*Entry;
    void (*Run)(Editor&);
};

// By the names of the command line, in the order of the Style menu.
constexpr Style kStyles[] = {
    {"disabled", &Controls::m_Disabled, editing::DisabledState},
    {"hot", &Controls::m_Hot, editing::HotState},
    {"fresh", &Controls::m_freshstyle, editing::Fresh},
    {"ios", &Controls::m_iosstyle, editing::iOS},
    {"origami-vertical", &Controls::m_origamistyle,
     [](Editor& editor) { Origami(editor, filters::Fold::Vertical); }},
    {"origami-horizontal", &Controls::m_origamistyle,
     [](Editor& editor) { Origami(editor, filters::Fold::Horizontal); }},
    {"mac", &Controls::m_Macstyle, editing::Mac},
    {"vista", &Controls::m_Vistastyle, editing::Vista},
    {"crystal", &Controls::m_Crystal, editing::Crystal},
    {"blur", &Controls::m_Blur, editing::Blur},
    {"sharpen", &Controls::m_Sharpen, editing::Sharpen},
    {"irradiation", &Controls::m_Irradiation, editing::Irradiation},
    {"shade", &Controls::m_Shade, editing::Shade},
    {"reflection", &Controls::m_Reflection, editing::Reflection},
    {"shadow", &Controls::m_Shadow, editing::DropShadow},
};

Action ReadSelect(Words& words) {
    return [layer = words.Integer("N", 0)](Workspace& workspace) {
        RequireLayer(workspace, layer);
        editing::SelectLayer(workspace.Editor, layer);
    };
}

void AddLayer(Workspace& workspace) {
    if (!workspace.Editor.Controls.LayerBar[layer_buttons::Add].Enabled)
        throw Failure("there is no document");
    editing::AddLayerCommand(workspace.Editor);
}

// A slider, and the three parts of a drag.
struct SliderDrag {
    editing::Slider Controls::*Slider;
    void (*Press)(Editor&);
    void (*Change)(Editor&, int value);
    void (*Release)(Editor&);
};

Action ReadDrag(Words& words, const SliderDrag& drag) {
    return [values = words.Integers("V", 0, 100), drag](Workspace& workspace) {
        Editor& editor = workspace.Editor;
        if (!(editor.Controls.*drag.Slider).Enabled) {
            RequireSelectedLayer(workspace);
            throw Failure("the slider is disabled");
        }
        drag.Press(editor);
        for (const int value : values)
            drag.Change(editor, value);
        drag.Release(editor);
    };
}

template <editing::Adjustment kAdjustment>
Action ReadAdjustment(Words& words, editing::Slider Controls::*slider) {
    return ReadDrag(
        words, {slider, editing::PressAdjustment,
                [](Editor& editor, int value) { ChangeAdjustment(editor, kAdjustment, value); },
                [](Editor& editor) { ReleaseAdjustment(editor, kAdjustment); }});
}

Action ReadOpacity(Words& words) {
    return ReadDrag(words, {&Controls::Opacity, editing::PressOpacity, editing::ChangeOpacity,
                            editing::ReleaseOpacity});
}

Action ReadScale(Words& words) {
    return ReadDrag(words, {&Controls::Scale, editing::PressScale, editing::ChangeScale,
                            editing::ReleaseScale});
}

Action ReadHue(Words& words) {
    return ReadAdjustment<editing::Adjustment::Hue>(words, &Controls::Hue);
}

Action ReadSaturation(Words& words) {
    return ReadAdjustment<editing::Adjustment::Saturation>(words, &Controls::Saturation);
}

Action ReadBrightness(Words& words) {
    return ReadAdjustment<editing::Adjustment::Brightness>(words, &Controls::Brightness);
}

Action ReadContrast(Words& words) {
    return ReadAdjustment<editing::Adjustment::Contrast>(words, &Controls::Contrast);
}

Action ReadStyle(Words& words) {
    return [&style = words.Entry("NAME", kStyles)](Workspace& workspace) {
        Editor& editor = workspace.Editor;
        editing::OpenStyleMenu(editor);
        if (!(editor.Controls.*style.Entry).Enabled) {
            RequireSelectedLayer(workspace);
            throw Failure("the selected layer is hidden");
        }
        style.Run(editor);
    };
}

void Undo(Workspace& workspace) {
    if (!workspace.Editor.Controls.MainBar[main_buttons::Undo].Enabled)
        throw Failure("there is nothing to undo");
    editing::Undo(workspace.Editor);
}

void Redo(Workspace& workspace) {
    if (!workspace.Editor.Controls.MainBar[main_buttons::Redo].Enabled)
        throw Failure("there is nothing to redo");
    editing::Redo(workspace.Editor);
}

constexpr Verb kVerbs[] = {
    {"select", "N", "click on the row of layer N; 0 is the bottom", ReadSelect},
    {"add-layer", "", "an empty layer above the selected one", ReadNothing<AddLayer>},
    {"opacity", "V...", "one drag of the opacity slider through each V (0 to 100)", ReadOpacity},
    {"scale", "V...", "one drag of the scale slider (0 to 100, 50 is rest)", ReadScale},
    {"hue", "V...", "one drag of the hue slider (0 to 100)", ReadHue},
    {"saturation", "V...", "one drag of the saturation slider (0 to 100)", ReadSaturation},
    {"brightness", "V...", "one drag of the brightness slider (0 to 100)", ReadBrightness},
    {"contrast", "V...", "one drag of the contrast slider (0 to 100)", ReadContrast},
    {"style", "NAME",
     "disabled hot fresh ios origami-vertical origami-horizontal mac vista crystal blur sharpen "
     "irradiation shade reflection shadow",
     ReadStyle},
    {"undo", "", "take back one step", ReadNothing<Undo>},
    {"redo", "", "do again what was taken back", ReadNothing<Redo>},
};

}  // namespace

std::span<const Verb> LayerVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
