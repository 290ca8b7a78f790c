#include "app/message_boxes.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>

#include "editing/editor.h"
#include "widgets/artwork.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kLeastWidth = 260;  // of the text, logical pixels
constexpr QSize kPictureSize(38, 38);

// Without the room that is kept for an icon also where there is none.
int Exec(QMessageBox& box) {
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    for (int i = 0; grid && i < grid->count(); ++i) {
        if (QSpacerItem* indent = grid->itemAt(i)->spacerItem();
            indent && box.iconPixmap().isNull())
            indent->changeSize(0, 0);
    }
    if (grid) {
        grid->setContentsMargins(20, 20, 20, 16);
        grid->setColumnStretch(grid->columnCount() - 1, 1);
        grid->setColumnMinimumWidth(grid->columnCount() - 1, kLeastWidth);
    }
    return box.exec();
}

int Show(QWidget* parent, QMessageBox::Icon icon, const QString& title, const std::string& text,
         QMessageBox::StandardButtons buttons, QMessageBox::StandardButton usual) {
    QMessageBox box(icon, title, QString::fromStdString(text), buttons, parent);
    if (icon == QMessageBox::Information)
        box.setIconPixmap(widgets::Artwork("information", kPictureSize, box.devicePixelRatioF()));
    // A text may carry a file's name: markup in it is no markup.
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(usual);
    return Exec(box);
}

}  // namespace

void ShowPlainMessage(QWidget* parent, const std::string& text) {
    Show(parent, QMessageBox::NoIcon, editing::kProductName, text, QMessageBox::Ok,
         QMessageBox::Ok);
}

void ShowMessageToCopy(QWidget* parent, const std::string& text, const std::string& address) {
    QMessageBox box(QMessageBox::NoIcon, editing::kProductName, QString::fromStdString(text),
                    QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    const QPushButton* copy = box.addButton(Words::tr("&Copy"), QMessageBox::ActionRole);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    Exec(box);
    if (box.clickedButton() == copy)
        QGuiApplication::clipboard()->setText(QString::fromStdString(address));
}

bool OfferFolder(QWidget* parent, const std::string& text) {
    QMessageBox box(QMessageBox::NoIcon, editing::kProductName, QString::fromStdString(text),
                    QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    const QPushButton* open = box.addButton(Words::tr("Open &Folder"), QMessageBox::ActionRole);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    Exec(box);
    return box.clickedButton() == open;
}

bool AskOkCancel(QWidget* parent, const std::string& text, const std::string& title) {
    return Show(parent, QMessageBox::Information, QString::fromStdString(title), text,
                QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Ok;
}

}  // namespace orbelle::app
