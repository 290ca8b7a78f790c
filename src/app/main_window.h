// The main window.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>

#include "app/button_bars.h"
#include "app/main_menu.h"
#include "app/pointer_status.h"
#include "app/tip_balloons.h"
#include "app/welcome_sequence.h"
#include "editing/editor.h"

class QScrollBar;

namespace orbelle::app {

class BottomPanel;
class CloseTipsTab;
class RightPanel;
class SceneView;

// Owns the editor, hands it the user's input and shows what it tells.
class MainWindow : public QMainWindow, public editing::EditorHost {
    Q_OBJECT

public:
    using EditorCommand = std::function<void(editing::Editor&)>;

    MainWindow();

    // Runs a command on the editor. What it throws becomes a message box.
    void Run(const EditorCommand& command);

    // Opens what a command line names: a path between quotation marks.
    void ShellOpen(const QString& commandLine);
    // The same from another copy of the program; the window comes to the front.
    void TakeHandOver(const QString& commandLine);
    // An empty path is a file that does not exist.
    void OpenPath(const QString& path);

    // The welcome text of a start without a file.
    void StartWelcome();
    // Help/About.
    void ShowAbout();
    // "Back One", "Foward One", "To Back", "To Front" at the Set Order button.
    void ShowOrderMenu();
    void FocusScene();
    // Edit/Paste: the clipboard's picture, or the files that lie there, imported.
    void Paste();
    void CloseTips();

    bool TipsEnabled() const { return tips_->TipsEnabled; }
    void SetTipsEnabled(bool enabled);

    // Everything that is remembered between two runs.
    void RestoreSettings();
    void StoreSettings() const;

    bool IsZoomAnimationRunning() const { return zoomTimer_.isActive(); }
    const editing::Editor& Editor() const { return editor_; }

    void SceneChanged() override;
    void LayerPanelChanged() override;
    void ControlsChanged() override;
    void OverlaysChanged() override;
    void ShowTips(int tip, bool showLayerTips) override;
    void HideTips() override;
    void SlideBrushPanel() override;
    void ShowLayerMenu(float x, float y) override;
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
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* MakeScene();
    void ConnectScene();
    void AddPanels();
    void AddShortcuts();
    void RunGuarded(const EditorCommand& command);
    void ImportFiles(const QStringList& files);
    void ImportDroppedPicture(const QImage& picture);
    void PopUpOrderMenu(const QPoint& at);
    std::optional<QPoint> TipPlacement(editing::TipPlace place, QSize balloon) const;

    editing::Editor editor_{*this};
    SceneView* scene_ = nullptr;
    QScrollBar* horizontalScroll_ = nullptr;
    QScrollBar* verticalScroll_ = nullptr;
    QTimer zoomTimer_;    // Timer4
    QTimer layersTimer_;  // draws the layer list once after all that has changed it
    int busyPointers_ = 0;
    bool clipboardHasPicture_ = false;
    std::unique_ptr<MainMenu> menu_;
    std::unique_ptr<ButtonBars> bars_;
    std::unique_ptr<PointerStatus> pointerStatus_;
    std::unique_ptr<TipBalloons> tips_;
    std::unique_ptr<WelcomeSequence> welcome_;
    RightPanel* rightPanel_ = nullptr;
    BottomPanel* bottomPanel_ = nullptr;
    CloseTipsTab* closeTips_ = nullptr;
    mutable QPoint lastLayerMiddle_;  // where the last tip about a layer stood
};

}  // namespace orbelle::app
