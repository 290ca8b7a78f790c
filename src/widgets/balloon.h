// A balloon with a tip.
#pragma once

#include <QWidget>

#include "widgets/balloon_place.h"
#include "widgets/motion.h"

namespace orbelle::widgets {

// Its arrow points at what it is about. Comes up above its siblings.
class Balloon : public QWidget {
    Q_OBJECT

public:
    explicit Balloon(QWidget* parent = nullptr);

    void SetText(const QString& text);
    const QString& Text() const { return text_; }
    // Without the arrow, by the text.
    QSize BodySize() const;
    void Stand(const BalloonPlace& place);

signals:
    void Clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QString text_;
    BalloonPlace place_;
    Motion coming_{*this};
};

}  // namespace orbelle::widgets
