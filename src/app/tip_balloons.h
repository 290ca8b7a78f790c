// The two balloons of tips on the main window, and the tab that tells how to turn tips off.
#pragma once

#include <QLabel>
#include <QObject>
#include <QTimer>
#include <functional>
#include <random>

#include "editing/editor.h"
#include "editing/tip_texts.h"
#include "widgets/balloon.h"

namespace orbelle::app {

class TipBalloons : public QObject {
    Q_OBJECT

public:
    // Where the thing that a tip is about lies, in pixels of the central widget; no value: it can't
    // be seen, and neither can the tip.
    using Placement = std::function<std::optional<QPoint>(editing::TipPlace, QSize balloon)>;

    // The balloons are children of `central`.
    TipBalloons(const editing::Editor& editor, QWidget& central, Placement placement);

    // Help/Tips. Open balloons close by themselves.
    bool TipsEnabled = false;

    void Show(const editing::TipRequest& request);
    void HideFirst();  // and lets the balloons grow no older
    bool Close();      // both; whether one was open
    void Expire();     // the next tick closes them
    void Stop();

    widgets::Balloon& FirstBalloon() const { return *first_; }

signals:
    void BalloonClicked();

private:
    void Grow();
    bool Put(widgets::Balloon& balloon, const std::optional<editing::Tip>& tip);

    const editing::Editor& editor_;
    Placement placement_;
    widgets::Balloon* first_;
    widgets::Balloon* second_;
    QTimer aging_;
    int age_ = 0;  // of the open tips, in ticks
    std::minstd_rand random_;
};

}  // namespace orbelle::app
