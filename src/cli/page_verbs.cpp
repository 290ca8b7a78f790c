// The page and the view on it.
#include "cli/verb_table.h"
#include "editing/page_commands.h"
#include "editing/size_commands.h"

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

// "fill" is a recipe, and a verb when a kind of filling follows.
bool IsVerbWithArgument(const Words& words) {
    return FindVerb(words.Next()) && !words.AfterNext().empty() && !FindVerb(words.AfterNext());
}

Action ReadSize(Words& words) {
    int size = document::Family::kMaster;
    std::optional<filters::SizeRecipe> recipe;
    if (!words.IsAtEnd() && words.Next() == "master") {
        words.Text("N");
    } else {
        size = words.Integer("N", document::kMinArtworkSize, document::kMaxArtworkSize);
        if (!words.IsAtEnd() && !IsVerbWithArgument(words))
            recipe = filters::FindSizeRecipe(words.Next());
        if (recipe)
            words.Text("RECIPE");
    }
    return [=](Workspace& workspace) {
        RequireDocument(workspace);
        workspace.Run([=](editing::Editor& editor) {
            return recipe ? MakeArtwork(editor, size, *recipe) : EditSize(editor, size);
        });
    };
}

Action ReadDropSize(Words& words) {
    const int size = words.Integer("N", document::kMinArtworkSize, document::kMaxArtworkSize);
    return [=](Workspace& workspace) {
        RequireDocument(workspace);
        workspace.Run([=](editing::Editor& editor) { DropArtwork(editor, size); });
    };
}

Action ReadZoom(Words& words) {
    constexpr editing::ZoomState kRange;
    return [zoom = words.Number("Z", kRange.Minimum, kRange.Maximum)](Workspace& workspace) {
        workspace.Zoom = zoom;
    };
}

constexpr Verb kVerbs[] = {
    {"page", "W H", "the page-size sliders; an undo step for each side that changes", ReadPage,
     "open leaf.volf page 128 128 save leaf.volf"},
    {"background", "COLOUR|none", "the page background: #RRGGBB or #AARRGGBB", ReadBackground,
     "open leaf.png background '#FFFFFF' export leaf.jpg", "none"},
    {"size", "N|master [RECIPE]",
     "draw icon size N (8 to 256) by hand from here on, or the master again; RECIPE begins anew: "
     "plain sharper fill fill-outline outline snapped",
     ReadSize, "open leaf.volf size 16 sharper export leaf.ico",
     "master plain sharper fill fill-outline outline snapped"},
    {"drop-size", "N", "give up the artwork of icon size N, which the master makes again",
     ReadDropSize, "open leaf.volf drop-size 16 save leaf.volf"},
    {"zoom", "Z", "the view's zoom, 0.2 to 20; 1 if not said", ReadZoom,
     "open leaf.png zoom 4 write-scene leaf-scene.png"},
};

}  // namespace

std::span<const Verb> PageVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
