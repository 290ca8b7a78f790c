#include "app/new_icon_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "app/core_words.h"
#include "app/message_boxes.h"
#include "app/settings.h"
#include "app/size_presets.h"
#include "document/document.h"
#include "editing/document_commands.h"
#include "widgets/number_slider.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kSideWidth = 140;
constexpr int kPresets[] = {16, 24, 32, 48, 64, 128, 256, 512};

}  // namespace

NewIconDialog::NewIconDialog(QWidget* parent) : QDialog(parent) {
    setWindowTitle(Words::tr("New Icon..."));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(20);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(12);
    rows->setVerticalSpacing(12);
    layout->addLayout(rows);
    pageWidth_ = AddSide(*rows, "PageWidth", Words::tr("&Width:"), kNewWidth);
    pageHeight_ = AddSide(*rows, "PageHeight", Words::tr("&Height:"), kNewHeight);

    presets_ = new SizePresets;
    layout->addWidget(presets_);
    AddPresets();
    ShowPreset();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &NewIconDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &NewIconDialog::reject);

    pageWidth_->setFocus();
}

PageSize NewIconDialog::Size() const {
    return {pageWidth_->Value(), pageHeight_->Value()};
}

void NewIconDialog::accept() {
    pageWidth_->CommitTyping();
    pageHeight_->CommitTyping();
    for (widgets::NumberSlider* side : {pageWidth_, pageHeight_})
        if (side->Value() < 1 || side->Value() > document::kMaxPageSide) {
            ShowPlainMessage(this, TranslatedText(editing::kPageSizeMessage).toStdString());
            side->FocusNumber();
            return;
        }
    const PageSize size = Size();
    Settings settings;
    settings.setValue(kNewWidth, size.Width);
    settings.setValue(kNewHeight, size.Height);
    QDialog::accept();
}

widgets::NumberSlider* NewIconDialog::AddSide(QGridLayout& rows, const char* name,
                                              const QString& caption, const char* setting) {
    auto* label = new QLabel(caption);
    auto* side = new widgets::NumberSlider;
    label->setBuddy(side);
    side->setObjectName(name);
    side->setAccessibleName(QString(caption).remove('&'));
    side->SetRange(1, document::kMaxPageSide);
    side->SetValue(Settings().value(setting).toInt());
    side->setMinimumWidth(kSideWidth);
    connect(side, &widgets::NumberSlider::Changed, this, &NewIconDialog::ShowPreset);

    const int row = rows.rowCount();
    rows.addWidget(label, row, 0);
    rows.addWidget(side, row, 1);
    rows.addWidget(new QLabel(Words::tr("px")), row, 2);
    return side;
}

void NewIconDialog::AddPresets() {
    for (const int side : kPresets)
        presets_->Add(side, QString::number(side), QString("%1 x %1").arg(side));
    connect(presets_, &SizePresets::Chosen, this, [this](int side) {
        pageWidth_->SetValue(side);
        pageHeight_->SetValue(side);
    });
}

// The one that both sides have, if any.
void NewIconDialog::ShowPreset() {
    const PageSize size = Size();
    presets_->Show(size.Width == size.Height ? size.Width : 0);
}

}  // namespace orbelle::app
