#include "widgets/balloon_place.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace orbelle::widgets {
namespace {

constexpr int kGap = 4;            // to what is kept off
constexpr int kLongestArrow = 56;  // reaches across a scroll bar and a header
constexpr int kArrowFromCorner = kBalloonCorner + kBalloonArrowWidth / 2 + 1;

bool IsUpOrDown(BalloonSide side) {
    return side == BalloonSide::Below || side == BalloonSide::Above;
}

// The extent of a rectangle along one axis; the end is the pixel after the last.
struct Span {
    int Start, End;
    int Middle() const { return (Start + End) / 2; }
};

Span Horizontal(const QRect& rect) {
    return {rect.left(), rect.left() + rect.width()};
}

Span Vertical(const QRect& rect) {
    return {rect.top(), rect.top() + rect.height()};
}

// A place of the balloon on one side, `start` along the target's edge.
BalloonPlace PlaceOn(const BalloonRoom& room, BalloonSide side, int start, int arrowLength) {
    const bool upOrDown = IsUpOrDown(side);
    const Span edge = upOrDown ? Horizontal(room.Target) : Vertical(room.Target);
    const int length = upOrDown ? room.Body.width() : room.Body.height();
    const int along =
        std::clamp(edge.Middle(), start + kArrowFromCorner,
                   std::max(start + length - kArrowFromCorner, start + kArrowFromCorner));
    const Span across = upOrDown ? Vertical(room.Target) : Horizontal(room.Target);
    const int depth = upOrDown ? room.Body.height() : room.Body.width();
    const bool isAfter = side == BalloonSide::Below || side == BalloonSide::Right;
    const int tip = isAfter ? across.End : across.Start;
    const int body = isAfter ? tip + arrowLength : tip - arrowLength - depth;
    return {QRect(upOrDown ? QPoint(start, body) : QPoint(body, start), room.Body), side,
            upOrDown ? QPoint(along, tip) : QPoint(tip, along), arrowLength};
}

// Places along the target's edge that may be the best: around its middle, and beside each thing to
// keep off.
std::vector<int> StartsOn(const BalloonRoom& room, BalloonSide side) {
    const auto span = [side](const QRect& rect) {
        return IsUpOrDown(side) ? Horizontal(rect) : Vertical(rect);
    };
    const int length = IsUpOrDown(side) ? room.Body.width() : room.Body.height();
    std::vector<int> starts = {span(room.Target).Middle() - length / 2};
    for (const QRect& rect : room.KeepOff) {
        starts.push_back(span(rect).Start - kGap - length);
        starts.push_back(span(rect).End + kGap);
    }
    const int first = span(room.Window).Start;
    const int last = std::max(span(room.Window).End - length, first);
    for (int& start : starts)
        start = std::clamp(start, first, last);
    return starts;
}

// The usual arrow, and those that reach across a thing to keep off.
std::vector<int> ArrowLengthsOn(const BalloonRoom& room, BalloonSide side) {
    std::vector<int> lengths = {kBalloonArrowLength};
    for (const QRect& rect : room.KeepOff) {
        const int across = side == BalloonSide::Below   ? rect.bottom() - room.Target.bottom()
                           : side == BalloonSide::Above ? room.Target.top() - rect.top()
                           : side == BalloonSide::Right ? rect.right() - room.Target.right()
                                                        : room.Target.left() - rect.left();
        const int length = across + kGap;
        if (length > kBalloonArrowLength && length <= kLongestArrow)
            lengths.push_back(length);
    }
    return lengths;
}

int Area(const QRect& rect) {
    return rect.isEmpty() ? 0 : rect.width() * rect.height();
}

// What is covered of the things to keep off. Of where an arrow lies it covers half.
int CoveredBy(const BalloonRoom& room, const BalloonPlace& place) {
    int covered = 0;
    for (const QRect& rect : room.KeepOff) {
        if (!rect.contains(room.Target))
            covered += Area(rect & place.Body) + Area(rect & ArrowRect(place)) / 2;
    }
    return covered;
}

// How far the tip is from the edge that it is to touch; and what else speaks against a place, as
// pixels covered.
std::pair<int, int> CostOf(const BalloonRoom& room, const BalloonPlace& place, int rank) {
    const bool upOrDown = IsUpOrDown(place.Side);
    const Span edge = upOrDown ? Horizontal(room.Target) : Vertical(room.Target);
    const int along = upOrDown ? place.Tip.x() : place.Tip.y();
    const QPoint fromBody = place.Tip - place.Body.center();
    return {std::max({edge.Start - along, along - edge.End, 0}),
            CoveredBy(room, place) + rank * Area(place.Body) / 20 +
                8 * std::abs(along - edge.Middle()) +
                4 * (place.ArrowLength - kBalloonArrowLength) +
                std::abs(upOrDown ? fromBody.x() : fromBody.y())};
}

std::optional<BalloonPlace> BestOn(const BalloonRoom& room, const std::vector<BalloonSide>& sides) {
    std::optional<BalloonPlace> best;
    std::pair<int, int> bestCost;
    int rank = 0;
    for (const BalloonSide side : sides) {
        for (const int start : StartsOn(room, side)) {
            for (const int arrowLength : ArrowLengthsOn(room, side)) {
                const BalloonPlace place = PlaceOn(room, side, start, arrowLength);
                const std::pair cost = CostOf(room, place, rank);
                if (room.Window.contains(place.Body) && (!best || cost < bestCost)) {
                    best = place;
                    bestCost = cost;
                }
            }
        }
        ++rank;
    }
    return best;
}

}  // namespace

QRect ArrowRect(const BalloonPlace& place) {
    const int half = kBalloonArrowWidth / 2, length = place.ArrowLength;
    switch (place.Side) {
        case BalloonSide::Below:
            return {place.Tip - QPoint(half, 0), QSize(2 * half, length)};
        case BalloonSide::Above:
            return {place.Tip - QPoint(half, length), QSize(2 * half, length)};
        case BalloonSide::Right:
            return {place.Tip - QPoint(0, half), QSize(length, 2 * half)};
        case BalloonSide::Left:
            break;
    }
    return {place.Tip - QPoint(length, half), QSize(length, 2 * half)};
}

std::optional<BalloonPlace> PlaceBalloon(const BalloonRoom& room) {
    if (const auto best = BestOn(room, room.Sides))
        return best;
    return BestOn(room,
                  {BalloonSide::Below, BalloonSide::Above, BalloonSide::Right, BalloonSide::Left});
}

}  // namespace orbelle::widgets
