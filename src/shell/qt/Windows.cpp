#include "shell/qt/Windows.h"

#include "core/App.h"
#include "setup/WelcomeWindow.h"
#include "shell/MainWindow.h"
#include "shell/qt/MainWindowView.h"
#include "shell/qt/WelcomeWindowView.h"

Windows::Windows(App &app) : app_(app) {}

Windows::~Windows() = default;

void Windows::Open() {
    welcomeWindow_ = std::make_unique<WelcomeWindow>(app_);
    connect(welcomeWindow_.get(), &WelcomeWindow::MainWindowWanted, this, &Windows::ShowMainWindow);
    welcomeWindow_->Event_Open();
    if (!mainWindow_) {
        welcomeView_ = std::make_unique<WelcomeWindowView>(*welcomeWindow_, app_.Locale());
        welcomeView_->show();
    }
}

void Windows::ShowMainWindow() {
    mainWindow_ = std::make_unique<MainWindow>(app_);
    mainView_ = std::make_unique<MainWindowView>(*mainWindow_, app_);
    mainWindow_->Event_Open();
    mainView_->show();
}
