// The pointer and the keys on the scene.
#include "cli/verb_table.h"
#include "document/view.h"
#include "editing/nudge.h"
#include "editing/scene_input.h"

namespace orbelle::cli {
namespace {

constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;
constexpr int kShift = 1;

constexpr std::string_view kKeys[] = {"left", "right", "up", "down", "delete"};
constexpr editing::SceneKey kSceneKeys[] = {
    editing::SceneKey::Left, editing::SceneKey::Right,  editing::SceneKey::Up,
    editing::SceneKey::Down, editing::SceneKey::Delete,
};

constexpr std::string_view kDirectionNames[] = {"left", "right", "up", "down"};
constexpr editing::Direction kDirections[] = {
    editing::Direction::Left,
    editing::Direction::Right,
    editing::Direction::Up,
    editing::Direction::Down,
};

struct PagePixel {
    int X = 0;
    int Y = 0;
};

PagePixel ReadPixel(Words& words) {
    const int x = words.Integer("X");
    return {x, words.Integer("Y")};
}

// The pointer on the middle of a page pixel.
editing::Pointer At(const editing::Editor& editor, PagePixel pixel, int button, int shift) {
    const document::View& view = editor.View;
    const auto scene = [&view](double pageOffset, int place) {
        return static_cast<float>(pageOffset + (place + 0.5) * view.Zoom);
    };
    return {button, shift, scene(document::PageOffsetX(editor.Page(), view), pixel.X),
            scene(document::PageOffsetY(editor.Page(), view), pixel.Y)};
}

// The pointer goes to the first pixel, is pressed there, passes the others and is released on the
// last one.
void Gesture(Workspace& workspace, std::span<const PagePixel> pixels, int button, int shift) {
    RequireDocument(workspace);
    const WindowView view(workspace);
    const auto at = [&](PagePixel pixel) { return At(workspace.Editor, pixel, button, shift); };
    const auto moveTo = [&](PagePixel pixel) {
        workspace.RunDuringDrag([&](editing::Editor& editor) { MoveScene(editor, at(pixel)); });
    };
    moveTo(pixels.front());
    workspace.Run([&](editing::Editor& editor) { PressScene(editor, at(pixels.front())); });
    for (const PagePixel& pixel : pixels.subspan(1))
        moveTo(pixel);
    workspace.RunDuringDrag(
        [&](editing::Editor& editor) { ReleaseScene(editor, at(pixels.back())); });
}

template <int kShiftState>
Action ReadDrag(Words& words) {
    std::vector<PagePixel> pixels;
    do
        pixels.push_back(ReadPixel(words));
    while (words.IsNumberNext() || pixels.size() < 2);
    return [pixels](Workspace& workspace) { Gesture(workspace, pixels, kLeftButton, kShiftState); };
}

template <int kButton, int kShiftState>
Action ReadClick(Words& words) {
    return [pixel = ReadPixel(words)](Workspace& workspace) {
        Gesture(workspace, {&pixel, 1}, kButton, kShiftState);
    };
}

Action ReadKey(Words& words) {
    return [key = kSceneKeys[words.Choice("KEY", kKeys)]](Workspace& workspace) {
        RequireDocument(workspace);
        const WindowView view(workspace);
        workspace.Run([=](editing::Editor& editor) { KeyDownScene(editor, key); });
    };
}

Action ReadNudge(Words& words) {
    return [direction =
                kDirections[words.Choice("DIRECTION", kDirectionNames)]](Workspace& workspace) {
        RequireSelectedLayer(workspace);
        workspace.Run([=](editing::Editor& editor) { NudgeHalf(editor, direction); });
    };
}

constexpr Verb kVerbs[] = {
    {"drag", "X Y X Y...", "press, move and release over these page pixels", ReadDrag<0>,
     "new 64 64 tool pencil drag 8 8 32 56 56 8 export v.png"},
    {"shift-drag", "X Y X Y...", "the same with Shift held", ReadDrag<kShift>,
     "new 64 64 tool filled-ellipse shift-drag 8 8 40 56 export disc.png"},
    {"click", "X Y", "press and release on one page pixel", ReadClick<kLeftButton, 0>,
     "open leaf.png tool pick click 20 20 tool pencil drag 0 0 63 0 save leaf.volf"},
    {"shift-click", "X Y", "the same with Shift held", ReadClick<kLeftButton, kShift>,
     "open leaf.volf tool move shift-click 20 20 info"},
    {"right-click", "X Y", "the same with the right button", ReadClick<kRightButton, 0>,
     "new 64 64 tool select-polygon click 4 4 click 60 4 click 32 60 right-click 32 60 selection"},
    {"key", "KEY", "left right up down delete, pressed on the scene", ReadKey,
     "open leaf.png key right key right save leaf.volf", "left right up down delete"},
    {"nudge", "left|right|up|down", "move the selected layer by half a pixel", ReadNudge,
     "open leaf.png nudge up save leaf.volf", "left right up down"},
};

}  // namespace

std::span<const Verb> PointerVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
