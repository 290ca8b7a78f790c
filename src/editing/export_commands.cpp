#include "editing/export_commands.h"

namespace orbelle::editing {

void ExportTo(Editor& editor, const std::filesystem::path& path, formats::ExportFormat format) {
    if (format == formats::ExportFormat::Ico)
        return ExportIcon(path, formats::Flatten(editor.Document, editor.Canvas), editor.ExportSettings);
    const graphics::Argb background = editor.Document.Background;
    formats::ExportSettings settings = editor.ExportSettings;
    if (graphics::AlphaOf(background) != 0)
        settings.GifThreshold = formats::ExportSettings().GifThreshold;
    formats::ExportImage(path, format, editor.Canvas, background, settings);
}

}  // namespace orbelle::editing
