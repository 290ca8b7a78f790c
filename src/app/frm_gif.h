// The dialog of the GIF export: at which alpha a pixel counts as opaque.
#pragma once

#include <QDialog>

#include "graphics/bitmap.h"

class QLabel;

namespace orbelle::widgets {
class CtlScroll;
}

namespace orbelle::app {

// Shows the surface and what its GIF would look like, side by side. The last value is remembered,
// also when the dialog is cancelled.
class FrmGIF : public QDialog {
    Q_OBJECT

public:
    FrmGIF(const graphics::Bitmap& surface, QWidget* parent);

    int OptimizeValue() const;  // 0 to 200

    void done(int result) override;

private:
    void ShowResult();

    graphics::Bitmap surface_;
    QLabel* result_ = nullptr;
    widgets::CtlScroll* CtlScroll1 = nullptr;
};

}  // namespace orbelle::app
