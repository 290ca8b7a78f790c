#include "app/export_sets.h"

#include <span>

#include "app/written_text.h"
#include "editing/export_commands.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

using editing::Editor;

// Beside the document.
fs::path ProposedFolder(const document::Document& document) {
    const fs::path& origin = document.Path.empty() ? document.Source : document.Path;
    std::error_code unknown;
    return fs::absolute(origin.parent_path() / "icons", unknown);
}

struct Files {
    int Count = 0;
    std::uintmax_t Bytes = 0;
};

// Of a set, as far as they are there.
Files FilesThere(const SetChoice& choice, formats::IconSet set, const formats::SetSource& source) {
    Files files;
    for (const formats::SetFile& file : FilesOfSet(set, source.Name, source.Background)) {
        std::error_code missing;
        const std::uintmax_t bytes = fs::file_size(choice.Folder / file.Path, missing);
        if (missing)
            continue;
        ++files.Count;
        files.Bytes += bytes;
    }
    return files;
}

std::string FilesText(int count) {
    return count == 1 ? "1 file" : std::to_string(count) + " files";
}

bool MayReplace(const WindowContext& context, const SetChoice& choice,
                const formats::SetSource& source) {
    int there = 0;
    for (const formats::IconSet set : choice.Sets)
        there += FilesThere(choice, set, source).Count;
    return there == 0 ||
           context.User.Confirm(FilesText(there) + " of these sets already " +
                                    (there == 1 ? "exists" : "exist") + ", overwrite?",
                                "Warning");
}

}  // namespace

void AskExportSets(const WindowContext& context) {
    const formats::SetSource source = SetSourceOf(context.Commands.Editor());
    const std::optional<SetChoice> choice =
        context.User.ChooseIconSets(source, ProposedFolder(context.Commands.Editor().Document));
    if (!choice || !MayReplace(context, *choice, source))
        return;
    Files written;
    std::string failures;
    for (const formats::IconSet& set : choice->Sets) {
        const Report report = context.Commands.Try(
            [&](Editor& editor) { ExportSets(editor, choice->Folder, std::span(&set, 1)); });
        if (report.Failed) {
            failures += "\nNot written: " + report.Text;
            continue;
        }
        const Files files = FilesThere(*choice, set, source);
        written.Count += files.Count;
        written.Bytes += files.Bytes;
    }
    context.User.ShowFolder("Exported " + FilesText(written.Count) + ", " +
                                SizeText(written.Bytes) + ", in " + choice->Folder.string() +
                                failures,
                            choice->Folder);
}

}  // namespace orbelle::app
