#include "app/hotspot_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "app/hotspot_view.h"
#include "app/shared_image.h"
#include "widgets/number_slider.h"
#include "widgets/words.h"

namespace orbelle::app {

HotspotDialog::HotspotDialog(const graphics::Bitmap& picture, formats::Hotspot start,
                             QWidget* parent)
    : QDialog(parent),
      view_(new HotspotView(SharedImage(picture), devicePixelRatioF())),
      x_(MakeNumber("X", Words::tr("Pixels from the left edge"), picture.Width())),
      y_(MakeNumber("Y", Words::tr("Pixels from the upper edge"), picture.Height())) {
    setWindowTitle(Words::tr("Hot Spot"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(16);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(
        new QLabel(Words::tr("Drag the cross to the pixel that the pointer points with.")));

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(12);
    grid->addWidget(view_, 0, 0, 3, 1);
    const auto addNumber = [&](int row, const QString& text, widgets::NumberSlider* number) {
        auto* label = new QLabel(text);
        label->setBuddy(number);
        grid->addWidget(label, row, 1);
        grid->addWidget(number, row, 2);
    };
    addNumber(0, Words::tr("&X:"), x_);
    addNumber(1, Words::tr("&Y:"), y_);
    grid->setRowStretch(2, 1);
    layout->addLayout(grid);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &HotspotDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &HotspotDialog::reject);
    connect(view_, &HotspotView::Moved, this, &HotspotDialog::ShowNumbers);
    view_->SetValue(start);
    ShowNumbers();
    view_->setFocus();
}

widgets::NumberSlider* HotspotDialog::MakeNumber(const char* name, const QString& meaning,
                                                 int count) {
    auto* number = new widgets::NumberSlider;
    number->setObjectName(name);
    number->setAccessibleName(name);
    number->setAccessibleDescription(meaning);
    number->setToolTip(meaning);
    number->SetRange(0, count - 1);
    number->SetFollowsTyping(true);
    connect(number, &widgets::NumberSlider::Changed, this, &HotspotDialog::TakeNumbers);
    return number;
}

formats::Hotspot HotspotDialog::Choice() const {
    return view_->Value();
}

void HotspotDialog::accept() {
    x_->CommitTyping();
    y_->CommitTyping();
    QDialog::accept();
}

// What is typed may lie outside.
void HotspotDialog::TakeNumbers() {
    view_->SetValue({x_->Value(), y_->Value()});
    ShowNumbers();
}

void HotspotDialog::ShowNumbers() {
    x_->SetValue(view_->Value().X);
    y_->SetValue(view_->Value().Y);
}

}  // namespace orbelle::app
