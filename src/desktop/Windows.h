#pragma once

#include "shell/MainMenuBar.h"

#include <QObject>

#include <memory>

class App;
class MainWindow;
class MainWindowView;
class WelcomeWindow;
class WelcomeWindowView;

/// The windows of the program, at most one of each kind.
class Windows : public QObject {
    Q_OBJECT

public:
    explicit Windows(App &app);
    ~Windows() override;

    /// Opens the welcome window, which hands over to the main window if there is a book.
    void Open();

private:
    void ShowMainWindow();

    App &app_;
    /// The welcome window's; the main window has its own.
    MainMenuBar menuBar_;
    std::unique_ptr<WelcomeWindow> welcomeWindow_;
    std::unique_ptr<WelcomeWindowView> welcomeView_;
    std::unique_ptr<MainWindow> mainWindow_;
    std::unique_ptr<MainWindowView> mainView_;
};
