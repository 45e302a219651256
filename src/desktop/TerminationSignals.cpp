#include "desktop/TerminationSignals.h"

#include <QSocketNotifier>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// The writing end of the pipe that wakes the event loop: a signal handler reaches nothing else.
std::atomic<int> wakeUp = -1;
static_assert(std::atomic<int>::is_always_lock_free);

constexpr int endings[] = {SIGTERM, SIGINT, SIGHUP};

void HandleSignal(int /*signal*/) {
    // What the signal interrupts may be about to read it.
    const int error = errno;
    const char byte = 1;
    // There is nobody to tell; a full pipe has woken the loop already.
    static_cast<void>(!write(wakeUp, &byte, 1));
    errno = error;
}

/// Linux could do it in one call, macOS can't.
bool OpenPipe(std::array<int, 2> &ends) {
    return pipe(ends.data()) == 0 && std::all_of(ends.begin(), ends.end(), [](int end) {
               return fcntl(end, F_SETFD, FD_CLOEXEC) == 0 && fcntl(end, F_SETFL, O_NONBLOCK) == 0;
           });
}

} // namespace

TerminationSignals::TerminationSignals() {
    if (!OpenPipe(ends_)) {
        qWarning("The end of the session will not be noticed.");
        return;
    }
    wakeUp = ends_[1];
    const auto *notifier = new QSocketNotifier(ends_[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &TerminationSignals::ReadSignal);
    for (const int signal : endings) {
        std::signal(signal, HandleSignal);
    }
}

TerminationSignals::~TerminationSignals() {
    for (const int signal : endings) {
        std::signal(signal, SIG_DFL);
    }
    for (const int end : ends_) {
        close(end);
    }
}

void TerminationSignals::ReadSignal() {
    char byte = 0;
    // What it says is known: there is only one message.
    static_cast<void>(!read(ends_[0], &byte, 1));
    Q_EMIT Raised();
}
