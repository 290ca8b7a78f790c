#include "app/frm_page.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "app/message_boxes.h"
#include "app/settings.h"
#include "document/document.h"
#include "editing/document_commands.h"
#include "widgets/ctl_scroll.h"

namespace orbelle::app {
namespace {

constexpr char kWidthSetting[] = "Width";
constexpr char kHeightSetting[] = "Height";
constexpr int kSideWidth = 140;

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
    CtlScroll1 = AddSide(*rows, "CtlScroll1", "&Width:", kWidthSetting);
    CtlScroll2 = AddSide(*rows, "CtlScroll2", "&Height:", kHeightSetting);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &FrmPage::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FrmPage::reject);

    CtlScroll1->setFocus();
}

editing::PageSize FrmPage::Size() const {
    return {CtlScroll1->ColorValue(), CtlScroll2->ColorValue()};
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

widgets::CtlScroll* FrmPage::AddSide(QGridLayout& rows, const char* name, const QString& caption,
                                     const char* setting) {
    auto* label = new QLabel(caption);
    auto* side = new widgets::CtlScroll;
    label->setBuddy(side);
    side->setObjectName(name);
    side->setAccessibleName(QString(caption).remove('&'));
    side->SetRange(1, document::kMaxPageSide);
    side->SetColorValue(Settings().value(setting).toInt());
    side->setMinimumWidth(kSideWidth);

    const int row = rows.rowCount();
    rows.addWidget(label, row, 0);
    rows.addWidget(side, row, 1);
    rows.addWidget(new QLabel("px"), row, 2);
    return side;
}

}  // namespace orbelle::app
