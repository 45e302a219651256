#pragma once

#include <QObject>

#include <array>

/// Catches SIGTERM, SIGINT and SIGHUP, which the system sends for example at the end of a session.
/// At most one object exists.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
    /// Restores the default handling of the signals.
    ~TerminationSignals() override;

Q_SIGNALS:
    /// Emitted from the event loop, not from the signal handler.
    void Raised();

private:
    void ReadSignal();

    /// The ends of a pipe: for reading, for writing.
    std::array<int, 2> ends_ = {-1, -1};
};
