// The dialog in which a colour is chosen.
#pragma once

#include <QDialog>
#include <vector>

#include "app/user_questions.h"

class QGridLayout;
class QLineEdit;

namespace orbelle::widgets {
class NumberSlider;
}

namespace orbelle::app {

class ColorCell;
class ColorComparison;
class ColorSquare;
class ColorStrip;

// By hand, by numbers, by its text, or one of the six that were chosen last; OK adds to these. OK
// with a text that is no colour leaves the dialog open. Without alpha colours are opaque.
class ColorDialog : public QDialog {
    Q_OBJECT

public:
    explicit ColorDialog(const ColorQuestion& question, QWidget* parent = nullptr);
    ~ColorDialog() override;

    graphics::Argb Color() const { return color_; }
    void accept() override;

private:
    QWidget* AddStrips();
    void AddComparison(QGridLayout& rows, graphics::Argb oldColor);
    void AddText(QGridLayout& rows);
    void AddNumbers(QGridLayout& rows);
    QWidget* AddRecent();

    void Take(graphics::Argb color);
    void TakeHue(int hue);
    void TakeShade(int saturation, int brightness);
    void Show();

    const bool hasAlpha_;
    graphics::Argb color_ = 0;
    // Greys have no hue and black no saturation: they keep the last.
    int hue_ = 0;
    int saturation_ = 0;
    int brightness_ = 0;
    ColorSquare* square_ = nullptr;
    ColorStrip* hues_ = nullptr;
    ColorStrip* alphas_ = nullptr;  // null: without alpha
    ColorComparison* comparison_ = nullptr;
    QLineEdit* text_ = nullptr;
    std::vector<widgets::NumberSlider*> numbers_;  // red, green, blue, alpha
};

}  // namespace orbelle::app
