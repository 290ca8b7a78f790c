// Where a balloon stands: beside what it is about, clear of what must stay seen.
#pragma once

#include <QRect>
#include <optional>
#include <vector>

namespace orbelle::widgets {

inline constexpr int kBalloonCorner = 6;  // radius
inline constexpr int kBalloonArrowLength = 10;
inline constexpr int kBalloonArrowWidth = 14;

// Of the target.
enum class BalloonSide { Below, Above, Right, Left };

struct BalloonRoom {
    QRect Target;
    QSize Body;  // without the arrow
    QRect Window;
    std::vector<QRect> KeepOff;  // as far as there is room; what holds the target does not count
    std::vector<BalloonSide> Sides;  // those wanted, the best first
};

struct BalloonPlace {
    QRect Body;
    BalloonSide Side = BalloonSide::Below;
    QPoint Tip;  // of the arrow, on the target's edge, and
    int ArrowLength = kBalloonArrowLength;

    bool operator==(const BalloonPlace&) const = default;
};

QRect ArrowRect(const BalloonPlace& place);

// Inside the window and never over the target: of such places one that covers little, on a good
// side, with the arrow near to the middle of the target's edge. A side that is not wanted is taken
// only when no other has room; no value: none has.
std::optional<BalloonPlace> PlaceBalloon(const BalloonRoom& room);

}  // namespace orbelle::widgets
