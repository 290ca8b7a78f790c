// What is asked of the user, and told to him, before and after a command.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "filters/size_recipes.h"
#include "formats/hotspot.h"
#include "formats/icon_reader.h"
#include "formats/icon_sets.h"
#include "graphics/bitmap.h"
#include "graphics/color.h"

namespace orbelle::app {

enum class SavePromptAnswer { Cancel = 0, No = 1, Yes = 2 };

struct PageSize {
    int Width = 0;  // page pixels
    int Height = 0;
};

struct ColorQuestion {
    const char* Title = "";
    graphics::Argb Old = 0;    // what is there, shown beside the choice
    graphics::Argb Start = 0;  // what the dialog begins with
    bool HasAlpha = false;     // else colours are opaque
};

struct IconQuestion {
    bool TakesSeveral = false;
    bool OffersAllSizes = false;  // where the file has pictures of several sizes
};

struct IconChoice {
    std::vector<int> Images;  // places among those offered, rising; at least one
    bool AllSizes = false;    // rather the whole file, every picture for its size
};

struct SetChoice {
    std::vector<formats::IconSet> Sets;  // at least one
    std::filesystem::path Folder;
};

class UserQuestions {
public:
    // A plain message box with one button.
    virtual void ShowMessage(const std::string& text) = 0;
    // The same about an address or a path, which the user may want to copy.
    virtual void ShowAddress(const std::string& text, const std::string& address) = 0;
    // The same about a folder, which the user may want to open.
    virtual void ShowFolder(const std::string& text, const std::filesystem::path& folder) = 0;
    // Told in the status line, without a box, until the next command.
    virtual void ShowStatus(const std::string& text) = 0;

    // How far a long run over files has come, and what it is about to do; after a while a dialog
    // shows it. The run ends with `done` = `count`. False: the user wants to stop.
    virtual bool GoOn(int done, int count, const std::string& doing) = 0;
    // Does a part of such a run, which may take long, on another thread, so that the dialog comes
    // meanwhile. The editor belongs to this thread. Throws what the work throws.
    virtual void DoMeanwhile(const std::function<void()>& work) = 0;

    // "Save Icon Document?": before a changed document is given up.
    virtual SavePromptAnswer AskSave() = 0;
    // A question with OK and Cancel, Cancel the default; true: OK.
    virtual bool Confirm(const std::string& text, const std::string& title) = 0;
    // The New dialog. No value: cancelled. The window remembers the last size.
    virtual std::optional<PageSize> AskPageSize() = 0;
    // A file dialog with a filter of "text|patterns|text|patterns..."; empty: cancelled. To read,
    // or to write, which begins with a name, in a folder if it has one.
    virtual std::filesystem::path AskFile(const std::string& filter) = 0;
    virtual std::filesystem::path AskFileToWrite(const std::string& filter,
                                                 const std::filesystem::path& proposed) = 0;
    // At which alpha (0 to 200) a pixel of the surface counts as opaque in a GIF. No value:
    // cancelled.
    virtual std::optional<int> AskGifThreshold(const graphics::Bitmap& surface) = 0;
    // Which pixel of a picture a pointer points with, at first the nearest to `start`. No value:
    // cancelled.
    virtual std::optional<formats::Hotspot> AskHotspot(const graphics::Bitmap& picture,
                                                       formats::Hotspot start) = 0;
    // Which images of an icon file to take. No value: cancelled.
    virtual std::optional<IconChoice> ChooseIconImages(
        const std::vector<formats::IconEntryImage>& offered, const IconQuestion& question) = 0;
    // The longer side, pixels, at which a drawing of that size of its own is read. No value:
    // cancelled.
    virtual std::optional<int> AskSvgSide(const PageSize& own) = 0;
    // Whether pictures larger than the page, of which the first has that size, are shrunk until
    // they fit. No value: cancelled.
    virtual std::optional<bool> AskFit(const PageSize& picture, const PageSize& page) = 0;
    // Which recipe makes the picture of that size of the master; no value: cancelled.
    virtual std::optional<filters::SizeRecipe> ChooseRecipe(const graphics::Bitmap& master,
                                                            int size) = 0;
    // Which sets of icon files to write, and where; no value: cancelled. The folder is offered
    // where none was chosen before.
    virtual std::optional<SetChoice> ChooseIconSets(const formats::SetSource& source,
                                                    const std::filesystem::path& folder) = 0;
    // The colour dialog; no value: cancelled.
    virtual std::optional<graphics::Argb> AskColor(const ColorQuestion& question) = 0;

protected:
    ~UserQuestions() = default;
};

}  // namespace orbelle::app
