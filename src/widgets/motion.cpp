#include "widgets/motion.h"

#include <QPainter>
#include <QWidget>

#include "widgets/theme.h"

namespace orbelle::widgets {
namespace {

constexpr int kMuch = 4096;

// Lies over the content and gets thinner.
class Veil : public QWidget {
public:
    explicit Veil(QWidget& content) : QWidget(&content), motion_(*this) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(0, 0, kMuch, kMuch);  // the content may get its size only now
        connect(&motion_, &QVariantAnimation::finished, this, &QObject::deleteLater);
    }
    void Start() {
        raise();
        show();
        motion_.Start();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QColor ground = CurrentTheme().Ground;
        ground.setAlphaF(1 - motion_.Share());
        QPainter(this).fillRect(rect(), ground);
    }

private:
    Motion motion_;
};

}  // namespace

Motion::Motion(QWidget& moved) : moved_(moved) {
    setStartValue(0.0);
    setEndValue(1.0);
    setDuration(kMotionMilliseconds);
    setEasingCurve(QEasingCurve::OutCubic);
    connect(this, &QVariantAnimation::valueChanged, &moved, qOverload<>(&QWidget::update));
}

void Motion::Start() {
    stop();
    if (IsMotionWanted() && moved_.isVisible())
        start();
    moved_.update();
}

double Motion::Share() const {
    return state() == Running ? currentValue().toDouble() : 1;
}

void FadeIn(QWidget& content) {
    if (IsMotionWanted() && content.isVisible())
        (new Veil(content))->Start();
}

}  // namespace orbelle::widgets
