// The panel below the scene: page size and background, colours, line width, the brush.
#pragma once

#include <QWidget>
#include <array>

#include "editing/editor.h"

class QLabel;

namespace orbelle::widgets {
class CtlScroll;
class CtlScroll2;
class CtlTitle;
}  // namespace orbelle::widgets

namespace orbelle::app {

class BrushPanel;
class ColorWell;
class mForm;

class BottomPanel : public QWidget {
    Q_OBJECT

public:
    explicit BottomPanel(mForm& form);

    void ShowStates(const editing::Editor& editor);
    void SlideBrush(bool open);

    widgets::CtlTitle& CtlTitle4() const { return *title_; }
    void SetOpen(bool open);
    QWidget& FirstColorWell() const;
    BrushPanel& Brush() const { return *brush_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* AddPageSize();
    QWidget* AddBackground();
    QWidget* AddColors();
    QWidget* AddOptions();

    mForm& form_;
    widgets::CtlTitle* title_ = nullptr;
    QWidget* content_ = nullptr;
    widgets::CtlScroll* pageWidth_ = nullptr;
    widgets::CtlScroll* pageHeight_ = nullptr;
    ColorWell* whiteColor_ = nullptr;
    std::array<ColorWell*, 2> wells_{};
    widgets::CtlScroll2* colorOpacity_ = nullptr;
    QLabel* opacityValue_ = nullptr;
    widgets::CtlScroll* lineWidth_ = nullptr;
    BrushPanel* brush_ = nullptr;
};

}  // namespace orbelle::app
