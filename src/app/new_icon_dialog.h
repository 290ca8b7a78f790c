// The dialog "New Icon...": the size of a new page.
#pragma once

#include <QDialog>

#include "app/user_questions.h"

class QGridLayout;

namespace orbelle::widgets {
class NumberSlider;
}

namespace orbelle::app {

class SizePresets;

// Starts with the size chosen last; one press takes one of the usual sizes. OK with a side outside
// 1 to 512 shows a message and leaves the dialog open, with that side to be typed anew; otherwise
// it stores the size.
class NewIconDialog : public QDialog {
    Q_OBJECT

public:
    explicit NewIconDialog(QWidget* parent = nullptr);

    PageSize Size() const;  // page pixels
    void accept() override;

private:
    widgets::NumberSlider* AddSide(QGridLayout& rows, const char* name, const QString& caption,
                                   const char* setting);
    void AddPresets();
    void ShowPreset();

    widgets::NumberSlider* pageWidth_;
    widgets::NumberSlider* pageHeight_;
    SizePresets* presets_;
};

}  // namespace orbelle::app
