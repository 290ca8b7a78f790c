#include "editing/export_commands.h"

namespace orbelle::editing {

void ExportTo(Editor& editor, const std::filesystem::path& path, formats::ExportFormat format) {
    const graphics::Argb background = editor.Document.Background;
    formats::ExportSettings settings = editor.ExportSettings;
    if (graphics::AlphaOf(background) != 0)
        settings.GifThreshold = formats::ExportSettings().GifThreshold;
    formats::ExportImage(path, format, editor.Canvas, background, settings);
}

}  // namespace orbelle::editing
