// The question how large a drawing is to be.
#pragma once

#include <QDialog>

#include "app/user_questions.h"

namespace orbelle::widgets {
class NumberSlider;
}

namespace orbelle::app {

class SizePresets;

// Begins with the drawing's own size, as far as it can be drawn so; one press takes one of the
// usual sizes. The longer side counts.
class SvgSizeDialog : public QDialog {
    Q_OBJECT

public:
    explicit SvgSizeDialog(const PageSize& own, QWidget* parent = nullptr);

    int Side() const;  // pixels
    void accept() override;

private:
    void AddPresets(int own);
    void ShowPreset();

    widgets::NumberSlider* side_;
    SizePresets* presets_;
};

}  // namespace orbelle::app
