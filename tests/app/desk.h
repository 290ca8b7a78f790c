// An editor and its user, without a window: answers from its fields, and notes in `Told` what was
// asked and told.
#pragma once

#include <gtest/gtest.h>

#include <climits>
#include <filesystem>
#include <string>
#include <vector>

#include "app/recent_files.h"
#include "app/window_actions.h"

namespace orbelle::app {

class Desk : public CommandRunner,
             public UserQuestions,
             public WindowActions,
             public editing::EditorObserver,
             public editing::Clipboard {
public:
    static constexpr int kNewSide = 7;  // of the page that it wants

    SavePromptAnswer SaveAnswer = SavePromptAnswer::Cancel;
    bool OverwriteAnswer = false;  // also of what another program has changed
    int FilesAtMost = INT_MAX;     // then the user stops a long run
    std::filesystem::path ToRead, ToWrite;
    std::optional<int> GifThreshold;
    std::optional<formats::Hotspot> PointsAt;
    std::optional<IconChoice> IconImages;
    IconQuestion AskedOfIcon;
    std::optional<int> SvgSide;
    std::optional<bool> Fits = false;
    PageSize OwnSize, LargeSize;  // of what was asked for
    std::optional<filters::SizeRecipe> Recipe;
    std::optional<SetChoice> Sets;
    graphics::Bitmap Copied;     // by another program
    graphics::Bitmap Suggested;  // what recipes were asked for
    std::optional<graphics::Argb> Color;
    std::vector<std::string> Told;
    std::string Message, Status, Doing;  // the last
    std::filesystem::path Proposed;
    ColorQuestion Question;

    // "save? message"
    std::string AllTold() const {
        std::string all;
        for (const std::string& told : Told)
            all += (all.empty() ? "" : " ") + told;
        return Status.empty() ? all : all + "status";
    }

    RecentFiles Recent;
    WindowContext Context{*this, *this, *this, Recent};
    editing::Editor State{*this, *this};

    Report Try(const editing::Command& command) override {
        const editing::Outcome outcome = editing::Run(State, command);
        return {outcome.Failed(), outcome.Problem()};
    }
    bool Run(const editing::Command& command) override {
        const Report report = Try(command);
        if (report.Failed)
            ShowMessage(report.Text);
        return !report.Failed;
    }
    bool RunBusy(const editing::Command& command) override { return Run(command); }
    bool RunDuringDrag(const editing::Command& step) override { return Run(step); }
    const editing::Editor& Editor() const override { return State; }

    void ShowMessage(const std::string& text) override {
        Told.emplace_back("message");
        Message = text;
    }
    bool GoOn(int done, int count, const std::string& doing) override {
        if (done < count)
            Doing = doing;
        return done < FilesAtMost;
    }
    void DoMeanwhile(const std::function<void()>& work) override { work(); }
    void ShowStatus(const std::string& text) override { Status = text; }
    void ShowFolder(const std::string& text, const std::filesystem::path&) override {
        ShowMessage(text);
    }
    void ShowAddress(const std::string& text, const std::string&) override { ShowMessage(text); }
    SavePromptAnswer AskSave() override { return Answer("save?", SaveAnswer); }
    bool Confirm(const std::string& text, const std::string& title) override {
        EXPECT_EQ(title, "Warning");
        if (text == "Image already exists, overwrite it?")
            return Answer("overwrite?", OverwriteAnswer);
        if (text.find(" of these sets already ") != std::string::npos)
            return Answer(text.c_str(), OverwriteAnswer);
        EXPECT_EQ(text, State.Document.Path.filename().string() +
                            " was changed by another program since you opened it. Overwrite it?");
        return Answer("changed?", OverwriteAnswer);
    }
    std::optional<PageSize> AskPageSize() override { return PageSize{kNewSide, kNewSide}; }
    std::filesystem::path AskFile(const std::string&) override { return Answer("read?", ToRead); }
    std::filesystem::path AskFileToWrite(const std::string&,
                                         const std::filesystem::path& proposed) override {
        Proposed = proposed;
        return Answer("write?", ToWrite);
    }
    std::optional<int> AskGifThreshold(const graphics::Bitmap&) override {
        return Answer("threshold?", GifThreshold);
    }
    std::optional<formats::Hotspot> AskHotspot(const graphics::Bitmap&, formats::Hotspot) override {
        return Answer("hotspot?", PointsAt);
    }
    std::optional<IconChoice> ChooseIconImages(const std::vector<formats::IconEntryImage>&,
                                               const IconQuestion& question) override {
        AskedOfIcon = question;
        return Answer("image?", IconImages);
    }
    std::optional<int> AskSvgSide(const PageSize& own) override {
        OwnSize = own;
        return Answer("drawn?", SvgSide);
    }
    std::optional<bool> AskFit(const PageSize& picture, const PageSize&) override {
        LargeSize = picture;
        return Answer("fit?", Fits);
    }
    std::optional<filters::SizeRecipe> ChooseRecipe(const graphics::Bitmap& master, int) override {
        Suggested = master;
        return Answer("recipe?", Recipe);
    }
    std::optional<SetChoice> ChooseIconSets(const formats::SetSource&,
                                            const std::filesystem::path& folder) override {
        Proposed = folder;
        return Answer("sets?", Sets);
    }
    std::optional<graphics::Argb> AskColor(const ColorQuestion& question) override {
        Question = question;
        return Color;
    }

    void Changed(const editing::Changes&) override {}
    void Put(const graphics::Bitmap&, const std::string&) override {}
    bool HasPicture() override { return !Copied.IsEmpty(); }
    graphics::Bitmap Picture() override { return Copied; }
    std::string Text() override { return {}; }
    void CloseWindow() override {}
    void FocusScene() override {}
    void ShowOrderMenu() override {}
    void Paste() override {}
    void ToggleTips() override {}
    void CloseTips() override {}
    void TogglePixelGrid() override {}
    void ToggleCheck() override {}
    void ShowAbout() override {}
    void ShowControls() override {}

private:
    template <typename T>
    T Answer(const char* question, const T& answer) {
        Told.emplace_back(question);
        return answer;
    }
};

}  // namespace orbelle::app
