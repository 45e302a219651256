#include "shell/qt/TerminationSignals.h"

#include <QApplication>
#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// The writing end of the pipe that wakes the event loop: a signal handler reaches nothing else.
int wakeUp = -1;

void HandleSignal(int /*signal*/) {
    const char byte = 1;
    // There is nobody to tell; a full pipe has woken the loop already.
    static_cast<void>(!write(wakeUp, &byte, 1));
}

} // namespace

TerminationSignals::TerminationSignals() {
    int ends[2] = {};
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        qWarning("The end of the session will not be noticed.");
        return;
    }
    wakeUp = ends[1];
    const auto *notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, qApp, &QApplication::closeAllWindows);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        std::signal(signal, HandleSignal);
    }
}
