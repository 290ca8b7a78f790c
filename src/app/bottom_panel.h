// The panel below the scene: page size and background, colours, line width, the brush.
#pragma once

#include <QWidget>
#include <array>

#include "app/window_actions.h"

namespace orbelle::widgets {
class NumberSlider;
class TrackSlider;
class PanelHeader;
class ValueField;
}  // namespace orbelle::widgets

namespace orbelle::app {

class BrushPanel;
class ColorWell;

class BottomPanel : public QWidget {
    Q_OBJECT

public:
    explicit BottomPanel(const WindowContext& context);

    void ShowStates(const editing::Editor& editor);

    widgets::PanelHeader& Header() const { return *title_; }
    void SetOpen(bool open);
    // A number that is being typed counts from now on.
    void CommitTyping();
    const QWidget& Colors() const;  // the wells and their caption
    const QWidget& BrushOptions() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* AddPageSize();
    // Return and Escape in its field go back to the page.
    void GiveFocusBack(widgets::NumberSlider& slider);
    QWidget* AddBackground();
    QWidget* AddColors();
    QWidget* AddOptions();

    WindowContext context_;
    widgets::PanelHeader* title_ = nullptr;
    QWidget* content_ = nullptr;
    widgets::NumberSlider* pageWidth_ = nullptr;
    widgets::NumberSlider* pageHeight_ = nullptr;
    ColorWell* backgroundSwatch_ = nullptr;
    std::array<ColorWell*, 2> wells_{};
    widgets::TrackSlider* colorOpacity_ = nullptr;
    widgets::ValueField* opacityValue_ = nullptr;
    widgets::NumberSlider* lineWidth_ = nullptr;
    BrushPanel* brush_ = nullptr;
    bool brushIsIn_ = false;
};

}  // namespace orbelle::app
