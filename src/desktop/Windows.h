#pragma once

#include "shell/MainMenuBar.h"

#include <QObject>

#include <memory>

class App;
class MainWindow;
class MainWindowView;
class WelcomeWindow;
class WelcomeWindowView;

/// Creates and owns the windows of the program.
class Windows : public QObject {
    Q_OBJECT

public:
    explicit Windows(App &app);
    ~Windows() override;

    /// Opens the main window if the default database file exists, else the welcome window.
    void Open();

private:
    void ShowMainWindow();

    App &app_;
    /// Of the welcome window; the main window has its own.
    MainMenuBar menuBar_;
    std::unique_ptr<WelcomeWindow> welcomeWindow_;
    std::unique_ptr<WelcomeWindowView> welcomeView_;
    std::unique_ptr<MainWindow> mainWindow_;
    std::unique_ptr<MainWindowView> mainView_;
};
