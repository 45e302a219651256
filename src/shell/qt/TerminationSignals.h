#pragma once

#include <QObject>

/// Closes the windows when the system ends the program, as at the end of a session, so that what
/// closing saves is saved.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
};
