#include "app/take_file.h"

#include <algorithm>
#include <utility>

#include "app/recent_files.h"
#include "editing/clipboard_commands.h"
#include "editing/document_commands.h"
#include "graphics/codecs/image_files.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

using editing::Editor;

TakeResult Ended(Report report) {
    return {report.Failed ? TakeEnd::Failed : TakeEnd::Done, std::move(report.Text)};
}

// What the user chooses of an icon file; without a choice the taking has ended.
struct ChosenImages {
    std::optional<TakeResult> End;
    std::vector<formats::IconEntryImage> Images;  // none: all sizes
};

ChosenImages ChooseImages(const WindowContext& context, const fs::path& path,
                          const IconQuestion& question) {
    std::vector<formats::IconEntryImage> offered;
    Report read = context.Commands.Try([&](Editor&) { offered = editing::ReadIconImages(path); });
    if (read.Failed)
        return {Ended(std::move(read)), {}};
    const std::optional<IconChoice> choice = context.User.ChooseIconImages(offered, question);
    if (!choice || choice->Images.empty())
        return {TakeResult{TakeEnd::Cancelled, {}}, {}};
    ChosenImages chosen;
    if (choice->AllSizes)
        return chosen;
    for (const int image : choice->Images)
        chosen.Images.push_back(offered[static_cast<std::size_t>(image)]);
    return chosen;
}

TakeResult OpenIcon(const WindowContext& context, const fs::path& path) {
    const ChosenImages chosen = ChooseImages(context, path, {.OffersAllSizes = true});
    if (chosen.End)
        return *chosen.End;
    return Ended(context.Commands.Try([&](Editor& editor) {
        if (chosen.Images.empty())
            OpenIconFamily(editor, path);
        else
            OpenIconImage(editor, chosen.Images[0], path);
    }));
}

// Drawings have the size that the user wants. False: the taking has ended with that result.
bool AskSvgSide(const WindowContext& context, const fs::path& path, TakeAnswers& answers,
                editing::ReadChoices& choices, TakeResult& end) {
    if (!editing::IsSvgFile(path))
        return true;
    if (!answers.SvgSide) {
        graphics::SvgSize own;
        Report read = context.Commands.Try([&](Editor&) { own = graphics::ReadSvgSize(path); });
        if (read.Failed) {
            end = Ended(std::move(read));
            return false;
        }
        answers.SvgSide = context.User.AskSvgSide({own.Width, own.Height});
    }
    if (!answers.SvgSide) {
        end = {TakeEnd::Cancelled, {}};
        return false;
    }
    choices.SvgSide = *answers.SvgSide;
    return true;
}

TakeResult OpenOther(const WindowContext& context, const fs::path& path, TakeAnswers& answers) {
    editing::ReadChoices choices;
    TakeResult end;
    if (!AskSvgSide(context, path, answers, choices, end))
        return end;
    return Ended(context.Commands.Try([&](Editor& editor) { OpenFile(editor, path, choices); }));
}

// Whether pictures are to fit the page, asked where one is larger. No value: cancelled.
std::optional<bool> AskFit(const WindowContext& context,
                           const std::vector<graphics::Bitmap>& pictures, TakeAnswers& answers) {
    const Editor& editor = context.Commands.Editor();
    const PageSize page{editor.Page().Width, editor.Page().Height};
    const auto large = std::ranges::find_if(pictures, [&](const graphics::Bitmap& picture) {
        return picture.Width() > page.Width || picture.Height() > page.Height;
    });
    if (!editor.DocumentExists || large == pictures.end())
        return false;
    if (!answers.FitsPage)
        answers.FitsPage = context.User.AskFit({large->Width(), large->Height()}, page);
    return answers.FitsPage;
}

}  // namespace

TakeResult TakeToOpen(const WindowContext& context, const fs::path& path, TakeAnswers& answers) {
    TakeResult result =
        editing::IsIconFile(path) ? OpenIcon(context, path) : OpenOther(context, path, answers);
    if (result.End == TakeEnd::Done)
        context.Recent.Note(path);
    return result;
}

TakeResult TakeToImport(const WindowContext& context, const fs::path& path, TakeAnswers& answers) {
    if (editing::IsDocumentFile(path))
        return Ended(context.Commands.Try([&](Editor& editor) { ImportFile(editor, path); }));
    if (editing::IsIconFile(path)) {
        const ChosenImages chosen = ChooseImages(context, path, {.TakesSeveral = true});
        if (chosen.End)
            return *chosen.End;
        std::vector<graphics::Bitmap> pictures;
        for (const formats::IconEntryImage& image : chosen.Images)
            pictures.push_back(image.Image);
        return TakeToImport(context, pictures, path, answers);
    }
    editing::ReadChoices choices;
    TakeResult end;
    if (!AskSvgSide(context, path, answers, choices, end))
        return end;
    graphics::Bitmap picture;
    Report read = context.Commands.Try(
        [&](Editor& editor) { picture = ReadPictureToImport(editor, path, choices); });
    if (read.Failed)
        return Ended(std::move(read));
    return TakeToImport(context, {picture}, path, answers);
}

TakeResult TakeToImport(const WindowContext& context, const std::vector<graphics::Bitmap>& pictures,
                        const fs::path& source, TakeAnswers& answers) {
    const std::optional<bool> fits = AskFit(context, pictures, answers);
    if (!fits)
        return {TakeEnd::Cancelled, {}};
    return Ended(context.Commands.Try(
        [&](Editor& changed) { ImportPictures(changed, pictures, source, *fits); }));
}

TakeResult TakePasted(const WindowContext& context) {
    graphics::Bitmap picture;
    Report read = context.Commands.Try([&](Editor& editor) { picture = ForeignPicture(editor); });
    if (read.Failed)
        return Ended(std::move(read));
    if (picture.IsEmpty())
        return Ended(context.Commands.Try(editing::PasteFromClipboard));
    TakeAnswers answers;
    const std::optional<bool> fits = AskFit(context, {picture}, answers);
    if (!fits)
        return {TakeEnd::Cancelled, {}};
    return Ended(
        context.Commands.Try([&](Editor& editor) { PastePicture(editor, picture, *fits); }));
}

}  // namespace orbelle::app
