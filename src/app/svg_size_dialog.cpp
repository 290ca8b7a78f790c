#include "app/svg_size_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "app/size_presets.h"
#include "graphics/codecs/image_files.h"
#include "widgets/number_slider.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kSideWidth = 140;
constexpr int kPresets[] = {512, 256, 128, 64, 48, 32};

}  // namespace

SvgSizeDialog::SvgSizeDialog(const PageSize& own, QWidget* parent) : QDialog(parent) {
    setWindowTitle(Words::tr("Size of the Drawing"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(20);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(new QLabel(
        Words::tr("The drawing's own size is %1 x %2 pixels.").arg(own.Width).arg(own.Height)));

    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    auto* label = new QLabel(Words::tr("&Longer side:"));
    side_ = new widgets::NumberSlider;
    label->setBuddy(side_);
    side_->setObjectName("LongerSide");
    side_->setAccessibleName(Words::tr("Longer side"));
    side_->SetRange(1, graphics::kMaxSvgSide);
    const int longer = std::max(own.Width, own.Height);
    side_->SetValue(std::clamp(longer, 1, graphics::kMaxSvgSide));
    side_->setMinimumWidth(kSideWidth);
    connect(side_, &widgets::NumberSlider::Changed, this, &SvgSizeDialog::ShowPreset);
    row->addWidget(label);
    row->addWidget(side_);
    row->addWidget(new QLabel(Words::tr("px")));
    layout->addLayout(row);

    presets_ = new SizePresets;
    layout->addWidget(presets_);
    AddPresets(longer);
    ShowPreset();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &SvgSizeDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SvgSizeDialog::reject);
    side_->setFocus();
}

int SvgSizeDialog::Side() const {
    return std::clamp(side_->Value(), 1, graphics::kMaxSvgSide);
}

void SvgSizeDialog::accept() {
    side_->CommitTyping();
    QDialog::accept();
}

void SvgSizeDialog::AddPresets(int own) {
    const auto add = [this](int side, const QString& text) {
        presets_->Add(side, text, Words::tr("%1 pixels").arg(side));
    };
    const int first = side_->Value();
    if (std::ranges::find(kPresets, first) == std::end(kPresets))
        add(first, first == own ? Words::tr("Own") : QString::number(first));
    for (const int side : kPresets)
        add(side, QString::number(side));
    connect(presets_, &SizePresets::Chosen, side_, [this](int side) { side_->SetValue(side); });
}

void SvgSizeDialog::ShowPreset() {
    presets_->Show(side_->Value());
}

}  // namespace orbelle::app
