#include "app/svg_size_dialog.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "graphics/codecs/image_files.h"
#include "widgets/number_slider.h"

namespace orbelle::app {
namespace {

constexpr int kSideWidth = 140;
constexpr int kPresets[] = {512, 256, 128, 64, 48, 32};

}  // namespace

SvgSizeDialog::SvgSizeDialog(const PageSize& own, QWidget* parent) : QDialog(parent) {
    setWindowTitle("Size of the Drawing");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(20);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(new QLabel(
        QString("The drawing's own size is %1 x %2 pixels.").arg(own.Width).arg(own.Height)));

    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    auto* label = new QLabel("&Longer side:");
    side_ = new widgets::NumberSlider;
    label->setBuddy(side_);
    side_->setObjectName("LongerSide");
    side_->setAccessibleName("Longer side");
    side_->SetRange(1, graphics::kMaxSvgSide);
    const int longer = std::max(own.Width, own.Height);
    side_->SetValue(std::clamp(longer, 1, graphics::kMaxSvgSide));
    side_->setMinimumWidth(kSideWidth);
    connect(side_, &widgets::NumberSlider::Changed, this, &SvgSizeDialog::ShowPreset);
    row->addWidget(label);
    row->addWidget(side_);
    row->addWidget(new QLabel("px"));
    layout->addLayout(row);

    layout->addLayout(AddPresets(longer));
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

// One stop for Tab; arrow keys go from one to the next.
QLayout* SvgSizeDialog::AddPresets(int own) {
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    presets_ = new QButtonGroup(this);
    const auto add = [&](int side, const QString& text) {
        auto* button = new QToolButton;
        button->setText(text);
        button->setAccessibleName(QString("%1 pixels").arg(side));
        button->setToolTip(button->accessibleName());
        button->setAutoRaise(true);
        button->setCheckable(true);
        button->setFocusPolicy(Qt::StrongFocus);
        presets_->addButton(button, side);
        row->addWidget(button);
    };
    const int first = side_->Value();
    if (std::ranges::find(kPresets, first) == std::end(kPresets))
        add(first, first == own ? "Own" : QString::number(first));
    for (const int side : kPresets)
        add(side, QString::number(side));
    connect(presets_, &QButtonGroup::idClicked, side_, [this](int side) { side_->SetValue(side); });
    return row;
}

void SvgSizeDialog::ShowPreset() {
    presets_->setExclusive(false);
    for (QAbstractButton* button : presets_->buttons())
        button->setChecked(presets_->id(button) == side_->Value());
    presets_->setExclusive(true);
}

}  // namespace orbelle::app
