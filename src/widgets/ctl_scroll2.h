// The flat slider.
#pragma once

#include <QSlider>

namespace orbelle::widgets {

// A horizontal QSlider with a look and a hand of its own: only its thumb is dragged. The arrow keys
// are a drag of one step.
class CtlScroll2 : public QSlider {
    Q_OBJECT

public:
    explicit CtlScroll2(QWidget* parent = nullptr);

    // Moves the thumb; raises none of the signals below.
    void SetValue(int value);

    QSize sizeHint() const override;

signals:
    // One drag: a press, any number of changes, a release.
    void Pressed();
    void Changed(int value);
    void Released();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace orbelle::widgets
