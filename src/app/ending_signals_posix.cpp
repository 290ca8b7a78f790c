#include "app/ending_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <csignal>

namespace orbelle::app {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

// A handler may do next to nothing; a byte through a pipe wakes the event loop.
int pipeEnds[2] = {-1, -1};

void Wake(int) {
    const int before = errno;
    [[maybe_unused]] const ssize_t ignored = ::write(pipeEnds[1], "", 1);
    errno = before;
}

// One that whoever started the program has it ignore stays ignored.
void Handle(void (*handler)(int)) {
    for (const int signal : kSignals) {
        struct sigaction action {};
        ::sigaction(signal, nullptr, &action);
        if (action.sa_handler == SIG_IGN)
            continue;
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART;
        ::sigaction(signal, &action, nullptr);
    }
}

}  // namespace

EndingSignals::EndingSignals(QObject* parent) : QObject(parent) {
    // An export into a pipe that nobody reads any more fails, with words.
    std::signal(SIGPIPE, SIG_IGN);
    if (::pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    notifier_ = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (::read(pipeEnds[0], &byte, 1) > 0) {
        }
        emit Received();
    });
    Handle(Wake);
}

EndingSignals::~EndingSignals() {
    if (!notifier_)
        return;
    Handle(SIG_DFL);
    for (int& end : pipeEnds)
        ::close(end);
}

}  // namespace orbelle::app
