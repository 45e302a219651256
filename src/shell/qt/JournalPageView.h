#pragma once

#include "shell/qt/Sheet.h"

class MainWindow;

/// The journal page: selectors, list of bookings, balances.
class JournalPageView : public Sheet {
    Q_OBJECT

public:
    JournalPageView(MainWindow &window, QWidget *parent);

private:
    void AddSelectors(MainWindow &window);
    void AddCashList(MainWindow &window);
    void AddBalances(MainWindow &window);
};
