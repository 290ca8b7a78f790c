// The page and the view on it.
#include "cli/verb_table.h"
#include "editing/page_commands.h"

namespace orbelle::cli {
namespace {

Action ReadPage(Words& words) {
    const int width = words.Integer("W");
    const int height = words.Integer("H");
    return [=](Workspace& workspace) {
        RequireDocument(workspace);
        workspace.Run([=](editing::Editor& editor) { SetPageSize(editor, width, height); });
    };
}

Action ReadBackground(Words& words) {
    graphics::Argb color = 0;
    if (!words.IsAtEnd() && words.Next() == "none")
        words.Text("COLOUR");
    else
        color = words.Color("COLOUR");
    return [=](Workspace& workspace) {
        RequireDocument(workspace);
        workspace.Run([=](editing::Editor& editor) { SetPageBackground(editor, color); });
    };
}

Action ReadZoom(Words& words) {
    constexpr editing::ZoomState kRange;
    return [zoom = words.Number("Z", kRange.Minimum, kRange.Maximum)](Workspace& workspace) {
        workspace.Zoom = zoom;
    };
}

constexpr Verb kVerbs[] = {
    {"page", "W H", "the page-size sliders; an undo step for each side that changes", ReadPage},
    {"background", "COLOUR|none", "the page background: #RRGGBB or #AARRGGBB", ReadBackground},
    {"zoom", "Z", "the view's zoom, 0.2 to 20; 1 if not said", ReadZoom},
};

}  // namespace

std::span<const Verb> PageVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
