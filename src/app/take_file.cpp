#include "app/take_file.h"

#include "app/recent_files.h"
#include "editing/document_commands.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

using editing::Editor;

using TakeFile = void (*)(Editor&, const fs::path&, int iconImage);
using TakeImages = void (*)(Editor&, const std::vector<formats::IconEntryImage>&,
                            const fs::path& source);

TakeResult Ended(Report report) {
    return {report.Failed ? TakeEnd::Failed : TakeEnd::Done, std::move(report.Text)};
}

TakeResult TakeIconImages(const WindowContext& context, const fs::path& path,
                          const IconQuestion& question, TakeImages takeImages) {
    std::vector<formats::IconEntryImage> offered;
    Report read = context.Commands.Try([&](Editor&) { offered = editing::ReadIconImages(path); });
    if (read.Failed)
        return Ended(std::move(read));
    const std::optional<IconChoice> choice = context.User.ChooseIconImages(offered, question);
    if (!choice || choice->Images.empty())
        return {TakeEnd::Cancelled, {}};
    if (choice->AllSizes)
        return Ended(context.Commands.Try([&](Editor& editor) { OpenIconFamily(editor, path); }));
    std::vector<formats::IconEntryImage> chosen;
    for (const int image : choice->Images)
        chosen.push_back(offered[static_cast<std::size_t>(image)]);
    return Ended(context.Commands.Try([&](Editor& editor) { takeImages(editor, chosen, path); }));
}

void OpenFirst(Editor& editor, const std::vector<formats::IconEntryImage>& images,
               const fs::path& source) {
    OpenIconImage(editor, images[0], source);
}

void ImportAll(Editor& editor, const std::vector<formats::IconEntryImage>& images,
               const fs::path& source) {
    std::vector<graphics::Bitmap> pictures;
    for (const formats::IconEntryImage& image : images)
        pictures.push_back(image.Image);
    ImportPictures(editor, std::move(pictures), source);
}

TakeResult TakeOther(const WindowContext& context, const fs::path& path, TakeFile takeFile) {
    return Ended(context.Commands.Try([&](Editor& editor) { takeFile(editor, path, 0); }));
}

}  // namespace

TakeResult TakeToOpen(const WindowContext& context, const fs::path& path) {
    TakeResult result = editing::IsIconFile(path)
                            ? TakeIconImages(context, path, {.OffersAllSizes = true}, OpenFirst)
                            : TakeOther(context, path, editing::OpenFile);
    if (result.End == TakeEnd::Done)
        context.Recent.Note(path);
    return result;
}

TakeResult TakeToImport(const WindowContext& context, const fs::path& path) {
    if (editing::IsIconFile(path))
        return TakeIconImages(context, path, {.TakesSeveral = true}, ImportAll);
    return TakeOther(context, path, editing::ImportFile);
}

}  // namespace orbelle::app
