#include "drawn_text.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace orbelle::testing {
namespace {

class Recorder : public QPaintEngine {
public:
    Recorder() : QPaintEngine(AllFeatures) {}

    std::vector<DrawnText> Texts;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawPath(const QPainterPath&) override {}

    void drawTextItem(const QPointF& base, const QTextItem& item) override {
        const QRectF box(base - QPointF(0, item.ascent()),
                         QSizeF(item.width(), item.ascent() + item.descent()));
        QPainterPath seen;
        seen.addRect(box);
        if (painter()->hasClipping())
            seen &= painter()->clipPath();
        const QRectF place = painter()->worldTransform().mapRect(seen.boundingRect());
        QColor color = painter()->pen().color();
        color.setAlphaF(color.alphaF() * static_cast<float>(painter()->opacity()));
        if (!item.text().trimmed().isEmpty() && place.width() > 1 && place.height() > 1)
            Texts.push_back({item.text(), place, painter()->worldTransform().mapRect(box), color});
    }
};

class Paper : public QPaintDevice {
public:
    explicit Paper(const QWidget& control) : control_(control) {}

    Recorder& Engine() const { return engine_; }
    QPaintEngine* paintEngine() const override { return &engine_; }

protected:
    int metric(PaintDeviceMetric which) const override {
        switch (which) {
            case PdmWidth:
                return control_.width();
            case PdmHeight:
                return control_.height();
            case PdmDpiX:
            case PdmPhysicalDpiX:
                return control_.logicalDpiX();
            case PdmDpiY:
            case PdmPhysicalDpiY:
                return control_.logicalDpiY();
            case PdmDevicePixelRatio:
                return 1;
            case PdmDevicePixelRatioScaled:
                return static_cast<int>(devicePixelRatioFScale());
            default:
                return 0;
        }
    }

private:
    const QWidget& control_;
    mutable Recorder engine_;
};

}  // namespace

std::vector<DrawnText> TextsOf(QWidget& control) {
    Paper paper(control);
    control.render(&paper, {}, {}, {});
    return paper.Engine().Texts;
}

}  // namespace orbelle::testing
