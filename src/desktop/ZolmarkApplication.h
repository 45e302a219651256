#pragma once

#include <QApplication>

#include <exception>

class QtDesktop;

/// The toolkit's application: German texts, a last resort for what nobody caught, and an end that
/// saves what closing the windows saves.
class ZolmarkApplication : public QApplication {
    Q_OBJECT

public:
    ZolmarkApplication(int &argc, char **argv, QtDesktop &desktop);

    /// That of the project, such as 1.0.0.
    static const char *Version() { return version; }

    /// An exception that nobody caught is told in a message, and the program goes on if it has a
    /// window to go on with.
    bool notify(QObject *receiver, QEvent *event) override;
    void ShowException(const std::exception &exception);

    /// Closes all windows and ends the program, whatever message stands, and opens no other.
    void End();

private:
    static const char *const version;

    QtDesktop &desktop_;
};
