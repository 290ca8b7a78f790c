#include "app/size_presets.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QToolButton>

namespace orbelle::app {

SizePresets::SizePresets(QWidget* parent) : QWidget(parent), buttons_(new QButtonGroup(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    connect(buttons_, &QButtonGroup::idClicked, this, &SizePresets::Chosen);
}

void SizePresets::Add(int side, const QString& text, const QString& name) {
    auto* button = new QToolButton;
    button->setText(text);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setAutoRaise(true);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    buttons_->addButton(button, side);
    layout()->addWidget(button);
}

void SizePresets::Show(int side) {
    buttons_->setExclusive(false);
    for (QAbstractButton* button : buttons_->buttons())
        button->setChecked(buttons_->id(button) == side);
    buttons_->setExclusive(true);
    // Tab comes to the chosen one, arrows go from there; with none chosen to each.
    for (QAbstractButton* button : buttons_->buttons())
        button->setFocusPolicy(button->isChecked() || !buttons_->checkedButton() ? Qt::StrongFocus
                                                                                 : Qt::ClickFocus);
}

}  // namespace orbelle::app
