// The panels at the right: opacity, colour adjustments, size, style, layers; each folds.
#pragma once

#include <QWidget>
#include <vector>

#include "editing/editor.h"
#include "widgets/caption_text.h"
#include "widgets/layer_list.h"
#include "widgets/panel_header.h"
#include "widgets/track_slider.h"

class QLabel;

namespace orbelle::app {

class MainWindow;

class RightPanel : public QWidget {
    Q_OBJECT

public:
    // `layerBar` is LayerBar.
    RightPanel(MainWindow& form, QWidget& layerBar);

    void ShowStates(const editing::Controls& controls);
    // The layer list anew.
    void ShowLayers(const editing::Editor& editor);

    QWidget& OpacitySlider() const { return *opacity_; }
    bool IsLayerListVisible() const { return layers_->isVisible(); }

    // The headers, by the names that their open states are stored under.
    struct Header {
        const char* Name;
        widgets::PanelHeader* Title;
        QWidget* Content;
    };
    const std::vector<Header>& Headers() const { return headers_; }
    void SetOpen(const Header& header, bool open);

private:
    struct Adjuster {
        widgets::TrackSlider* Slider;
        QLabel* Value;
        editing::Slider editing::Controls::*State;
        std::string editing::Controls::*Label;
    };

    QWidget* AddSection(const char* name, const char* title);
    widgets::TrackSlider* AddSlider(QWidget& section, const char* caption,
                                    editing::Slider editing::Controls::*state,
                                    std::string editing::Controls::*label);

    MainWindow& form_;
    std::vector<Header> headers_;
    std::vector<Adjuster> adjusters_;
    widgets::TrackSlider* opacity_ = nullptr;
    widgets::CaptionText* filterCaption_ = nullptr;
    widgets::LayerList* layers_ = nullptr;
};

}  // namespace orbelle::app
