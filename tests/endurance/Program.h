#pragma once

#include "setup/WelcomeWindow.h"
#include "shell/MainWindow.h"
#include "support/Book.h"

#include <optional>

/// The program from its start, without a widget: the welcome window makes a book if there is none,
/// and opens the main window. What fails is told by the desktop's messages.
class Program {
public:
    explicit Program(FakeDesktop &desktop);

    /// Books a receipt under a voucher number, with a note of so many times that number.
    void Submit(const QString &number, const QString &amount, int times = 1);
    /// Gives the selected booking another amount.
    void Change(const QString &amount);

    /// All bookings, sorted; each as Line tells it if it is complete.
    QStringList Stored() const;
    static QString Line(const QString &number, const QString &amount, int times = 1);
    /// Whether the engine finds the whole file in order.
    bool IsSound() const;

    App app;
    WelcomeWindow welcome{app};
    /// There is none while the book could not be made.
    std::optional<MainWindow> window;

private:
    QStringList Lines(const QString &sql) const;
};
