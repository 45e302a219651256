#include "desktop/TerminationSignals.h"

#include <QSocketNotifier>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// The writing end of the pipe that wakes the event loop. A signal handler has no other access.
std::atomic<int> wakeUp = -1;
static_assert(std::atomic<int>::is_always_lock_free);

constexpr int caughtSignals[] = {SIGTERM, SIGINT, SIGHUP};

void HandleSignal(int /*signal*/) {
    // The interrupted code may be about to read errno.
    const int error = errno;
    const char byte = 1;
    // Nothing can be done about a failure here; with a full pipe the loop is awake already.
    static_cast<void>(!write(wakeUp, &byte, 1));
    errno = error;
}

/// pipe2() would do, but macOS lacks it.
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
    for (const int signal : caughtSignals) {
        std::signal(signal, HandleSignal);
    }
}

TerminationSignals::~TerminationSignals() {
    for (const int signal : caughtSignals) {
        std::signal(signal, SIG_DFL);
    }
    for (const int end : ends_) {
        close(end);
    }
}

void TerminationSignals::ReadSignal() {
    char byte = 0;
    // The byte has no meaning.
    static_cast<void>(!read(ends_[0], &byte, 1));
    Q_EMIT Raised();
}
