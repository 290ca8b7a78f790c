#include "app/tip_balloons.h"

#include "app/core_words.h"

namespace orbelle::app {
namespace {

// Meant as 5 ms, which the timers of its day made of 15: a tip stays for the time to read it.
constexpr int kTickMilliseconds = 16;
constexpr int kOldest = 300;  // ticks

}  // namespace

TipBalloons::TipBalloons(const editing::Editor& editor, QWidget& central,
                         const TipSurroundings& surroundings)
    : editor_(editor),
      surroundings_(surroundings),
      first_(MakeTip(central, "FirstBalloon")),
      second_(MakeTip(central, "SecondBalloon")) {
    for (Tip* tip : {&first_, &second_}) {
        connect(tip->Balloon, &widgets::Balloon::Clicked, this, [this, tip] {
            tip->Wanted = false;
            Place();
            emit BalloonClicked();
        });
    }
    aging_.setInterval(kTickMilliseconds);
    connect(&aging_, &QTimer::timeout, this, &TipBalloons::Grow);
}

TipBalloons::Tip TipBalloons::MakeTip(QWidget& central, const char* name) {
    auto* balloon = new widgets::Balloon(&central);
    balloon->setObjectName(name);
    balloon->hide();
    return {balloon};
}

void TipBalloons::Show(const editing::TipRequest& request) {
    age_ = 0;
    if (!TipsEnabled)
        return;
    const int pick = std::uniform_int_distribution<int>(1, 2)(random_);
    const editing::TipChoice choice =
        ChooseTips(editor_, request.Number, request.AboutLayers, pick);
    const auto set = [](Tip& tip, const std::optional<editing::Tip>& chosen) {
        if (!chosen)
            return;
        tip.Balloon->SetText(TranslatedText(chosen->Text));
        tip.Place = chosen->Place;
    };
    set(first_, choice.FirstBalloon);
    set(second_, choice.SecondBalloon);
    first_.Wanted = choice.FirstVisible;
    if (choice.SecondVisible)
        second_.Wanted = *choice.SecondVisible;
    Place();
    aging_.start();
}

// The second has fewer places to stand in, and the first keeps off its target too.
void TipBalloons::Place() {
    std::vector<QRect> obstacles = surroundings_.TipObstacles();
    PlaceOne(second_, obstacles);
    PlaceOne(first_, obstacles);
    emit Placed();
}

void TipBalloons::PlaceOne(Tip& tip, std::vector<QRect>& obstacles) {
    widgets::Balloon& balloon = *tip.Balloon;
    std::optional<TipSurroundings::Target> target;
    if (tip.Wanted && !balloon.Text().isEmpty())
        target = surroundings_.TargetOf(tip.Place);
    std::optional<widgets::BalloonPlace> place;
    if (target)
        place = widgets::PlaceBalloon({target->Rect, balloon.BodySize(),
                                       balloon.parentWidget()->rect(), obstacles, target->Sides});
    if (!place)
        return balloon.hide();
    balloon.Stand(*place);
    if (balloon.isHidden()) {
        balloon.show();
        balloon.raise();
    }
    obstacles.push_back(place->Body);
    obstacles.push_back(target->Rect);
}

std::vector<QRect> TipBalloons::OpenBalloons() const {
    std::vector<QRect> places;
    for (const Tip* tip : {&first_, &second_})
        if (!tip->Balloon->isHidden())
            places.push_back(tip->Balloon->geometry());
    return places;
}

void TipBalloons::HideFirst() {
    if (!first_.Wanted)
        return;
    first_.Wanted = false;
    Place();
}

bool TipBalloons::Close() {
    const bool wasOpen = !OpenBalloons().empty();
    first_.Wanted = second_.Wanted = false;
    aging_.stop();
    Place();
    return wasOpen;
}

void TipBalloons::Expire() {
    age_ = kOldest;
}

void TipBalloons::Stop() {
    aging_.stop();
}

void TipBalloons::Grow() {
    if (++age_ <= kOldest)
        return Place();
    age_ = 0;
    Close();
}

}  // namespace orbelle::app
