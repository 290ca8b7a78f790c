// An editor with a recording host and a folder for its files.
#pragma once

#include <gmock/gmock.h>

#include "editing/document_commands.h"
#include "editing/editor.h"
#include "formats/icon_file.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/recording_host.h"
#include "support/temporary_folder.h"

namespace orbelle::editing {

class EditingTest : public ::testing::Test {
protected:
    EditingTest() { setenv("XDG_CACHE_HOME", (folder / "cache").c_str(), 1); }

    // A PNG file of one colour.
    std::filesystem::path Picture(const std::string& name, int width, int height,
                                  graphics::Argb color = 0xFF204060) {
        const std::filesystem::path path = folder / name;
        graphics::WriteFile(path,
                            graphics::EncodePng(testing::FilledPicture(width, height, color)));
        return path;
    }

    // An icon file of pictures of one colour.
    std::filesystem::path Icon(const std::string& name,
                               const std::vector<std::pair<int, int>>& sizes) {
        std::vector<graphics::Bitmap> pictures;
        for (const auto& [width, height] : sizes)
            pictures.push_back(testing::FilledPicture(width, height, 0xFF204060));
        const std::filesystem::path path = folder / name;
        graphics::WriteFile(path, formats::EncodeIcon(pictures, formats::IconFormat::Bmp));
        return path;
    }

    void NewPage(int width, int height) {
        host.Size = PageSize{width, height};
        New(editor);
    }

    void OpenFile(const std::filesystem::path& path) {
        host.File = path;
        Open(editor);
    }

    // A layer on top, selected, with the picture drawn in the size of `rect` (page pixels).
    document::IconLayer& AddLayer(const graphics::Bitmap& image, const graphics::RectF& rect) {
        document::IconLayer layer;
        layer.Image = image;
        layer.ImageWidth = image.Width();
        layer.ImageHeight = image.Height();
        layer.Rect = rect;
        layer.BaseRect = rect;
        editor.Document.Layers.push_back(layer);
        editor.Document.SelectedLayer = editor.Document.LayerCount() - 1;
        return editor.Document.Layers.back();
    }

    document::IconLayer& Layer(int index) {
        return editor.Document.Layers.at(static_cast<std::size_t>(index));
    }

    testing::TemporaryFolder folder;
    testing::RecordingHost host;
    Editor editor{host};
};

}  // namespace orbelle::editing
