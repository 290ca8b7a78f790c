// The panels at the right: opacity, colour adjustments, size, style, layers; each folds.
#pragma once

#include <QWidget>
#include <vector>

#include "app/command_runner.h"
#include "widgets/caption_text.h"
#include "widgets/layer_list.h"
#include "widgets/panel_header.h"
#include "widgets/track_slider.h"

class QLabel;

namespace orbelle::app {

class RightPanel : public QWidget {
    Q_OBJECT

public:
    // `layerBar` is LayerBar.
    RightPanel(CommandRunner& commands, QWidget& layerBar);

    void ShowStates(const editing::Sliders& sliders);
    // Another command follows: what keys and wheel do to the sliders ends.
    void EndRuns();
    // The layer list anew.
    void ShowLayers(const editing::Editor& editor);

    QWidget& OpacitySlider() const { return *opacity_; }
    bool IsLayerListVisible() const { return layers_->isVisible(); }

    struct Header {
        const char* StoredAs;  // the setting that holds whether it is open
        widgets::PanelHeader* Title;
        QWidget* Content;
    };
    const std::vector<Header>& Headers() const { return headers_; }
    void SetOpen(const Header& header, bool open);

signals:
    void LayerPicked();  // by the mouse, in the list

private:
    struct Adjuster {
        widgets::TrackSlider* Slider;
        QLabel* Value;
        editing::Slider editing::Sliders::*State;
    };

    QWidget* AddSection(const char* name, const char* storedAs, const char* title);
    widgets::TrackSlider* AddSlider(QWidget& section, const char* caption,
                                    editing::Slider editing::Sliders::*state);

    CommandRunner& commands_;
    std::vector<Header> headers_;
    std::vector<Adjuster> adjusters_;
    widgets::TrackSlider* opacity_ = nullptr;
    widgets::LayerList* layers_ = nullptr;
};

}  // namespace orbelle::app
