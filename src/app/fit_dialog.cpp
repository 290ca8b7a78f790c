#include "app/fit_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "widgets/words.h"

namespace orbelle::app {

FitDialog::FitDialog(const PageSize& picture, const PageSize& page, QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(Words::tr("Larger Than the Page"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(20);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(
        new QLabel(Words::tr("The picture of %1 x %2 pixels is larger than the page of %3 x %4.")
                       .arg(picture.Width)
                       .arg(picture.Height)
                       .arg(page.Width)
                       .arg(page.Height)));
    fits_ = new QCheckBox(Words::tr("&Fit to Page"));
    fits_->setObjectName("FitToPage");
    fits_->setChecked(true);
    layout->addWidget(fits_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &FitDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FitDialog::reject);
}

bool FitDialog::FitsPage() const {
    return fits_->isChecked();
}

}  // namespace orbelle::app
