// The main window.
#pragma once

#include <QByteArrayList>
#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>

#include "app/button_bars.h"
#include "app/main_menu.h"
#include "app/pointer_status.h"
#include "app/recent_files.h"
#include "app/run_progress.h"
#include "app/tip_balloons.h"
#include "app/welcome_sequence.h"
#include "app/window_actions.h"
#include "editing/recovery.h"

class QScrollBar;

namespace orbelle::app {

class BottomPanel;
class CloseTipsTab;
struct Drop;
class RightPanel;
class SceneView;
class SizesPanel;
class StartView;

// Owns the editor, hands it the user's input and shows what it tells.
class MainWindow : public QMainWindow,
                   public CommandRunner,
                   public UserQuestions,
                   public WindowActions,
                   public TipSurroundings,
                   public editing::EditorObserver,
                   public editing::Clipboard {
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    // Opens what a command line names: a path, as the system has it, between quotation marks.
    void ShellOpen(const QByteArray& commandLine);
    // The same from another copy of the program; the window comes to the front.
    void TakeHandOver(const QByteArray& commandLine);
    // Whether a file may be opened now: the user is neither asked anything nor in a menu, a drag or
    // a command that goes on.
    bool IsFree() const;
    // An empty path is a file that does not exist.
    void OpenPath(const QString& path);

    // The welcome text of a start without a file; none over a document.
    void StartWelcome();

    // Before the session ends. False: the user wants it to go on. Where he can't be asked, nothing
    // is, and unsaved work is kept. The end itself asks nothing more.
    bool MayEndSession(const std::function<bool()>& canAsk);

    bool TipsEnabled() const { return tips_->TipsEnabled; }
    void SetTipsEnabled(bool enabled);
    void ShowPixelGrid(bool shown);

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
    // Nothing that is shown goes on changing by itself.
    bool IsAtRest() const;

    bool Run(const editing::Command& command) override;
    bool RunBusy(const editing::Command& command) override;
    Report Try(const editing::Command& command) override;
    bool RunDuringDrag(const editing::Command& step) override;
    const editing::Editor& Editor() const override { return editor_; }

    void Changed(const editing::Changes& changes) override;

    void ShowMessage(const std::string& text) override;
    void ShowAddress(const std::string& text, const std::string& address) override;
    void ShowFolder(const std::string& text, const std::filesystem::path& folder) override;
    void ShowStatus(const std::string& text) override;
    bool GoOn(int done, int count, const std::string& doing) override;
    void DoMeanwhile(const std::function<void()>& work) override;
    SavePromptAnswer AskSave() override;
    bool Confirm(const std::string& text, const std::string& title) override;
    std::optional<PageSize> AskPageSize() override;
    std::filesystem::path AskFile(const std::string& filter) override;
    std::filesystem::path AskFileToWrite(const std::string& filter,
                                         const std::filesystem::path& proposed) override;
    std::optional<int> AskGifThreshold(const graphics::Bitmap& surface) override;
    std::optional<formats::Hotspot> AskHotspot(const graphics::Bitmap& picture,
                                               formats::Hotspot start) override;
    std::optional<IconChoice> ChooseIconImages(const std::vector<formats::IconEntryImage>& offered,
                                               const IconQuestion& question) override;
    std::optional<int> AskSvgSide(const PageSize& own) override;
    std::optional<bool> AskFit(const PageSize& picture, const PageSize& page) override;
    std::optional<filters::SizeRecipe> ChooseRecipe(const graphics::Bitmap& master,
                                                    int size) override;
    std::optional<SetChoice> ChooseIconSets(const formats::SetSource& source,
                                            const std::filesystem::path& folder) override;
    std::optional<graphics::Argb> AskColor(const ColorQuestion& question) override;

    void Put(const graphics::Bitmap& picture, const std::string& text) override;
    bool HasPicture() override;
    graphics::Bitmap Picture() override;
    std::string Text() override;

    void CloseWindow() override;
    void FocusScene() override;
    void ShowOrderMenu() override;
    void Paste() override;
    void ToggleTips() override;
    void CloseTips() override;
    void TogglePixelGrid() override;
    void ToggleCheck() override;
    void ShowAbout() override;
    void ShowControls() override;

protected:
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BeginCommand();
    void GiveUp();  // Escape on the page
    QWidget* MakeScene();
    void ConnectScene();
    void AddPanels();
    void AddStart();
    void AddShortcuts();
    bool IsInCommand() const;
    Report ReportOf(const editing::Outcome& outcome);
    bool Tell(const Report& report);
    void ShowScene();
    void TakeLooks();  // of the scene
    void ShowTitle();
    void TakeDrop(const Drop& drop);
    void PopUpOrderMenu(const QPoint& at);
    std::optional<Target> TargetOf(editing::TipPlace place) const override;
    std::vector<QRect> TipObstacles() const override;

    editing::Editor editor_{*this, *this};
    RecentFiles recent_;
    WindowContext context_{*this, *this, *this, recent_};
    enum class SessionEnd { No, Agreed, Unasked } sessionEnd_ = SessionEnd::No;
    RunProgress progress_{*this};
    std::string message_;  // what the last command has to tell although it went well
    SceneView* scene_ = nullptr;
    StartView* startView_ = nullptr;
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
    SizesPanel* sizesPanel_ = nullptr;
    CloseTipsTab* closeTips_ = nullptr;
    std::unique_ptr<editing::Recovery> recovery_;
};

}  // namespace orbelle::app
