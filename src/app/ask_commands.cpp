#include "app/ask_commands.h"

#include <QStringList>

#include "app/file_names.h"
#include "app/import_files.h"
#include "app/recent_files.h"
#include "app/save_commands.h"
#include "app/take_file.h"
#include "editing/color_wells.h"
#include "editing/document_commands.h"
#include "editing/page_commands.h"
#include "editing/size_commands.h"
#include "graphics/path_text.h"
#include "widgets/words.h"

namespace orbelle::app {

namespace fs = std::filesystem;

using editing::Editor;

namespace {

#ifdef _WIN32
constexpr bool kReadsDrawings = false;
#else
constexpr bool kReadsDrawings = true;
#endif

// "text|patterns" of each kind of picture that is read.
QStringList PictureFilters() {
    QStringList filters{Words::tr("ICO Files (*.ICO)"),         "*.ico",
                        Words::tr("PNG Files (*.PNG)"),         "*.png",
                        Words::tr("GIF Files (*.GIF)"),         "*.gif",
                        Words::tr("JPEG Files (*.JPG;*.JPEG)"), "*.jpg;*.jpeg",
                        Words::tr("BMP Files (*.BMP)"),         "*.bmp",
                        Words::tr("CUR Files (*.CUR)"),         "*.cur",
                        Words::tr("WebP Files (*.WEBP)"),       "*.webp"};
    if (kReadsDrawings)
        filters += {Words::tr("SVG Files (*.SVG;*.SVGZ)"), "*.svg;*.svgz"};
    return filters;
}

QString PicturePatterns() {
    return QString("*.ico;*.png;*.gif;*.jpg;*.jpeg;*.bmp;*.cur;*.webp") +
           (kReadsDrawings ? ";*.svg;*.svgz" : "");
}

std::string OpenFilter() {
    const QStringList first{Words::tr("All Supported Formats"), "*.volf;" + PicturePatterns(),
                            Words::tr("Varnel Orbelle Files (*.VOLF)"), "*.volf"};
    return (first + PictureFilters()).join('|').toStdString();
}

std::string ImportFilter() {
    const QStringList first{Words::tr("All Supported Formats"), PicturePatterns()};
    return (first + PictureFilters()).join('|').toStdString();
}

void OpenPath(const WindowContext& context, const fs::path& path) {
    TakeAnswers answers;
    const TakeResult result = TakeToOpen(context, path, answers);
    if (!result.Text.empty())
        context.User.ShowMessage(result.Text);
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
    const fs::path path = context.User.AskFile(OpenFilter());
    if (!path.empty())
        OpenPath(context, path);
}

void OpenRecent(const WindowContext& context, const fs::path& path) {
    std::error_code unknown;
    if (fs::status(path, unknown).type() == fs::file_type::not_found) {
        context.Recent.Forget(path);
        context.User.ShowMessage(
            Words::tr("%1: the file is not there any more").arg(TextOf(path)).toStdString());
        return;
    }
    if (MayGiveUpDocument(context))
        OpenPath(context, path);
}

void OpenHandedOver(const WindowContext& context, std::string_view command) {
    if (!MayGiveUpDocument(context))
        return;
    const auto end = command.find_last_not_of(' ');
    const std::size_t length = end == std::string_view::npos ? 0 : end + 1;
    OpenPath(context, graphics::PathOfUtf8(length > 2 ? command.substr(1, length - 2) : ""));
}

void AskImport(const WindowContext& context) {
    const fs::path path = context.User.AskFile(ImportFilter());
    if (!path.empty())
        ImportFiles(context, {path});
}

void AskPageBackground(const WindowContext& context) {
    const Editor& editor = context.Commands.Editor();
    if (!editor.States.IsEnabled(editing::CommandId::PageBackground))
        return;
    const graphics::Argb old = editor.Document.Background;
    const ColorQuestion question{QT_TRANSLATE_NOOP("Words", "Page Background"), old,
                                 graphics::SetAlphaByte(old, 255)};
    if (const auto color = context.User.AskColor(question))
        context.Commands.Run([&](Editor& changed) {
            SetPageBackground(changed, graphics::SetAlphaByte(*color, 255));
        });
}

void AskWellColor(const WindowContext& context, int well) {
    const graphics::Argb present =
        context.Commands.Editor().Tools.Colors[static_cast<std::size_t>(well)];
    const std::optional<graphics::Argb> chosen =
        context.User.AskColor({well == 0 ? QT_TRANSLATE_NOOP("Words", "Foreground Color")
                                         : QT_TRANSLATE_NOOP("Words", "Background Color"),
                               present, editing::ColorToChoose(present), true});
    context.Commands.Run([&](Editor& editor) {
        if (chosen)
            ChooseWellColor(editor, well, *chosen);
        else
            UseColorWell(editor, well);
    });
}

void AskSuggest(const WindowContext& context, int size) {
    const graphics::Bitmap master = MasterPicture(context.Commands.Editor());
    if (const auto recipe = context.User.ChooseRecipe(master, size))
        context.Commands.Run([&](Editor& editor) { MakeArtwork(editor, size, *recipe); });
}

}  // namespace orbelle::app
