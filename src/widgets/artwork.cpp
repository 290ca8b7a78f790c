#include "widgets/artwork.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <utility>

#include "widgets/theme.h"

// The resources of a static library have to be asked for, outside of all namespaces.
static void LoadResources() {
    static const bool loaded = [] {
        Q_INIT_RESOURCE(orbelle);
        return true;
    }();
    Q_UNUSED(loaded);
}

namespace orbelle::widgets {
namespace {

// What our drawings are made with, and what stands for it on dark.
constexpr std::pair<const char*, const char*> kDarkColors[] = {
    {"#4A5564", "#B8C0CA"},  // outlines
    {"#DCEBFB", "#3B5674"},  // areas
    {"#B9C4D2", "#59626E"},
    {"#2F86E6", "#5AA2F5"},
};

constexpr double kDisabledOpacity = 0.35;

// Pointers and pictures bring their own ground.
bool FollowsTheme(const QString& name) {
    return name.contains('/') && !name.startsWith("cursors/");
}

// Small drawings have whole pixels for strokes; what falls between two pixels at some ratio has a
// drawing of its own for that number of device pixels ("layers/add-24").
QByteArray Drawing(const QString& name, int pixels, Shade shade) {
    QFile file(QString(":/%1-%2.svg").arg(name).arg(pixels));
    if (!file.exists())
        file.setFileName(":/" + name + ".svg");
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray drawing = file.readAll();
    if (FollowsTheme(name) && shade == Shade::Dark)
        for (const auto& [light, dark] : kDarkColors)
            drawing.replace(light, dark);
    return drawing;
}

// In pixels of the screen; null: there is no such drawing.
QPixmap Rendered(const QString& name, const QSize& pixels, Shade shade) {
    LoadResources();
    QSvgRenderer drawing(Drawing(name, pixels.width(), shade));
    if (!drawing.isValid())
        return {};
    QPixmap pixmap(pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    drawing.render(&painter, QRectF(pixmap.rect()));
    return pixmap;
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
