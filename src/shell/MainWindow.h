#pragma once

#include "journal/Balances.h"
#include "journal/Journal.h"
#include "journal/Selectors.h"

#include <QObject>

class App;

/// The one document window: it puts the rooms together, opens and closes them.
class MainWindow : public QObject {
    Q_OBJECT

public:
    explicit MainWindow(App &app);

    Selectors selectors;
    Journal journal;
    Balances balances;

    /// Runs once, when the window with all its controls is there.
    void Event_Open();
};
