#pragma once

#include "shell/MainWindow.h"
#include "support/TestEnvironment.h"

/// A keyed file with so many bookings of one cash book, spread evenly over the years 2017 to 2026,
/// and the main window on it, without a view. It shows the last year, with a tenth of them.
class LargeBook {
public:
    explicit LargeBook(int bookings);

    /// A copy of the file as it was made, for somebody else to open. It goes with the book.
    const QString &Copy() const { return copy_; }

    TestEnvironment env{TestEnvironment::Storage::File};
    MainWindow window{env.app};

private:
    QString copy_ = env.desktop.Path(QStringLiteral("copy.sdb"));
};
