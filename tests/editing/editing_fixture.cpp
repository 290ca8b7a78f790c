#include "editing_fixture.h"

#include "editing/adjust_sliders.h"
#include "editing/clipboard_commands.h"
#include "editing/layer_bar.h"
#include "editing/nudge.h"
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
        return drag([=](Editor& e) { PressAdjustment(e, kind); },
                    [=](Editor& e, int to) { ChangeAdjustment(e, kind, to); }, 80,
                    [=](Editor& e) { ReleaseAdjustment(e, kind); });
    };
    const auto fold = [](filters::Fold how) { return [=](Editor& e) { Origami(e, how); }; };
    const auto key = [](SceneKey which) { return [=](Editor& e) { KeyDownScene(e, which); }; };
    return {
        {"to front", order(LayerOrder::ToFront), "To Front"},
        {"to back", order(LayerOrder::ToBack), "To Back"},
        {"back one", order(LayerOrder::BackOne), "Back One"},
        {"forward one", order(LayerOrder::ForwardOne), "Forward One"},
        {"flip", turn(FlipRotate::FlipHorizontal), "Flip Horizontal"},
        {"flip over", turn(FlipRotate::FlipVertical), "Flip Vertical"},
        {"turn", turn(FlipRotate::Rotate90Cw), "Rotate 90 CW"},
        {"turn and mirror", turn(FlipRotate::Rotate90Cww), "Rotate 90 CWW"},
        {"delete layer", DeleteLayer, "Delete Layer"},
        {"merge", MergeDown, "Merge Down"},
        {"the bar's remove", PressRemoveLayer, "Delete Layer"},
        {"the bar's hide", PressHideLayer, ""},
        {"the bar's merge", PressMergeDown, "Merge Down"},
        {"copy", CopyToClipboard, ""},
        {"cut", CutToClipboard, "Cut"},
        {"delete", DeleteSelected, "Delete Layer"},
        {"delete selection", DeleteSelection, "Delete Selection"},
        {"opacity", drag(PressOpacity, ChangeOpacity, 30, ReleaseOpacity), "Opacity",
         tips::Adjusted},
        {"hue", adjustment(Adjustment::Hue), "Hue", tips::Adjusted},
        {"saturation", adjustment(Adjustment::Saturation), "Saturation", tips::Adjusted},
        {"brightness", adjustment(Adjustment::Brightness), "Brightness", tips::Adjusted},
        {"contrast", adjustment(Adjustment::Contrast), "Contrast", tips::Adjusted},
        {"scale", drag(PressScale, ChangeScale, 60, ReleaseScale), "Scale", tips::Adjusted},
        {"crystal", Crystal, "Crystal", tips::Crystal},
        {"vista", Vista, "Vista", tips::Vista},
        {"fresh", Fresh, "Fresh", tips::Vista},
        {"fold", fold(filters::Fold::Vertical), "Origami", tips::Crystal},
        {"fold across", fold(filters::Fold::Horizontal), "Origami", tips::Crystal},
        {"reflection", Reflection, "Reflection", tips::Reflection},
        {"shade", Shade, "Shade", tips::Shade},
        {"ios", Ios, "IOS", tips::Ios},
        {"shadow", DropShadow, "Drop Shadow"},
        {"mac", Mac, "Mac", tips::Adjusted},
        {"irradiation", Irradiation, "Irradiation", tips::Adjusted},
        {"blur", Blur, "Blur"},
        {"sharpen", Sharpen, "Sharpen"},
        {"left key", key(SceneKey::Left), "Move Layer"},
        {"half a step", [](Editor& e) { NudgeHalf(e, Direction::Right); }, "Move Layer"},
        {"half a step down", [](Editor& e) { NudgeHalf(e, Direction::Down); }, "Move Layer"},
        {"delete key", key(SceneKey::Delete), "Delete Layer"},
    };
}

}  // namespace orbelle::editing
