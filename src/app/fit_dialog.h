// The question whether a picture that is larger than the page is to be shrunk.
#pragma once

#include <QDialog>

#include "app/user_questions.h"

class QCheckBox;

namespace orbelle::app {

class FitDialog : public QDialog {
    Q_OBJECT

public:
    FitDialog(const PageSize& picture, const PageSize& page, QWidget* parent = nullptr);

    bool FitsPage() const;  // true to begin with

private:
    QCheckBox* fits_;
};

}  // namespace orbelle::app
