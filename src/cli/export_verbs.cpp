// Exports, what is said about them, and putting an icon together from files.
#include <algorithm>
#include <list>
#include <optional>
#include <utility>

#include "cli/verb_table.h"
#include "editing/export_commands.h"
#include "formats/export_icon.h"
#include "formats/icon_file.h"
#include "graphics/path_text.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;

using editing::Editor;
using graphics::PngPacking;

constexpr std::string_view kIconFormatNames[] = {"bmp", "png256", "png"};
constexpr formats::IconFormat kIconFormats[] = {
    formats::IconFormat::Bmp, formats::IconFormat::Png256, formats::IconFormat::Png};

struct IconSizeList {
    std::string_view Name;
    std::span<const int> Sizes;
};
constexpr IconSizeList kIconSizeLists[] = {
    {"windows", formats::kWindowsSizes}, {"favicon", formats::kFaviconSizes}, {"table", {}}};

constexpr std::string_view kPackingNames[] = {"fast", "small"};

// Far more than an icon is good for, and what memory holds.
constexpr std::size_t kMaxIconSizes = 256;

// Nothing is written then.
bool IsWithoutSizes(const Editor& editor, formats::ExportFormat format) {
    return (format == formats::ExportFormat::Ico || format == formats::ExportFormat::Cur) &&
           editing::IconSizesOf(editor).empty();
}

Action ReadExport(Words& words) {
    static constexpr std::string_view kFormats[] = {"ico", "cur", "icns", "png",
                                                    "gif", "jpg", "bmp"};
    const FileName name = words.Output("PATH", kFormats);
    const auto format = formats::FindExportFormat(
        name.Format.empty() ? name.Path : graphics::PathOfUtf8("picture." + name.Format));
    if (!format && name.IsStandard())
        throw UsageError("the format is missing, as in png:-");
    if (!format)
        throw UsageError("PATH must end in .ico, .cur, .icns, .png, .gif, .jpg, .jpeg or .bmp");
    return [=](Workspace& workspace) {
        RequireLayers(workspace, editing::CommandId::Export);
        const OutputFile file(name);
        workspace.Run([&](Editor& editor) { ExportTo(editor, file.Path(), *format); });
        if (!IsWithoutSizes(workspace.Editor, *format))
            file.Finish(workspace);
    };
}

Action ReadCombine(Words& words) {
    static constexpr std::string_view kFormats[] = {"ico"};
    const FileName output = words.Output("OUT.ico", kFormats);
    std::vector<FileName> pictures{words.Input("PNG")};
    // A file that is named like a verb can be given as ./NAME.
    while (!words.IsAtEnd() && !FindVerb(words.Next()))
        pictures.push_back(words.Input("PNG"));
    if (pictures.size() > formats::kMaxCombinedPictures)
        throw UsageError("more than seven PNG files");
    return [=](Workspace& workspace) {
        const formats::ExportSettings& settings = workspace.Editor.ExportSettings;
        std::list<InputFile> inputs;
        std::vector<fs::path> paths;
        paths.reserve(pictures.size());
        for (const FileName& picture : pictures)
            paths.push_back(inputs.emplace_back(workspace, picture).Path());
        const OutputFile file(output);
        formats::CombinePngs(paths, file.Path(), settings.IconPictures, settings.Packing);
        file.Finish(workspace);
    };
}

Action ReadIconSizes(Words& words) {
    const auto* list =
        std::ranges::find(kIconSizeLists, words.IsAtEnd() ? "" : words.Next(), &IconSizeList::Name);
    std::vector<int> sizes;
    if (list == std::end(kIconSizeLists)) {
        sizes = words.Integers("N", 1, formats::kMaxIconSide, kMaxIconSizes);
    } else {
        words.Text("N");
        sizes.assign(list->Sizes.begin(), list->Sizes.end());
    }
    return [=](Workspace& workspace) { workspace.Editor.ExportSettings.IconSizes = sizes; };
}

Action ReadIconFormat(Words& words) {
    const formats::IconFormat format = kIconFormats[words.Choice("FORMAT", kIconFormatNames)];
    return [=](Workspace& workspace) { workspace.Editor.ExportSettings.IconPictures = format; };
}

