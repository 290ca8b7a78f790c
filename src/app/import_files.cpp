#include "app/import_files.h"

#include <QLocale>
#include <algorithm>

#include "app/save_commands.h"
#include "app/take_file.h"
#include "document/undo_history.h"
#include "editing/document_commands.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

constexpr char kImporting[] = "Importing the files...";
constexpr std::size_t kMostLines = 10;
constexpr int kLongestAddress = 200;  // characters that are told

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

TakeResult Import(const WindowContext& context, const fs::path& file, TakeAnswers& answers) {
    if (!editing::IsDocumentFile(file))
        return TakeToImport(context, file, answers);
    if (!MayGiveUpDocument(context))
        return {TakeEnd::Cancelled, {}};
    return TakeToOpen(context, file, answers);
}

class Summary {
public:
    // `verb`: what was to be done with so many files.
    Summary(const char* verb, std::size_t files) : verb_(verb), files_(files) {}

    void Note(TakeResult result) {
        done_ += result.End == TakeEnd::Done ? 1 : 0;
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
            text += std::string(stopped_) + ": " + Grouped(done_) + " of " + Grouped(files_) +
                    " files were " + verb_ + ".\n";
        if (files_ > 1 && failed_ > 0)
            text += Grouped(failed_) + " of " + Grouped(files_) + " files could not be " + verb_ +
                    ":\n";
        for (std::size_t i = 0; i < std::min(lines_.size(), kMostLines); ++i)
            text += lines_[i] + '\n';
        if (lines_.size() > kMostLines)
            text += "and " + Grouped(lines_.size() - kMostLines) + " more\n";
        if (!text.empty())
            text.pop_back();
        return text;
    }

private:
    const char* verb_;
    std::size_t files_;
    std::size_t done_ = 0;
    std::size_t failed_ = 0;
    const char* stopped_ = nullptr;
    std::vector<std::string> lines_;
};

// Where a file is to be opened each is until one is; the others are imported.
void TakeFiles(const WindowContext& context, const std::vector<fs::path>& files, bool opens) {
    TakeAnswers answers;
    Summary summary(opens ? "opened" : "imported", files.size());
    const int count = static_cast<int>(files.size());
    for (int i = 0; i < count; ++i) {
        if (!context.User.GoOn(i, count, kImporting)) {
            summary.End("Cancelled");
            break;
        }
        const fs::path& file = files[static_cast<std::size_t>(i)];
        TakeResult result =
            opens ? TakeToOpen(context, file, answers) : Import(context, file, answers);
        const TakeEnd end = result.End;
        opens = opens && end != TakeEnd::Done;
        summary.Note(std::move(result));
        if (end == TakeEnd::Cancelled) {
            summary.End("Cancelled");
            break;
        }
        if (end == TakeEnd::Failed && !opens && i + 1 < count &&
            IsFull(context.Commands.Editor())) {
            summary.End("Stopped");
            break;
        }
    }
    context.User.GoOn(count, count, kImporting);
    if (const std::string text = summary.Text(); !text.empty())
        context.User.ShowMessage(text);
}

void TakePicture(const WindowContext& context, const OfferedPicture& offered, bool opens) {
    if (opens && !MayGiveUpDocument(context))
        return;
    if (opens || !offered.Problem.empty()) {
        context.Commands.RunBusy(
            [&](editing::Editor& editor) { OpenPicture(editor, RequireReadable(offered)); });
        return;
    }
    TakeAnswers answers;
    const TakeResult result = TakeToImport(context, {offered.Picture}, {}, answers);
    if (!result.Text.empty())
        context.User.ShowMessage(result.Text);
}

// In a box where nothing else came with it.
void TellFar(const WindowContext& context, const QStringList& addresses, bool isAlone) {
    QString text = addresses[0].left(kLongestAddress) + " is not on this computer";
    if (addresses.size() > 1)
        text = QString::number(addresses.size()) + " of the addresses are not on this computer";
    text += ": only files that are can be opened.";
    if (isAlone)
        context.User.ShowMessage(text.toStdString());
    else
        context.User.ShowStatus(text.toStdString());
}

}  // namespace

std::vector<fs::path> PathsOf(const QByteArrayList& files) {
    std::vector<fs::path> paths;
    for (const QByteArray& file : files)
        paths.emplace_back(file.toStdString());
    return paths;
}

void ImportFiles(const WindowContext& context, const std::vector<fs::path>& files) {
    TakeFiles(context, files, false);
}

void OpenFiles(const WindowContext& context, const std::vector<fs::path>& files) {
    if (MayGiveUpDocument(context))
        TakeFiles(context, files, true);
}

void TakeDropped(const WindowContext& context, const Drop& drop) {
    const bool opens = drop.Opens || !context.Commands.Editor().DocumentExists;
    const auto takeFiles = opens ? OpenFiles : ImportFiles;
    if (!drop.Files.Local.isEmpty())
        takeFiles(context, PathsOf(drop.Files.Local));
    else if (drop.Picture)
        TakePicture(context, *drop.Picture, opens);
    // The address of a picture that came itself is of no interest.
    if (!drop.Files.Far.isEmpty() && !drop.Picture)
        TellFar(context, drop.Files.Far, drop.Files.Local.isEmpty());
}

}  // namespace orbelle::app
