#include "app/ask_commands.h"

#include "editing/color_wells.h"
#include "editing/document_commands.h"
#include "editing/export_commands.h"
#include "editing/page_commands.h"

namespace orbelle::app {

namespace fs = std::filesystem;

using editing::Editor;

namespace {

constexpr char kPictureFilters[] =
    "|ICO Files (*.ICO)|*.ico|PNG Files (*.PNG)|*.png|GIF Files (*.GIF)|*.gif"
    "|JPEG Files (*.JPG;*.JPEG)|*.jpg;*.jpeg|BMP Files (*.BMP)|*.bmp";
constexpr char kOpenFilter[] =
    "All Supported Formats|*.volf;*.ico;*.png;*.gif;*.jpg;*.jpeg;*.bmp"
    "|Varnel Orbelle Files (*.VOLF)|*.volf";
constexpr char kImportFilter[] = "All Supported Formats|*.ico;*.png;*.gif;*.jpg;*.jpeg;*.bmp";
constexpr char kSaveFilter[] = "Varnel Orbelle File(*.VOLF)|*.volf";

// The picture of an icon file that the user chooses. No value: cancelled, or told why not.
std::optional<graphics::Bitmap> AskIconImage(const WindowContext& context, const fs::path& path) {
    std::vector<formats::IconEntryImage> offered;
    if (!context.Commands.RunBusy([&](Editor&) { offered = editing::ReadIconImages(path); }))
        return std::nullopt;
    const std::optional<int> chosen = context.User.ChooseIconImage(offered);
    if (!chosen || *chosen < 0 || *chosen >= static_cast<int>(offered.size()))
        return std::nullopt;
    return offered[static_cast<std::size_t>(*chosen)].Image;
}

using TakeFile = void (*)(Editor&, const fs::path&, int iconImage);
using TakePicture = void (*)(Editor&, const graphics::Bitmap&);

void Take(const WindowContext& context, const fs::path& path, TakeFile takeFile,
          TakePicture takePicture) {
    if (!editing::IsIconName(path)) {
        context.Commands.RunBusy([&](Editor& editor) { takeFile(editor, path, 0); });
    } else if (const auto picture = AskIconImage(context, path)) {
        context.Commands.Run([&](Editor& editor) { takePicture(editor, *picture); });
    }
}

void OpenPath(const WindowContext& context, const fs::path& path) {
    Take(context, path, editing::OpenFile, editing::OpenPicture);
}

bool MayOverwrite(const WindowContext& context, const fs::path& path) {
    std::error_code ignored;
    return !fs::exists(path, ignored) ||
           context.User.Confirm("Image already exists, overwrite it?", "Warning");
}

bool Write(const WindowContext& context, const fs::path& path) {
    return context.Commands.RunBusy([&](Editor& editor) { SaveTo(editor, path); });
}

}  // namespace

void AskNew(const WindowContext& context) {
    if (!MayGiveUpDocument(context))
        return;
    if (const std::optional<PageSize> size = context.User.AskPageSize())
        context.Commands.Run(
            [&](Editor& editor) { NewDocument(editor, size->Width, size->Height); });
}

void AskOpen(const WindowContext& context) {
    if (!MayGiveUpDocument(context))
        return;
    const fs::path path = context.User.AskFile(std::string(kOpenFilter) + kPictureFilters, true);
    if (!path.empty())
        OpenPath(context, path);
}

void OpenHandedOver(const WindowContext& context, std::string_view command) {
    if (!MayGiveUpDocument(context))
        return;
    const auto end = command.find_last_not_of(' ');
    const std::size_t length = end == std::string_view::npos ? 0 : end + 1;
    OpenPath(context, length > 2 ? command.substr(1, length - 2) : std::string_view());
}

void AskImport(const WindowContext& context) {
    const fs::path path = context.User.AskFile(std::string(kImportFilter) + kPictureFilters, true);
    if (!path.empty())
        ImportKnownFile(context, path);
}

void ImportKnownFile(const WindowContext& context, const fs::path& path) {
    if (!editing::IsDocumentName(path) || MayGiveUpDocument(context))
        Take(context, path, editing::ImportFile, editing::ImportPicture);
}

bool AskSave(const WindowContext& context) {
    const fs::path path = context.Commands.Editor().Document.Path;
    return path.empty() ? AskSaveAs(context) : Write(context, path);
}

bool AskSaveAs(const WindowContext& context) {
    const fs::path path = context.User.AskFile(kSaveFilter, false);
    return !path.empty() && MayOverwrite(context, path) && Write(context, path);
}

void AskExport(const WindowContext& context, const ExportEntry& entry) {
    const fs::path path = context.User.AskFile(entry.Filter, false);
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
    const editing::Outcome outcome = context.Commands.Try([&](Editor& toExport) {
        toExport.ExportSettings.GifThreshold = *threshold;
        ExportTo(toExport, path, entry.Format);
    });
    if (outcome.Failed())
        context.User.ShowStatus(outcome.Problem());
}

bool MayGiveUpDocument(const WindowContext& context) {
    // What is being typed counts.
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

void AskPageBackground(const WindowContext& context) {
    const Editor& editor = context.Commands.Editor();
    if (!editor.States.IsEnabled(editing::CommandId::PageBackground))
        return;
    if (const auto color = context.User.AskColor(editor.Document.Background))
        context.Commands.Run([&](Editor& changed) {
            SetPageBackground(changed, graphics::SetAlphaByte(*color, 255));
        });
}

void AskWellColor(const WindowContext& context, int well) {
    const graphics::Argb present =
        context.Commands.Editor().Tools.Colors[static_cast<std::size_t>(well)];
    const std::optional<graphics::Argb> chosen = context.User.AskColor(present);
    context.Commands.Run([&](Editor& editor) {
        if (chosen)
            ChooseWellColor(editor, well, *chosen);
        else
            UseColorWell(editor, well);
    });
}

}  // namespace orbelle::app
