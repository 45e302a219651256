#pragma once

#include <QObject>

#include <array>

/// Closes the windows when the system ends the program, as at the end of a session, so that what
/// closing saves is saved. There is at most one of it.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
    /// The signals end the program at once again.
    ~TerminationSignals() override;

private:
    void CloseWindows();

    /// The ends of a pipe, for reading and for writing.
    std::array<int, 2> ends_ = {-1, -1};
};
