#include "app/welcome_sequence.h"

#include "app/scene_view.h"

namespace orbelle::app {
namespace {

constexpr int kTickMilliseconds = 10;
constexpr int kStrongest = 250;
constexpr int kLongEnough = 2000;
constexpr int kFadeFrom = 230;
constexpr int kStep = 10;

}  // namespace

WelcomeSequence::WelcomeSequence(SceneView& scene) : scene_(scene) {
    timer7_.setInterval(kTickMilliseconds);
    connect(&timer7_, &QTimer::timeout, this, &WelcomeSequence::Tick);
}

void WelcomeSequence::Start() {
    tag_ = 0;
    welcomeStep_ = kStep;
    timer7_.start();
}

void WelcomeSequence::Stop() {
    timer7_.stop();
    scene_.ShowWelcome(-1);
}

void WelcomeSequence::Tick() {
    tag_ += welcomeStep_;
    if (tag_ < 0)
        return Stop();
    if (tag_ <= kStrongest)
        return scene_.ShowWelcome(tag_);
    if (tag_ < kLongEnough)
        return;
    emit Read();
    tag_ = kFadeFrom;
    welcomeStep_ = -kStep;
}

}  // namespace orbelle::app
