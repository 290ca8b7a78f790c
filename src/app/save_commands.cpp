#include "app/save_commands.h"

#include <algorithm>
#include <cctype>
#include <functional>

#include "app/file_names.h"
#include "app/recent_files.h"
#include "app/written_text.h"
#include "editing/document_commands.h"
#include "editing/export_commands.h"
#include "formats/icns_file.h"
#include "graphics/path_text.h"
#include "widgets/words.h"

namespace orbelle::app {

namespace fs = std::filesystem;

using editing::Editor;

namespace {

// "text|patterns"
std::string FilterOf(const char* text, const char* patterns) {
    return Words::tr(text).toStdString() + '|' + patterns;
}

bool Confirm(const WindowContext& context, const QString& question) {
    return context.User.Confirm(question.toStdString(), Words::tr("Warning").toStdString());
}

// In ASCII letters, as extensions are.
bool EndsWith(std::string_view name, std::string_view ending) {
    return name.size() >= ending.size() &&
           std::ranges::equal(
               name.substr(name.size() - ending.size()), ending,
               [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

// Where the user wants a file to be, with its extension; empty: nowhere. A pipe would keep the
// window waiting until somebody reads from it.
fs::path AskWhereTo(const WindowContext& context, const std::string& filter) {
    fs::path path = context.User.AskFileToWrite(
        filter, ProposedName(context.Commands.Editor().Document, filter));
    if (path.empty())
        return path;
    path = CompletedName(path, filter);
    std::error_code unknown;
    if (!fs::is_fifo(path, unknown))
        return path;
    context.User.ShowMessage(Words::tr("%1: a pipe, not a file").arg(TextOf(path)).toStdString());
    return {};
}

bool MayOverwrite(const WindowContext& context, const fs::path& path) {
    std::error_code ignored;
    return !fs::exists(path, ignored) ||
           Confirm(context, Words::tr("Image already exists, overwrite it?"));
}

// What another program has put where the document's file was is not overwritten unasked.
bool MayReplace(const WindowContext& context, const fs::path& path) {
    const graphics::FileStamp found = graphics::StampOf(path);
    return found == graphics::FileStamp() || found == context.Commands.Editor().Document.Stamp ||
           Confirm(context,
                   Words::tr("%1 was changed by another program since you opened it. Overwrite it?")
                       .arg(TextOf(path.filename())));
}

std::optional<std::uintmax_t> SizeOf(const fs::path& path) {
    std::error_code unknown;
    const std::uintmax_t bytes = fs::file_size(path, unknown);
    return unknown ? std::nullopt : std::optional(bytes);
}

bool Write(const WindowContext& context, const fs::path& path) {
    if (!context.Commands.RunBusy([&](Editor& editor) { SaveTo(editor, path); }))
        return false;
    context.Recent.Note(path);
    context.User.ShowStatus(SavedText(path, SizeOf(path)));
    return true;
}

// Each once, largest first.
std::vector<int> IcnsSides() {
    std::vector<int> sides;
    for (const formats::IcnsType& type : formats::kIcnsTypes)
        sides.push_back(type.Side);
    std::ranges::sort(sides, std::greater());
    sides.erase(std::unique(sides.begin(), sides.end()), sides.end());
    return sides;
}

std::string TextOfExport(const Editor& editor, const fs::path& path, const ExportEntry& entry) {
    const int width = editor.Page().Width, height = editor.Page().Height;
    switch (entry.Format) {
        case formats::ExportFormat::Ico:
        case formats::ExportFormat::Cur:
            return ExportedIconText(path, SizeOf(path), entry.Kind, IconSizesOf(editor));
        case formats::ExportFormat::Icns:
            return ExportedIconText(path, SizeOf(path), entry.Kind, IcnsSides());
        default:
            return ExportedText(path, SizeOf(path), entry.Kind, width, height);
    }
}

// Where the pointer points is kept for the next export. False: the user wants to go back.
bool AskHotspot(const WindowContext& context) {
    const Editor& editor = context.Commands.Editor();
    const std::optional<formats::Hotspot> hotspot =
        context.User.AskHotspot(formats::Flatten(editor.Document, editor.Canvas).Master,
                                editor.ExportSettings.PointerHotspot);
    return hotspot && context.Commands.Run([&](Editor& toExport) {
        toExport.ExportSettings.PointerHotspot = *hotspot;
    });
}

// "*.a;*.b" of a filter, and ".a" of these.
std::string_view PatternsOf(std::string_view filter) {
    return filter.substr(filter.find('|') + 1);
}
std::string_view FirstExtension(std::string_view patterns) {
    return patterns.substr(0, patterns.find(';')).substr(1);
}

}  // namespace

bool AskSave(const WindowContext& context) {
    const fs::path path = context.Commands.Editor().Document.Path;
    if (path.empty())
        return AskSaveAs(context);
    return MayReplace(context, path) && Write(context, path);
}

bool AskSaveAs(const WindowContext& context) {
    const fs::path path = AskWhereTo(
        context, FilterOf(QT_TRANSLATE_NOOP("Words", "Varnel Orbelle File(*.VOLF)"), "*.volf"));
    return !path.empty() && MayOverwrite(context, path) && Write(context, path);
}

void AskExport(const WindowContext& context, const ExportEntry& entry) {
    const fs::path path = AskWhereTo(context, FilterOf(entry.FileText, entry.Patterns));
    if (path.empty() || !MayOverwrite(context, path))
        return;
    const Editor& editor = context.Commands.Editor();
    std::optional<int> threshold = editor.ExportSettings.GifThreshold;
    if (entry.Format == formats::ExportFormat::Gif &&
        graphics::AlphaOf(editor.Document.Background) == 0)
        threshold = context.User.AskGifThreshold(
            formats::DrawGifSurface(editor.Canvas, editor.Document.Background));
    if (!threshold)
        return;
    if (entry.Format == formats::ExportFormat::Cur && !AskHotspot(context))
        return;
    const Report report = context.Commands.Try([&](Editor& toExport) {
        toExport.ExportSettings.GifThreshold = *threshold;
        ExportTo(toExport, path, entry.Format);
    });
    context.User.ShowStatus(report.Failed ? report.Text : TextOfExport(editor, path, entry));
}

bool MayGiveUpDocument(const WindowContext& context) {
    // Ends what is under way, as a number that is being typed: it counts, or it does not.
    context.Commands.Run([](Editor&) {});
    if (!context.Commands.Editor().Document.Modified)
        return true;
    switch (context.User.AskSave()) {
        case SavePromptAnswer::Yes:
            return AskSave(context);
        case SavePromptAnswer::No:
            return true;
        case SavePromptAnswer::Cancel:
            break;
    }
    return false;
}

fs::path ProposedName(const document::Document& document, std::string_view filter) {
    const fs::path& origin = document.Path.empty() ? document.Source : document.Path;
    std::error_code unknown;
    fs::path proposed =
        origin.empty() ? u8"icon" : fs::absolute(origin, unknown).replace_extension();
    return proposed += graphics::PathOfUtf8(FirstExtension(PatternsOf(filter)));
}

fs::path CompletedName(const fs::path& path, std::string_view filter) {
    const std::string name = graphics::Utf8Of(path.filename());
    std::string_view patterns = PatternsOf(filter);
    const std::string_view first = FirstExtension(patterns);
    while (!patterns.empty()) {
        const std::size_t end = std::min(patterns.find(';'), patterns.size());
        if (EndsWith(name, patterns.substr(1, end - 1)))
            return path;
        patterns.remove_prefix(std::min(end + 1, patterns.size()));
    }
    return fs::path(path) += graphics::PathOfUtf8(first);
}

}  // namespace orbelle::app
