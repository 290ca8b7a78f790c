// The main window.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>

#include "app/main_menu.h"
#include "editing/editor.h"

class QScrollBar;

namespace orbelle::app {

class SceneView;

// Owns the editor, hands it the user's input and shows what it tells.
class mForm : public QMainWindow, public editing::EditorHost {
    Q_OBJECT

public:
    using EditorCommand = std::function<void(editing::Editor&)>;

    mForm();

    // Runs a command on the editor. What it throws becomes a message box.
    void Run(const EditorCommand& command);

    // Opens what a command line names; an empty path is a file that does not exist.
    void OpenPath(const QString& path);

    bool IsZoomAnimationRunning() const { return zoomTimer_.isActive(); }
    const editing::Editor& Editor() const { return editor_; }

    void SceneChanged() override;
    void ControlsChanged() override;
    void TitleChanged() override;
    void SetBusyPointer(bool busy) override;
    void StartZoomAnimation() override;
    void ShowMessage(const std::string& text) override;
    void ShowStatus(const std::string& text) override;
    editing::SavePromptAnswer AskSave() override;
    std::optional<editing::PageSize> AskPageSize() override;
    std::filesystem::path ShowFileDialog(const std::string& filter, bool isOpen) override;
    std::optional<int> AskGifThreshold(const graphics::Bitmap& surface) override;
    std::optional<int> ChooseIconEntry(
        const std::vector<formats::IconEntryImage>& offered) override;
    std::optional<graphics::Argb> AskColor(graphics::Argb initial) override;
    void SetClipboard(const graphics::Bitmap& picture, const std::string& text) override;
    bool ClipboardHasPicture() override;
    graphics::Bitmap ClipboardPicture() override;
    std::string ClipboardText() override;
    bool Confirm(const std::string& text, const std::string& title) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void AddScene();
    void AddViewShortcuts();
    void RunGuarded(const EditorCommand& command);
    void ImportFiles(const QStringList& files);

    editing::Editor editor_{*this};
    SceneView* scene_ = nullptr;
    QScrollBar* hs1_ = nullptr;
    QScrollBar* vs1_ = nullptr;
    QTimer zoomTimer_;
    int busyPointers_ = 0;
    bool clipboardHasPicture_ = false;  // kept, as every change of the controls asks for it
    std::unique_ptr<MainMenu> menu_;
};

}  // namespace orbelle::app
