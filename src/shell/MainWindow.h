#pragma once

#include "journal/Balances.h"
#include "journal/EntryRow.h"
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
    EntryRow entryRow;

    /// Runs once, when the window with all its controls is there.
    void Event_Open();

    /// Whether the commands that work on a booking are open: a click in the list opens them, and
    /// they close when the focus leaves the list.
    bool MenuItemEnable() const { return menuItemEnable_; }

private:
    void CashList_CellClick();
    void CashList_LostFocus();

    bool menuItemEnable_ = false;
};
