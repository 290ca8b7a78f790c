// Layers, their styles, undo and redo.
#include "cli/verb_table.h"
#include "editing/adjust_sliders.h"
#include "editing/layer_bar.h"
#include "editing/layer_commands.h"
#include "editing/style_commands.h"
#include "editing/undo_commands.h"

namespace orbelle::cli {
namespace {

using editing::CommandId;
using editing::Editor;
using editing::Sliders;

struct Style {
    std::string_view Name;
    CommandId Command;
    void (*Run)(Editor&);
};

// By the names of the command line, in the order of the Style menu.
constexpr Style kStyles[] = {
    {"disabled", CommandId::DisabledState, editing::DisabledState},
    {"hot", CommandId::HotState, editing::HotState},
    {"fresh", CommandId::Fresh, editing::Fresh},
    {"ios", CommandId::Ios, editing::Ios},
    {"origami-vertical", CommandId::Origami,
     [](Editor& editor) { Origami(editor, filters::Fold::Vertical); }},
    {"origami-horizontal", CommandId::Origami,
     [](Editor& editor) { Origami(editor, filters::Fold::Horizontal); }},
    {"mac", CommandId::Mac, editing::Mac},
    {"vista", CommandId::Vista, editing::Vista},
    {"crystal", CommandId::Crystal, editing::Crystal},
    {"blur", CommandId::Blur, editing::Blur},
    {"sharpen", CommandId::Sharpen, editing::Sharpen},
    {"irradiation", CommandId::Irradiation, editing::Irradiation},
    {"shade", CommandId::Shade, editing::Shade},
    {"reflection", CommandId::Reflection, editing::Reflection},
    {"shadow", CommandId::DropShadow, editing::DropShadow},
};

Action ReadSelect(Words& words) {
    return [layer = words.Integer("N", 0)](Workspace& workspace) {
        RequireLayer(workspace, layer);
        workspace.Run([=](Editor& editor) { SelectLayer(editor, layer); });
    };
}

void AddLayer(Workspace& workspace) {
    RequireDocument(workspace);
    workspace.Run(editing::PressAddLayer);
}

// A slider, and the three parts of a drag.
struct SliderDrag {
    editing::Slider Sliders::*Slider;
    void (*Press)(Editor&);
    void (*Change)(Editor&, int value);
    void (*Release)(Editor&);
};

Action ReadDrag(Words& words, const SliderDrag& drag) {
    const editing::Slider range = Sliders().*drag.Slider;
    return
        [values = words.Integers("V", range.Minimum, range.Maximum), drag](Workspace& workspace) {
            RequireSelectedLayer(workspace);
            workspace.Run(drag.Press);
            for (const int value : values)
                workspace.RunDuringDrag([&](Editor& editor) { drag.Change(editor, value); });
            workspace.RunDuringDrag(drag.Release);
        };
}

template <editing::Adjustment kAdjustment>
Action ReadAdjustment(Words& words, editing::Slider Sliders::*slider) {
    return ReadDrag(
        words, {slider, [](Editor& editor) { PressAdjustment(editor, kAdjustment); },
                [](Editor& editor, int value) { ChangeAdjustment(editor, kAdjustment, value); },
                [](Editor& editor) { ReleaseAdjustment(editor, kAdjustment); }});
}

Action ReadOpacity(Words& words) {
    return ReadDrag(words, {&Sliders::Opacity, editing::PressOpacity, editing::ChangeOpacity,
                            editing::ReleaseOpacity});
}

Action ReadScale(Words& words) {
    return ReadDrag(
        words, {&Sliders::Scale, editing::PressScale, editing::ChangeScale, editing::ReleaseScale});
}

Action ReadHue(Words& words) {
    return ReadAdjustment<editing::Adjustment::Hue>(words, &Sliders::Hue);
}

Action ReadSaturation(Words& words) {
    return ReadAdjustment<editing::Adjustment::Saturation>(words, &Sliders::Saturation);
}

Action ReadBrightness(Words& words) {
    return ReadAdjustment<editing::Adjustment::Brightness>(words, &Sliders::Brightness);
}

Action ReadContrast(Words& words) {
    return ReadAdjustment<editing::Adjustment::Contrast>(words, &Sliders::Contrast);
}

Action ReadStyle(Words& words) {
    return [&style = words.Entry("NAME", kStyles)](Workspace& workspace) {
        if (!workspace.Editor.States.IsEnabled(style.Command)) {
            RequireSelectedLayer(workspace);
            throw Failure("the selected layer is hidden");
        }
        workspace.Run(style.Run);
    };
}

void Undo(Workspace& workspace) {
    if (!workspace.Editor.States.IsEnabled(CommandId::Undo))
        throw Failure("there is nothing to undo");
    workspace.Run(editing::Undo);
}

void Redo(Workspace& workspace) {
    if (!workspace.Editor.States.IsEnabled(CommandId::Redo))
        throw Failure("there is nothing to redo");
    workspace.Run(editing::Redo);
}

constexpr Verb kVerbs[] = {
    {"select", "N", "click on the row of layer N; 0 is the bottom", ReadSelect,
     "open leaf.volf select 0 style blur save leaf.volf"},
    {"add-layer", "", "an empty layer above the selected one", ReadNothing<AddLayer>,
     "open leaf.volf add-layer save leaf.volf"},
    {"opacity", "V...", "one drag of the opacity slider through each V (0 to 100)", ReadOpacity,
     "open leaf.png opacity 50 export pale.png"},
    {"scale", "V...", "one drag of the scale slider (0 to 100, 50 is rest)", ReadScale,
     "open leaf.png scale 40 export smaller.png"},
    {"hue", "V...", "one drag of the hue slider (0 to 100)", ReadHue,
     "open leaf.png hue 70 export other.png"},
    {"saturation", "V...", "one drag of the saturation slider (0 to 100)", ReadSaturation,
     "open leaf.png saturation 20 export dull.png"},
    {"brightness", "V...", "one drag of the brightness slider (0 to 100)", ReadBrightness,
     "open leaf.png brightness 60 export light.png"},
    {"contrast", "V...", "one drag of the contrast slider (0 to 100)", ReadContrast,
     "open leaf.png contrast 70 export hard.png"},
    {"style", "NAME",
     "disabled hot fresh ios origami-vertical origami-horizontal mac vista crystal blur sharpen "
     "irradiation shade reflection shadow",
     ReadStyle, "open leaf.png style crystal export leaf.ico",
     "disabled hot fresh ios origami-vertical origami-horizontal mac vista crystal blur sharpen "
     "irradiation shade reflection shadow"},
    {"undo", "", "take back one step", ReadNothing<Undo>,
     "open leaf.png style crystal undo style mac export leaf.ico"},
    {"redo", "", "do again what was taken back", ReadNothing<Redo>,
     "open leaf.png style mac undo redo export leaf.ico"},
};

}  // namespace

std::span<const Verb> LayerVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
