// The panels at the right: opacity, colour adjustments, size, style, layers; each folds.
#pragma once

#include <QWidget>
#include <vector>

#include "app/command_runner.h"
#include "widgets/caption_text.h"
#include "widgets/layer_list.h"
#include "widgets/panel_header.h"
#include "widgets/track_slider.h"
#include "widgets/value_field.h"

namespace orbelle::app {

class RightPanel : public QWidget {
    Q_OBJECT

public:
    // `layerBar` is LayerBar.
    RightPanel(CommandRunner& commands, QWidget& layerBar);

    void ShowStates(const editing::Sliders& sliders);
    // Another command follows: what keys and wheel do to the sliders ends, a number or name that
    // is being typed counts.
    void EndRuns();
    // The layer list anew.
    void ShowLayers(const editing::Editor& editor);

    QWidget& OpacitySlider() const { return *opacity_; }
    bool IsLayerListVisible() const { return layers_->isVisible(); }

    struct Header {
        const char* StoredAs;  // the setting that holds whether it is open
        widgets::PanelHeader* Title;
        QWidget* Content;
        bool IsOpen = true;  // so the user wants it, where there is room
    };
    const std::vector<Header>& Headers() const { return headers_; }
    void SetOpen(const Header& header, bool open);

signals:
    // A layer was picked by the mouse, a number typed: the keys may go elsewhere.
    void KeysFree();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void FollowWindow();
    void ShowPanels();
    void ShowColors(const document::Page& page);

    struct Adjuster {
        widgets::TrackSlider* Slider;
        widgets::ValueField* Value;
        editing::Slider editing::Sliders::*State;
    };

    widgets::TrackSlider& SliderOf(editing::Slider editing::Sliders::*state) const;
    QWidget* AddSection(const char* name, const char* storedAs, const QString& title);
    widgets::TrackSlider* AddSlider(QWidget& section, const char* caption,
                                    editing::Slider editing::Sliders::*state);

    CommandRunner& commands_;
    std::vector<Header> headers_;
    bool isCramped_ = false;         // the window is so small that one panel at a time is open
    const QWidget* last_ = nullptr;  // the header that was opened last
    std::vector<Adjuster> adjusters_;
    widgets::TrackSlider* opacity_ = nullptr;
    widgets::LayerList* layers_ = nullptr;
};

}  // namespace orbelle::app
