// The dialog "Icon Set": which platforms' files to write, and where.
#pragma once

#include <QDialog>
#include <vector>

#include "app/user_questions.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace orbelle::app {

// Begins with what was chosen last.
class IconSetsDialog : public QDialog {
    Q_OBJECT

public:
    // `folder` is offered where none has been chosen before.
    IconSetsDialog(const formats::SetSource& source, const std::filesystem::path& folder,
                   QWidget* parent = nullptr);

    // At least one set, and a folder, when the dialog was accepted.
    SetChoice Choice() const;

    void accept() override;

private:
    QWidget* MakeBox(const formats::SetSource& source, formats::IconSet set);
    QWidget* MakeFolderRow(const std::filesystem::path& folder);
    void ShowState();

    std::vector<QCheckBox*> boxes_;  // in the order of formats::IconSet
    QLineEdit* folder_ = nullptr;
    QPushButton* export_ = nullptr;
};

}  // namespace orbelle::app
