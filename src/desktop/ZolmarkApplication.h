#pragma once

#include <QApplication>

#include <exception>

class QtDesktop;

/// The Qt application: loads the German texts of Qt, shows uncaught exceptions, and saves on exit
/// what closing the windows saves.
class ZolmarkApplication : public QApplication {
    Q_OBJECT

public:
    ZolmarkApplication(int &argc, char **argv, QtDesktop &desktop);

    /// The version of the project, such as 1.0.0.
    static const char *Version() { return version; }

    /// Shows an uncaught exception in a message box. The program exits if no window is visible.
    bool notify(QObject *receiver, QEvent *event) override;
    void ShowException(const std::exception &exception);

    /// Closes all windows and exits, even while a message box is open; no other dialog opens.
    void End();

private:
    static const char *const version;

    QtDesktop &desktop_;
};
