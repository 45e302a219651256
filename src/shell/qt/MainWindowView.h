#pragma once

#include <QMainWindow>

class MainWindow;
class UserLocale;

/// The main window on the desktop.
class MainWindowView : public QMainWindow {
    Q_OBJECT

public:
    /// The size of its pages, in points, at which every control has its design place.
    static constexpr QSize designSize{1080, 770};

    MainWindowView(MainWindow &window, const UserLocale &locale);
};
