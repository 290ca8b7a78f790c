#include "app/export_sets.h"

#include <algorithm>
#include <span>

#include "app/core_words.h"
#include "app/file_names.h"
#include "app/icon_set_captions.h"
#include "app/written_text.h"
#include "editing/export_commands.h"
#include "graphics/path_text.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

using editing::Editor;
using formats::IconSet;

// Beside the document.
fs::path ProposedFolder(const document::Document& document) {
    const fs::path& origin = document.Path.empty() ? document.Source : document.Path;
    std::error_code unknown;
    return fs::absolute(origin.parent_path() / u8"icons", unknown);
}

struct Files {
    int Count = 0;
    std::uintmax_t Bytes = 0;
};

// Of a set, as far as they are there.
Files FilesThere(const SetChoice& choice, IconSet set, const formats::SetSource& source) {
    Files files;
    for (const formats::SetFile& file : FilesOfSet(set, source.Name, source.Background)) {
        std::error_code missing;
        const std::uintmax_t bytes =
            fs::file_size(choice.Folder / graphics::PathOfUtf8(file.Path), missing);
        if (missing)
            continue;
        ++files.Count;
        files.Bytes += bytes;
    }
    return files;
}

QString FilesText(int count) {
    return count == 1 ? Words::tr("1 file") : Words::tr("%n files", nullptr, count);
}

bool MayReplace(const WindowContext& context, const SetChoice& choice,
                const formats::SetSource& source) {
    int there = 0;
    for (const IconSet set : choice.Sets)
        there += FilesThere(choice, set, source).Count;
    if (there == 0)
        return true;
    const QString question =
        there == 1
            ? Words::tr("1 file of these sets already exists, overwrite it?")
            : Words::tr("%n files of these sets already exist, overwrite them?", nullptr, there);
    return context.User.Confirm(question.toStdString(), Words::tr("Warning").toStdString());
}

class Summary {
public:
    explicit Summary(const SetChoice& choice) : choice_(choice) {}

    void NoteWritten(const Files& files) {
        ++sets_;
        written_.Count += files.Count;
        written_.Bytes += files.Bytes;
    }
    void NoteFailed(IconSet set, const QString& problem) {
        failures_ += '\n' + Words::tr("%1 was not written: %2").arg(NameOf(set), problem);
    }
    void NoteCancelled() { isCancelled_ = true; }

    void Tell(UserQuestions& user) const {
        QString text;
        if (isCancelled_)
            text = Words::tr("Cancelled: %1 of %2 sets were written.")
                       .arg(sets_)
                       .arg(choice_.Sets.size()) +
                   '\n';
        if (sets_ == 0)
            return user.ShowMessage(
                (text + Words::tr("Nothing was exported.") + failures_).toStdString());
        text +=
            Words::tr("Exported %1, %2, in %3")
                .arg(FilesText(written_.Count), SizeText(written_.Bytes), TextOf(choice_.Folder));
        user.ShowFolder((text + failures_).toStdString(), choice_.Folder);
    }

private:
    const SetChoice& choice_;
    int sets_ = 0;
    Files written_;
    QString failures_;
    bool isCancelled_ = false;
};

}  // namespace

void AskExportSets(const WindowContext& context) {
    // Ends what is under way: it belongs to the picture, or it does not.
    context.Commands.Run([](Editor&) {});
    const Editor& editor = context.Commands.Editor();
    const formats::SetSource source = SetSourceOf(editor);
    const std::optional<SetChoice> choice =
        context.User.ChooseIconSets(source, ProposedFolder(editor.Document));
    if (!choice || !MayReplace(context, *choice, source))
        return;
    Summary summary(*choice);
    const int count = static_cast<int>(choice->Sets.size());
    for (int i = 0; i < count; ++i) {
        const IconSet& set = choice->Sets[static_cast<std::size_t>(i)];
        const QString doing =
            Words::tr("Writing set %1 of %2: %3...").arg(i + 1).arg(count).arg(NameOf(set));
        if (!context.User.GoOn(i, count, doing.toStdString())) {
            summary.NoteCancelled();
            break;
        }
        try {
            context.User.DoMeanwhile([&, settings = editor.ExportSettings] {
                for (const formats::RenderedSet& rendered :
                     RenderSets(source, std::span(&set, 1), settings))
                    WriteSet(choice->Folder, rendered);
            });
            context.Commands.Run([set](Editor& exported) { NoteSetExported(exported, set); });
            summary.NoteWritten(FilesThere(*choice, set, source));
        } catch (const std::exception&) {
            summary.NoteFailed(
                set, TranslatedText(editing::Outcome(std::current_exception()).Problem()));
        }
    }
    context.User.GoOn(count, count, {});
    summary.Tell(context.User);
}

}  // namespace orbelle::app
