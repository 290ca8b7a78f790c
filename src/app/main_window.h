// The main window.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <memory>

#include "app/button_bars.h"
#include "app/main_menu.h"
#include "app/pointer_status.h"
#include "app/tip_balloons.h"
#include "app/welcome_sequence.h"
#include "app/window_actions.h"
#include "editing/recovery.h"

class QScrollBar;

namespace orbelle::app {

class BottomPanel;
class CloseTipsTab;
class RightPanel;
class SceneView;

// Owns the editor, hands it the user's input and shows what it tells.
class MainWindow : public QMainWindow,
                   public CommandRunner,
                   public UserQuestions,
                   public WindowActions,
                   public editing::EditorObserver,
                   public editing::Clipboard {
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    // Opens what a command line names: a path between quotation marks.
    void ShellOpen(const QString& commandLine);
    // The same from another copy of the program; the window comes to the front.
    void TakeHandOver(const QString& commandLine);
    // An empty path is a file that does not exist.
    void OpenPath(const QString& path);

    // The welcome text of a start without a file.
    void StartWelcome();

    bool TipsEnabled() const { return tips_->TipsEnabled; }
    void SetTipsEnabled(bool enabled);

    // From here on unsaved work is kept safe from an end that does not ask.
    void StartRecovery();
    // Offers what a program that ended so has left behind.
    void OfferRecovery();
    // The system ends the program: unsaved work is kept, nothing is asked.
    void EndAtOnce();

    // Everything that is remembered between two runs.
    void RestoreSettings();
    void StoreSettings() const;

    bool IsZoomAnimationRunning() const { return zoomAnimation_.isActive(); }

    bool Run(const editing::Command& command) override;
    bool RunBusy(const editing::Command& command) override;
    editing::Outcome Try(const editing::Command& command) override;
    bool RunDuringDrag(const editing::Command& step) override;
    const editing::Editor& Editor() const override { return editor_; }

    void Changed(const editing::Changes& changes) override;

    void ShowMessage(const std::string& text) override;
    void ShowStatus(const std::string& text) override;
    SavePromptAnswer AskSave() override;
    bool Confirm(const std::string& text, const std::string& title) override;
    std::optional<PageSize> AskPageSize() override;
    std::filesystem::path AskFile(const std::string& filter, bool isOpen) override;
    std::optional<int> AskGifThreshold(const graphics::Bitmap& surface) override;
    std::optional<int> ChooseIconImage(
        const std::vector<formats::IconEntryImage>& offered) override;
    std::optional<graphics::Argb> AskColor(graphics::Argb initial) override;

    void Put(const graphics::Bitmap& picture, const std::string& text) override;
    bool HasPicture() override;
    graphics::Bitmap Picture() override;
    std::string Text() override;

    void CloseWindow() override { close(); }
    void FocusScene() override;
    void ShowOrderMenu() override;
    void Paste() override;
    void ToggleTips() override;
    void CloseTips() override;
    void ShowAbout() override;
    void ShowControls() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void BeginCommand();
    QWidget* MakeScene();
    void ConnectScene();
    void AddPanels();
    void AddShortcuts();
    bool Tell(const editing::Outcome& outcome);
    void ShowScene();
    void ShowTitle();
    void ImportFiles(const QStringList& files);
    void ImportDroppedPicture(const QImage& picture);
    void PopUpOrderMenu(const QPoint& at);
    std::optional<QPoint> TipPlacement(editing::TipPlace place, QSize balloon) const;

    editing::Editor editor_{*this, *this};
    WindowContext context_{*this, *this, *this};
    std::string message_;  // what the last command has to tell although it went well
    SceneView* scene_ = nullptr;
    QScrollBar* horizontalScroll_ = nullptr;
    QScrollBar* verticalScroll_ = nullptr;
    QTimer zoomAnimation_;
    QTimer layersTimer_;  // draws the layer list once after all that has changed it
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
    std::unique_ptr<editing::Recovery> recovery_;
};

}  // namespace orbelle::app
