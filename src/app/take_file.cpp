#include "app/take_file.h"

#include "app/recent_files.h"
#include "editing/document_commands.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

using editing::Editor;

using TakeFile = void (*)(Editor&, const fs::path&, const editing::ReadChoices&);
using TakePictures = void (*)(Editor&, std::vector<graphics::Bitmap>, const fs::path& source,
                              bool fitsPage);

TakeResult Ended(Report report) {
    return {report.Failed ? TakeEnd::Failed : TakeEnd::Done, std::move(report.Text)};
}

TakeResult TakeIconImages(const WindowContext& context, const fs::path& path,
                          const IconQuestion& question, TakePictures takePictures) {
    std::vector<formats::IconEntryImage> offered;
    Report read = context.Commands.Try([&](Editor&) { offered = editing::ReadIconImages(path); });
    if (read.Failed)
        return Ended(std::move(read));
    const std::optional<IconChoice> choice = context.User.ChooseIconImages(offered, question);
    if (!choice || choice->Images.empty())
        return {TakeEnd::Cancelled, {}};
    if (choice->AllSizes)
        return Ended(context.Commands.Try([&](Editor& editor) { OpenIconFamily(editor, path); }));
    std::vector<graphics::Bitmap> pictures;
    for (const int image : choice->Images)
        pictures.push_back(offered[static_cast<std::size_t>(image)].Image);
    return Ended(
        context.Commands.Try([&](Editor& editor) { takePictures(editor, pictures, path, false); }));
}

void OpenFirst(Editor& editor, std::vector<graphics::Bitmap> pictures, const fs::path& source,
               bool /*fitsPage*/) {
    OpenPicture(editor, pictures[0], source);
}

TakeResult TakeOther(const WindowContext& context, const fs::path& path, TakeFile takeFile) {
    return Ended(context.Commands.Try([&](Editor& editor) { takeFile(editor, path, {}); }));
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
        return TakeIconImages(context, path, {.TakesSeveral = true}, editing::ImportPictures);
    return TakeOther(context, path, editing::ImportFile);
}

}  // namespace orbelle::app
