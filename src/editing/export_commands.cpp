#include "editing/export_commands.h"

#include <algorithm>
#include <functional>

#include "formats/size_pictures.h"

namespace orbelle::editing {
namespace {

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

}  // namespace

std::vector<int> IconSizesOf(const EditorState& editor) {
    const formats::ExportSettings& settings = editor.ExportSettings;
    if (!settings.IconSizes.empty())
        return settings.IconSizes;
    const document::Document& document = editor.Document;
    std::vector<int> sizes;
    if (document.Icon)
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

void ExportTo(Editor& editor, const std::filesystem::path& path, formats::ExportFormat format) {
    formats::ExportSettings settings = editor.ExportSettings;
    if (format == formats::ExportFormat::Ico) {
        settings.IconSizes = IconSizesOf(editor);
        return ExportIcon(path, formats::Flatten(editor.Document, editor.Canvas), settings);
    }
    const graphics::Argb background = editor.Document.Background;
    if (graphics::AlphaOf(background) != 0)
        settings.GifThreshold = formats::ExportSettings().GifThreshold;
    formats::ExportImage(path, format, editor.Canvas, background, settings);
}

}  // namespace orbelle::editing
