#pragma once

#include <QMainWindow>

class App;
class MainWindow;

/// The main window on the desktop.
class MainWindowView : public QMainWindow {
    Q_OBJECT

public:
    /// The size of its pages, in points, at which every control has its design place.
    static constexpr QSize designSize{1080, 770};

    /// The application gives the locale and the pictures.
    MainWindowView(MainWindow &window, const App &app);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    MainWindow &window_;
};
