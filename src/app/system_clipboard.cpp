#include "app/system_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "app/shared_image.h"

namespace orbelle::app {

void SetSystemClipboard(const graphics::Bitmap& picture, const std::string& text) {
    auto* data = new QMimeData;
    if (!picture.IsEmpty())
        data->setImageData(SharedImage(picture));
    data->setText(QString::fromStdString(text));
    QGuiApplication::clipboard()->setMimeData(data);
}

QStringList SystemClipboardFiles() {
    QStringList files;
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!data || data->hasImage())
        return files;
    for (const QUrl& url : data->urls())
        if (url.isLocalFile())
            files += url.toLocalFile();
    return files;
}

bool SystemClipboardHasPicture() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasImage();
}

graphics::Bitmap SystemClipboardPicture() {
    const QImage image =
        QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_ARGB32);
    if (image.isNull())
        return {};
    graphics::Bitmap picture(image.width(), image.height());
    for (int y = 0; y < picture.Height(); ++y)
        std::copy_n(reinterpret_cast<const graphics::Argb*>(image.constScanLine(y)),
                    picture.Width(), picture.MutableRow(y));
    return picture;
}

std::string SystemClipboardText() {
    return QGuiApplication::clipboard()->text().toStdString();
}

}  // namespace orbelle::app
