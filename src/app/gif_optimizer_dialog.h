// The dialog of the GIF export: at which alpha a pixel counts as opaque.
#pragma once

#include <QDialog>

#include "graphics/bitmap.h"

class QLabel;

namespace orbelle::widgets {
class NumberSlider;
}

namespace orbelle::app {

// Shows the surface and what its GIF would look like, side by side. The last value is remembered,
// also when the dialog is cancelled.
class GifOptimizerDialog : public QDialog {
    Q_OBJECT

public:
    GifOptimizerDialog(const graphics::Bitmap& surface, QWidget* parent);

    int OptimizeValue() const;  // 0 to 200

    void done(int result) override;

private:
    void ShowResult();

    graphics::Bitmap surface_;
    QLabel* result_ = nullptr;
    widgets::NumberSlider* threshold_ = nullptr;
};

}  // namespace orbelle::app
