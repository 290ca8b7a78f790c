#include "app/system_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <algorithm>
#include <optional>

namespace orbelle::app {

void SetSystemClipboard(const graphics::Bitmap& picture, const std::string& text) {
    auto* data = new QMimeData;
    // The copy outlives the bitmap, whose pixels the image would only borrow.
    if (!picture.IsEmpty())
        data->setImageData(QImage(reinterpret_cast<const uchar*>(picture.Pixels()), picture.Width(),
                                  picture.Height(), picture.Width() * qsizetype{4},
                                  QImage::Format_ARGB32)
                               .copy());
    data->setText(QString::fromStdString(text));
    QGuiApplication::clipboard()->setMimeData(data);
}

// Asked at every change of the controls, while the answer may take another program to give.
bool SystemClipboardHasPicture() {
    static std::optional<bool> remembered;
    if (!remembered) {
        const QClipboard* clipboard = QGuiApplication::clipboard();
        const QMimeData* data = clipboard->mimeData();
        remembered = data && data->hasImage();
        static const QMetaObject::Connection forget = QObject::connect(
            clipboard, &QClipboard::dataChanged, clipboard, [] { remembered.reset(); });
    }
    return *remembered;
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
