#include "widgets/soft_shadow.h"

#include <QEvent>
#include <QPainter>

namespace orbelle::widgets {
namespace {

constexpr int kReach = 12;
constexpr int kDrop = 2;            // how far below the caster it lies
constexpr double kDarkness = 0.25;  // at the caster's edge

// At a distance from the caster from 0 to 1, at which it ends.
double DarknessAt(double distance) {
    return kDarkness * (1 - distance) * (1 - distance);
}

}  // namespace

SoftShadow::SoftShadow(QWidget& caster) : QWidget(caster.parentWidget()), caster_(caster) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    caster.installEventFilter(this);
    Follow();
}

void SoftShadow::Follow() {
    setGeometry(caster_.geometry().adjusted(-kReach, -kReach, kReach, kReach).translated(0, kDrop));
    setVisible(!caster_.isHidden());
    stackUnder(&caster_);
}

bool SoftShadow::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::ZOrderChange:
            Follow();
            break;
        default:
            break;
    }
    return false;
}

// Rings from the outside in, each as much darker as it takes above those below it.
void SoftShadow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    double below = 0;
    for (int ring = 0; ring < kReach; ++ring) {
        const double wanted = DarknessAt(1 - (ring + 1.0) / kReach);
        painter.setBrush(QColor::fromRgbF(0, 0, 0, (wanted - below) / (1 - below)));
        painter.drawRoundedRect(QRectF(rect()).adjusted(ring, ring, -ring, -ring), kReach - ring,
                                kReach - ring);
        below = wanted;
    }
}

}  // namespace orbelle::widgets
