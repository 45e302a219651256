#pragma once

#include <QMainWindow>

class App;
class MainWindow;
class PagePanelView;

/// The main window on the desktop.
class MainWindowView : public QMainWindow {
    Q_OBJECT

public:
    /// The size of its pages, in points, at which every control has its design place.
    static constexpr QSize designSize{1080, 770};

    /// The application gives the locale and the pictures.
    MainWindowView(MainWindow &window, const App &app);

protected:
    /// The desktop may get another font.
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    /// Gives the pages the desktop's font and the window the size that goes with it.
    void Grow();

    MainWindow &window_;
    PagePanelView *pages_;
};
