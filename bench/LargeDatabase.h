#pragma once

#include "shell/MainWindow.h"
#include "support/TestEnvironment.h"

/// A keyed database file with this many bookings of one cash book, evenly spread over the years
/// 2017 to 2026, and the main window on it, without a view. It shows the last year, a tenth of
/// them.
class LargeDatabase {
public:
    explicit LargeDatabase(int bookings);

    /// The path of a copy of the new file for another program. Deleted with this object.
    const QString &Copy() const { return copy_; }

    TestEnvironment env{TestEnvironment::Storage::File};
    MainWindow window{env.app};

private:
    QString copy_ = env.desktop.Path(QStringLiteral("copy.sdb"));
};
