// The panels at the right: opacity, colour adjustments, size, style, layers; each folds.
#pragma once

#include <QWidget>
#include <vector>

#include "editing/editor.h"
#include "widgets/ctl_captions.h"
#include "widgets/ctl_layers.h"
#include "widgets/ctl_scroll2.h"
#include "widgets/ctl_title.h"

class QLabel;

namespace orbelle::app {

class mForm;

class RightPanel : public QWidget {
    Q_OBJECT

public:
    // `layerBar` is ToolBarvs4.
    RightPanel(mForm& form, QWidget& layerBar);

    void ShowStates(const editing::Controls& controls);
    // The layer list anew.
    void ShowLayers(const editing::Editor& editor);

    QWidget& OpacitySlider() const { return *opacity_; }
    bool IsLayerListVisible() const { return layers_->isVisible(); }

    // The headers, by the names that their open states are stored under.
    struct Header {
        const char* Name;
        widgets::CtlTitle* Title;
        QWidget* Content;
    };
    const std::vector<Header>& Headers() const { return headers_; }
    void SetOpen(const Header& header, bool open);

private:
    struct Adjuster {
        widgets::CtlScroll2* Slider;
        QLabel* Value;
        editing::Slider editing::Controls::*State;
        std::string editing::Controls::*Label;
    };

    QWidget* AddSection(const char* name, const char* title);
    widgets::CtlScroll2* AddSlider(QWidget& section, const char* caption,
                                   editing::Slider editing::Controls::*state,
                                   std::string editing::Controls::*label);

    mForm& form_;
    std::vector<Header> headers_;
    std::vector<Adjuster> adjusters_;
    widgets::CtlScroll2* opacity_ = nullptr;
    widgets::CtlCaptions* filterCaption_ = nullptr;
    widgets::CtlLayers* layers_ = nullptr;
};

}  // namespace orbelle::app
