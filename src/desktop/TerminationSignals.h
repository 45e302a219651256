#pragma once

#include <QObject>

#include <array>

/// Hears when the system wants the program to end, as at the end of a session. There is at most one
/// of it.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
    /// The signals end the program at once again.
    ~TerminationSignals() override;

Q_SIGNALS:
    /// Comes in the event loop, not in the signal's handler.
    void Raised();

private:
    void ReadSignal();

    /// The ends of a pipe, for reading and for writing.
    std::array<int, 2> ends_ = {-1, -1};
};
