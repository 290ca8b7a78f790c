#include "app/message_boxes.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>

#include "editing/editor.h"

namespace orbelle::app {
namespace {

int Show(QWidget* parent, QMessageBox::Icon icon, const QString& title, const std::string& text,
         QMessageBox::StandardButtons buttons, QMessageBox::StandardButton usual) {
    QMessageBox box(icon, title, QString::fromStdString(text), buttons, parent);
    // A text may carry a file's name: markup in it is no markup.
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(usual);
    return box.exec();
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
    const QPushButton* copy = box.addButton("&Copy", QMessageBox::ActionRole);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    box.exec();
    if (box.clickedButton() == copy)
        QGuiApplication::clipboard()->setText(QString::fromStdString(address));
}

bool OfferFolder(QWidget* parent, const std::string& text) {
    QMessageBox box(QMessageBox::NoIcon, editing::kProductName, QString::fromStdString(text),
                    QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    const QPushButton* open = box.addButton("Open &Folder", QMessageBox::ActionRole);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    box.exec();
    return box.clickedButton() == open;
}

bool AskOkCancel(QWidget* parent, const std::string& text, const std::string& title) {
    return Show(parent, QMessageBox::Information, QString::fromStdString(title), text,
                QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Ok;
}

}  // namespace orbelle::app
