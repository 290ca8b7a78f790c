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

void Open(Workspace& workspace, const InputFile& file) {
    const fs::path& path = file.Path();
    const std::optional<int> image = TakeIconImage(workspace, path);
    workspace.Run([&](Editor& editor) {
        if (image)
            OpenFile(editor, path, {.IconImage = *image, .SvgSide = workspace.SvgSide});
        else
            OpenIconFamily(editor, path);
        file.Forget(editor);
    });
}

void ImportAs(Workspace& workspace, const InputFile& file, bool fitsPage) {
    const fs::path& path = file.Path();
    const std::optional<int> image = TakeIconImage(workspace, path);
    if (!image)
        throw Failure("an import takes one image of an icon, not all");
    workspace.Run([&](Editor& editor) {
        ImportFile(editor, path,
                   {.IconImage = *image, .SvgSide = workspace.SvgSide, .FitsPage = fitsPage});
        file.Forget(editor);
    });
}

void Import(Workspace& workspace, const InputFile& file) {
    ImportAs(workspace, file, false);
}

void ImportFit(Workspace& workspace, const InputFile& file) {
    ImportAs(workspace, file, true);
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

// A document that goes to standard output keeps its name.
void SaveAs(Workspace& workspace, const OutputFile& file) {
    RequireLayers(workspace, editing::CommandId::SaveAs);
    workspace.Run([&](Editor& editor) {
        const fs::path path = editor.Document.Path;
        const graphics::FileStamp stamp = editor.Document.Stamp;
        const std::string title = editor.Title;
        SaveTo(editor, file.Path());
        if (!file.IsStandard())
            return;
        editor.Document.Path = path;
        editor.Document.Stamp = stamp;
        editor.Title = title;
    });
    file.Finish(workspace);
}

Action ReadSave(Words& words) {
    static constexpr std::string_view kFormats[] = {"volf"};
    return [name = words.Output("PATH", kFormats, FileRole::Saved)](Workspace& workspace) {
        SaveAs(workspace, OutputFile(name));
    };
}

constexpr Verb kVerbs[] = {
    {"new", "W H", "a page of that size (1 to 512) with one empty layer", ReadNew,
     "new 64 64 save blank.volf"},
    {"open",
     "PATH",
     "a .volf document, or a picture that becomes the page",
     ReadInput<Open, FileRole::Opened>,
     "open leaf.png export leaf.ico",
     {},
     "volf png jpg jpeg gif bmp ico cur webp svg"},
    {"import",
     "PATH",
     "a picture as a new layer, or as the page when there is none",
     ReadInput<Import, FileRole::Imported>,
     "open leaf.volf import star.png save leaf.volf",
     {},
     "volf png jpg jpeg gif bmp ico cur webp svg"},
    {"import-fit",
     "PATH",
     "the same, shrunk until it fits the page where it is larger",
     ReadInput<ImportFit, FileRole::Imported>,
     "new 256 256 import-fit photo.jpg export photo.ico",
     {},
     "volf png jpg jpeg gif bmp ico cur webp svg"},
    {"svg-size", "N", "the longer side (1 to 1024) of the SVG drawings read from here on; 512",
     ReadSvgSize, "svg-size 1024 open logo.svg export-set icons macos"},
    {"icon-entry", "K|all",
     "the image (from 0) that the next open or import of an icon file takes; open takes all, too",
     ReadIconEntry, "icon-entry all open app.ico save app.volf", "all"},
    {"save",
     "PATH",
     "write the document as a .volf file",
     ReadSave,
     "open leaf.png style crystal save leaf.volf",
     {},
     "volf"},
};

}  // namespace

std::span<const Verb> FileVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
