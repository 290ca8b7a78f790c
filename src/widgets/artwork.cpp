#include "widgets/artwork.h"

#include <QPainter>
#include <QSvgRenderer>

// The resources of a static library have to be asked for, outside of all namespaces.
static void LoadResources() {
    static const bool loaded = [] {
        Q_INIT_RESOURCE(orbelle);
        return true;
    }();
    Q_UNUSED(loaded);
}

namespace orbelle::widgets {

QPixmap Artwork(const QString& name, const QSize& size, qreal devicePixelRatio) {
    LoadResources();
    QSvgRenderer drawing(":/" + name + ".svg");
    if (!drawing.isValid())
        return {};
    QPixmap pixmap(size * devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    drawing.render(&painter, QRectF(pixmap.rect()));
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

QPixmap PixelArtwork(const QString& name) {
    LoadResources();
    return QPixmap(":/" + name + ".png");
}

}  // namespace orbelle::widgets
