// How a style turns into layers: over the selected layer, under it, or in place.
#pragma once

#include <optional>

#include "editing/editor.h"
#include "editing/step_names.h"
#include "filters/gloss_styles.h"

namespace orbelle::editing {

// Most overlay styles take an undo step of their own besides the one that making room takes; Vista
// does not (docs/oddities.md, "Two undo steps").
enum class OverlayUndo { TwoSteps, OneStep };

struct OverlayLayers {
    document::IconLayer& New;     // selected
    document::IconLayer& Source;  // the one below it
};

// Makes room above the selected layer. `step` is what all its undo steps are called.
OverlayLayers OpenOverlay(Editor& editor, steps::Name step,
                          OverlayUndo undo = OverlayUndo::TwoSteps);

// The style's picture, at its place on the source picture, becomes the new layer. Without one the
// layer stays the blank page that making room left.
void PlaceStylePicture(document::IconLayer& layer,
                       const std::optional<filters::StylePicture>& style);

// Builds the new layer's region and moves it from the source's coordinates to the page.
void FinishOverlay(const OverlayLayers& layers);

struct UnderlayLayers {
    document::IconLayer& New;           // selected; still a copy of the source's record
    const document::IconLayer& Source;  // the one above it, unchanged
};

// Makes room below the selected layer.
UnderlayLayers OpenUnderlay(Editor& editor, steps::Name step);

// Shows the new layer's opacity, the scene and the panel.
void ShowStyle(Editor& editor);

}  // namespace orbelle::editing
