#include "widgets/artwork.h"

#include <QFile>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>

#include "widgets/theme.h"

// The resources of a static library have to be asked for, outside of all namespaces.
static void LoadResources() {
    static const bool loaded = [] {
        Q_INIT_RESOURCE(orbelle);
        Q_INIT_RESOURCE(artwork);
        return true;
    }();
    Q_UNUSED(loaded);
}

namespace orbelle::widgets {
namespace {

constexpr double kDisabledOpacity = 0.35;
constexpr int kWidestPicture = 1440;  // pixels

// Empty: none of that width.
QString PictureFile(const QString& name, int width, Shade shade) {
    const QString picture = QString("/%1-%2.png").arg(name).arg(width);
    // What brings its own ground is the same on both.
    if (QString dark = ":/artwork/dark" + picture; shade == Shade::Dark && QFile::exists(dark))
        return dark;
    const QString light = ":/artwork/light" + picture;
    return QFile::exists(light) ? light : QString();
}

// The drawing in that width or, where it was not drawn in that, in the next larger one; where there
// is none in the largest. Null: there is no such drawing.
QImage Picture(const QString& name, int width, Shade shade) {
    LoadResources();
    if (name.isEmpty())
        return {};
    QString file;
    for (int at = width; file.isEmpty() && at <= kWidestPicture; ++at)
        file = PictureFile(name, at, shade);
    for (int at = width - 1; file.isEmpty() && at > 0; --at)
        file = PictureFile(name, at, shade);
    return QImage(file);
}

// In pixels of the screen; null: there is no such drawing.
QPixmap Rendered(const QString& name, const QSize& pixels, Shade shade) {
    const QImage picture = Picture(name, pixels.width(), shade);
    if (picture.isNull() || picture.size() == pixels)
        return QPixmap::fromImage(picture);
    return QPixmap::fromImage(
        picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

class Engine : public QIconEngine {
public:
    explicit Engine(const QString& name) : name_(name) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
        if (mode == QIcon::Disabled)
            painter->setOpacity(painter->opacity() * kDisabledOpacity);
        DrawSharp(*painter, place.topLeft(),
                  Artwork(name_, place.size(), painter->device()->devicePixelRatioF()));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new Engine(name_); }

private:
    QString name_;
};

}  // namespace

QPixmap Artwork(const QString& name, const QSize& size, qreal devicePixelRatio) {
    return Artwork(name, size, devicePixelRatio, CurrentShade());
}

QPixmap Artwork(const QString& name, const QSize& size, qreal devicePixelRatio, Shade shade) {
    const QSize pixels = size * devicePixelRatio;
    const QString key = QString("%1 %2 %3 %4")
                            .arg(name)
                            .arg(pixels.width())
                            .arg(pixels.height())
                            .arg(static_cast<int>(shade));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = Rendered(name, pixels, shade);
        QPixmapCache::insert(key, pixmap);
    }
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

void DrawSharp(QPainter& painter, const QPointF& corner, const QPixmap& pixmap) {
    const QTransform toDevice = painter.deviceTransform();
    const QPoint whole = toDevice.map(corner).toPoint();
    painter.drawPixmap(toDevice.inverted().map(QPointF(whole)), pixmap);
}

QIcon ArtworkIcon(const QString& name) {
    return QIcon(new Engine(name));
}

}  // namespace orbelle::widgets