Action ReadExportSize(Words& words) {
    std::optional<int> side;
    if (!words.IsAtEnd() && words.Next() == "page")
        words.Text("N");
    else
        side = words.Integer("N", 1, formats::kMaxPictureSide);
    return [=](Workspace& workspace) { workspace.Editor.ExportSettings.PictureSide = side; };
}

std::optional<formats::IconSet> FindSet(const std::string& name) {
    const auto* found = std::ranges::find(formats::kIconSetNames, name);
    if (found == std::end(formats::kIconSetNames))
        return std::nullopt;
    return static_cast<formats::IconSet>(found - std::begin(formats::kIconSetNames));
}

void NoteSetFiles(Workspace& workspace, const fs::path& folder,
                  std::span<const formats::IconSet> sets) {
    const std::string name = editing::FileNameOf(workspace.Editor.Document);
    for (const formats::IconSet set : sets) {
        for (const formats::SetFile& file : formats::FilesOfSet(set, name, 0))
            workspace.NoteWritten(formats::PathInSets(folder, file.Path));
    }
}

Action ReadExportSet(Words& words) {
    const fs::path folder = words.Path("DIR");
    std::vector<formats::IconSet> sets{
        static_cast<formats::IconSet>(words.Choice("SET", formats::kIconSetNames))};
    while (!words.IsAtEnd() && FindSet(words.Next())) {
        const formats::IconSet set = *FindSet(words.Text("SET"));
        if (std::ranges::find(sets, set) == sets.end())
            sets.push_back(set);
    }
    words.NoteSets(folder, sets);
    return [=](Workspace& workspace) {
        RequireLayers(workspace, editing::CommandId::Export);
        workspace.Run([&](Editor& editor) { ExportSets(editor, folder, sets); });
        NoteSetFiles(workspace, folder, sets);
    };
}

Action ReadHotspot(Words& words) {
    const int x = words.Integer("X");
    const int y = words.Integer("Y");
    return [=](Workspace& workspace) { workspace.Editor.ExportSettings.PointerHotspot = {x, y}; };
}

Action ReadCompress(Words& words) {
    const auto packing =
        words.Choice("HOW", kPackingNames) == 0 ? PngPacking::Fast : PngPacking::Small;
    return [=](Workspace& workspace) { workspace.Editor.ExportSettings.Packing = packing; };
}

Action ReadGifThreshold(Words& words) {
    return [threshold = words.Integer("T", 0, formats::kMaxGifThreshold)](Workspace& workspace) {
        workspace.Editor.ExportSettings.GifThreshold = threshold;
    };
}

constexpr Verb kVerbs[] = {
    {"export",
     "PATH",
     "write the page as .ico .cur .icns .png .gif .jpg .jpeg or .bmp",
     ReadExport,
     "open leaf.png export leaf.ico",
     {},
     "ico cur icns png gif jpg jpeg bmp"},
    {"export-size", "N|page", "the longer side (1 to 1024) of the pictures exported from here on",
     ReadExportSize, "open logo.volf export-size 180 export touch.png", "page"},
    {"export-set", "DIR SET...",
     "whole sets of files under DIR: windows macos linux web android ios", ReadExportSet,
     "open logo.svg export-set icons windows linux web", "windows macos linux web android ios",
     "/"},
    {"combine",
     "OUT.ico PNG...",
     "one to seven PNG files into one icon file",
     ReadCombine,
     "combine app.ico app-16.png app-32.png app-256.png",
     {},
     "png ico"},
    {"icon-sizes", "N...|LIST",
     "sizes (1 to 256) of the icons exported from here on, or windows favicon table", ReadIconSizes,
     "open leaf.png icon-sizes 256 48 32 16 export leaf.ico", "windows favicon table"},
    {"icon-format", "bmp|png256|png", "how pictures stand in the icons written from here on",
     ReadIconFormat, "open leaf.png icon-format png export leaf.ico", "bmp png256 png"},
    {"hotspot", "X Y", "the pixel that the .cur files exported from here on point with; 0 0",
     ReadHotspot, "open arrow.png hotspot 3 1 export arrow.cur"},
    {"compress", "fast|small", "how hard the PNG pictures exported from here on are packed",
     ReadCompress, "open leaf.png compress small export small.png", "fast small"},
    {"gif-threshold", "T", "alpha (0 to 200) from which a GIF's pixels count as opaque; 130",
     ReadGifThreshold, "open leaf.png gif-threshold 60 export leaf.gif"},
};

}  // namespace

std::span<const Verb> ExportVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
