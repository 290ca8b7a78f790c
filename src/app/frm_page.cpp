#include "app/frm_page.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include "app/message_boxes.h"
#include "app/settings.h"
#include "document/document.h"
#include "editing/document_commands.h"

namespace orbelle::app {
namespace {

constexpr char kWidthSetting[] = "Width";
constexpr char kHeightSetting[] = "Height";
// What can be typed goes beyond what is allowed, so that a wrong size is told rather than changed.
constexpr int kMaxTyped = 9999;

}  // namespace

FrmPage::FrmPage(QWidget* parent) : QDialog(parent) {
    setWindowTitle("New Icon...");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(20);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(12);
    rows->setVerticalSpacing(12);
    layout->addLayout(rows);
    width_ = AddSide(*rows, "&Width:", kWidthSetting);
    height_ = AddSide(*rows, "&Height:", kHeightSetting);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &FrmPage::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FrmPage::reject);

    width_->setFocus();
    width_->selectAll();
}

editing::PageSize FrmPage::Size() const {
    return {width_->value(), height_->value()};
}

void FrmPage::accept() {
    const auto allowed = [](int side) { return side >= 1 && side <= document::kMaxPageSide; };
    const editing::PageSize size = Size();
    if (!allowed(size.Width) || !allowed(size.Height)) {
        ShowPlainMessage(this, editing::kPageSizeMessage);
        return;
    }
    Settings settings;
    settings.setValue(kWidthSetting, size.Width);
    settings.setValue(kHeightSetting, size.Height);
    QDialog::accept();
}

QSpinBox* FrmPage::AddSide(QGridLayout& rows, const QString& caption, const char* setting) {
    auto* label = new QLabel(caption);
    auto* slider = new QSlider(Qt::Horizontal);
    auto* value = new QSpinBox;
    label->setBuddy(value);
    slider->setRange(0, document::kMaxPageSide);
    slider->setPageStep(16);
    slider->setMinimumWidth(240);
    slider->setAccessibleName(QString(caption).remove('&'));
    value->setRange(0, kMaxTyped);
    value->setSuffix(" px");

    connect(slider, &QSlider::valueChanged, value, &QSpinBox::setValue);
    connect(value, &QSpinBox::valueChanged, slider, [slider](int typed) {
        const QSignalBlocker keepsTyped(slider);
        slider->setValue(typed);
    });
    value->setValue(Settings().value(setting).toInt());

    const int row = rows.rowCount();
    rows.addWidget(label, row, 0);
    rows.addWidget(slider, row, 1);
    rows.addWidget(value, row, 2);
    return value;
}

}  // namespace orbelle::app
