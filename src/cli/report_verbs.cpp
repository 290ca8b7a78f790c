// What tells about the document: text on the output, and pictures as they stand in memory.
#include <algorithm>

#include "cli/diff_verb.h"
#include "cli/document_json.h"
#include "cli/icon_json.h"
#include "cli/verb_table.h"
#include "editing/export_commands.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"

namespace orbelle::cli {
namespace {

using graphics::RectI;

// One line for each run of pixels. The rectangles come in bands that share top and bottom, so all
// rectangles of a band are told for each of its rows.
void PrintRuns(std::ostream& output, const std::vector<RectI>& rects) {
    for (auto band = rects.begin(); band != rects.end();) {
        const auto end = std::find_if(band, rects.end(),
                                      [band](const RectI& rect) { return rect.Y != band->Y; });
        for (int y = band->Y; y < band->Y + band->Height; ++y) {
            for (auto rect = band; rect != end; ++rect)
                output << y << ' ' << rect->X << ' ' << rect->X + rect->Width << '\n';
        }
        band = end;
    }
}

void WritePng(Workspace& workspace, const graphics::Bitmap& image, const FileName& name) {
    const OutputFile file(name);
    graphics::WriteFile(file.Path(), graphics::EncodePng(image));
    file.Finish(workspace);
}

FileName ReadPngName(Words& words) {
    static constexpr std::string_view kFormats[] = {"png"};
    return words.Output("PATH", kFormats);
}

template <void (*kRun)(Workspace&, const FileName&)>
Action ReadWrite(Words& words) {
    return [name = ReadPngName(words)](Workspace& workspace) { kRun(workspace, name); };
}

void Info(Workspace& workspace) {
    RequireDocument(workspace);
    workspace.Output << DescribeDocument(workspace.Editor) << '\n';
    RequirePrinted(workspace.Output);
}

void Entries(Workspace& workspace, const InputFile& file) {
    workspace.Output << DescribeEntries(formats::ReadIconFile(file.Path())) << '\n';
    RequirePrinted(workspace.Output);
}

void Check(Workspace& workspace) {
    RequireDocument(workspace);
    const editing::Editor& editor = workspace.Editor;
    const formats::FlatFamily flat = formats::Flatten(editor.Document, editor.Canvas);
    for (const formats::Finding& finding :
         CheckIcon(editor.Document, flat, IconSizesOf(editor), SetSizesOf(editor)))
        workspace.Output << DescribeFinding(finding) << '\n';
    RequirePrinted(workspace.Output);
}

Action ReadEntries(Words& words) {
    words.NotePrinting();
    return ReadInput<Entries>(words);
}

Action ReadRegion(Words& words) {
    words.NotePrinting();
    return [layer = words.Integer("N", 0)](Workspace& workspace) {
        PrintRuns(workspace.Output, RequireLayer(workspace, layer).Region.Rects());
        RequirePrinted(workspace.Output);
    };
}

void PrintSelection(Workspace& workspace) {
    RequireDocument(workspace);
    const document::Selection& selection = workspace.Editor.Selection;
    if (selection.Exists())
        PrintRuns(workspace.Output, selection.Region().Rects());
    RequirePrinted(workspace.Output);
}

Action ReadWriteLayer(Words& words) {
    const int layer = words.Integer("N", 0);
    return [layer, name = ReadPngName(words)](Workspace& workspace) {
        const graphics::Bitmap& image = RequireLayer(workspace, layer).Image;
        if (image.IsEmpty())
            throw Failure("the layer has no pixels");
        WritePng(workspace, image, name);
    };
}

void WritePage(Workspace& workspace, const FileName& name) {
    RequireDocument(workspace);
    WritePng(workspace, workspace.Editor.Canvas, name);
}

void WriteScene(Workspace& workspace, const FileName& name) {
    RequireDocument(workspace);
    const WindowView view(workspace);
    workspace.RunDuringDrag([](editing::Editor& editor) { editor.Changed.Scene = true; });
    WritePng(workspace, workspace.Editor.Scene, name);
}

constexpr Verb kVerbs[] = {
    {"info", "", "print the document as one JSON object on one line", ReadPrinter<Info>,
     "open leaf.volf info"},
    {"entries",
     "PATH",
     "print the images of an icon file as one JSON array on one line",
     ReadEntries,
     "entries app.ico",
     {},
     "ico cur"},
    {"check", "", "print what is wrong with the icon at its export sizes, a JSON object a line",
     ReadPrinter<Check>, "open leaf.volf icon-sizes favicon check"},
    {"diff",
     "A B [SHEET.png]",
     "compare two files at all their sizes: a JSON object for each that differs, status 1 then",
     ReadDiff,
     "diff old.ico new.ico changes.png",
     {},
     "volf png jpg jpeg gif bmp ico cur webp svg"},
    {"region", "N", "print layer N's region: a line 'y x0 x1' for each run of pixels", ReadRegion,
     "open leaf.png region 0"},
    {"selection", "", "print the selection's region in the same form", ReadPrinter<PrintSelection>,
     "open leaf.png select-all selection"},
    {"write-layer",
     "N PATH",
     "write layer N's own pixels as a PNG",
     ReadWriteLayer,
     "open leaf.volf write-layer 0 bottom.png",
     {},
     "png"},
    {"write-page",
     "PATH",
     "write the composed page as a PNG",
     ReadWrite<WritePage>,
     "open leaf.volf write-page page.png",
     {},
     "png"},
    {"write-scene",
     "PATH",
     "write the scene as the window shows it, 1024 by 768, as a PNG",
     ReadWrite<WriteScene>,
     "open leaf.volf zoom 2 write-scene scene.png",
     {},
     "png"},
};

}  // namespace

std::span<const Verb> ReportVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
