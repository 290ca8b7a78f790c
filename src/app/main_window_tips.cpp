// Tips on the main window: when, and beside what.
#include "app/main_window.h"

#include "app/bottom_panel.h"
#include "app/right_panel.h"
#include "app/scene_view.h"

namespace orbelle::app {

void MainWindow::SetTipsEnabled(bool enabled) {
    tips_->TipsEnabled = enabled;
    menu_->ShowTipsState(enabled);
}

void MainWindow::ToggleTips() {
    SetTipsEnabled(!TipsEnabled());
}

void MainWindow::CloseTips() {
    if (tips_->FirstBalloon().isHidden())
        return;
    tips_->FirstBalloon().hide();
    tips_->Expire();
}

// Only where what a tip points at can be seen.
std::optional<QPoint> MainWindow::TipPlacement(editing::TipPlace place, QSize balloon) const {
    using editing::TipPlace;
    const QWidget* central = centralWidget();
    const auto at = [central](const QWidget& widget) {
        return widget.mapTo(central, QPoint(0, 0));
    };
    const int belowBar = bars_->MainBar->geometry().bottom() + 4;
    const bool layers = rightPanel_->IsLayerListVisible();
    const QPoint scene = at(*scene_);
    const QPoint page(document::PageOffsetX(editor_.Page(), editor_.View),
                      document::PageOffsetY(editor_.Page(), editor_.View));
    switch (place) {
        case TipPlace::NewAndOpenButtons:
            return QPoint(8, belowBar);
        case TipPlace::ImportButton:
            return QPoint(120, belowBar);
        case TipPlace::UndoButtons:
            return QPoint(230, belowBar);
        case TipPlace::LayerMiddle: {
            if (!editor_.Page().HasSelection())
                return lastLayerMiddle_;
            const graphics::RectF& rect = editor_.Page().Selected().Rect;
            const double zoom = editor_.View.Zoom;
            const auto middle = [zoom](float start, float length) {
                const int half = graphics::RoundToEven(length) / 2;
                return (start + static_cast<float>(half)) * zoom;
            };
            lastLayerMiddle_ = QPoint(
                graphics::RoundToEven(scene.x() + page.x() + middle(rect.X, rect.Width) - 35),
                graphics::RoundToEven(scene.y() + page.y() + middle(rect.Y, rect.Height)));
            return lastLayerMiddle_;
        }
        case TipPlace::PageCorner:
            return scene + page;
        case TipPlace::OpacitySlider: {
            const QWidget& slider = rightPanel_->OpacitySlider();
            if (!layers || !slider.isVisible())
                return std::nullopt;
            return at(slider) + QPoint(0, slider.height());
        }
        case TipPlace::ToolColumn:
            if (!layers)
                return std::nullopt;
            return at(*bars_->ToolBox) + QPoint(-10, 248);
        case TipPlace::AddLayerButton:
            if (!layers)
                return std::nullopt;
            return at(*bars_->LayerBar) + QPoint(-15, 10 - balloon.height());
        case TipPlace::ColorWells:
        case TipPlace::BrushOptions: {
            const int lower = place == TipPlace::ColorWells ? 40 : 30;
            return QPoint(
                at(bottomPanel_->FirstColorWell()).x() - 25,
                at(*bottomPanel_).y() - balloon.height() + bottomPanel_->Header().height() + lower);
        }
    }
    return std::nullopt;
}

}  // namespace orbelle::app
