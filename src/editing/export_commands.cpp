#include "editing/export_commands.h"

#include <exception>

#include "editing/command_frame.h"

namespace orbelle::editing {

void Export(Editor& editor, formats::ExportFormat format, const std::string& filter) {
    const std::filesystem::path path = editor.Host.ShowFileDialog(filter, false);
    if (path.empty())
        return;
    std::error_code ignored;
    if (std::filesystem::exists(path, ignored)) {
        // Deliberate: the answer changes nothing, the export goes on and replaces the file.
        editor.Host.Confirm("Image already exists, overwrite it?", "Warning");
    }
    const graphics::Argb background = editor.Document.PageBackground;
    formats::ExportSettings settings = editor.ExportSettings;
    if (format == formats::ExportFormat::Gif && graphics::AlphaOf(background) == 0) {
        const std::optional<int> threshold =
            editor.Host.AskGifThreshold(formats::DrawGifSurface(editor.Canvas, background));
        if (!threshold)
            return;
        settings.GifThreshold = *threshold;
    }
    RunCommand(editor, [&] {
        try {
            formats::ExportImage(path, format, editor.Canvas, background, settings);
        } catch (const std::exception& failure) {
            editor.Host.ShowStatus(failure.what());
        }
    });
}

}  // namespace orbelle::editing
