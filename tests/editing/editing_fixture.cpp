#include "editing_fixture.h"

#include "editing/adjust_sliders.h"
#include "editing/clipboard_commands.h"
#include "editing/layer_bar.h"
#include "editing/selection_commands.h"
#include "editing/stack_commands.h"
#include "editing/style_commands.h"
#include "editing/tips.h"
#include "editing/undo_commands.h"

namespace orbelle::editing {
std::vector<NamedCommand> LayerCommands() {
    // A drag of a slider.
    const auto drag = [](auto press, auto change, int to, auto release) {
        return [=](Editor& editor) {
            press(editor);
            change(editor, to);
            release(editor);
        };
    };
    const auto order = [](LayerOrder to) { return [=](Editor& e) { SetLayerOrder(e, to); }; };
    const auto turn = [](FlipRotate mode) { return [=](Editor& e) { FlipRotateLayer(e, mode); }; };
    const auto adjustment = [&](Adjustment kind) {
        return drag(
            PressAdjustment, [=](Editor& e, int to) { ChangeAdjustment(e, kind, to); }, 80,
            [=](Editor& e) { ReleaseAdjustment(e, kind); });
    };
    const auto fold = [](filters::Fold how) { return [=](Editor& e) { Origami(e, how); }; };
    const auto key = [](SceneKey which) { return [=](Editor& e) { KeyDownScene(e, which); }; };
    return {
        {"to front", order(LayerOrder::ToFront)},
        {"to back", order(LayerOrder::ToBack)},
        {"back one", order(LayerOrder::BackOne)},
        {"forward one", order(LayerOrder::ForwardOne)},
        {"flip", turn(FlipRotate::FlipHorizontal)},
        {"turn", turn(FlipRotate::Rotate90Cw)},
        {"delete layer", DeleteLayer},
        {"merge", MergeDown},
        {"the bar's remove", PressRemoveLayer},
        {"the bar's hide", PressHideLayer},
        {"the bar's merge", PressMergeDown},
        {"copy", CopyToClipboard},
        {"cut", CutToClipboard},
        {"delete", DeleteSelected},
        {"delete selection", DeleteSelection},
        {"opacity", drag(PressOpacity, ChangeOpacity, 30, ReleaseOpacity), tips::Adjusted},
        {"hue", adjustment(Adjustment::Hue), tips::Adjusted},
        {"contrast", adjustment(Adjustment::Contrast), tips::Adjusted},
        {"scale", drag(PressScale, ChangeScale, 60, ReleaseScale), tips::Adjusted},
        {"crystal", Crystal, tips::Crystal},
        {"vista", Vista, tips::Vista},
        {"fresh", Fresh, tips::Vista},
        {"fold", fold(filters::Fold::Vertical), tips::Crystal},
        {"fold across", fold(filters::Fold::Horizontal), tips::Crystal},
        {"reflection", Reflection, tips::Reflection},
        {"shade", Shade, tips::Shade},
        {"ios", Ios, tips::Ios},
        {"shadow", DropShadow},
        {"mac", Mac, tips::Adjusted},
        {"irradiation", Irradiation, tips::Adjusted},
        {"blur", Blur},
        {"sharpen", Sharpen},
        {"left key", key(SceneKey::Left)},
        {"delete key", key(SceneKey::Delete)},
    };
}

}  // namespace orbelle::editing
