#include "app/welcome_sequence.h"

#include "app/scene_view.h"

namespace orbelle::app {
namespace {

constexpr int kTickMilliseconds = 10;
constexpr int kLongEnough = 2000;
constexpr int kFadeFrom = 230;
constexpr int kStep = 10;

}  // namespace

WelcomeSequence::WelcomeSequence(SceneView& scene) : scene_(scene) {
    fading_.setInterval(kTickMilliseconds);
    connect(&fading_, &QTimer::timeout, this, &WelcomeSequence::Tick);
}

void WelcomeSequence::Start() {
    strength_ = 0;
    step_ = kStep;
    fading_.start();
    emit Shown(true);
}

void WelcomeSequence::Stop() {
    if (!fading_.isActive())
        return;
    fading_.stop();
    scene_.ShowWelcome(-1);
    emit Shown(false);
}

void WelcomeSequence::Tick() {
    strength_ += step_;
    if (strength_ < 0)
        return Stop();
    if (strength_ <= kWelcomeStrongest)
        return scene_.ShowWelcome(strength_);
    if (strength_ < kLongEnough)
        return;
    emit Read();
    strength_ = kFadeFrom;
    step_ = -kStep;
}

}  // namespace orbelle::app
