#include "editing/export_commands.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>

#include "formats/export_icon.h"
#include "formats/size_pictures.h"
#include "graphics/path_text.h"

namespace orbelle::editing {
namespace {

using formats::IconKind;

constexpr char kUnnamed[] = "icon";

// Of the icon file, in its order.
std::vector<int> SizesOfOpenedIcon(const document::Document& document) {
    std::vector<int> sizes;
    const int side = std::max(document.Master.Width, document.Master.Height);
    for (const document::OpenedIcon::Entry& entry : document.Icon->Entries) {
        if (entry.Size <= side || document.ArtworkOf(entry.Size))
            sizes.push_back(entry.Size);
    }
    return sizes;
}

std::optional<IconKind> IconKindOf(formats::ExportFormat format) {
    switch (format) {
        case formats::ExportFormat::Ico:
            return IconKind::Windows;
        case formats::ExportFormat::Cur:
            return IconKind::Pointer;
        case formats::ExportFormat::Icns:
            return IconKind::MacOs;
        default:
            return std::nullopt;
    }
}

}  // namespace

std::vector<int> IconSizesOf(const EditorState& editor) {
    const formats::ExportSettings& settings = editor.ExportSettings;
    if (settings.IconSizes && !settings.IconSizes->empty())
        return *settings.IconSizes;
    const document::Document& document = editor.Document;
    std::vector<int> sizes;
    if (document.Icon && !settings.IconSizes)
        sizes = SizesOfOpenedIcon(document);
    if (sizes.empty())
        sizes = formats::IconSizesFor(document.Master.Width, document.Master.Height);
    if (!settings.AddsArtworkSizes)
        return sizes;
    for (const document::SizePage& page : document.Sizes) {
        if (std::ranges::find(sizes, page.Size) == sizes.end()) {
            sizes.push_back(page.Size);
            std::ranges::sort(sizes, std::greater());
        }
    }
    return sizes;
}

std::vector<int> SetSizesOf(const EditorState& editor) {
    std::vector<int> sizes;
    for (std::size_t set = 0; set < editor.ExportedSets.size(); ++set) {
        if (editor.ExportedSets[set])
            std::ranges::copy(formats::SizesOfSet(static_cast<formats::IconSet>(set)),
                              std::back_inserter(sizes));
    }
    std::ranges::sort(sizes);
    sizes.erase(std::unique(sizes.begin(), sizes.end()), sizes.end());
    return sizes;
}

void ExportTo(Editor& editor, const std::filesystem::path& path, formats::ExportFormat format) {
    formats::ExportSettings settings = editor.ExportSettings;
    if (const std::optional<IconKind> kind = IconKindOf(format)) {
        settings.IconSizes = IconSizesOf(editor);
        return ExportIcon(path, *kind, formats::Flatten(editor.Document, editor.Canvas), settings);
    }
    const graphics::Argb background = editor.Document.Background;
    if (graphics::AlphaOf(background) != 0)
        settings.GifThreshold = formats::ExportSettings().GifThreshold;
    formats::ExportImage(path, format, PictureToExport(editor), background, settings);
}

formats::SetSource SetSourceOf(const Editor& editor) {
    return {formats::Flatten(editor.Document, editor.Canvas), editor.Document.Background,
            FileNameOf(editor.Document)};
}

void NoteSetExported(Editor& editor, formats::IconSet set) {
    editor.ExportedSets.set(static_cast<std::size_t>(set));
    editor.Changed.Pixels = true;  // those of sizes that nobody looked at before
}

void ExportSets(Editor& editor, const std::filesystem::path& folder,
                std::span<const formats::IconSet> sets) {
    for (const formats::RenderedSet& set :
         RenderSets(SetSourceOf(editor), sets, editor.ExportSettings))
        WriteSet(folder, set);
    for (const formats::IconSet set : sets)
        NoteSetExported(editor, set);
}

std::string FileNameOf(const document::Document& document) {
    const std::filesystem::path& origin = document.Path.empty() ? document.Source : document.Path;
    std::string name = graphics::Utf8Of(origin.stem());
    return name.empty() ? kUnnamed : name;
}

graphics::Bitmap PictureToExport(const Editor& editor) {
    const std::optional<int> side = editor.ExportSettings.PictureSide;
    return side ? PictureOfSide(formats::Flatten(editor.Document, editor.Canvas), *side)
                : editor.Canvas;
}

}  // namespace orbelle::editing
