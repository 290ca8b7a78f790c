// The save prompt.
#pragma once

#include <QDialog>

#include "app/user_questions.h"

namespace orbelle::app {

// Asks whether a changed document is to be saved before it is given up. Closing the dialog or
// Escape counts as Cancel.
class SavePrompt : public QDialog {
    Q_OBJECT

public:
    explicit SavePrompt(QWidget* parent = nullptr);

    SavePromptAnswer Value() const { return value_; }

private:
    SavePromptAnswer value_ = SavePromptAnswer::Cancel;
};

}  // namespace orbelle::app
