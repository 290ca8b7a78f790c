// Short movements of what is shown. They are looks alone: what moves is in its new state already,
// and can be used.
#pragma once

#include <QVariantAnimation>

class QWidget;

namespace orbelle::widgets {

inline constexpr int kMotionMilliseconds = 120;

// Goes from 0 to 1, fast at first. Where no motion is wanted (IsMotionWanted), and on a control
// that can't be seen, it is at its end at once.
class Motion : public QVariantAnimation {
    Q_OBJECT

public:
    // `moved` is painted anew at each step.
    explicit Motion(QWidget& moved);

    void Start();
    double Share() const;  // 1 at rest

private:
    QWidget& moved_;
};

// What has just come into view appears out of the ground.
void FadeIn(QWidget& content);

}  // namespace orbelle::widgets
