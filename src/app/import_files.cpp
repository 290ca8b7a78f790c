#include "app/import_files.h"

#include <QStringList>
#include <algorithm>

#include "app/file_names.h"
#include "app/save_commands.h"
#include "app/take_file.h"
#include "document/undo_history.h"
#include "editing/document_commands.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostLines = 10;
constexpr int kLongestAddress = 200;  // characters that are told

// "1,000"
QString Grouped(std::size_t number) {
    return NumberLocale().toString(static_cast<qulonglong>(number));
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

enum class Stop { None, Cancelled, Full };

class Summary {
public:
    // Of so many files, which were to be opened or imported.
    Summary(bool opens, std::size_t files) : opens_(opens), files_(files) {}

    void Note(TakeResult result) {
        done_ += result.End == TakeEnd::Done ? 1 : 0;
        failed_ += result.End == TakeEnd::Failed ? 1 : 0;
        if (!result.Text.empty())
            lines_.push_back(std::move(result.Text));
    }
    void End(Stop stop) { stop_ = stop; }

    // Empty: there is nothing to tell.
    std::string Text() const {
        QStringList lines;
        if (files_ > 1 && stop_ != Stop::None)
            lines += StopText().arg(Grouped(done_), Grouped(files_));
        if (files_ > 1 && failed_ > 0)
            lines += (opens_ ? Words::tr("%1 of %2 files could not be opened:")
                             : Words::tr("%1 of %2 files could not be imported:"))
                         .arg(Grouped(failed_), Grouped(files_));
        for (std::size_t i = 0; i < std::min(lines_.size(), kMostLines); ++i)
            lines += QString::fromStdString(lines_[i]);
        if (lines_.size() > kMostLines)
            lines += Words::tr("and %1 more").arg(Grouped(lines_.size() - kMostLines));
        return lines.join('\n').toStdString();
    }

private:
    QString StopText() const {
        if (stop_ == Stop::Cancelled)
            return opens_ ? Words::tr("Cancelled: %1 of %2 files were opened.")
                          : Words::tr("Cancelled: %1 of %2 files were imported.");
        return opens_ ? Words::tr("Stopped: %1 of %2 files were opened.")
                      : Words::tr("Stopped: %1 of %2 files were imported.");
    }

    bool opens_;
    std::size_t files_;
    std::size_t done_ = 0;
    std::size_t failed_ = 0;
    Stop stop_ = Stop::None;
    std::vector<std::string> lines_;
};

// Where a file is to be opened each is until one is; the others are imported.
void TakeFiles(const WindowContext& context, const std::vector<fs::path>& files, bool opens) {
    TakeAnswers answers;
    Summary summary(opens, files.size());
    const std::string doing = Words::tr("Importing the files...").toStdString();
    const int count = static_cast<int>(files.size());
    for (int i = 0; i < count; ++i) {
        if (!context.User.GoOn(i, count, doing)) {
            summary.End(Stop::Cancelled);
            break;
        }
        const fs::path& file = files[static_cast<std::size_t>(i)];
        TakeResult result =
            opens ? TakeToOpen(context, file, answers) : Import(context, file, answers);
        const TakeEnd end = result.End;
        opens = opens && end != TakeEnd::Done;
        summary.Note(std::move(result));
        if (end == TakeEnd::Cancelled) {
            summary.End(Stop::Cancelled);
            break;
        }
        if (end == TakeEnd::Failed && !opens && i + 1 < count &&
            IsFull(context.Commands.Editor())) {
            summary.End(Stop::Full);
            break;
        }
    }
    context.User.GoOn(count, count, doing);
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
    const auto count = static_cast<int>(addresses.size());
    const QString text =
        count == 1 ? Words::tr("%1 is not on this computer: only files that are can be opened.")
                         .arg(addresses[0].left(kLongestAddress))
                   : Words::tr(
                         "%n of the addresses are not on this computer: only files that are "
                         "can be opened.",
                         nullptr, count);
    if (isAlone)
        context.User.ShowMessage(text.toStdString());
    else
        context.User.ShowStatus(text.toStdString());
}

}  // namespace

std::vector<fs::path> PathsOf(const QByteArrayList& files) {
    std::vector<fs::path> paths;
    for (const QByteArray& file : files)
        paths.push_back(PathOfBytes(file));
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
