// The panel "Sizes" below the scene: the icon at its sizes, as it is while it is edited.
#pragma once

#include <QThreadPool>
#include <QWidget>
#include <optional>
#include <vector>

#include "app/window_actions.h"
#include "formats/size_previews.h"
#include "widgets/size_strip.h"

class QScrollArea;

namespace orbelle::widgets {
class ButtonBar;
class PanelHeader;
}  // namespace orbelle::widgets

namespace orbelle::app {

class FindingsList;

// A thread makes the pictures from a copy of the document, one set at a time: what changes
// meanwhile comes with the next. While the panel can't be seen nothing is made.
class SizesPanel : public QWidget {
    Q_OBJECT

public:
    explicit SizesPanel(const WindowContext& context);
    ~SizesPanel() override;

    // After every command.
    void Follow(const editing::Changes& changes);

    widgets::PanelHeader& Header() const { return *header_; }
    void SetOpen(bool open);
    void SetGround(int ground);  // a StripGround; another number is the first
    int Ground() const { return static_cast<int>(strip_->Ground()); }
    void SetDoubled(bool doubled);
    bool IsDoubled() const { return strip_->IsDoubled(); }
    // The list of findings under the strip, made together with its pictures. To show it opens the
    // panel.
    void ShowCheck(bool shown);
    bool IsCheckShown() const;
    FindingsList& Findings() const { return *findings_; }
    // What can be seen is the document as it is now.
    bool IsAtRest() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void AddTools();
    void AddStrip();
    void ClickTool(int button);
    void ShowTools();
    bool CanBeSeen() const;
    bool MayMakeNow() const;
    std::vector<int> FittingSizes() const;
    void ShowCells();
    void FitHeight();
    void Make();
    // What the thread gives back; nothing when it could not.
    struct Made {
        std::vector<formats::SizePreview> Previews;
        std::optional<std::vector<formats::Finding>> Findings;  // where they are wanted
    };
    void Take(const Made& made);
    void Refresh();  // as if all had changed

    WindowContext context_;
    widgets::PanelHeader* header_;
    widgets::ButtonBar* tools_ = nullptr;
    QScrollArea* scroller_ = nullptr;
    widgets::SizeStrip* strip_ = nullptr;
    FindingsList* findings_;

    std::vector<int> sizes_;                      // that are shown
    std::vector<formats::SizePreview> previews_;  // that were made last
    formats::SizePreviews maker_;                 // the thread's alone while it works
    bool isMaking_ = false;
    bool isStale_ = true;
    bool isCheckShown_ = false;  // while the panel is open
    QThreadPool thread_;
};

}  // namespace orbelle::app
