// Tips on the main window: when, and beside what.
#include "app/main_window.h"

#include <QScrollBar>

#include "app/bottom_panel.h"
#include "app/close_tips_tab.h"
#include "app/right_panel.h"
#include "app/scene_view.h"
#include "app/sizes_panel.h"
#include "app/start_view.h"
#include "document/scene_painter.h"
#include "editing/buttons.h"

namespace orbelle::app {
namespace {

// What can be seen of a part of a widget, in pixels of a widget that it lies on; empty: nothing.
QRect SeenPart(const QWidget& widget, QRect part, const QWidget& on) {
    if (!widget.isVisible())
        return {};
    part &= widget.rect();
    for (const QWidget* at = &widget; at != &on; at = at->parentWidget())
        part = part.translated(at->pos()) & at->parentWidget()->rect();
    return part;
}

QRect SeenPart(const QWidget& widget, const QWidget& on) {
    return SeenPart(widget, widget.rect(), on);
}

// Both in scene pixels.
QRect PageOnScene(const editing::Editor& editor) {
    if (!editor.DocumentExists)
        return {};
    const double zoom = editor.View.Zoom;
    return QRectF(document::PageOffsetX(editor.Page(), editor.View),
                  document::PageOffsetY(editor.Page(), editor.View), editor.Page().Width * zoom,
                  editor.Page().Height * zoom)
        .toAlignedRect();
}

// The frame around the selected layer; the page where there is none.
QRect LayerOnScene(const editing::Editor& editor) {
    const auto frame = document::ObjectFrame(editor.Page(), editor.View);
    return frame ? QRect(frame->X, frame->Y, frame->Width, frame->Height) : PageOnScene(editor);
}

bool NeedsLayerList(editing::TipPlace place) {
    return place == editing::TipPlace::OpacitySlider ||
           place == editing::TipPlace::RectangleButton ||
           place == editing::TipPlace::AddLayerButton;
}

}  // namespace

void MainWindow::SetTipsEnabled(bool enabled) {
    tips_->TipsEnabled = enabled;
    menu_->ShowTipsState(enabled);
}

void MainWindow::ToggleTips() {
    SetTipsEnabled(!TipsEnabled());
}

void MainWindow::CloseTips() {
    if (!tips_->IsFirstOpen())
        return;
    tips_->HideFirst();
    tips_->Expire();
}

std::optional<TipSurroundings::Target> MainWindow::TargetOf(editing::TipPlace place) const {
    using editing::TipPlace;
    using enum widgets::BalloonSide;
    const QWidget& central = *centralWidget();
    const auto target = [](const QRect& rect, std::vector<widgets::BalloonSide> sides) {
        return rect.isEmpty() ? std::nullopt : std::optional(Target{rect, std::move(sides)});
    };
    const auto buttons = [&](const widgets::ButtonBar& bar, std::initializer_list<int> numbers) {
        QRect rect;
        for (const int number : numbers)
            rect |= bar.ButtonRect(number);
        return SeenPart(bar, rect, central);
    };
    if (NeedsLayerList(place) && !rightPanel_->IsLayerListVisible())
        return std::nullopt;
    const auto onWidget = [this](const QRect& rect) {
        return scene_->FromScene(rect).toAlignedRect();
    };
    switch (place) {
        case TipPlace::NewAndOpenButtons:
            return target(
                buttons(*bars_->MainBar, {editing::main_buttons::New, editing::main_buttons::Open}),
                {Below});
        case TipPlace::ImportButton:
            return target(buttons(*bars_->MainBar, {editing::main_buttons::Import}), {Below});
        case TipPlace::UndoButtons:
            return target(buttons(*bars_->MainBar,
                                  {editing::main_buttons::Undo, editing::main_buttons::Redo}),
                          {Below});
        case TipPlace::SelectedLayer:
            return target(SeenPart(*scene_, onWidget(LayerOnScene(editor_)), central),
                          {Right, Left});
        case TipPlace::Page:
            return target(SeenPart(*scene_, onWidget(PageOnScene(editor_)), central),
                          {Right, Left});
        case TipPlace::OpacitySlider: {
            const QWidget& slider = rightPanel_->OpacitySlider();
            const QRect withCaption(0, slider.y(), slider.geometry().right() + 1, slider.height());
            return target(SeenPart(*slider.parentWidget(), withCaption, central), {Left});
        }
        case TipPlace::RectangleButton:
            return target(buttons(*bars_->ToolBox, {editing::tool_buttons::Rectangle}), {Right});
        case TipPlace::AddLayerButton:
            return target(buttons(*bars_->LayerBar, {editing::layer_buttons::Add}), {Left});
        case TipPlace::ColorWells:
            return target(SeenPart(bottomPanel_->Colors(), central), {Above});
        case TipPlace::BrushOptions:
            return target(SeenPart(bottomPanel_->BrushOptions(), central), {Above});
    }
    return std::nullopt;
}

std::vector<QRect> MainWindow::TipObstacles() const {
    const QWidget& central = *centralWidget();
    std::vector<QRect> obstacles;
    // The scroll bars count more than a strip of the picture beside them.
    const std::initializer_list<const QWidget*> parts = {
        bars_->ToolBox,    bars_->FillBar,    bars_->SelectionBar, bars_->EraserBar,
        rightPanel_,       bottomPanel_,      sizesPanel_,         closeTips_,
        horizontalScroll_, horizontalScroll_, horizontalScroll_,   verticalScroll_,
        verticalScroll_,   verticalScroll_};
    for (const QWidget* part : parts)
        obstacles.push_back(SeenPart(*part, central));
    for (const QRect& place : startView_->Places())
        obstacles.push_back(SeenPart(*startView_, place, central));
    // The whole row: a balloon has not much to do up there, where no button is.
    obstacles.emplace_back(0, 0, central.width(), bars_->MainBar->height());
    obstacles.push_back(
        SeenPart(*scene_, scene_->FromScene(LayerOnScene(editor_)).toAlignedRect(), central));
    std::erase_if(obstacles, [](const QRect& rect) { return rect.isEmpty(); });
    return obstacles;
}

}  // namespace orbelle::app
