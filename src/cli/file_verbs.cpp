// The File menu but for its exports.
#include <utility>

#include "cli/verb_table.h"
#include "editing/document_commands.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;

using editing::Editor;

Action ReadNew(Words& words) {
    const int width = words.Integer("W");
    const int height = words.Integer("H");
    return [=](Workspace& workspace) {
        workspace.Run([=](Editor& editor) { NewDocument(editor, width, height); });
    };
}

// Which image of the file is wanted; the next icon file begins with the first again.
std::optional<int> TakeIconImage(Workspace& workspace, const fs::path& path) {
    return editing::IsIconFile(path) ? std::exchange(workspace.IconImage, 0) : 0;
}

void Open(Workspace& workspace, const fs::path& path) {
    const std::optional<int> image = TakeIconImage(workspace, path);
    workspace.Run([&](Editor& editor) {
        if (image)
            OpenFile(editor, path, {.IconImage = *image, .SvgSide = workspace.SvgSide});
        else
            OpenIconFamily(editor, path);
    });
}

void ImportAs(Workspace& workspace, const fs::path& path, bool fitsPage) {
    const std::optional<int> image = TakeIconImage(workspace, path);
    if (!image)
        throw Failure("an import takes one image of an icon, not all");
    workspace.Run([&](Editor& editor) {
        ImportFile(editor, path,
                   {.IconImage = *image, .SvgSide = workspace.SvgSide, .FitsPage = fitsPage});
    });
}

void Import(Workspace& workspace, const fs::path& path) {
    ImportAs(workspace, path, false);
}

void ImportFit(Workspace& workspace, const fs::path& path) {
    ImportAs(workspace, path, true);
}

Action ReadSvgSize(Words& words) {
    return [side = words.Integer("N", 1, graphics::kMaxSvgSide)](Workspace& workspace) {
        workspace.SvgSide = side;
    };
}

Action ReadIconEntry(Words& words) {
    if (!words.IsAtEnd() && words.Next() == "all") {
        words.Text("K");
        return [](Workspace& workspace) { workspace.IconImage.reset(); };
    }
    return [image = words.Integer("K", 0)](Workspace& workspace) { workspace.IconImage = image; };
}

void Save(Workspace& workspace, const fs::path& path) {
    RequireLayers(workspace, editing::CommandId::SaveAs);
    workspace.Run([&](Editor& editor) { SaveTo(editor, path); });
}

constexpr Verb kVerbs[] = {
    {"new", "W H", "a page of that size (1 to 512) with one empty layer", ReadNew,
     "new 64 64 save blank.volf"},
    {"open", "PATH", "a .volf document, or a picture that becomes the page", ReadPath<Open>,
     "open leaf.png export leaf.ico"},
    {"import", "PATH", "a picture as a new layer, or as the page when there is none",
     ReadPath<Import>, "open leaf.volf import star.png save leaf.volf"},
    {"import-fit", "PATH", "the same, shrunk until it fits the page where it is larger",
     ReadPath<ImportFit>, "new 256 256 import-fit photo.jpg export photo.ico"},
    {"svg-size", "N", "the longer side (1 to 1024) of the SVG drawings read from here on; 512",
     ReadSvgSize, "svg-size 1024 open logo.svg export-set icons macos"},
    {"icon-entry", "K|all",
     "the image (from 0) that the next open or import of an icon file takes; open takes all, too",
     ReadIconEntry, "icon-entry all open app.ico save app.volf", "all"},
    {"save", "PATH", "write the document as a .volf file", ReadPath<Save>,
     "open leaf.png style crystal save leaf.volf"},
};

}  // namespace

std::span<const Verb> FileVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
