#include "app/new_icon_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "app/message_boxes.h"
#include "app/settings.h"
#include "document/document.h"
#include "editing/document_commands.h"
#include "widgets/number_slider.h"

namespace orbelle::app {
namespace {

constexpr int kSideWidth = 140;

}  // namespace

NewIconDialog::NewIconDialog(QWidget* parent) : QDialog(parent) {
    setWindowTitle("New Icon...");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(20);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(12);
    rows->setVerticalSpacing(12);
    layout->addLayout(rows);
    pageWidth_ = AddSide(*rows, "PageWidth", "&Width:", kNewWidth);
    pageHeight_ = AddSide(*rows, "PageHeight", "&Height:", kNewHeight);

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
    const auto allowed = [](int side) { return side >= 1 && side <= document::kMaxPageSide; };
    pageWidth_->CommitTyping();
    pageHeight_->CommitTyping();
    const PageSize size = Size();
    if (!allowed(size.Width) || !allowed(size.Height)) {
        ShowPlainMessage(this, editing::kPageSizeMessage);
        return;
    }
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

    const int row = rows.rowCount();
    rows.addWidget(label, row, 0);
    rows.addWidget(side, row, 1);
    rows.addWidget(new QLabel("px"), row, 2);
    return side;
}

}  // namespace orbelle::app
