// The question where a pointer points.
#pragma once

#include <QDialog>

#include "formats/hotspot.h"
#include "graphics/bitmap.h"

namespace orbelle::widgets {
class NumberSlider;
}

namespace orbelle::app {

class HotspotView;

class HotspotDialog : public QDialog {
    Q_OBJECT

public:
    // `picture` is the pointer's, not empty. Begins with the pixel of it that is nearest to
    // `start`.
    HotspotDialog(const graphics::Bitmap& picture, formats::Hotspot start,
                  QWidget* parent = nullptr);

    // A pixel of the picture.
    formats::Hotspot Choice() const;

    void accept() override;

private:
    widgets::NumberSlider* MakeNumber(const char* name, const QString& meaning, int count);
    void TakeNumbers();
    void ShowNumbers();

    HotspotView* view_;
    widgets::NumberSlider* x_;
    widgets::NumberSlider* y_;
};

}  // namespace orbelle::app
