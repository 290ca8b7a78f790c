// The File menu, the settings of exports, and putting an icon together from files.
#include <utility>

#include "cli/verb_table.h"
#include "editing/document_commands.h"
#include "editing/export_commands.h"
#include "formats/icon_file.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;

using editing::Editor;

constexpr std::string_view kIconFormatNames[] = {"bmp", "png256", "png"};
constexpr formats::IconFormat kIconFormats[] = {
    formats::IconFormat::Bmp, formats::IconFormat::Png256, formats::IconFormat::Png};

// Far more than an icon is good for, and what memory holds.
constexpr std::size_t kMaxIconSizes = 256;

void RequireLayers(const Workspace& workspace, editing::CommandId command) {
    RequireDocument(workspace);
    if (!workspace.Editor.States.IsEnabled(command))
        throw Failure("the document has no layer");
}

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

Action ReadExport(Words& words) {
    const fs::path path = words.Path("PATH");
    const auto format = formats::FindExportFormat(path);
    if (!format)
        throw UsageError("PATH must end in .ico, .png, .gif, .jpg, .jpeg or .bmp");
    return [=](Workspace& workspace) {
        RequireLayers(workspace, editing::CommandId::Export);
        workspace.Run([&](Editor& editor) { ExportTo(editor, path, *format); });
    };
}

Action ReadCombine(Words& words) {
    const fs::path output = words.Path("OUT.ico");
    std::vector<fs::path> pictures{words.Path("PNG")};
    // A file that is named like a verb can be given as ./NAME.
    while (!words.IsAtEnd() && !FindVerb(words.Next()))
        pictures.push_back(words.Path("PNG"));
    if (pictures.size() > formats::kMaxCombinedPictures)
        throw UsageError("more than seven PNG files");
    return [=](Workspace& workspace) {
        formats::CombinePngs(pictures, output, workspace.Editor.ExportSettings.IconPictures);
    };
}

Action ReadIconSizes(Words& words) {
    return [sizes = words.Integers("N", 1, formats::kMaxIconSide, kMaxIconSizes)](
               Workspace& workspace) { workspace.Editor.ExportSettings.IconSizes = sizes; };
}

Action ReadIconFormat(Words& words) {
    const formats::IconFormat format = kIconFormats[words.Choice("FORMAT", kIconFormatNames)];
    return [=](Workspace& workspace) { workspace.Editor.ExportSettings.IconPictures = format; };
}

Action ReadGifThreshold(Words& words) {
    return [threshold = words.Integer("T", 0, formats::kMaxGifThreshold)](Workspace& workspace) {
        workspace.Editor.ExportSettings.GifThreshold = threshold;
    };
}

constexpr Verb kVerbs[] = {
    {"new", "W H", "a page of that size (1 to 512) with one empty layer", ReadNew},
    {"open", "PATH", "a .volf document, or a picture that becomes the page", ReadPath<Open>},
    {"import", "PATH", "a picture as a new layer, or as the page when there is none",
     ReadPath<Import>},
    {"import-fit", "PATH", "the same, shrunk until it fits the page where it is larger",
     ReadPath<ImportFit>},
    {"svg-size", "N", "the longer side (1 to 1024) of the SVG drawings read from here on; 512",
     ReadSvgSize},
    {"icon-entry", "K|all",
     "the image (from 0) that the next open or import of an icon file takes; open takes all, too",
     ReadIconEntry},
    {"save", "PATH", "write the document as a .volf file", ReadPath<Save>},
    {"export", "PATH", "write the page as .ico .png .gif .jpg .jpeg or .bmp", ReadExport},
    {"combine", "OUT.ico PNG...", "one to seven PNG files into one icon file", ReadCombine},
    {"icon-sizes", "N N...", "sizes (1 to 256) of the icons exported from here on", ReadIconSizes},
    {"icon-format", "bmp|png256|png", "how pictures stand in the icons written from here on",
     ReadIconFormat},
    {"gif-threshold", "T", "alpha (0 to 200) from which a GIF's pixels count as opaque; 130",
     ReadGifThreshold},
};

}  // namespace

std::span<const Verb> FileVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
