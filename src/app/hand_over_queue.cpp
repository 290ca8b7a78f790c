#include "app/hand_over_queue.h"

#include <utility>

namespace orbelle::app {
namespace {

constexpr int kLookMilliseconds = 50;

}  // namespace

void HandOverQueue::Add(const QByteArray& commandLine) {
    waiting_ += commandLine;
    if (isFree_)
        look_.start(0);
    emit Added();
}

void HandOverQueue::Start(std::function<bool()> isFree,
                          std::function<void(const QByteArray&)> open) {
    isFree_ = std::move(isFree);
    open_ = std::move(open);
    look_.setSingleShot(true);
    connect(&look_, &QTimer::timeout, this, &HandOverQueue::OpenNext);
    look_.start(0);
}

void HandOverQueue::OpenNext() {
    if (!waiting_.isEmpty() && !opening_ && isFree_()) {
        opening_ = true;
        open_(waiting_.takeFirst());
        opening_ = false;
    }
    if (!waiting_.isEmpty())
        look_.start(kLookMilliseconds);
}

}  // namespace orbelle::app
