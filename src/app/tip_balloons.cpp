#include "app/tip_balloons.h"

namespace orbelle::app {
namespace {

// Meant as 5 ms, which the timers of its day made of 15: a tip stays for the time to read it.
constexpr int kTickMilliseconds = 16;
constexpr int kOldest = 300;  // ticks

}  // namespace

TipBalloons::TipBalloons(const editing::Editor& editor, QWidget& central, Placement placement)
    : editor_(editor),
      placement_(std::move(placement)),
      first_(new widgets::Balloon(&central)),
      second_(new widgets::Balloon(&central)) {
    first_->setObjectName("FirstBalloon");
    second_->setObjectName("SecondBalloon");
    second_->SetPointsDown(true);
    for (widgets::Balloon* balloon : {first_, second_}) {
        balloon->hide();
        connect(balloon, &widgets::Balloon::Clicked, this, [this, balloon] {
            balloon->hide();
            emit BalloonClicked();
        });
    }
    aging_.setInterval(kTickMilliseconds);
    connect(&aging_, &QTimer::timeout, this, &TipBalloons::Grow);
}

bool TipBalloons::Put(widgets::Balloon& balloon, const std::optional<editing::Tip>& tip) {
    if (!tip)
        return true;
    balloon.SetText(QString::fromStdString(tip->Text));
    const std::optional<QPoint> place = placement_(tip->Place, balloon.size());
    if (!place)
        return false;
    // A balloon that would leave the window moves in.
    const QSize room = balloon.parentWidget()->size() - balloon.size();
    balloon.move(std::clamp(place->x(), 0, std::max(room.width(), 0)),
                 std::clamp(place->y(), 0, std::max(room.height(), 0)));
    return true;
}

void TipBalloons::Show(const editing::TipRequest& request) {
    age_ = 0;
    if (!TipsEnabled)
        return;
    const int pick = std::uniform_int_distribution<int>(1, 2)(random_);
    const editing::TipChoice choice =
        ChooseTips(editor_, request.Number, request.AboutLayers, pick);
    const bool seesFirst = Put(*first_, choice.FirstBalloon);
    first_->setVisible(choice.FirstVisible && seesFirst);
    const bool seesSecond = Put(*second_, choice.SecondBalloon);
    if (choice.SecondVisible)
        second_->setVisible(*choice.SecondVisible && seesSecond);
    for (widgets::Balloon* balloon : {first_, second_})
        balloon->raise();
    aging_.start();
}

void TipBalloons::HideFirst() {
    if (first_->isHidden())
        return;
    first_->hide();
    aging_.stop();
}

bool TipBalloons::Close() {
    const bool wasOpen = !first_->isHidden() || !second_->isHidden();
    first_->hide();
    second_->hide();
    aging_.stop();
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
        return;
    age_ = 0;
    Close();
}

}  // namespace orbelle::app
