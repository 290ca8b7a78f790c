#include "app/import_files.h"

#include <QLocale>
#include <algorithm>

#include "app/save_commands.h"
#include "app/take_file.h"
#include "document/undo_history.h"
#include "editing/document_commands.h"

namespace orbelle::app {
namespace {

constexpr std::size_t kMostLines = 10;

// "1,000"
std::string Grouped(std::size_t number) {
    return QLocale(QLocale::English, QLocale::UnitedStates)
        .toString(static_cast<qulonglong>(number))
        .toStdString();
}

// No further import can succeed.
bool IsFull(const editing::Editor& editor) {
    using document::UndoHistory;
    return editor.Page().LayerCount() >= document::kMaxMadeLayers ||
           editor.History.UndoIndex() >= UndoHistory::kMaxSnapshots;
}

TakeResult Import(const WindowContext& context, const std::filesystem::path& file) {
    if (editing::IsDocumentFile(file) && !MayGiveUpDocument(context))
        return {TakeEnd::Cancelled, {}};
    return TakeToImport(context, file);
}

class Summary {
public:
    explicit Summary(std::size_t files) : files_(files) {}

    void Note(TakeResult result) {
        imported_ += result.End == TakeEnd::Done ? 1 : 0;
        failed_ += result.End == TakeEnd::Failed ? 1 : 0;
        if (!result.Text.empty())
            lines_.push_back(std::move(result.Text));
    }
    // `how`: "Cancelled" or "Stopped".
    void End(const char* how) { stopped_ = how; }

    // Empty: there is nothing to tell.
    std::string Text() const {
        std::string text;
        if (files_ > 1 && stopped_)
            text += std::string(stopped_) + ": " + Grouped(imported_) + " of " + Grouped(files_) +
                    " files were imported.\n";
        if (files_ > 1 && failed_ > 0)
            text += Grouped(failed_) + " of " + Grouped(files_) + " files could not be imported:\n";
        for (std::size_t i = 0; i < std::min(lines_.size(), kMostLines); ++i)
            text += lines_[i] + '\n';
        if (lines_.size() > kMostLines)
            text += "and " + Grouped(lines_.size() - kMostLines) + " more\n";
        if (!text.empty())
            text.pop_back();
        return text;
    }

private:
    std::size_t files_;
    std::size_t imported_ = 0;
    std::size_t failed_ = 0;
    const char* stopped_ = nullptr;
    std::vector<std::string> lines_;
};

}  // namespace

void ImportFiles(const WindowContext& context, const std::vector<std::filesystem::path>& files) {
    Summary summary(files.size());
    const int count = static_cast<int>(files.size());
    for (int i = 0; i < count; ++i) {
        if (!context.User.GoOn(i, count)) {
            summary.End("Cancelled");
            break;
        }
        TakeResult result = Import(context, files[static_cast<std::size_t>(i)]);
        const TakeEnd end = result.End;
        summary.Note(std::move(result));
        if (end == TakeEnd::Cancelled) {
            summary.End("Cancelled");
            break;
        }
        if (end == TakeEnd::Failed && i + 1 < count && IsFull(context.Commands.Editor())) {
            summary.End("Stopped");
            break;
        }
    }
    context.User.GoOn(count, count);
    if (const std::string text = summary.Text(); !text.empty())
        context.User.ShowMessage(text);
}

}  // namespace orbelle::app
