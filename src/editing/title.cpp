#include "editing/title.h"

#include "graphics/path_text.h"

namespace orbelle::editing {

std::string TitleOf(const std::filesystem::path& path, int editedSize) {
    const std::string size =
        editedSize == document::Family::kMaster ? "" : " - " + document::NameOfSize(editedSize);
    if (path.empty())
        return std::string(kProductName) + " - Project *" + size;
    return graphics::Utf8Of(path.filename()) + size + " - " + kProductName;
}

void ShowTitle(Editor& editor) {
    editor.Title = TitleOf(editor.Document.Path, editor.Document.EditedSize);
    editor.Changed.Title = true;
}

}  // namespace orbelle::editing
