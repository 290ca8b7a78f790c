#include "app/take_file.h"

#include "app/recent_files.h"
#include "editing/document_commands.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

using editing::Editor;

using TakeFile = void (*)(Editor&, const fs::path&, int iconImage);
using TakePicture = void (*)(Editor&, const graphics::Bitmap&, const fs::path& source);

TakeResult Ended(Report report) {
    return {report.Failed ? TakeEnd::Failed : TakeEnd::Done, std::move(report.Text)};
}

TakeResult TakeIconImage(const WindowContext& context, const fs::path& path,
                         TakePicture takePicture) {
    std::vector<formats::IconEntryImage> offered;
    Report read = context.Commands.Try([&](Editor&) { offered = editing::ReadIconImages(path); });
    if (read.Failed)
        return Ended(std::move(read));
    const std::optional<int> chosen = context.User.ChooseIconImage(offered);
    if (!chosen || *chosen < 0 || *chosen >= static_cast<int>(offered.size()))
        return {TakeEnd::Cancelled, {}};
    const graphics::Bitmap& picture = offered[static_cast<std::size_t>(*chosen)].Image;
    return Ended(context.Commands.Try([&](Editor& editor) { takePicture(editor, picture, path); }));
}

TakeResult Take(const WindowContext& context, const fs::path& path, TakeFile takeFile,
                TakePicture takePicture) {
    if (editing::IsIconFile(path))
        return TakeIconImage(context, path, takePicture);
    return Ended(context.Commands.Try([&](Editor& editor) { takeFile(editor, path, 0); }));
}

}  // namespace

TakeResult TakeToOpen(const WindowContext& context, const fs::path& path) {
    TakeResult result = Take(context, path, editing::OpenFile, editing::OpenPicture);
    if (result.End == TakeEnd::Done)
        context.Recent.Note(path);
    return result;
}

TakeResult TakeToImport(const WindowContext& context, const fs::path& path) {
    return Take(context, path, editing::ImportFile, editing::ImportPicture);
}

}  // namespace orbelle::app
