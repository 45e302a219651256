#pragma once

#include "shell/qt/Sheet.h"

class QStackedWidget;
class WelcomeWindow;

/// The welcome window on the desktop: pages on the left, three large buttons on the right.
class WelcomeWindowView : public Sheet {
    Q_OBJECT

public:
    explicit WelcomeWindowView(WelcomeWindow &window);

private:
    void AddGreeting();
    void AddButtons(WelcomeWindow &window);

    QStackedWidget *pages_;
};
