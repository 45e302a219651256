#pragma once

#include "platform/Canvas.h"
#include "platform/PagePanel.h"

#include <QObject>

class App;

/// The first window of every start. With a book in its place it hands over to the main window at
/// once; without one it stays and offers the ways to a book.
class WelcomeWindow : public QObject {
    Q_OBJECT

public:
    explicit WelcomeWindow(App &app);

    PagePanel PagePanel1;
    Canvas DemoCanvas;

    void Event_Open();

    /// Makes the sample book in memory and opens the main window on it. A failure is told, and the
    /// window stays.
    void CreateDemoDatabase();

Q_SIGNALS:
    /// Show the main window; the database is dealt with.
    void MainWindowWanted();
    /// This window has done its work.
    void Closed();

private:
    App &app_;
};
