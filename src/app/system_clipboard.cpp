#include "app/system_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include "app/shared_image.h"

namespace orbelle::app {

void SetSystemClipboard(const graphics::Bitmap& picture, const std::string& text) {
    auto* data = new QMimeData;
    if (!picture.IsEmpty())
        data->setImageData(SharedImage(picture));
    data->setText(QString::fromStdString(text));
    QGuiApplication::clipboard()->setMimeData(data);
}

QByteArrayList SystemClipboardFiles() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && !OffersPicture(*data) ? LocalFiles(*data) : QByteArrayList();
}

bool SystemClipboardHasPicture() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && OffersPicture(*data);
}

OfferedPicture SystemClipboardPicture() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && OffersPicture(*data) ? ReadOffered(*data) : OfferedPicture();
}

std::string SystemClipboardText() {
    return QGuiApplication::clipboard()->text().toStdString();
}

}  // namespace orbelle::app
