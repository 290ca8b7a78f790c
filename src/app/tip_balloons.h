// The two balloons of tips on the main window.
#pragma once

#include <QObject>
#include <QTimer>
#include <array>
#include <functional>
#include <optional>
#include <random>
#include <vector>

#include "editing/editor.h"
#include "editing/tip_texts.h"
#include "widgets/balloon.h"

namespace orbelle::app {

// What tips point at, in pixels of the central widget.
class TipSurroundings {
public:
    struct Target {
        QRect Rect;
        std::vector<widgets::BalloonSide> Sides;  // those where a balloon does well, the best first
    };

    virtual ~TipSurroundings() = default;

    // No value: it can't be seen, and neither can the tip.
    virtual std::optional<Target> TargetOf(editing::TipPlace place) const = 0;
    // What balloons should not cover.
    virtual std::vector<QRect> TipObstacles() const = 0;
};

class TipBalloons : public QObject {
    Q_OBJECT

public:
    // The balloons are children of `central`.
    TipBalloons(const editing::Editor& editor, QWidget& central,
                const TipSurroundings& surroundings);

    // Help/Tips. Open balloons close by themselves.
    bool TipsEnabled = false;

    void Show(const editing::TipRequest& request);
    void HideFirst();
    bool Close();   // both; whether one was open
    void Expire();  // the next tick closes them
    void Stop();

    bool IsFirstOpen() const { return first_.Wanted; }
    std::vector<QRect> OpenBalloons() const;  // in pixels of the central widget

signals:
    void BalloonClicked();
    void Placed();  // the balloons stand where their targets are now, or have closed

private:
    // Wanted, but without a text or with a target out of sight, it is hidden.
    struct Tip {
        widgets::Balloon* Balloon;
        editing::TipPlace Place = editing::TipPlace::Page;
        bool Wanted = false;
    };

    Tip MakeTip(QWidget& central, const char* name);
    void Grow();
    void Place();
    void PlaceOne(Tip& tip, std::vector<QRect>& obstacles);

    const editing::Editor& editor_;
    const TipSurroundings& surroundings_;
    Tip first_;
    Tip second_;
    QTimer aging_;
    int age_ = 0;  // of the open tips, in ticks
    std::minstd_rand random_;
};

}  // namespace orbelle::app
