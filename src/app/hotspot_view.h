// The picture that a pointer is made from, enlarged on checks, with a cross on its hot spot.
#pragma once

#include <QImage>
#include <QWidget>

#include "formats/hotspot.h"

namespace orbelle::app {

// The cross goes to where the mouse is pressed and follows it; arrow keys move it by a pixel, with
// Shift by eight.
class HotspotView : public QWidget {
    Q_OBJECT

public:
    // `scale`: device pixels per logical one.
    HotspotView(const QImage& picture, double scale, QWidget* parent = nullptr);

    formats::Hotspot Value() const { return hotspot_; }
    // The nearest pixel of the picture. Does not raise Moved.
    void SetValue(formats::Hotspot hotspot);

    // The middle of a pixel in the widget.
    QPointF PlaceOf(formats::Hotspot hotspot) const;

    QSize sizeHint() const override;

signals:
    void Moved(formats::Hotspot hotspot);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPointF Corner() const;  // of the picture
    void MoveTo(formats::Hotspot hotspot);
    void Follow(const QPointF& place);
    void DrawCross(QPainter& painter, const QPoint& corner) const;

    QImage picture_;
    QSize shown_;  // device pixels
    double cell_;  // device pixels that a pixel of the picture takes, whole from 1 up
    double scale_;
    formats::Hotspot hotspot_;
};

}  // namespace orbelle::app
