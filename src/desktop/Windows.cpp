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
    // Queued: the welcome window emits the signal and is in use until it returns.
    connect(
        welcomeWindow_.get(), &WelcomeWindow::Closed, this,
        [this] {
            welcomeView_.reset();
            welcomeWindow_.reset();
        },
        Qt::QueuedConnection);
    welcomeWindow_->Event_Open();
    if (!mainWindow_) {
        connect(&menuBar_.FileMenu().Child(u"AboutItem"), &MenuItem::Action, welcomeWindow_.get(),
                &WelcomeWindow::AboutItem_Action);
        welcomeView_ =
            std::make_unique<WelcomeWindowView>(*welcomeWindow_, menuBar_, app_.Locale());
        welcomeView_->show();
    }
}

void Windows::ShowMainWindow() {
    mainWindow_ = std::make_unique<MainWindow>(app_);
    mainView_ = std::make_unique<MainWindowView>(*mainWindow_, app_.Locale(), app_.Resources());
    mainWindow_->Event_Open();
    mainView_->show();
}
