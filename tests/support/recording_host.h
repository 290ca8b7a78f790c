// A host for tests: answers from a list, and notes what it was told.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "editing/editor_host.h"
#include "graphics/geometry.h"

namespace orbelle::testing {

class RecordingHost : public editing::EditorHost {
public:
    // Answers.
    editing::SavePromptAnswer SaveAnswer = editing::SavePromptAnswer::No;
    std::optional<editing::PageSize> Size;
    std::filesystem::path File;
    bool ConfirmAnswer = true;
    std::optional<int> GifThreshold;
    std::optional<int> IconEntry = 0;
    std::optional<graphics::Argb> Color;
    graphics::Bitmap Clipboard;
    std::string ClipboardMark;

    // Notes.
    std::vector<std::string> Messages;
    std::vector<std::string> Statuses;
    std::vector<std::string> Questions;
    std::vector<std::string> Filters;
    std::vector<int> Tips;
    std::vector<std::size_t> OfferedCounts;  // for each icon file
    int SavePrompts = 0;
    int Animations = 0;
    int Busy = 0;
    int HiddenTips = 0;
    int BrushPanelSlides = 0;
    std::vector<graphics::PointF> LayerMenus;

    void ShowTips(int tip, bool) override { Tips.push_back(tip); }
    void SetBusyPointer(bool busy) override { Busy += busy ? 1 : -1; }
    void HideTips() override { ++HiddenTips; }
    void SlideBrushPanel() override { ++BrushPanelSlides; }
    void ShowLayerMenu(float x, float y) override { LayerMenus.push_back({x, y}); }
    void StartZoomAnimation() override { ++Animations; }
    void ShowMessage(const std::string& text) override { Messages.push_back(text); }
    void ShowStatus(const std::string& text) override { Statuses.push_back(text); }
    editing::SavePromptAnswer AskSave() override {
        ++SavePrompts;
        return SaveAnswer;
    }
    std::optional<editing::PageSize> AskPageSize() override { return Size; }
    std::filesystem::path ShowFileDialog(const std::string& filter, bool) override {
        Filters.push_back(filter);
        return File;
    }
    std::optional<int> AskGifThreshold(const graphics::Bitmap&) override { return GifThreshold; }
    std::optional<int> ChooseIconEntry(
        const std::vector<formats::IconEntryImage>& offered) override {
        OfferedCounts.push_back(offered.size());
        return IconEntry;
    }
    std::optional<graphics::Argb> AskColor(graphics::Argb) override { return Color; }
    void SetClipboard(const graphics::Bitmap& picture, const std::string& text) override {
        Clipboard = picture;
        ClipboardMark = text;
    }
    bool ClipboardHasPicture() override { return !Clipboard.IsEmpty(); }
    graphics::Bitmap ClipboardPicture() override { return Clipboard; }
    std::string ClipboardText() override { return ClipboardMark; }
    bool Confirm(const std::string& text, const std::string& title) override {
        Questions.push_back(title + ": " + text);
        return ConfirmAnswer;
    }
};

}  // namespace orbelle::testing
