#include "desktop/Windows.h"

#include "core/App.h"
#include "desktop/windows/MainWindowView.h"
#include "desktop/windows/WelcomeWindowView.h"
#include "setup/WelcomeWindow.h"
#include "shell/MainWindow.h"

Windows::Windows(App &app) : app_(app) {}

Windows::~Windows() = default;

void Windows::Open() {
    welcomeWindow_ = std::make_unique<WelcomeWindow>(app_);
    connect(welcomeWindow_.get(), &WelcomeWindow::MainWindowRequested, this,
            &Windows::ShowMainWindow);
    welcomeWindow_->Event_Open();
    if (mainWindow_) {
        welcomeWindow_.reset();
        return;
    }
    connect(&menuBar_.FileMenu().Child(u"AboutItem"), &MenuItem::Action, welcomeWindow_.get(),
            &WelcomeWindow::AboutItem_Action);
    welcomeView_ = std::make_unique<WelcomeWindowView>(*welcomeWindow_, menuBar_, app_.Locale());
    // Queued: the welcome window emits Closed from one of its own functions.
    connect(
        welcomeWindow_.get(), &WelcomeWindow::Closed, this,
        [this] {
            welcomeView_.reset();
            welcomeWindow_.reset();
        },
        Qt::QueuedConnection);
    welcomeView_->show();
}

void Windows::ShowMainWindow() {
    mainWindow_ = std::make_unique<MainWindow>(app_);
    mainView_ = std::make_unique<MainWindowView>(*mainWindow_, app_.Locale(), app_.Resources());
    mainWindow_->Event_Open();
    mainView_->show();
}
